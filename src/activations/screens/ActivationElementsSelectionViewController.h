#pragma once

#include "activations/screens/ActivationItemModel.h"
#include "activations/screens/ActivationServices.h"
#include "screens/ScreenController.h"

#include <QVariantList>

#include <optional>
#include <vector>

namespace kavor {

// The elements that go with an activation, with its pictures, its texts and what is left of its quota.
class ActivationElementsSelectionViewController : public kavor::ScreenController {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the choice of an activation")
    Q_PROPERTY(QString activationName READ activationName CONSTANT)
    Q_PROPERTY(QString brandName READ brandName CONSTANT)
    Q_PROPERTY(QString descriptionText READ descriptionText CONSTANT)
    Q_PROPERTY(QString agencyName READ agencyName CONSTANT)
    Q_PROPERTY(QString agencyDescription READ agencyDescription CONSTANT)
    Q_PROPERTY(QString noticeLabel READ noticeLabel CONSTANT)
    // When it is on offer; empty for one that always is.
    Q_PROPERTY(QString availabilityLabel READ availabilityLabel CONSTANT)
    // {source, text} each, by position.
    Q_PROPERTY(QVariantList images READ images CONSTANT)
    Q_PROPERTY(kavor::ActivationItemModel* items READ items CONSTANT)
    // "3 de 4 elementos"
    Q_PROPERTY(QString countText READ countText NOTIFY selectionChanged)
    Q_PROPERTY(int quota READ quota NOTIFY quotaChanged)
    Q_PROPERTY(int numberMade READ numberMade NOTIFY quotaChanged)
    Q_PROPERTY(QString remainingText READ remainingText NOTIFY quotaChanged)
    Q_PROPERTY(bool detailVisible READ isDetailVisible CONSTANT)
    // That the order is tied to another one; empty otherwise.
    Q_PROPERTY(QString tieText READ tieText CONSTANT)
    Q_PROPERTY(bool offline READ isOffline NOTIFY offlineChanged)

public:
    // The activation belongs to the route's catalogue.
    ActivationElementsSelectionViewController(const ActivationServices& services, ActivationRoute route,
                                              const ActivationInformation& selectedActivation,
                                              QObject* parent = nullptr);
    ~ActivationElementsSelectionViewController() override;

    static QUrl view();
    void viewWillAppear() override;

    Q_INVOKABLE void tapItem(int item);
    Q_INVOKABLE void showDetail();
    Q_INVOKABLE void nextAction();
    Q_INVOKABLE void closeSceneAction();

    [[nodiscard]] QString activationName() const;
    [[nodiscard]] QString brandName() const;
    [[nodiscard]] QString descriptionText() const;
    [[nodiscard]] QString agencyName() const;
    [[nodiscard]] QString agencyDescription() const;
    [[nodiscard]] QString noticeLabel() const;
    [[nodiscard]] QString availabilityLabel() const;
    [[nodiscard]] QVariantList images() const;
    [[nodiscard]] ActivationItemModel* items() { return &items_; }
    [[nodiscard]] const std::vector<bool>& selectedItems() const { return selectedItems_; }
    [[nodiscard]] QString countText() const;
    [[nodiscard]] int quota() const;
    [[nodiscard]] int numberMade() const;
    [[nodiscard]] QString remainingText() const;
    [[nodiscard]] bool isDetailVisible() const { return selectedActivation_.detailsPDF.has_value(); }
    [[nodiscard]] QString tieText() const;
    [[nodiscard]] bool isOffline() const;

signals:
    void selectionChanged();
    void quotaChanged();
    void offlineChanged();

private:
    ActivationServices services_;
    ActivationRoute route_;
    const ActivationInformation& selectedActivation_;
    std::vector<bool> selectedItems_;
    ActivationItemModel items_;
    bool warned_ = false;
    bool covered_ = false;
};

} // namespace kavor

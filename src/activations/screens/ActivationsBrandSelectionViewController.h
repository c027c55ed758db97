#pragma once

#include "activations/screens/ActivationBoardModel.h"
#include "activations/screens/ActivationServices.h"
#include "screens/ScreenController.h"

#include <QVariantList>

#include <memory>

namespace kavor {

// The board on which the brand of an activation is chosen. A brand with a single activation leads straight to
// its elements.
class ActivationsBrandSelectionViewController : public kavor::ScreenController {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    Q_PROPERTY(kavor::ActivationBoardModel* board READ board CONSTANT)
    // The same brands in words: {id, text, detail} each.
    Q_PROPERTY(QVariantList brandRows READ brandRows CONSTANT)
    // Why there is nothing to choose; empty where there is.
    Q_PROPERTY(QString emptyTitle READ emptyTitle CONSTANT)
    Q_PROPERTY(QString emptyText READ emptyText CONSTANT)
    Q_PROPERTY(bool offline READ isOffline NOTIFY offlineChanged)

public:
    explicit ActivationsBrandSelectionViewController(const ActivationServices& services,
                                                     QObject* parent = nullptr);
    ~ActivationsBrandSelectionViewController() override;

    void viewWillAppear() override { covered_ = false; }

    // The definition of this number; one that is none changes nothing.
    Q_INVOKABLE void selectBrand(qint64 definition);
    Q_INVOKABLE void closeSceneAction() { emit closed(); }

    [[nodiscard]] ActivationBoardModel* board() { return &board_; }
    [[nodiscard]] QVariantList brandRows() const;
    [[nodiscard]] const ActivationsInformation::Definition* selectedBrandActivation() const {
        return selectedBrandActivation_;
    }
    [[nodiscard]] QString emptyTitle() const;
    [[nodiscard]] QString emptyText() const;
    [[nodiscard]] bool isOffline() const;

signals:
    void offlineChanged();

private:
    [[nodiscard]] const ActivationsInformation* activations() const;

    ActivationServices services_;
    std::shared_ptr<const Catalogue> catalogue_;
    ActivationBoardModel board_;
    const ActivationsInformation::Definition* selectedBrandActivation_ = nullptr;
    bool covered_ = false; // another screen is on show above
};

} // namespace kavor

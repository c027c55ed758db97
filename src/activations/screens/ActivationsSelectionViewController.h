#pragma once

#include "activations/ActivationMemory.h"
#include "activations/screens/ActivationBoardModel.h"
#include "activations/screens/ActivationServices.h"
#include "interaction/VeiledRun.h"
#include "screens/ScreenController.h"
#include "screens/VeilState.h"

namespace kavor {

struct RequestFailure;

// The board on which one of a brand's activations is chosen, each with what is left of its quota.
class ActivationsSelectionViewController : public kavor::ScreenController {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the choice of a brand")
    Q_PROPERTY(QString brandName READ brandName CONSTANT)
    Q_PROPERTY(QString titleLabel READ titleLabel CONSTANT)
    Q_PROPERTY(QString background READ background CONSTANT)
    Q_PROPERTY(kavor::ActivationBoardModel* presentButtons READ presentButtons CONSTANT)
    // What is known of the chosen activation; empty without one.
    Q_PROPERTY(QString selectedName READ selectedName NOTIFY selectionChanged)
    Q_PROPERTY(QString selectedDescription READ selectedDescription NOTIFY selectionChanged)
    Q_PROPERTY(QString selectedNotice READ selectedNotice NOTIFY selectionChanged)
    Q_PROPERTY(int quota READ quota NOTIFY selectionChanged)
    Q_PROPERTY(int numberMade READ numberMade NOTIFY selectionChanged)
    Q_PROPERTY(QString remainingText READ remainingText NOTIFY selectionChanged)
    Q_PROPERTY(QString emptyText READ emptyText CONSTANT)
    Q_PROPERTY(kavor::VeilState* veil READ veil CONSTANT)
    Q_PROPERTY(bool offline READ isOffline NOTIFY offlineChanged)

public:
    ActivationsSelectionViewController(const ActivationServices& services, ActivationRoute route,
                                       QObject* parent = nullptr);
    ~ActivationsSelectionViewController() override;

    static QUrl view();
    void viewWillAppear() override;

    // The activation of this number; one that is none changes nothing.
    Q_INVOKABLE void selectActivation(qint64 activation);
    Q_INVOKABLE void nextAction();
    // An order that is being tied would be lost, which is asked.
    Q_INVOKABLE void closeSceneAction();

    [[nodiscard]] QString brandName() const;
    [[nodiscard]] QString titleLabel() const;
    [[nodiscard]] QString background() const;
    [[nodiscard]] ActivationBoardModel* presentButtons() { return &presentButtons_; }
    [[nodiscard]] const ActivationInformation* selectedActivation() const { return selectedActivation_; }
    [[nodiscard]] QString selectedName() const;
    [[nodiscard]] QString selectedDescription() const;
    [[nodiscard]] QString selectedNotice() const;
    [[nodiscard]] int quota() const;
    [[nodiscard]] int numberMade() const;
    [[nodiscard]] QString remainingText() const;
    [[nodiscard]] QString emptyText() const;
    [[nodiscard]] VeilState* veil() { return &veil_; }
    [[nodiscard]] bool isOffline() const;

signals:
    void selectionChanged();
    void offlineChanged();

private:
    void requestQuota();
    void quotaFailed(const RequestFailure& failure);
    void showButtons();
    [[nodiscard]] ActivationQuota selectedQuota() const;

    ActivationServices services_;
    ActivationRoute route_;
    ActivationBoardModel presentButtons_;
    const ActivationInformation* selectedActivation_ = nullptr;
    VeilState veil_;
    VeiledRun wait_;
    bool loaded_ = false;
    bool covered_ = false;
};

} // namespace kavor

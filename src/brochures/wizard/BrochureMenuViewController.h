#pragma once

#include "base/NotificationCenter.h"
#include "brochures/wizard/CatalogueCopy.h"
#include "brochures/wizard/MenuMarks.h"
#include "brochures/wizard/WizardStep.h"
#include "screens/ScreenController.h"
#include "screens/VeilState.h"
#include "screens/WebPreviewViewController.h"

#include <QQmlEngine>
#include <QString>
#include <QTimer>
#include <QVariantList>

#include <memory>
#include <vector>

namespace kavor {

class BrochureIntermediateData;
class BrochureRoad;

// The frame of the brochure wizard: a menu and one step at a time, all working on the one shared draft.
// Opened with the section of the session set to a kind of brochure.
class BrochureMenuViewController : public kavor::ScreenController {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the screen that opens the wizard")
    Q_PROPERTY(QString title READ title CONSTANT)
    // The bar's name, empty while it has none.
    Q_PROPERTY(QString subtitle READ subtitle NOTIFY subtitleChanged)
    // The caption of the style entry; empty outside a brochure section.
    Q_PROPERTY(QString styleDefaultLabel READ styleDefaultLabel CONSTANT)
    // The entries as StepMenu takes them, in the order of the work; the id is the place in the menu's table.
    Q_PROPERTY(QVariantList menuButtons READ menuButtons NOTIFY menuButtonsChanged)
    Q_PROPERTY(kavor::WizardStepViewController* activeViewController READ activeViewController NOTIFY
                   activeStepChanged)
    Q_PROPERTY(kavor::VeilState* veil READ veil CONSTANT)
    Q_PROPERTY(bool offline READ isOffline NOTIFY offlineChanged)
    // The document on show over the wizard, null when there is none.
    Q_PROPERTY(kavor::WebPreviewViewController* preview READ preview NOTIFY previewChanged)
    // "Se ha recuperado la carta en curso" when the wizard opened with an unfinished menu, otherwise empty.
    Q_PROPERTY(QString recoveredMessage READ recoveredMessage CONSTANT)

public:
    // The places in the menu that other code names.
    enum MenuButton {
        Reset = 0,
        Configuration,
        Products,
        Prices,
        DigitalStyle,
        Style,
        Drinks,
        OrderSheet,
        Send,
        Promotions,
        Pennant,
        PennantBrand
    };

    // With what it opens: the unfinished menu of the section, or the shared draft as it stands, into which an
    // order to edit was loaded.
    enum class Opening { UnfinishedMenu, OrderToEdit };

    // Opens the wizard on its first step. The services outlive it.
    explicit BrochureMenuViewController(const WizardServices& services, QObject* parent = nullptr,
                                        Opening opening = Opening::UnfinishedMenu);
    ~BrochureMenuViewController() override;

    // Whether a wizard is open, on show or below another screen.
    [[nodiscard]] static bool isAnyOpen() { return open_ > 0; }

    [[nodiscard]] QString title() const;
    [[nodiscard]] QString subtitle() const;
    [[nodiscard]] QString styleDefaultLabel() const { return styleDefaultLabel_; }
    [[nodiscard]] QVariantList menuButtons() const;
    [[nodiscard]] bool isButtonVisible(int index) const;
    [[nodiscard]] int selectedButton() const { return selected_; }
    [[nodiscard]] WizardStepViewController* activeViewController() const { return activeViewController_; }
    [[nodiscard]] VeilState* veil() { return &veil_; }
    [[nodiscard]] bool isVeilVisible() const { return veil_.isVisible(); }
    [[nodiscard]] QString veilText() const { return veil_.text(); }
    [[nodiscard]] bool isVeilLeavable() const { return veil_.isLeavable(); }
    [[nodiscard]] bool isOffline() const;
    [[nodiscard]] WebPreviewViewController* preview() const { return preview_; }
    [[nodiscard]] QString recoveredMessage() const { return recoveredMessage_; }

    // A tap on the entry of this place; the entry on show and places past the last do nothing.
    Q_INVOKABLE void buttonPushedAction(int index);
    // Closes the wizard at once.
    Q_INVOKABLE void closeSceneAction();
    // The user waits no longer for what the veil stands for.
    void leaveVeil() { veil_.leave(); }
    // Shows a document over the wizard.
    void showPreview(const QUrl& document);
    // A screen that was opened over the wizard has closed.
    void viewWillAppear() override;
    // Saves the step on show and the temporary copy, as when the wizard goes off the screen.
    void viewWillDisappear();

signals:
    void menuButtonsChanged();
    void activeStepChanged();
    void offlineChanged();
    void subtitleChanged();
    void previewChanged();
    // A screen over the wizard; viewWillAppear says that it has closed.
    void screenRequested(const kavor::Screen& screen);
    void promotionsRequested(const kavor::MenuPromotionRequest& request);
    // A field of the step on show is to be typed into, or chosen.
    void fieldRequested(const QString& name);

private:
    void viewDidLoad(Opening opening);
    void viewDidAppear();
    void restoreUnfinishedMenu();
    void applyParameters();
    void showStep(int wizardStep);
    void leaveActiveStep();
    void saveActiveStep();
    void askAboutSentOrder();
    void sentOrderAnswered(bool another);
    void enterButton(int index);
    void select(int index);
    void askForReset();
    void reset();
    void previewDraft();
    void closePreview();
    void cover();
    void goTo(ValidationPlace place);
    void countMissing();
    void connectStep(WizardStepViewController* step);

    WizardServices services_;
    QString styleDefaultLabel_;
    QString recoveredMessage_;
    VeilState veil_;
    std::vector<bool> visibleButtons_;
    int selected_ = Configuration;
    WizardStepViewController* activeViewController_ = nullptr;
    // Fetches the document of the draft for the step on show, which asked for it; null otherwise.
    std::unique_ptr<BrochureRoad> previewRoad_;
    WebPreviewViewController* preview_ = nullptr;
    std::shared_ptr<BrochureIntermediateData> actualOrder_;
    std::vector<NotificationCenter::Subscription> observers_;
    MenuMarks marks_;
    QTimer counting_;
    CatalogueCopy catalogueToReset_; // made while the user is asked
    bool alreadyDismissedPreferredBrandsBanner_ = false;
    bool appeared_ = false;
    bool loadingStep_ = false;
    bool covered_ = false; // a screen is on show over the wizard
    bool askingAboutSentOrder_ = false;
    static inline int open_ = 0;
};

} // namespace kavor

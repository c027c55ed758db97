#pragma once

#include "screens/ScreenController.h"
#include "screens/VeilState.h"
#include "screens/WebPreviewViewController.h"
#include "textile/screens/TextileDesk.h"
#include "textile/screens/TextileStepViewController.h"

#include <QVariantList>

namespace kavor {

// The frame of the section of clothing: its three steps, the reset, the veil and the preview. Both textile
// sections share one draft.
class TextileMenuViewController : public kavor::ScreenController {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    Q_PROPERTY(QString title READ title CONSTANT)
    // The bar's name, empty while it has none.
    Q_PROPERTY(QString subtitle READ subtitle NOTIFY menuButtonsChanged)
    // Whether there is anything to order; without it there is no step.
    Q_PROPERTY(bool inCatalogue READ isInCatalogue CONSTANT)
    // The entries as StepMenu takes them; the id is the place in MenuButton.
    Q_PROPERTY(QVariantList menuButtons READ menuButtons NOTIFY menuButtonsChanged)
    Q_PROPERTY(kavor::TextileStepViewController* activeViewController READ activeViewController NOTIFY
                   activeStepChanged)
    Q_PROPERTY(kavor::VeilState* veil READ veil CONSTANT)
    Q_PROPERTY(bool offline READ isOffline NOTIFY offlineChanged)
    // The document on show over the section, null when there is none.
    Q_PROPERTY(kavor::WebPreviewViewController* preview READ preview NOTIFY previewChanged)
    // That unfinished work came back; empty otherwise.
    Q_PROPERTY(QString recoveredMessage READ recoveredMessage CONSTANT)

public:
    enum MenuButton { Reset = 0, Configuration, Products, Send };

    // With what it opens: the unfinished order, or the shared draft as it stands, into which an order to edit
    // was loaded.
    enum class Opening { UnfinishedOrder, OrderToEdit };

    explicit TextileMenuViewController(const TextileServices& services,
                                       Opening opening = Opening::UnfinishedOrder, QObject* parent = nullptr);
    ~TextileMenuViewController() override;

    void viewWillAppear() override;
    // A tap on the entry of this place; the entry on show does nothing.
    Q_INVOKABLE void buttonPushedAction(int index);
    Q_INVOKABLE void closeSceneAction();

    [[nodiscard]] QString title() const;
    [[nodiscard]] QString subtitle() const;
    [[nodiscard]] bool isInCatalogue() const { return desk_ != nullptr; }
    [[nodiscard]] QVariantList menuButtons() const;
    [[nodiscard]] int selectedButton() const { return selected_; }
    [[nodiscard]] TextileStepViewController* activeViewController() const { return activeViewController_; }
    [[nodiscard]] VeilState* veil() { return &veil_; }
    [[nodiscard]] bool isOffline() const;
    [[nodiscard]] WebPreviewViewController* preview() const { return preview_; }
    [[nodiscard]] QString recoveredMessage() const { return recoveredMessage_; }

signals:
    void menuButtonsChanged();
    void activeStepChanged();
    void offlineChanged();
    void previewChanged();
    // A quiet word for the user.
    void said(const QString& word);

private:
    void openDraft(Opening opening);
    void askAboutOtherSection();
    void askToBeginAnew(const std::function<void()>& kept = {});
    void show(int button);
    [[nodiscard]] TextileStepViewController* makeStep(int button);
    void showPreview(const QUrl& document);
    void closePreview();

    TextileServices services_;
    std::unique_ptr<TextileDesk> desk_; // none without a textile catalogue
    VeilState veil_;
    QString recoveredMessage_;
    int selected_ = Configuration;
    TextileStepViewController* activeViewController_ = nullptr;
    WebPreviewViewController* preview_ = nullptr;
};

} // namespace kavor

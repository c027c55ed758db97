#pragma once

#include "brochures/engine/ValidationMessage.h"
#include "orders/services/OrderSync.h"
#include "promotions/MenuPromotionRequest.h"
#include "screens/ScreenStack.h"

#include <QObject>
#include <QQmlEngine>
#include <QUrl>

namespace kavor {

class AlertPresenter;
class Clock;
class ImageCache;
class LocationService;
class OrderDiskManager;
class PhotoPicker;
class PlainDownloader;
class Reachability;
class ReverseLocationManager;
class ServiceOperations;
class SessionStore;
class UrlOpener;

// What the steps of the wizard work with. Everything outlives the wizard.
struct WizardServices {
    ServiceOperations& network;
    OrderDiskManager& orders;
    SessionStore& sessions;
    OrderSync& sync;
    AlertPresenter& alerts;
    UrlOpener& urls;
    Clock& clock;
    PlainDownloader& downloader;
    PhotoPicker& photos;
    Reachability& reachability;
    ReverseLocationManager* location = nullptr; // none on a device without location
};

// A step that can write its screen state into the draft.
class SerializeAutoSave {
public:
    virtual ~SerializeAutoSave() = default;
    virtual void serializeAutoSave() = 0;
};

// One step of the wizard. A step is made anew each time it is shown; its view binds to it as "controller".
// Steps name it with its namespace, or the tools of QML lose sight of what they derive from.
class WizardStepViewController : public QObject {
    Q_OBJECT
    QML_ANONYMOUS
    // The QML view of the step.
    Q_PROPERTY(QUrl view READ view CONSTANT)
public:
    using QObject::QObject;
    [[nodiscard]] virtual QUrl view() const = 0;
    // Called once after the step was made, and each time it comes on show.
    virtual void viewDidLoad() {}
    virtual void viewWillAppear() {}
    // The draft goes on as another order than the one that was sent.
    virtual void anotherOrderBegun() {}
    // Whether the banner of the preferred brands belongs over the step.
    [[nodiscard]] virtual bool wantsBanner() const { return false; }

signals:
    // Asks the frame to show another step by its number (for example from a message that says what is
    // missing).
    void stepRequested(int wizardStep);
    // Asks the frame to lead to where the user mends what a sentence of the check is about.
    void missingPlaceRequested(kavor::ValidationPlace place);
    // Asks the frame to show a document (PDF) over the wizard.
    void previewRequested(const QUrl& document);
    // Asks the frame to show the document of the draft, which the server makes.
    void draftPreviewRequested();
    // Asks for a screen over the wizard, which stays as it is below; the step hears viewWillAppear when that
    // one closes. Whoever shows it owns its controller.
    void screenRequested(const kavor::Screen& screen);
    // Asks for the gallery of promotions over the wizard, or for the form of the promotion to edit.
    void promotionsRequested(const kavor::MenuPromotionRequest& request);
    // The bar shows another name.
    void subtitleChanged();
};

} // namespace kavor

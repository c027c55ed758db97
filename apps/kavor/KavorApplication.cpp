#include "kavor/KavorApplication.h"

#include "base/AtomicFile.h"
#include "base/BackgroundFileWriter.h"
#include "base/BundleVersion.h"
#include "base/StopProcess.h"
#include "brochures/wizard/BrochureMenuViewController.h"
#include "device/AppLifecycle.h"
#include "device/BackgroundTasks.h"
#include "device/FileExport.h"
#include "device/LocalNotifications.h"
#include "device/LocationService.h"
#include "device/LogFile.h"
#include "device/PushRegistration.h"
#include "device/ReverseLocationManager.h"
#include "device/UrlOpener.h"
#include "device/media/QtFilmPlayer.h"
#include "interaction/AlertPresenter.h"
#include "kavor/SectionScreens.h"
#include "network/TrafficLog.h"
#include "orders/services/OrderActions.h"
#include "orders/services/OrderSyncManager.h"
#include "resources/PDFCacheManager.h"
#include "screens/ResourceImages.h"
#include "shell/screens/Artwork.h"
#include "shell/screens/PhotoLibraryViewController.h"
#include "shell/screens/RootController.h"
#include "shell/screens/Screens.h"
#include "shell/services/AppDelegate.h"
#include "shell/services/HeadlessCore.h"
#include "ui/Ui.h"

#include <QFile>
#include <QGuiApplication>
#include <QQmlApplicationEngine>
#include <QQuickStyle>
#include <QQuickWindow>
#include <QStyleHints>

#include <chrono>
#include <utility>

// In a static library nothing else would keep it.
static void initialiseConfiguration() {
    Q_INIT_RESOURCE(configuration);
}

namespace kavor {

namespace {

constexpr char windowWidth[] = "windowWidth";
constexpr char windowHeight[] = "windowHeight";
constexpr QSize usualSize(1024, 768);
constexpr QSize smallestSize(320, 480);

// What the core of a client stands on, before anything reads it.
HeadlessCore::Settings openCore(const KavorOptions& options, NetworkConfiguration configuration,
                                std::unique_ptr<SessionStore> reading) {
    if (const auto opened = HeadlessCore::openFolders(options.documents, options.caches); !opened)
        stopProcess("the folder " + opened.error().text());
    atomic_file::sweepTemporaries(options.documents);
    atomic_file::sweepTemporaries(options.caches / PDFCacheManager::folderName);
    return {std::move(configuration), std::make_unique<FontRegistry>(), std::move(reading)};
}

} // namespace

// The core, and what a window adds to it, each after those that it uses.
struct KavorApplication::Parts : HeadlessCore {
    Parts(const KavorOptions& options, NetworkConfiguration configuration,
          std::unique_ptr<SessionStore> reading)
        : HeadlessCore(openCore(options, std::move(configuration), std::move(reading)))
        , tasks(clock, reachability, {})
        , sync({network, orders, localNotifications, notifications, tasks, clock,
                [this] { network.configureSession(NetworkManager::backgroundConfiguration()); },
                [this] { network.configureSession(NetworkManager::defaultConfiguration()); },
                [this] { application.resetRoot(AppDelegate::RootKind::AllOrders); }})
        , location(locationService, geocoder)
        , application({session, *sessions, network, auth, defaults, notifications, localNotifications, push,
                       tasks, sync})
        , orderActions(network, orders)
        , sections{{network, orders, *sessions, sync, alerts, urls, clock, downloader, photos, reachability,
                    &location},
                   {session, network, auth, alerts, urls, reachability, suggestion, films},
                   {session, network, auth, alerts, urls, reachability, messages},
                   orderActions,
                   sync,
                   files,
                   *fonts,
                   fontUpdater}
        , root({application,
                alerts,
                localNotifications,
                {session, network, auth, defaults, notifications, alerts, urls},
                {session, application, network, auth, catalogue, notifications, orders, alerts, urls, clock,
                 reachability},
                [this](const QString& transition, ScreenStack& screens) {
                    return makeSectionScreen(transition, sections, screens);
                }}) {}

    DesktopNotifications localNotifications;
    NoPushRegistration push;
    TimerBackgroundTasks tasks;
    OrderSyncManager sync;
    AlertPresenter alerts;
    SystemUrlOpener urls;
    PhotoLibraryViewController photos{alerts, defaults, clock};
    QtLocationService locationService;
    NoReverseGeocoder geocoder;
    ReverseLocationManager location;
    QtAppLifecycle lifecycle;
    AppDelegate application;
    SuggestionDraft suggestion;
    OrderMessages messages;
    OrderActions orderActions;
    QtFilmPlayer films;
    DownloadsExport files;
    SectionServices sections;
    RootController root;
    QQmlApplicationEngine engine;
    QQuickWindow* window = nullptr;
};

void KavorApplication::prepareProcess() {
    QCoreApplication::setApplicationName(QStringLiteral("kavor"));
    QCoreApplication::setApplicationVersion(QString::fromStdString(bundleVersion()));
    QGuiApplication::setDesktopFileName(QStringLiteral("kavor"));
    QQuickStyle::setStyle(QStringLiteral("Basic"));
}

tl::expected<NetworkConfiguration, std::string>
KavorApplication::loadConfiguration(const KavorOptions& options) {
    if (options.configuration)
        return NetworkConfiguration::load(*options.configuration);
    initialiseConfiguration();
    QFile embedded(QStringLiteral(":/kavor/NetworkConfiguration.plist"));
    if (!embedded.open(QIODevice::ReadOnly))
        stopProcess("NetworkConfiguration.plist");
    return NetworkConfiguration::decode(embedded.readAll().toStdString(), "NetworkConfiguration.plist");
}

std::unique_ptr<SessionStore> KavorApplication::beginReading(const KavorOptions& options) {
    AppSingleton::shared().setFolders(options.documents, options.caches);
    auto sessions = std::make_unique<SessionStore>(AppSingleton::shared());
    sessions->preload();
    return sessions;
}

KavorApplication::KavorApplication(const KavorOptions& options, NetworkConfiguration configuration,
                                   std::unique_ptr<SessionStore> sessions)
    : options_(options)
    , parts_(std::make_unique<Parts>(options, std::move(configuration), std::move(sessions))) {
    // Two quick taps are two taps: a touch screen would swallow the second one as a double click. Only a
    // change of screen keeps the platform's own time.
    QStyleHints* hints = QGuiApplication::styleHints();
    static const int doublePress = hints->mouseDoubleClickInterval(); // before it is changed, once
    hints->setMouseDoubleClickInterval(0);
    parts_->root.setDoublePressInterval(std::chrono::milliseconds(doublePress));
    if (options.offline)
        setOffline(true);
    // What the wizard wrote last stands on disk before the session is stored.
    connect(&parts_->lifecycle, &AppLifecycle::willTerminate, this,
            [] { BackgroundFileWriter::shared().flush(); });
    connect(&parts_->lifecycle, &AppLifecycle::enteredBackground, this,
            [] { BackgroundFileWriter::shared().flush(); });
    parts_->application.follow(parts_->lifecycle);
    // A run writes the number of what it sent into the shared draft, which must not be another one in the
    // making; and it needs somebody's token.
    parts_->tasks.setGate([this] {
        return !BrochureMenuViewController::isAnyOpen() && !parts_->network.accessToken().isEmpty();
    });
    connect(&parts_->root, &RootController::windowClosed, this, [this] {
        rememberWindowSize();
        parts_->lifecycle.reportWindowClosed();
    });
}

KavorApplication::KavorApplication(const KavorOptions& options, NetworkConfiguration configuration)
    : KavorApplication(options, std::move(configuration), beginReading(options)) {}

KavorApplication::~KavorApplication() = default;

bool KavorApplication::start() {
    parts_->fonts->addStored(parts_->fontUpdater.folder()); // before anything is drawn
    registerUi(parts_->engine);
    registerScreens(parts_->engine);
    parts_->engine.addImageProvider(QStringLiteral("resource"), new ResourceImageProvider(parts_->images));
    parts_->engine.setInitialProperties({{QStringLiteral("root"), QVariant::fromValue(&parts_->root)},
                                         {QStringLiteral("photos"), QVariant::fromValue(&parts_->photos)}});
    parts_->engine.load(screenView("MainWindow"));
    if (parts_->engine.rootObjects().isEmpty())
        return false;
    parts_->window = qobject_cast<QQuickWindow*>(parts_->engine.rootObjects().constFirst());
    parts_->root.setWindow(parts_->window, !qEnvironmentVariableIsSet("KAVOR_NO_ANIMATION"));
    openWindow();
    parts_->application.didFinishLaunching();
    parts_->sync.scheduleBrochureSync(); // a desktop never suspends a program, which would ask for it
    for (const QString& url : std::as_const(options_.urls))
        parts_->application.openUrl(url);
    return true;
}

void KavorApplication::openWindow() {
    const QSize remembered(
        int(parts_->defaults.integer(QLatin1String(windowWidth)).value_or(usualSize.width())),
        int(parts_->defaults.integer(QLatin1String(windowHeight)).value_or(usualSize.height())));
    parts_->window->resize(options_.size.value_or(remembered.expandedTo(smallestSize)));
    parts_->window->setIcon(Artwork::applicationIcon());
    parts_->window->show();
}

void KavorApplication::rememberWindowSize() {
    if (options_.size || !parts_->window)
        return;
    parts_->defaults.setInteger(QLatin1String(windowWidth), parts_->window->width());
    parts_->defaults.setInteger(QLatin1String(windowHeight), parts_->window->height());
}

void KavorApplication::startedAgain(const QStringList& urls) {
    if (parts_->window) {
        parts_->window->raise();
        parts_->window->requestActivate();
    }
    for (const QString& url : urls)
        parts_->application.openUrl(url);
}

QQuickWindow* KavorApplication::window() const {
    return parts_->window;
}

RootController& KavorApplication::root() {
    return parts_->root;
}

AppDelegate& KavorApplication::delegate() {
    return parts_->application;
}

AlertPresenter& KavorApplication::alerts() {
    return parts_->alerts;
}

ServiceOperations& KavorApplication::network() {
    return parts_->network;
}

PhotoLibraryViewController& KavorApplication::photos() {
    return parts_->photos;
}

void KavorApplication::keepSecretsOutOf(LogFile& log) {
    log.setBlanking([secrets = parts_->network.knownSecrets()](const QString& text) {
        return QString::fromUtf8(redacted(secrets->blanked(text).toUtf8()));
    });
}

void KavorApplication::setOffline(bool offline) {
    parts_->reachability.setForcedOffline(offline);
}

void KavorApplication::setPlace(const std::optional<Placemark>& place) {
    parts_->location.setForcedPlace(place);
}

} // namespace kavor

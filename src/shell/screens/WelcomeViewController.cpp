#include "shell/screens/WelcomeViewController.h"

#include "base/StopProcess.h"
#include "base/Url.h"
#include "device/Background.h"
#include "device/Clock.h"
#include "device/Reachability.h"
#include "device/UrlOpener.h"
#include "interaction/AlertPresenter.h"
#include "interaction/QtText.h"
#include "interaction/Questions.h"
#include "network/ServiceOperations.h"
#include "orders/OrderDiskManager.h"
#include "screens/ResourceImages.h"
#include "sellingsheets/SellingSheetOrder.h"
#include "session/AppSingleton.h"
#include "session/services/AuthManager.h"
#include "shell/WelcomeOptions.h"
#include "shell/screens/ShellTexts.h"
#include "shell/services/AppDelegate.h"
#include "shell/services/CatalogueUpdate.h"
#include "shell/services/DispatchGroup.h"
#include "textile/SaveTextileOrder.h"

#include <chrono>
#include <utility>

namespace kavor {

namespace {

const QString serverTrouble = QStringLiteral("Error de conexión con el servidor.");
const QString sendingText = QStringLiteral("Enviando pedidos %1/%2");

// The files of both folders, drafts first; a file that doesn't read stops the process.
std::vector<OrderUploadManager::NamedOrder> readOrders(const OrderDiskManager& disk) {
    std::vector<OrderUploadManager::NamedOrder> orders;
    for (const auto directory : OrderDiskManager::allCases) {
        for (const auto& file : disk.list<SaveBrochuresOrder>(directory)) {
            auto order = disk.retrieve<SaveBrochuresOrder>(file.fileName, directory);
            if (!order)
                stopProcess("a readable order in the file " + file.fileName);
            orders.push_back({file.fileName, std::move(*order)});
        }
    }
    return orders;
}

int countOutbox(const OrderDiskManager& disk) {
    constexpr auto outbox = OrderDiskManager::DirectoryName::outbox;
    return int(disk.list<SaveBrochuresOrder>(outbox).size() + disk.list<SaveTextileOrder>(outbox).size() +
               disk.list<SellingSheetOrder>(outbox).size());
}

} // namespace

WelcomeViewController::WelcomeViewController(const Services& services, QObject* parent)
    : ScreenController(parent)
    , services_(services) {
    progressVeil_.setProgress(0);
    connect(&progressVeil_, &VeilState::left, this, &WelcomeViewController::cancelUpdateAction);
    observe();
    const auto& rights = services_.session.loginResult;
    if (!rights || !rights->showLogoNrv)
        stopProcess("\"show_logo_nrv\" in the login result");
    loginImage_ = *rights->showLogoNrv ? QStringLiteral("login_image_nrv") : QStringLiteral("login_image");
}

WelcomeViewController::~WelcomeViewController() {
    services_.clock.cancel(ageTimer_);
}

void WelcomeViewController::observe() {
    const auto on = [this](std::string_view name, void (WelcomeViewController::*reaction)()) {
        subscriptions_.push_back(
            services_.notifications.observe(name, [this, reaction](const NotificationInfo&) {
                onMainQueue([this, reaction] { (this->*reaction)(); });
            }));
    };
    subscriptions_.push_back(services_.notifications.observe(
        notification::updatingResourcesDidEnd, [this](const NotificationInfo&) {
            QMetaObject::invokeMethod(
                waiting(), [this] { tryToUploadOrders(); }, Qt::QueuedConnection);
        }));
    on(notification::needToUpdateResources, &WelcomeViewController::updateUserInformation);
    on(notification::reloadOrders, &WelcomeViewController::countUnsentOrders);
    connect(&services_.catalogue, &CatalogueUpdate::progressChanged, this,
            &WelcomeViewController::setProgress);
    connect(&services_.catalogue, &CatalogueUpdate::failed, this,
            &WelcomeViewController::catalogueFetchFailed);
    connect(&services_.catalogue, &CatalogueUpdate::catalogueArrived, this, [this] {
        refreshNotifications();
        downloadApplicationInformation = false;
        onMainQueue([this] { refreshCatalogueAge(); });
    });
    connect(&services_.reachability, &Reachability::changed, this, &WelcomeViewController::offlineChanged);
}

// What another turn of the event loop does, bound to this screen.
void WelcomeViewController::onMainQueue(std::function<void()> work) {
    QMetaObject::invokeMethod(this, std::move(work), Qt::QueuedConnection);
}

QString WelcomeViewController::versionLabel() const {
    return versionText(services_.session);
}

QString WelcomeViewController::user() const {
    // Nobody typed a name when the stored credential opened the session.
    const auto& session = services_.session;
    const auto& account = session.userEmail ? session.userEmail : session.storedAccount;
    return QString::fromStdString(account.value_or(std::string()));
}

bool WelcomeViewController::isOffline() const {
    return !services_.network.isReachable();
}

int WelcomeViewController::columns(int total, bool landscape) const {
    return welcomeColumns(total, landscape);
}

int WelcomeViewController::tileAfter(int index, int key, int columns) const {
    const int total = int(welcomeButtons_.size());
    const auto tile = [total](int wanted) { return wanted >= 0 && wanted < total ? wanted : -1; };
    switch (key) {
    case Qt::Key_Left:
        return index < 0 ? -1 : tile(index - 1);
    case Qt::Key_Right:
    case Qt::Key_Home:
        return tile(key == Qt::Key_Home ? 0 : index + 1);
    case Qt::Key_Up:
        return index < 0 ? -1 : tile(index - columns);
    case Qt::Key_Down:
        return tile(index < 0 ? 0 : index + columns);
    case Qt::Key_End:
        return tile(total - 1);
    default:
        return -1;
    }
}

void WelcomeViewController::viewWillAppear() {
    services_.session.actualSection.reset();
    if (downloadApplicationInformation) {
        setProgress(0, QString::fromUtf8(CatalogueUpdate::updatingText));
        // Shows the veil in the next turn, after this appearance has hidden it.
        onMainQueue([this] { fetchCatalogue(); });
    }
    rebuildButtons();
    showVeil(false);
    refreshCatalogueAge();
    countUnsentOrders();
}

void WelcomeViewController::rebuildButtons() {
    const auto flags = welcomeFlags(services_.session.loginResult.value_or(LoginResult()));
    QVariantList buttons;
    for (const WelcomeOption& option : sortedWelcomeOptions()) {
        const auto flag = flags.find(option.type);
        if (flag == flags.end() || !flag->second)
            continue;
        buttons.append(QVariantMap{{QStringLiteral("identifier"), int(option.type)},
                                   {QStringLiteral("label"), fromUtf8(option.label)},
                                   {QStringLiteral("image"), fromUtf8(option.image)}});
    }
    if (std::exchange(welcomeButtons_, buttons) != buttons)
        emit welcomeButtonsChanged();
}

void WelcomeViewController::openSection(int identifier) {
    const WelcomeOption& option = openableOption(identifier);
    services_.session.actualSection = option.section;
    services_.session.actualApplicationType = option.type;
    emit transitionPerformed(fromUtf8(option.transition));
}

void WelcomeViewController::openTool(const QString& name) {
    if (name == QLatin1String("updateInfoapp"))
        updateInfoapp();
    else if (name == QLatin1String("logout"))
        logout();
    else if (name == QLatin1String("profile"))
        emit transitionPerformed(fromUtf8(transition::profile));
    else if (name == QLatin1String("allOrders"))
        emit transitionPerformed(fromUtf8(transition::allOrders));
    else if (name == QLatin1String("suggestions"))
        emit transitionPerformed(fromUtf8(transition::suggestions));
}

void WelcomeViewController::updateInfoapp() {
    services_.notifications.post(notification::needToUpdateResources);
}

void WelcomeViewController::updateUserInformation() {
    setProgress(0, QString::fromUtf8(CatalogueUpdate::updatingText));
    beginRun();
    const auto answered = [this](const LoginResult& rights) {
        setProgress(1.0 / 3, {});
        services_.session.loginResult = rights;
        rebuildButtons();
        fetchCatalogue();
    };
    const auto failed = [this](const RequestFailure& failure) {
        // The presenter leaves the veil when an update is asked for; the user can go on after its "No".
        if (failure.error.updateNeeded)
            showVeil(false);
        showRequestFailure(
            {services_.alerts, services_.urls}, [this] { showVeil(false); }, failure, true, serverTrouble);
    };
    services_.network.userInformation({run_.context(), answered, failed});
}

void WelcomeViewController::fetchCatalogue() {
    setProgress(progress(), QString::fromUtf8(CatalogueUpdate::updatingText));
    if (!run_.isUnderWay())
        beginRun();
    services_.catalogue.start();
}

void WelcomeViewController::beginRun() {
    run_.begin();
    showVeil(true);
}

void WelcomeViewController::cancelUpdateAction() {
    if (!run_.isUnderWay())
        return;
    services_.catalogue.leave();
    uploadProgress_ = {};
    uploadManager_.reset();
    uploadDispatchGroup_.reset();
    downloadApplicationInformation = false; // the user asks for it again
    showVeil(false);
    if (!services_.session.applicationInformation) // nothing can be ordered without any
        services_.application.resetRoot(AppDelegate::RootKind::LoginNavigation);
}

void WelcomeViewController::catalogueFetchFailed(const RequestFailure& failure) {
    const QString text = failure.messages.value_or(QStringList()).join(QLatin1Char('\n'));
    ask(services_.alerts, this, serverTrouble, text,
        {{QStringLiteral("Volver"), AlertButton::Role::Cancel,
          [this] { services_.application.resetRoot(AppDelegate::RootKind::LoginNavigation); }}});
}

void WelcomeViewController::refreshNotifications() {
    const auto& rights = services_.session.loginResult;
    if (!rights || !rights->notifications)
        stopProcess("\"notificaciones\" in the login result");
    notificationsList_.clear();
    for (const UserNotification& entry : *rights->notifications) {
        // The address alone names the picture in the cache.
        const QString image = entry.image && Url::isValid(*entry.image)
                                  ? resourceImageUrl(HashedResource{*entry.image, Url{*entry.image}, 0})
                                  : QString();
        notificationsList_.append(
            QVariantMap{{QStringLiteral("title"), fromUtf8(entry.title)},
                        {QStringLiteral("description"), fromUtf8(entry.description.value_or(""))},
                        {QStringLiteral("image"), image}});
    }
    notificationsShown_ = !notificationsList_.isEmpty();
    emit notificationsChanged();
}

QString WelcomeViewController::notificationsTitle() const {
    return QStringLiteral("Notificaciones (%1)").arg(notificationsList_.size());
}

void WelcomeViewController::dismissNotificationsAction() {
    if (std::exchange(notificationsShown_, false))
        emit notificationsChanged();
}

void WelcomeViewController::tryToUploadOrders() {
    auto& rights = services_.session.loginResult;
    if (!rights || !services_.network.isReachable()) {
        showVeil(false); // nothing is sent, and the run is over
        if (rights)
            rights->sendOrderInformation = false;
        return;
    }
    if (!rights->sendOrderInformation)
        stopProcess("\"test_send_order_info\" in the login result");
    const bool wanted = *rights->sendOrderInformation;
    rights->sendOrderInformation = false; // once for each login
    const auto send = [this](NamedOrders orders) {
        uploadDispatchGroup_ = std::make_shared<DispatchGroup>();
        for (std::size_t i = 0; i < orders.size(); ++i)
            uploadDispatchGroup_->enter();
        uploadDispatchGroup_->notify(waiting(), [this] { showVeil(false); });
        uploadOrders(std::move(orders), uploadDispatchGroup_);
    };
    if (wanted)
        runInBackground(
            waiting(), [disk = &services_.orders] { return readOrders(*disk); }, send);
    else
        send({});
}

void WelcomeViewController::uploadOrders(NamedOrders orders, const std::shared_ptr<DispatchGroup>& group) {
    setProgress(0, sendingText.arg(0).arg(orders.size()));
    uploadManager_ = std::make_unique<OrderUploadManager>(std::move(orders), group, services_.network,
                                                          services_.notifications);
    uploadProgress_ = services_.notifications.observe(
        notification::uploadingOrderChangedProgress, [this](const NotificationInfo& info) {
            onMainQueue([this, info] { updateOrderSendingProgress(info); });
        });
    services_.notifications.post(notification::uploadOrder);
}

void WelcomeViewController::updateOrderSendingProgress(const NotificationInfo& info) {
    const auto object = info.find(OrderUploadManager::progressKey);
    if (object == info.end())
        return;
    const auto* counts = std::get_if<std::pair<std::int64_t, std::int64_t>>(&object->second);
    if (counts && counts->second > 0)
        setProgress(double(counts->first) / double(counts->second),
                    sendingText.arg(counts->first).arg(counts->second));
}

void WelcomeViewController::logout() {
    ask(services_.alerts, this, QStringLiteral("Atención"), QStringLiteral("¿Desea cerrar sesión?"),
        {no(), yesDestroy([this] { confirmedLogout(); })});
}

void WelcomeViewController::confirmedLogout() {
    const auto stored = services_.auth.readCredentials();
    if (!stored)
        stopProcess(
            "stored credential to log out from"); // also a user who chose not to be remembered; it is meant
    services_.auth.blankCredentials(stored->account);
    services_.application.setRoot(AppDelegate::RootKind::LoginNavigation);
    emit dismissWelcomeView();
}

void WelcomeViewController::refreshCatalogueAge() {
    const QString age = catalogueAgeText(services_.catalogue.secondsSinceFetch());
    if (std::exchange(catalogueAge_, age) != age)
        emit catalogueAgeChanged();
    services_.clock.cancel(ageTimer_);
    ageTimer_ = services_.clock.after(std::chrono::minutes(1), this, [this] { refreshCatalogueAge(); });
}

void WelcomeViewController::countUnsentOrders() {
    runInBackground(
        this, [disk = &services_.orders] { return countOutbox(*disk); },
        [this](int count) {
            const QString words = unsentOrdersText(count);
            if (std::exchange(unsentOrders_, words) != words)
                emit unsentOrdersChanged();
        });
}

void WelcomeViewController::setProgress(double progress, const QString& message) {
    progressVeil_.setProgress(progress);
    if (!message.isEmpty())
        progressVeil_.setText(message);
    emit progressChanged();
}

void WelcomeViewController::showVeil(bool shown) {
    if (!shown)
        run_.end();
    progressVeil_.setVisible(shown, shown);
}

} // namespace kavor

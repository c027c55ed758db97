#include "Commands.h"
#include "OnlineSession.h"
#include "base/NotificationCenter.h"
#include "device/BackgroundTasks.h"
#include "device/LocalNotifications.h"
#include "orders/services/OrderSyncManager.h"
#include "session/StateFile.h"

#include <QLockFile>

#include <CLI/CLI.hpp>

namespace kavor::ctl {

namespace {

// Local notifications as lines of text, each out at once: the run may be ended from outside.
class PrintedNotifications : public LocalNotifications {
public:
    PrintedNotifications(std::ostream& out, Progress& progress)
        : out_(out)
        , progress_(progress) {}
    void requestAuthorization(std::function<void(bool)> callback) override { callback(true); }
    [[nodiscard]] bool isAuthorized() const override { return true; }
    void post(const LocalNotification& notification) override {
        progress_.around([&] {
            out_ << notification.title.toStdString() << ": " << notification.body.toStdString() << std::endl;
        });
    }
    void registerCategory(const QString&, const QList<NotificationAction>&) override {}

private:
    std::ostream& out_;
    Progress& progress_;
};

// The operating system's own scheduler plans the runs of kavorctl.
class NoBackgroundTasks : public BackgroundTasks {
public:
    void registerHandler(const QString&, Handler) override {}
    std::optional<QString> submit(const BackgroundRequest&) override { return std::nullopt; }
    void cancel(const QString&) override {}
    void cancelAll() override {}
};

// Whether a running client holds the folder. The lock is let go at once: the client may start at any time.
bool isClientOpen(const std::filesystem::path& documents) {
    QLockFile lock(QString::fromStdString((documents / std::string(state_file::clientLock)).string()));
    lock.setStaleLockTime(0); // the owner's process decides, not the age
    return !lock.tryLock(0) && lock.error() == QLockFile::LockFailedError;
}

void synchronise(CommandContext& context) {
    constexpr auto budget = TimerBackgroundTasks::Pace().budget;
    constexpr auto notificationDelay = std::chrono::milliseconds(1100); // each follows its answer by a second
    OnlineSession online(context);
    if (isClientOpen(online.session.documentsFolder())) {
        context.out << "Kavor está abierto y sincroniza él mismo.\n";
        return;
    }
    online.requireLogin();
    online.requireNetwork();
    Progress progress(context.err, QStringLiteral("Sincronizando pedidos"));
    PrintedNotifications notifications(context.out, progress);
    NoBackgroundTasks tasks;
    OrderSyncManager manager({online.network, online.orders, notifications, NotificationCenter::shared(),
                              tasks, online.clock, [] {}, [] {}, [] {}});
    const auto tell = [&](const std::string& line) {
        context.status = requestFailed;
        progress.around([&] { context.err << line << std::endl; });
    };
    QObject::connect(&manager, &OrderSyncManager::uploadFailed, &manager,
                     [&](const QString& order, const RequestFailure& failure) {
                         tell(requestFailure(order, failure).what());
                     });
    QObject::connect(&manager, &OrderSyncManager::identifierNotStored, &manager, [&](const QString& order) {
        tell(order.toStdString() + ": sent, but its file could not be written: the next run sends it again");
    });
    QEventLoop loop;
    const auto finish = [&] { online.clock.after(notificationDelay, &loop, [&loop] { loop.quit(); }); };
    QObject::connect(&manager, &OrderSyncManager::runAnswered, &loop, finish);
    const auto task =
        std::make_shared<BackgroundTask>(QLatin1String(OrderSyncManager::taskIdentifier), [](bool) {});
    // A draft whose token expired while another's was being repaired is never answered.
    online.clock.after(budget, &loop, [&] {
        tell("kavorctl: the run expired before every draft was answered");
        task->expire();
        finish();
    });
    manager.handleBrochureSync(task);
    loop.exec();
    task->expire();
}

} // namespace

void addSyncCommand(CLI::App& program, CommandContext& context) {
    program.add_subcommand("sync", "one background run: up to two drafts that never reached the server")
        ->callback([&context] { synchronise(context); });
}

} // namespace kavor::ctl

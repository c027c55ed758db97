#pragma once

#include "base/NotificationCenter.h"
#include "brochures/engine/SaveBrochuresOrder.h"
#include "orders/services/OrderSync.h"

#include <QByteArray>
#include <QObject>
#include <QString>
#include <QVariantMap>

#include <chrono>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>

namespace kavor {

class BackgroundTasks;
class BrochureIntermediateData;
class Clock;
class LocalNotifications;
class OrderDiskManager;
class ServiceOperations;
struct RequestFailure;

// Brings brochure drafts to the server's cloud: the current draft when a save in front of the user could not,
// and, in background runs, up to two files that never reached the server. Textile drafts, selling sheets and
// the outbox aren't touched. The user is told of success only, by local notification. Main thread only.
class OrderSyncManager : public QObject, public BackgroundOrderSync {
    Q_OBJECT
public:
    static constexpr int ordersPerRun = 2;
    static constexpr char notificationCategory[] = "orderBrochureResponse";
    static constexpr char showAction[] = "show";
    // How long an upload may go on once the screens are gone.
    static constexpr std::chrono::milliseconds extensionBudget = std::chrono::minutes(3);

    // Everything outlives the manager.
    struct Collaborators {
        ServiceOperations& network;
        OrderDiskManager& orders;
        LocalNotifications& notifications;
        NotificationCenter& center;
        BackgroundTasks& tasks;
        Clock& clock;
        std::function<void()> useBackgroundSession; // configureSession with the background configuration
        std::function<void()> useDefaultSession;    // configureSession with the default one
        std::function<void()> showAllOrders;        // resetRoot to the order list
    };

    explicit OrderSyncManager(Collaborators collaborators, QObject* parent = nullptr);

    void startOrderSync() override;
    void replanBrochureSync() override;
    void scheduleBrochureSync() override;
    void handleBrochureSync(const std::shared_ptr<BackgroundTask>& task) override;

signals:
    // Every upload of a background run has been answered; its task may still wait for its expiry.
    void runAnswered();
    // An order of a background run did not reach the server.
    void uploadFailed(const QString& order, const kavor::RequestFailure& failure);
    // An order reached the server, and its file could not take the number that it has there.
    void identifierNotStored(const QString& order);

private:
    struct Run;
    using Draft = std::shared_ptr<BrochureIntermediateData>;

    // A draft that the user saved, and the order that it was then.
    struct Save {
        Draft draft;
        SaveBrochuresOrder order;
    };
    // A draft file on its way to the cloud.
    struct Upload {
        std::string fileName; // with the extension
        std::string bytes;    // of the order as its file gave it
        SaveBrochuresOrder order;
        QByteArray key;
    };

    void queueCurrentDraft();
    void uploadCurrentDraft(const Save& save);
    void endUpload(const std::string& fileName, const SaveBrochuresOrder& sent, std::optional<Int> orderId);
    void finishForegroundUpload(const Draft& draft, SaveBrochuresOrder order, Int orderId);
    [[nodiscard]] std::optional<Upload> uploadOf(const std::string& fileName);
    void uploadOfRun(const Upload& upload, const std::shared_ptr<Run>& run);
    void answeredOfRun(const SaveBrochuresOrder& order, const std::shared_ptr<Run>& run);
    static void numberDraft(BrochureIntermediateData& draft, const Upload& upload, Int orderId);
    bool storeIdentifier(const Upload& upload, Int orderId);
    bool writeIdentifier(const std::string& fileName, const SaveBrochuresOrder& sent, Int orderId);
    bool catchUp(const std::string& fileName, const SaveBrochuresOrder& order);
    void notifySynchronised(const SaveBrochuresOrder& order, const QString& category);
    void sendLocalNotification(const QString& title, const QString& body, const QVariantMap& userInfo,
                               const QString& category);
    void beginExtension();
    void endExtension();
    void received(const QString& action, const QVariantMap& userInfo);

    Collaborators services_;
    quint64 backgroundTaskID_ = 0; // 0: invalid
    int answersAwaited_ = 0;       // by the uploads of a background run

    // Orders that reached the server while the disk took no more, by their file names: as they were sent.
    struct Unstored {
        std::string bytes;
        Int orderId;
    };
    std::map<std::string, Unstored> unstored_;
    // The drafts whose uploads have no answer yet, by name, each with the save that came since and waits for
    // it.
    std::map<std::string, std::optional<Save>> underWay_;
};

} // namespace kavor

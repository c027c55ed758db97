#include "orders/services/OrderSyncManager.h"

#include "base/Log.h"
#include "base/NotificationCenter.h"
#include "base/StopProcess.h"
#include "base/json/Json.h"
#include "brochures/engine/BrochureIntermediateData.h"
#include "device/BackgroundTasks.h"
#include "device/Clock.h"
#include "device/LocalNotifications.h"
#include "network/ServiceOperations.h"
#include "orders/OrderDiskManager.h"

#include <QTimer>

#include <vector>

namespace kavor {

namespace {

using DirectoryName = OrderDiskManager::DirectoryName;

QString nameOf(const SaveBrochuresOrder& order) {
    return order.filename ? QString::fromStdString(*order.filename) : QStringLiteral("sin nombre");
}

// The bytes by which the orders of a run are compared.
std::string bytesOf(const SaveBrochuresOrder& order) {
    const auto text = json::encode(order);
    if (!text)
        stopProcess("document of an order to synchronise: " + text.error().text());
    return *text;
}

// The bytes of an order as its file gives it back: who prints is never read.
std::string bytesAsRead(SaveBrochuresOrder order) {
    order.printedMyself = false;
    return bytesOf(order);
}

} // namespace

struct OrderSyncManager::Run {
    std::shared_ptr<BackgroundTask> task;
    std::string last; // the last order of the run, as it was when the run began
};

OrderSyncManager::OrderSyncManager(Collaborators collaborators, QObject* parent)
    : QObject(parent)
    , services_(std::move(collaborators)) {
    connect(&services_.notifications, &LocalNotifications::tapped, this, &OrderSyncManager::received);
}

void OrderSyncManager::startOrderSync() {
    services_.tasks.cancel(QLatin1String(taskIdentifier));
    scheduleBrochureSync();
    // Later, and only while the manager lives: the caller's alert comes first.
    QTimer::singleShot(0, this, &OrderSyncManager::queueCurrentDraft);
}

void OrderSyncManager::queueCurrentDraft() {
    const SaveBrochuresOrder order =
        BrochureIntermediateData::temporalBrochure()->makeOrder(OrderRequestType::saveCloud, false);
    sendLocalNotification(
        QStringLiteral("Borrador Encolado"),
        QStringLiteral("Su pedido ") + nameOf(order) +
            QStringLiteral(" se sincronizará con la nube cuando tenga conexión a internet."),
        {}, {});
    if (isUnderWay(order))
        underWay_[*order.filename] = order;
    else
        uploadCurrentDraft(order);
}

bool OrderSyncManager::isUnderWay(const SaveBrochuresOrder& order) const {
    return order.filename && underWay_.contains(*order.filename);
}

void OrderSyncManager::beginUpload(const SaveBrochuresOrder& order) {
    if (order.filename)
        underWay_[*order.filename] = std::nullopt;
}

// A save that came while its draft was on its way goes up now, as the order that the server has by then.
void OrderSyncManager::endUpload(const SaveBrochuresOrder& order, std::optional<Int> orderId) {
    const auto ended = underWay_.extract(order.filename.value_or(""));
    if (!ended || !ended.mapped())
        return;
    SaveBrochuresOrder newer = std::move(*ended.mapped());
    if (!newer.orderIdentifier)
        newer.orderIdentifier = orderId;
    uploadCurrentDraft(newer);
}

void OrderSyncManager::uploadCurrentDraft(const SaveBrochuresOrder& order) {
    services_.useBackgroundSession();
    beginExtension();
    beginUpload(order);
    const auto succeeded = [this, order](const SaveBrochuresOrderResponse& answer) {
        // Without an id nothing happens: the extension ends by its expiry.
        if (answer.orderId)
            finishForegroundUpload(order, *answer.orderId);
        endUpload(order, answer.orderId);
    };
    const auto failed = [this, order](const RequestFailure&) {
        endExtension();
        services_.useDefaultSession();
        endUpload(order, std::nullopt);
    };
    services_.network.saveOrder(order, Completion<SaveBrochuresOrderResponse>(this, succeeded, failed));
}

void OrderSyncManager::finishForegroundUpload(SaveBrochuresOrder order, Int orderId) {
    storeIdentifier(order, orderId);
    services_.notifications.registerCategory(QLatin1String(notificationCategory),
                                             {{QLatin1String(showAction), QStringLiteral("Ver pedido")}});
    notifySynchronised(order, QLatin1String(notificationCategory));
    endExtension();
    services_.useDefaultSession();
}

// The identifier also goes to the shared draft, whichever order that holds by now: the system has it so.
// False when the file could not take it.
bool OrderSyncManager::storeIdentifier(SaveBrochuresOrder& order, Int orderId) {
    const std::string sent = bytesAsRead(order);
    order.orderIdentifier = orderId;
    BrochureIntermediateData::temporalBrochure()->orderIdentifier = orderId;
    if (!order.filename)
        stopProcess("file name of the synchronised order");
    const bool stored =
        services_.orders.update(order, OrderDiskManager::fileName(*order.filename), DirectoryName::draft);
    if (stored)
        unstored_.erase(*order.filename);
    else
        unstored_[*order.filename] = {sent, orderId};
    return stored;
}

// Whether the server has the order, which a full disk could not take down. The file gets its number now, if
// it can; it is not sent a second time.
bool OrderSyncManager::catchUp(const SaveBrochuresOrder& order) {
    const auto found = unstored_.find(order.filename.value_or(""));
    if (found == unstored_.end() || found->second.bytes != bytesAsRead(order))
        return false;
    SaveBrochuresOrder known = order;
    known.orderIdentifier = found->second.orderId;
    if (services_.orders.update(known, OrderDiskManager::fileName(*order.filename), DirectoryName::draft))
        unstored_.erase(found);
    return true;
}

void OrderSyncManager::scheduleBrochureSync() {
    const BackgroundRequest request{QLatin1String(taskIdentifier), true, std::chrono::seconds(1)};
    if (const auto refusal = services_.tasks.submit(request))
        logLine("Could not schedule brochures sync: " + refusal->toStdString());
}

void OrderSyncManager::handleBrochureSync(const std::shared_ptr<BackgroundTask>& task) {
    scheduleBrochureSync();
    const std::weak_ptr<BackgroundTask> weak = task;
    task->setExpirationHandler([weak] {
        if (const auto expired = weak.lock())
            expired->complete(false);
    });
    std::vector<SaveBrochuresOrder> taken;
    for (const auto& file : services_.orders.list<SaveBrochuresOrder>(DirectoryName::draft)) {
        auto order = services_.orders.retrieve<SaveBrochuresOrder>(file.fileName, DirectoryName::draft);
        if (!order)
            stopProcess("draft " + file.fileName + " that can be read");
        const bool isNew = !order->orderIdentifier && !isUnderWay(*order);
        if (isNew && taken.size() < ordersPerRun && !catchUp(*order))
            taken.push_back(std::move(*order));
    }
    const auto run = std::make_shared<Run>(Run{task, taken.empty() ? std::string() : bytesOf(taken.back())});
    answersAwaited_ += static_cast<int>(taken.size());
    for (const SaveBrochuresOrder& order : taken)
        uploadOfRun(order, run);
    if (taken.empty())
        QTimer::singleShot(0, this, &OrderSyncManager::runAnswered);
}

void OrderSyncManager::uploadOfRun(const SaveBrochuresOrder& order, const std::shared_ptr<Run>& run) {
    beginUpload(order);
    const auto succeeded = [this, order, run](const SaveBrochuresOrderResponse& answer) {
        SaveBrochuresOrder sent = order;
        if (answer.orderId) {
            if (!storeIdentifier(sent, *answer.orderId))
                emit identifierNotStored(nameOf(sent));
            notifySynchronised(sent, {});
        }
        endUpload(order, answer.orderId);
        answeredOfRun(sent, run);
    };
    const auto failed = [this, order, run](const RequestFailure& failure) {
        emit uploadFailed(nameOf(order), failure);
        endUpload(order, std::nullopt);
        answeredOfRun(order, run);
    };
    services_.network.saveOrder(order, Completion<SaveBrochuresOrderResponse>(this, succeeded, failed));
}

// An order that has its identifier by now differs from what the run began with, so a run whose last order
// succeeded ends by its expiry, with success false. The system has it so.
void OrderSyncManager::answeredOfRun(const SaveBrochuresOrder& order, const std::shared_ptr<Run>& run) {
    if (bytesOf(order) == run->last)
        run->task->complete(true);
    if (--answersAwaited_ == 0)
        emit runAnswered();
}

void OrderSyncManager::notifySynchronised(const SaveBrochuresOrder& order, const QString& category) {
    sendLocalNotification(
        QStringLiteral("Pedido guardado"),
        QStringLiteral("Su pedido ") + nameOf(order) + QStringLiteral(" se ha sincronizado."),
        {{QStringLiteral("orderId"), static_cast<qlonglong>(order.orderIdentifier.value_or(0))},
         {QStringLiteral("orderName"), nameOf(order)}},
        category);
}

void OrderSyncManager::sendLocalNotification(const QString& title, const QString& body,
                                             const QVariantMap& userInfo, const QString& category) {
    if (!services_.notifications.isAuthorized())
        return;
    services_.clock.after(std::chrono::seconds(1), this, [this, title, body, userInfo, category] {
        services_.notifications.post({title, body, userInfo, category});
    });
}

void OrderSyncManager::beginExtension() {
    // The extension of a former upload, which this one replaces, must not end this one's session.
    services_.clock.cancel(backgroundTaskID_);
    backgroundTaskID_ = services_.clock.after(extensionBudget, this, [this] {
        logLine("background sync expired");
        backgroundTaskID_ = 0;
        services_.useDefaultSession();
    });
}

void OrderSyncManager::endExtension() {
    services_.clock.cancel(backgroundTaskID_);
    backgroundTaskID_ = 0;
}

// A tap on the notification itself is the application delegate's; the button "Ver pedido" does the same.
void OrderSyncManager::received(const QString& action, const QVariantMap& userInfo) {
    const QVariant orderId = userInfo.value(QStringLiteral("orderId"));
    const bool isInteger = orderId.typeId() == QMetaType::LongLong || orderId.typeId() == QMetaType::Int;
    if (action != QLatin1String(showAction) || !isInteger)
        return;
    services_.center.post(notification::reloadOrders);
    services_.showAllOrders();
}

} // namespace kavor

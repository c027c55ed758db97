#include "orders/services/OrderSyncManager.h"

#include "base/Log.h"
#include "base/NotificationCenter.h"
#include "base/StopProcess.h"
#include "base/json/Json.h"
#include "brochures/engine/BrochureIntermediateData.h"
#include "brochures/engine/TemporalBrochure.h"
#include "device/BackgroundTasks.h"
#include "device/Clock.h"
#include "device/LocalNotifications.h"
#include "network/ServiceOperations.h"
#include "orders/DraftsWithChanges.h"
#include "orders/OrderDiskManager.h"
#include "orders/services/SameOrder.h"
#include "orders/services/SendIntent.h"
#include "session/AppSingleton.h"

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

// The file of a draft, with the extension; empty for one without a name.
std::string fileOf(const SaveBrochuresOrder& order) {
    return order.filename ? OrderDiskManager::fileName(*order.filename) : std::string();
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

void OrderSyncManager::replanBrochureSync() {
    services_.tasks.cancel(QLatin1String(taskIdentifier));
    scheduleBrochureSync();
}

void OrderSyncManager::startOrderSync() {
    replanBrochureSync();
    // Later, and only while the manager lives: the caller's alert comes first.
    QTimer::singleShot(0, this, &OrderSyncManager::queueCurrentDraft);
}

void OrderSyncManager::queueCurrentDraft() {
    const Draft draft = BrochureIntermediateData::temporalBrochure();
    const SaveBrochuresOrder order = draft->makeOrder(OrderRequestType::saveCloud, false);
    sendLocalNotification(
        QStringLiteral("Borrador Encolado"),
        QStringLiteral("Su pedido ") + nameOf(order) +
            QStringLiteral(" se sincronizará con la nube cuando tenga conexión a internet."),
        {}, {});
    const auto underWay = underWay_.find(fileOf(order));
    if (underWay == underWay_.end())
        uploadCurrentDraft({draft, order});
    else
        underWay->second = Save{draft, order};
}

// A save that came while its draft was on its way goes up now, as the order that the server has by then.
void OrderSyncManager::endUpload(const std::string& fileName, const SaveBrochuresOrder& sent,
                                 std::optional<Int> orderId) {
    const auto ended = underWay_.extract(fileName);
    if (!ended || !ended.mapped())
        return;
    Save newer = std::move(*ended.mapped());
    if (!newer.order.orderIdentifier && isThatOrder(sent, newer.order))
        newer.order.orderIdentifier = orderId;
    uploadCurrentDraft(newer);
}

void OrderSyncManager::uploadCurrentDraft(const Save& save) {
    services_.useBackgroundSession();
    beginExtension();
    const std::string file = fileOf(save.order);
    if (!file.empty())
        underWay_[file] = std::nullopt;
    const auto succeeded = [this, save, file](const SaveBrochuresOrderResponse& answer) {
        send_intent::answered(save.draft->unansweredSends, save.order);
        // Without an id nothing happens: the extension ends by its expiry.
        if (answer.orderId)
            finishForegroundUpload(save.draft, save.order, *answer.orderId);
        endUpload(file, save.order, answer.orderId);
    };
    const auto failed = [this, save, file](const RequestFailure& failure) {
        if (!send_intent::isAnswerLost(failure))
            send_intent::answered(save.draft->unansweredSends, save.order);
        endExtension();
        services_.useDefaultSession();
        endUpload(file, save.order, std::nullopt);
    };
    services_.network.saveOrder(save.order, Completion<SaveBrochuresOrderResponse>(this, succeeded, failed),
                                send_intent::keyFor(save.draft->unansweredSends, save.order));
}

void OrderSyncManager::finishForegroundUpload(const Draft& draft, SaveBrochuresOrder order, Int orderId) {
    if (!order.filename)
        stopProcess("file name of the synchronised order");
    const Upload upload{OrderDiskManager::fileName(*order.filename), bytesAsRead(order), order, {}};
    // The draft may have given way to another meanwhile, or to itself, brought back from its copy.
    numberDraft(*draft, upload, orderId);
    if (draft != BrochureIntermediateData::temporalBrochure())
        numberDraft(*BrochureIntermediateData::temporalBrochure(), upload, orderId);
    storeIdentifier(upload, orderId);
    if (const auto waiting = underWay_.find(upload.fileName); waiting == underWay_.end() || !waiting->second)
        DraftsWithChanges::shared().remove(*order.filename);
    order.orderIdentifier = orderId;
    services_.notifications.registerCategory(QLatin1String(notificationCategory),
                                             {{QLatin1String(showAction), QStringLiteral("Ver pedido")}});
    notifySynchronised(order, QLatin1String(notificationCategory));
    endExtension();
    services_.useDefaultSession();
}

// A draft takes the number only while it is the order of the file, not another one.
void OrderSyncManager::numberDraft(BrochureIntermediateData& draft, const Upload& upload, Int orderId) {
    const auto kind = draft.openedAs ? draft.openedAs : AppSingleton::shared().brochureType();
    const bool hasThatName = draft.fileName == OrderDiskManager::plainName(upload.fileName);
    if (hasThatName && !draft.sent && !draft.orderIdentifier &&
        isThatOrder(upload.order, kind.value_or(upload.order.menu.orderType),
                    draft.customerInformation.value_or(Customer())))
        draft.orderIdentifier = orderId;
}

// False when the file could not take the number of its order.
bool OrderSyncManager::storeIdentifier(const Upload& upload, Int orderId) {
    TemporalBrochure::shared().number(
        upload.order.menu.orderType, orderId, [&](const SaveBrochuresOrder& copy) {
            return fileOf(copy) == upload.fileName && isThatOrder(upload.order, copy);
        });
    const bool stored = writeIdentifier(upload.fileName, upload.order, orderId);
    if (stored)
        unstored_.erase(upload.fileName);
    else
        unstored_[upload.fileName] = {upload.bytes, orderId};
    return stored;
}

// The file may have been saved anew meanwhile, or be gone: only the number changes, and one that it has by
// now stays.
bool OrderSyncManager::writeIdentifier(const std::string& fileName, const SaveBrochuresOrder& sent,
                                       Int orderId) {
    auto order = services_.orders.retrieve<KeptOrder>(fileName, DirectoryName::draft);
    if (!order)
        return !services_.orders.moment<KeptOrder>(fileName, DirectoryName::draft);
    if (order->orderIdentifier || !isThatOrder(sent, *order))
        return true;
    order->orderIdentifier = orderId;
    if (order->unansweredSends) {
        send_intent::answered(*order->unansweredSends, sent);
        if (order->unansweredSends->empty())
            order->unansweredSends.reset();
    }
    return services_.orders.update(*order, fileName, DirectoryName::draft);
}

// Whether the server has the order, which a full disk could not take down. The file gets its number now, if
// it can; it is not sent a second time.
bool OrderSyncManager::catchUp(const std::string& fileName, const SaveBrochuresOrder& order) {
    const auto found = unstored_.find(fileName);
    if (found == unstored_.end() || found->second.bytes != bytesAsRead(order))
        return false;
    if (writeIdentifier(fileName, order, found->second.orderId))
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
    std::vector<Upload> taken;
    for (const auto& file : services_.orders.list<SaveBrochuresOrder>(DirectoryName::draft)) {
        auto upload = uploadOf(file.fileName);
        if (upload && !underWay_.contains(file.fileName) && taken.size() < ordersPerRun)
            taken.push_back(std::move(*upload));
    }
    const auto run =
        std::make_shared<Run>(Run{task, taken.empty() ? std::string() : bytesOf(taken.back().order)});
    answersAwaited_ += static_cast<int>(taken.size());
    for (const Upload& upload : taken)
        uploadOfRun(upload, run);
    if (taken.empty())
        QTimer::singleShot(0, this, &OrderSyncManager::runAnswered);
}

// What a run has to send of a draft file: nothing when the server has it, or when the file vanished since it
// was listed. The process stops for a file that stands there and cannot be read.
std::optional<OrderSyncManager::Upload> OrderSyncManager::uploadOf(const std::string& fileName) {
    // The moment first: with one that is too old the order has a key of its own, never another's.
    const auto moment = services_.orders.moment<KeptOrder>(fileName, DirectoryName::draft);
    const auto order = services_.orders.retrieve<KeptOrder>(fileName, DirectoryName::draft);
    if (!order && services_.orders.moment<KeptOrder>(fileName, DirectoryName::draft))
        stopProcess("draft " + fileName + " that can be read");
    if (!order || !moment || order->orderIdentifier || catchUp(fileName, *order))
        return std::nullopt;
    KeptOrder sent = *order;
    sent.save = OrderRequestType::saveCloud; // a run prints nothing, whatever the file says
    return Upload{fileName, bytesAsRead(*order), sent,
                  send_intent::keyOfFile(sent, DirectoryName::draft, fileName, *moment)};
}

void OrderSyncManager::uploadOfRun(const Upload& upload, const std::shared_ptr<Run>& run) {
    underWay_[upload.fileName] = std::nullopt;
    const auto succeeded = [this, upload, run](const SaveBrochuresOrderResponse& answer) {
        SaveBrochuresOrder sent = upload.order;
        if (answer.orderId) {
            sent.orderIdentifier = answer.orderId;
            numberDraft(*BrochureIntermediateData::temporalBrochure(), upload, *answer.orderId);
            if (!storeIdentifier(upload, *answer.orderId))
                emit identifierNotStored(nameOf(sent));
            notifySynchronised(sent, {});
        }
        endUpload(upload.fileName, upload.order, answer.orderId);
        answeredOfRun(sent, run);
    };
    const auto failed = [this, upload, run](const RequestFailure& failure) {
        emit uploadFailed(nameOf(upload.order), failure);
        endUpload(upload.fileName, upload.order, std::nullopt);
        answeredOfRun(upload.order, run);
    };
    services_.network.saveOrder(upload.order, Completion<SaveBrochuresOrderResponse>(this, succeeded, failed),
                                upload.key);
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

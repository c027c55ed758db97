#include "orders/services/SendIntent.h"

#include "base/StopProcess.h"
#include "base/json/Json.h"
#include "brochures/engine/SaveBrochuresOrder.h"
#include "network/ServiceOperations.h"

#include <QUuid>

#include <algorithm>

namespace kavor::send_intent {

namespace {

using DirectoryName = OrderDiskManager::DirectoryName;

// The same parts give the same key, on every device.
QByteArray madeOf(const QByteArray& parts) {
    static const QUuid nameSpace(QStringLiteral("5d2c4c0e-6c1c-4c8b-9a0e-3f1f0a8d7b52"));
    return QUuid::createUuidV5(nameSpace, parts).toByteArray(QUuid::WithoutBraces);
}

// What the contents of one request's type begin with.
std::string prefixOf(OrderRequestType type) {
    return std::to_string(static_cast<Int>(type)) + '/';
}

std::string contentOf(SaveBrochuresOrder order) {
    order.orderIdentifier.reset();
    order.menu.customer.id.reset();
    if (order.save == OrderRequestType::saveCloud)
        order.printedMyself = false;
    else
        order.filename.reset();
    const auto text = json::encode(order);
    if (!text)
        stopProcess("document of an order to send: " + text.error().text());
    return prefixOf(order.save) + madeOf(QByteArray::fromStdString(*text)).toStdString();
}

template <class List>
auto findContent(List& unanswered, const std::string& content) {
    return std::ranges::find(unanswered, content, &UnansweredSend::content);
}

} // namespace

QByteArray keyFor(UnansweredSends& unanswered, const SaveBrochuresOrder& order) {
    const std::string content = contentOf(order);
    // A save in the cloud takes the place of the one before. Under that one's key the server would answer
    // without taking the content back.
    if (order.save == OrderRequestType::saveCloud) {
        std::erase_if(unanswered, [&, prefix = prefixOf(order.save)](const UnansweredSend& send) {
            return send.content.starts_with(prefix) && send.content != content;
        });
    }
    auto found = findContent(unanswered, content);
    if (found == unanswered.end()) {
        const QByteArray key = QUuid::createUuid().toByteArray(QUuid::WithoutBraces);
        found = unanswered.insert(found, {content, key.toStdString()});
    }
    found->onlyQueued = false;
    return QByteArray::fromStdString(found->key);
}

UnansweredSends sentWithoutAnswer(const UnansweredSends& unanswered, const SaveBrochuresOrder& order) {
    const auto found = findContent(unanswered, contentOf(order));
    return found == unanswered.end() || found->onlyQueued ? UnansweredSends() : UnansweredSends{*found};
}

void noteQueued(UnansweredSends& unanswered, const SaveBrochuresOrder& order, const QByteArray& key) {
    const std::string content = contentOf(order);
    const auto found = findContent(unanswered, content);
    if (found == unanswered.end())
        unanswered.push_back({content, key.toStdString(), true});
    else if (found->onlyQueued) // under a file that is gone
        found->key = key.toStdString();
}

std::optional<std::string> nameInOutbox(const UnansweredSends& unanswered, const SaveBrochuresOrder& order,
                                        const OrderDiskManager& orders) {
    const auto found = findContent(unanswered, contentOf(order));
    if (found == unanswered.end())
        return std::nullopt;
    for (const auto& file : orders.list<KeptOrder>(DirectoryName::outbox)) {
        const auto kept = orders.retrieve<KeptOrder>(file.fileName, DirectoryName::outbox);
        if (kept &&
            keyOfFile(*kept, DirectoryName::outbox, file.fileName, file.modificationMoment).toStdString() ==
                found->key)
            return OrderDiskManager::plainName(file.fileName);
    }
    return std::nullopt;
}

void answered(UnansweredSends& unanswered, const SaveBrochuresOrder& order) {
    const std::string content = contentOf(order);
    std::erase_if(unanswered, [&](const UnansweredSend& send) { return send.content == content; });
}

std::optional<QByteArray> keyInFile(const KeptOrder& order) {
    const auto unanswered = order.unansweredSends.value_or(UnansweredSends());
    SaveBrochuresOrder read = order;
    for (const bool printedMyself : {false, true}) { // which a file does not give back
        read.printedMyself = printedMyself;
        if (const auto known = sentWithoutAnswer(unanswered, read); !known.empty())
            return QByteArray::fromStdString(known.front().key);
    }
    return std::nullopt;
}

QByteArray keyOfFile(const KeptOrder& order, DirectoryName directory, std::string_view fileName,
                     const OrderDiskManager::Moment& moment) {
    if (auto known = keyInFile(order))
        return std::move(*known);
    QByteArray parts = directory == DirectoryName::draft ? "draft" : "outbox";
    parts += '/' + QByteArray(fileName.data(), qsizetype(fileName.size())) + '/' +
             QByteArray::number(qint64(moment.seconds)) + '.' +
             QByteArray::number(qint64(moment.nanoseconds));
    return madeOf("file/" + parts);
}

QByteArray keyOfName(std::string_view name, OrderRequestType type) {
    return madeOf("name/" + QByteArray::number(qint64(type)) + '/' +
                  QByteArray(name.data(), qsizetype(name.size())));
}

bool isAnswerLost(const RequestFailure& failure) {
    using Kind = RequestError::Kind;
    constexpr int badGateway = 502;
    constexpr int gatewayTimeout = 504;
    const RequestError& error = failure.error;
    return error.kind != Kind::Status || error.status == badGateway || error.status == gatewayTimeout;
}

} // namespace kavor::send_intent

#include "orders/services/SendIntent.h"

#include "base/StopProcess.h"
#include "base/json/Json.h"
#include "brochures/engine/SaveBrochuresOrder.h"
#include "network/ServiceOperations.h"
#include "textile/SaveTextileOrder.h"

#include <QUuid>

#include <algorithm>

namespace kavor {

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

template <class Order>
std::string textOf(const Order& order) {
    const auto text = json::encode(order);
    if (!text)
        stopProcess("document of an order to send: " + text.error().text());
    return *text;
}

std::string documentOf(SaveBrochuresOrder order) {
    order.orderIdentifier.reset();
    order.menu.customer.id.reset();
    if (order.save == OrderRequestType::saveCloud)
        order.printedMyself = false;
    else
        order.filename.reset();
    return textOf(order);
}

std::string documentOf(SaveTextileOrder order) {
    order.orderIdentifier.reset();
    if (order.customer)
        order.customer->id.reset();
    if (order.save != OrderRequestType::saveCloud)
        order.filename.reset();
    return textOf(order);
}

template <class List>
auto findContent(List& unanswered, const SendContent& content) {
    return std::ranges::find(unanswered, content.text(), &UnansweredSend::content);
}

} // namespace

SendContent::SendContent(OrderRequestType type, const std::string& document)
    : type_(type)
    , text_(prefixOf(type) + madeOf(QByteArray::fromStdString(document)).toStdString()) {}

SendContent::SendContent(SaveBrochuresOrder order)
    : SendContent(order.save, documentOf(std::move(order))) {}

SendContent::SendContent(SaveTextileOrder order)
    : SendContent(order.save, documentOf(std::move(order))) {}

namespace send_intent {

QByteArray keyFor(UnansweredSends& unanswered, const SendContent& content) {
    // A save in the cloud takes the place of the one before. Under that one's key the server would answer
    // without taking the content back.
    if (content.type() == OrderRequestType::saveCloud) {
        std::erase_if(unanswered, [&, prefix = prefixOf(content.type())](const UnansweredSend& send) {
            return send.content.starts_with(prefix) && send.content != content.text();
        });
    }
    auto found = findContent(unanswered, content);
    if (found == unanswered.end()) {
        const QByteArray key = QUuid::createUuid().toByteArray(QUuid::WithoutBraces);
        found = unanswered.insert(found, {content.text(), key.toStdString()});
    }
    found->onlyQueued = false;
    return QByteArray::fromStdString(found->key);
}

std::optional<QByteArray> keyOf(const UnansweredSends& unanswered, const SendContent& content) {
    const auto found = findContent(unanswered, content);
    return found == unanswered.end() ? std::nullopt : std::optional(QByteArray::fromStdString(found->key));
}

UnansweredSends sentWithoutAnswer(const UnansweredSends& unanswered, const SendContent& content) {
    const auto found = findContent(unanswered, content);
    return found == unanswered.end() || found->onlyQueued ? UnansweredSends() : UnansweredSends{*found};
}

void noteQueued(UnansweredSends& unanswered, const SendContent& content, const QByteArray& key) {
    const auto found = findContent(unanswered, content);
    if (found == unanswered.end())
        unanswered.push_back({content.text(), key.toStdString(), true});
    else if (found->onlyQueued) // under a file that is gone
        found->key = key.toStdString();
}

void answered(UnansweredSends& unanswered, const SendContent& content) {
    std::erase_if(unanswered, [&](const UnansweredSend& send) { return send.content == content.text(); });
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

std::optional<QByteArray> keyInFile(const KeptTextileOrder& order) {
    const auto known = sentWithoutAnswer(order.unansweredSends.value_or(UnansweredSends()),
                                         SendContent(SaveTextileOrder(order)));
    return known.empty() ? std::nullopt : std::optional(QByteArray::fromStdString(known.front().key));
}

QByteArray keyOfPlace(DirectoryName directory, std::string_view fileName,
                      const OrderDiskManager::Moment& moment) {
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

} // namespace send_intent

} // namespace kavor

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
    return madeOf(QByteArray::fromStdString(*text)).toStdString();
}

template <class List>
auto findContent(List& unanswered, const std::string& content) {
    return std::ranges::find(unanswered, content, &UnansweredSend::content);
}

} // namespace

QByteArray keyFor(UnansweredSends& unanswered, const SaveBrochuresOrder& order) {
    const std::string content = contentOf(order);
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
    if (findContent(unanswered, content) == unanswered.end())
        unanswered.push_back({content, key.toStdString(), true});
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

#pragma once

#include "documents/OrderRequestType.h"
#include "documents/UnansweredSend.h"
#include "orders/OrderDiskManager.h"

#include <QByteArray>
#include <QString>

#include <algorithm>
#include <optional>
#include <string>
#include <string_view>

namespace kavor {

struct KeptOrder;
struct KeptTextileOrder;
struct RequestFailure;
struct SaveBrochuresOrder;
struct SaveTextileOrder;

// What an order asks for, digested: two orders with the same content are one intent to send.
class SendContent {
public:
    // The document without what makes no other order of it.
    SendContent(OrderRequestType type, const std::string& document);
    // A brochure and an order of clothing stand for their content.
    SendContent(SaveBrochuresOrder order);
    SendContent(SaveTextileOrder order);

    [[nodiscard]] OrderRequestType type() const { return type_; }
    [[nodiscard]] const std::string& text() const { return text_; }

private:
    OrderRequestType type_;
    std::string text_;
};

// One key belongs to one intent to send, so that a second tap after a lost answer orders once. Two orders are
// the same intent when they ask for the same: the request's type is part of it, the numbers that the server
// gives are not, nor is the name of its file for an order to print, nor who prints for one to keep.
namespace send_intent {

// The key for an order of a draft: that of its first send while no answer came, else a new one, which is
// remembered.
QByteArray keyFor(UnansweredSends& unanswered, const SendContent& content);
// The key of the order, if it was sent or waits in the outbox and nobody answered.
std::optional<QByteArray> keyOf(const UnansweredSends& unanswered, const SendContent& content);
// The send of the order that nobody answered, with its key; none for one that was only queued.
UnansweredSends sentWithoutAnswer(const UnansweredSends& unanswered, const SendContent& content);
// A file of the outbox bears this key for the order: when it is sent from elsewhere too, it is the same one.
void noteQueued(UnansweredSends& unanswered, const SendContent& content, const QByteArray& key);
// The answer came, whatever it says: the next send is an intent of its own.
void answered(UnansweredSends& unanswered, const SendContent& content);

// The key of a send of the order in a file which nobody answered.
std::optional<QByteArray> keyInFile(const KeptOrder& order);
std::optional<QByteArray> keyInFile(const KeptTextileOrder& order);
// Most records keep no sends in their files.
template <class Kept>
std::optional<QByteArray> keyInFile(const Kept&) {
    return std::nullopt;
}
// A key made of a file's folder, name and moment.
QByteArray keyOfPlace(OrderDiskManager::DirectoryName directory, std::string_view fileName,
                      const OrderDiskManager::Moment& moment);
// The key of an order file: the one in it, else that of its place.
template <class Kept>
QByteArray keyOfFile(const Kept& order, OrderDiskManager::DirectoryName directory, std::string_view fileName,
                     const OrderDiskManager::Moment& moment) {
    const auto known = keyInFile(order);
    return known ? *known : keyOfPlace(directory, fileName, moment);
}
// The plain name of the file of the outbox that is this very order, where it waits there already. Reads the
// files.
template <class Kept>
std::optional<std::string> nameInOutbox(const UnansweredSends& unanswered, const SendContent& content,
                                        const OrderDiskManager& orders) {
    constexpr auto outbox = OrderDiskManager::DirectoryName::outbox;
    const auto key = keyOf(unanswered, content);
    if (!key)
        return std::nullopt;
    for (const auto& file : orders.list<Kept>(outbox)) {
        const auto kept = orders.retrieve<Kept>(file.fileName, outbox);
        if (kept && keyOfFile(*kept, outbox, file.fileName, file.modificationMoment) == *key)
            return OrderDiskManager::plainName(file.fileName);
    }
    return std::nullopt;
}

// The plain name of a file of the outbox that was queued from the draft of these sends, as it stands now or
// as it was then. Reads the files.
template <class Kept>
std::optional<std::string> anyInOutbox(const UnansweredSends& unanswered, const OrderDiskManager& orders) {
    constexpr auto outbox = OrderDiskManager::DirectoryName::outbox;
    if (unanswered.empty())
        return std::nullopt;
    for (const auto& file : orders.list<Kept>(outbox)) {
        const auto kept = orders.retrieve<Kept>(file.fileName, outbox);
        const auto key =
            kept ? keyOfFile(*kept, outbox, file.fileName, file.modificationMoment) : QByteArray();
        if (std::ranges::any_of(unanswered,
                                [&](const UnansweredSend& each) { return each.key == key.toStdString(); }))
            return OrderDiskManager::plainName(file.fileName);
    }
    return std::nullopt;
}

// A key made of a name that somebody gave to the intent, and of the request's type.
QByteArray keyOfName(std::string_view name, OrderRequestType type);

// Whether the server may have done what was asked although no answer says so: there was none, it broke off or
// cannot be read, or a gateway gave up waiting for it.
bool isAnswerLost(const RequestFailure& failure);

} // namespace send_intent

} // namespace kavor

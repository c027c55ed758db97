#pragma once

#include "documents/OrderRequestType.h"
#include "documents/UnansweredSend.h"
#include "orders/OrderDiskManager.h"

#include <QByteArray>
#include <QString>

#include <optional>
#include <string>
#include <string_view>

namespace kavor {

struct KeptOrder;
struct RequestFailure;
struct SaveBrochuresOrder;

// One key belongs to one intent to send, so that a second tap after a lost answer orders once. Two orders are
// the same intent when they ask for the same: the request's type is part of it, the numbers that the server
// gives are not, nor is the name of its file for an order to print, nor who prints for one to keep.
namespace send_intent {

// The key for an order of a draft: that of its first send while no answer came, else a new one, which is
// remembered.
QByteArray keyFor(UnansweredSends& unanswered, const SaveBrochuresOrder& order);
// The key of the order, if it was sent and nobody answered.
UnansweredSends sentWithoutAnswer(const UnansweredSends& unanswered, const SaveBrochuresOrder& order);
// A file of the outbox bears this key for the order: when it is sent from elsewhere too, it is the same one.
void noteQueued(UnansweredSends& unanswered, const SaveBrochuresOrder& order, const QByteArray& key);
// The plain name of the file of the outbox that is this very order, where it waits there already. Reads the
// files.
std::optional<std::string> nameInOutbox(const UnansweredSends& unanswered, const SaveBrochuresOrder& order,
                                        const OrderDiskManager& orders);
// The answer came, whatever it says: the next send is an intent of its own.
void answered(UnansweredSends& unanswered, const SaveBrochuresOrder& order);

// The key of a send of the order in a file which nobody answered.
std::optional<QByteArray> keyInFile(const KeptOrder& order);
// The key of an order file: the one in it, else one made of folder, name and moment.
QByteArray keyOfFile(const KeptOrder& order, OrderDiskManager::DirectoryName directory,
                     std::string_view fileName, const OrderDiskManager::Moment& moment);
// A key made of a name that somebody gave to the intent, and of the request's type.
QByteArray keyOfName(std::string_view name, OrderRequestType type);

// Whether the server may have done what was asked although no answer says so: there was none, it broke off or
// cannot be read, or a gateway gave up waiting for it.
bool isAnswerLost(const RequestFailure& failure);

} // namespace send_intent

} // namespace kavor

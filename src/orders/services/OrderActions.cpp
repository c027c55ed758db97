#include "orders/services/OrderActions.h"

#include "brochures/engine/RetrievedOrder.h"
#include "device/Background.h"
#include "documents/Answers.h"
#include "interaction/QtText.h"
#include "orders/DraftsWithChanges.h"
#include "orders/OrderDiskManager.h"
#include "orders/list/DraftOrderRows.h"
#include "orders/services/SendIntent.h"
#include "orders/services/SentFiles.h"
#include "textile/TextileIntermediateData.h"

#include <QTimer>

#include <type_traits>
#include <utility>

namespace kavor {

namespace {

using Directory = OrderDiskManager::DirectoryName;

// Calls with the record that the files of this kind hold.
template <class Call>
auto withRecord(OrderFile::Kind kind, Call call) {
    if (kind == OrderFile::Kind::Brochure)
        return call(std::type_identity<KeptOrder>());
    return call(std::type_identity<KeptTextileOrder>());
}

// What waits in the outbox is to be printed, whatever an older file says.
KeptOrder asSent(KeptOrder order) {
    order.save = OrderRequestType::sendToPrint;
    order.printedMyself = order.printsMyself.value_or(false);
    return order;
}
KeptTextileOrder asSent(KeptTextileOrder order) {
    order.save = OrderRequestType::sendToPrint;
    return order;
}

QString reasonOf(const RequestFailure& failure) {
    return failure.messages && !failure.messages->isEmpty() ? failure.messages->first()
                                                            : failure.error.localizedDescription;
}

OrderToEdit toEdit(const OrderFile& file, const KeptOrder& kept, const OrderDiskManager::Moment& moment) {
    const bool waits = file.directory == Directory::outbox;
    OrderToEdit result{kept, waits ? kept.filename : std::optional(file.plainName),
                       kept.unansweredSends.value_or(UnansweredSends()),
                       waits ? std::optional(file.plainName) : std::nullopt, kept.supportComment};
    // Sent as it stands, it is the order of the file.
    SaveBrochuresOrder content = kept;
    content.save = waits ? OrderRequestType::sendToPrint : OrderRequestType::saveCloud;
    for (const bool printedMyself : {false, true}) {
        content.printedMyself = printedMyself;
        send_intent::noteQueued(result.unansweredSends, content,
                                send_intent::keyOfFile(kept, file.directory, file.fileName(), moment));
    }
    return result;
}

TextileOrderToEdit toEdit(const OrderFile& file, const KeptTextileOrder& kept,
                          const OrderDiskManager::Moment& moment) {
    if (file.directory == Directory::draft)
        return {kept, file.plainName, kept.unansweredSends.value_or(UnansweredSends()), {}};
    TextileOrderToEdit result{kept, kept.filename, kept.unansweredSends.value_or(UnansweredSends()),
                              file.plainName};
    // Sent as it stands, it is the order of the file.
    SaveTextileOrder content = kept;
    content.save = OrderRequestType::sendToPrint;
    send_intent::noteQueued(result.unansweredSends, content,
                            send_intent::keyOfFile(kept, file.directory, file.fileName(), moment));
    return result;
}

template <class Record>
struct Read {
    std::optional<Record> order;
    QByteArray key;
};

template <class Record>
Read<Record> readFile(const OrderDiskManager& orders, const OrderFile& file) {
    // The moment first: with one that is too old the order has a key of its own, never another's.
    const auto moment = orders.moment<Record>(file.fileName(), file.directory);
    auto order = orders.retrieve<Record>(file.fileName(), file.directory);
    if (!order || !moment)
        return {};
    auto key = send_intent::keyOfFile(*order, file.directory, file.fileName(), *moment);
    return {std::move(order), std::move(key)};
}

} // namespace

struct OrderActions::SendingAll {
    std::vector<OrderFile> files;
    std::function<void(int)> begun;
    Then<SentAll> done;
    std::size_t next = 0;
    SentAll sum = {};
};

OrderActions::OrderActions(ServiceOperations& network, OrderDiskManager& orders, QObject* parent)
    : QObject(parent)
    , network_(network)
    , orders_(orders) {}

OrderActions::~OrderActions() = default;

// ---- Sending

void OrderActions::send(const OrderFile& file, const Then<Sending>& done) {
    if (!underWay_.insert(file).second) {
        QTimer::singleShot(0, this, [done] { done({Sending::Result::UnderWay}); });
        return;
    }
    refusals_.erase(file);
    withRecord(file.kind, [&](auto record) { readAndSend<typename decltype(record)::type>(file, done); });
}

template <class Record>
void OrderActions::readAndSend(const OrderFile& file, const Then<Sending>& done) {
    runInBackground(
        this, [&orders = orders_, file] { return readFile<Record>(orders, file); },
        [this, file, done](const Read<Record>& read) {
            if (!read.order)
                return ended(file, {Sending::Result::Gone}, done);
            const Record order = asSent(*read.order);
            const auto answered = [this, file, order, done](const auto& failure) {
                if (!failure)
                    return removeSent(file, order, done);
                refusals_[file] = reasonOf(*failure);
                ended(file, {Sending::Result::Failed, failure}, done);
            };
            post(order, answered, read.key);
        });
}

void OrderActions::post(const KeptOrder& order, const Answered& done, const QByteArray& key) {
    network_.saveOrder(order,
                       {this, [done](const SaveBrochuresOrderResponse&) { done(std::nullopt); },
                        [done](const RequestFailure& failure) { done(failure); }},
                       key);
}

void OrderActions::post(const KeptTextileOrder& order, const Answered& done, const QByteArray& key) {
    network_.createTextileOrder(order,
                                {this, [done](const SaveTextileOrderResponse&) { done(std::nullopt); },
                                 [done](const RequestFailure& failure) { done(failure); }},
                                key);
}

template <class Record>
void OrderActions::removeSent(const OrderFile& file, const Record& order, const Then<Sending>& done) {
    runInBackground(
        this,
        [&orders = orders_, file, order] {
            const bool gone = orders.remove<Record>(file.fileName(), file.directory);
            sent_files::removeUnchangedDraft(orders, order);
            return gone;
        },
        [this, file, order, done](bool gone) {
            sent_files::forgetChanges(orders_, order);
            ended(file, {gone ? Sending::Result::Sent : Sending::Result::FileStays}, done);
        });
}

void OrderActions::ended(const OrderFile& file, const Sending& sending, const Then<Sending>& done) {
    underWay_.erase(file);
    done(sending);
    emit filesChanged();
}

void OrderActions::sendAll(const std::vector<OrderFile>& files, const std::function<void(int)>& begun,
                           const Then<SentAll>& done) {
    sendNext(std::make_shared<SendingAll>(SendingAll{files, begun, done}));
}

void OrderActions::sendNext(const std::shared_ptr<SendingAll>& all) {
    const bool ends = all->next == all->files.size() || all->sum.updateNeeded || !network_.isReachable();
    if (ends) {
        all->sum.failed += int(all->files.size() - all->next);
        all->done(all->sum);
        return;
    }
    const OrderFile file = all->files[all->next++];
    all->begun(int(all->next));
    send(file, [this, all](const Sending& sending) {
        switch (sending.result) {
        case Sending::Result::Sent:
        case Sending::Result::FileStays:
            ++all->sum.sent;
            break;
        case Sending::Result::Failed:
            ++all->sum.failed;
            if (sending.failure->error.updateNeeded)
                all->sum.updateNeeded = sending.failure;
            break;
        case Sending::Result::Gone:
        case Sending::Result::UnderWay:
            break;
        }
        sendNext(all);
    });
}

QString OrderActions::refusalOf(const OrderFile& file) const {
    const auto found = refusals_.find(file);
    return found == refusals_.end() ? QString() : found->second;
}

// ---- Fetching

void OrderActions::fetchToEdit(const DraftOrderRow& row, Version version,
                               const Then<Fetched<OrderToEdit>>& done) {
    if (version == Version::Device || !row.serverId())
        return fetchFromFile<KeptOrder>(row.file().value_or(OrderFile()), done);
    network_.retrieveBrochureOrder(
        *row.serverId(),
        {this,
         [done, id = *row.serverId(), name = row.filename](const RetrieveBrochureOrderListResponse& answer) {
             done({OrderToEdit{orderOf(id, answer), name, {}, {}, {}}});
         },
         [done](const RequestFailure& failure) {
             done({std::nullopt, failure});
         }});
}

void OrderActions::fetchTextileToEdit(const DraftOrderRow& row, Version version,
                                      const Then<Fetched<TextileOrderToEdit>>& done) {
    if (version == Version::Device || !row.serverId())
        return fetchFromFile<KeptTextileOrder>(row.file().value_or(OrderFile()), done);
    network_.retrieveTextileOrder(*row.serverId(),
                                  {this,
                                   [done, name = row.filename](const RetrieveTextileOrderResponse& answer) {
                                       done({TextileOrderToEdit{savedOrder(answer), name, {}, {}}});
                                   },
                                   [done](const RequestFailure& failure) {
                                       done({std::nullopt, failure});
                                   }});
}

template <class Record, class ToEdit>
void OrderActions::fetchFromFile(const OrderFile& file, const Then<Fetched<ToEdit>>& done) {
    runInBackground(
        this,
        [&orders = orders_, file]() -> std::optional<ToEdit> {
            const auto moment = orders.moment<Record>(file.fileName(), file.directory);
            const auto kept = orders.retrieve<Record>(file.fileName(), file.directory);
            return kept && moment ? std::optional(toEdit(file, *kept, *moment)) : std::nullopt;
        },
        [done](std::optional<ToEdit> order) { done({std::move(order)}); });
}

void OrderActions::fetchCopy(Int id, const Then<Fetched<SaveBrochuresOrder>>& done) {
    network_.retrieveBrochureOrder(id, {this,
                                        [done, id](const RetrieveBrochureOrderListResponse& answer) {
                                            SaveBrochuresOrder copy = orderOf(id, answer);
                                            copy.save = OrderRequestType::saveCloud;
                                            copy.orderIdentifier.reset();
                                            done({std::move(copy)});
                                        },
                                        [done](const RequestFailure& failure) {
                                            done({std::nullopt, failure});
                                        }});
}

// ---- Files

template <class Work>
void OrderActions::changeFile(Work work, const Then<bool>& done) {
    runInBackground(this, std::move(work), [this, done](bool succeeded) {
        done(succeeded);
        if (succeeded)
            emit filesChanged();
    });
}

bool OrderActions::draftExists(const std::string& plainName) const {
    return orders_.exists<SaveBrochuresOrder>(plainName, Directory::draft);
}

void OrderActions::storeCopy(SaveBrochuresOrder copy, const std::string& plainName, bool overwrite,
                             const Then<bool>& done) {
    copy.filename = plainName;
    KeptOrder kept{std::move(copy)};
    // Whoever brings it to the cloud does so under one key.
    send_intent::keyFor(kept.unansweredSends.emplace(), SendContent(kept));
    changeFile(
        [&orders = orders_, kept = std::move(kept), plainName, overwrite] {
            return overwrite ? orders.update(kept, OrderDiskManager::fileName(plainName), Directory::draft)
                             : orders.create(kept, Directory::draft, plainName);
        },
        [done, plainName](bool stored) {
            if (stored)
                DraftsWithChanges::shared().remove(plainName);
            done(stored);
        });
}

void OrderActions::remove(const OrderFile& file, const Then<bool>& done) {
    changeFile(
        [&orders = orders_, file] {
            return withRecord(file.kind, [&](auto record) {
                return orders.remove<typename decltype(record)::type>(file.fileName(), file.directory);
            });
        },
        [this, file, done](bool gone) {
            if (gone)
                forget(file);
            done(gone);
        });
}

void OrderActions::setAside(const OrderFile& file, const Then<bool>& done) {
    changeFile(
        [&orders = orders_, file] {
            return withRecord(file.kind, [&](auto record) {
                return orders.setAside<typename decltype(record)::type>(file.fileName(), file.directory);
            });
        },
        done);
}

void OrderActions::bringBack(const OrderFile& file, const Then<bool>& done) {
    changeFile(
        [&orders = orders_, file] {
            return withRecord(file.kind, [&](auto record) {
                return orders.bringBack<typename decltype(record)::type>(file.fileName(), file.directory);
            });
        },
        done);
}

void OrderActions::forget(const OrderFile& file) {
    refusals_.erase(file);
    const bool stays = withRecord(file.kind, [&](auto record) {
        return orders_.exists<typename decltype(record)::type>(file.plainName, Directory::draft);
    });
    if (file.directory == Directory::draft && !stays)
        DraftsWithChanges::shared().remove(nameOfChanged(file.kind, file.plainName));
    runInBackground(
        this,
        [&orders = orders_, file] {
            return withRecord(file.kind, [&](auto record) {
                return orders.removeSetAside<typename decltype(record)::type>(file.fileName(),
                                                                              file.directory);
            });
        },
        [](bool) {}); // a failure is logged
}

void OrderActions::deleteInCloud(Int id, ApplicationType type, const Then<Answer>& done) {
    network_.deleteOrder(id, type,
                         {this, [done](const SimpleResponse&) { done(std::nullopt); },
                          [done](const RequestFailure& failure) { done(failure); }});
}

} // namespace kavor

#pragma once

#include "brochures/engine/OrderToEdit.h"
#include "network/ServiceOperations.h"
#include "orders/OrderFile.h"
#include "textile/TextileOrderToEdit.h"

#include <QObject>

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace kavor {

class OrderDiskManager;
struct DraftOrderRow;

// What can be done with an order of the list. It outlives the screens: what was begun goes on to its end, so
// that an order that was sent leaves the outbox though nobody looks any more. It tells nobody but the
// callbacks, which run on the main thread, later than the call, whoever is still there. Main thread only.
class OrderActions : public QObject {
    Q_OBJECT
public:
    struct Sending {
        enum class Result {
            Sent,
            FileStays, // sent, and its file could not be removed
            Failed,    // failure says why
            Gone,      // there is no such file any more
            UnderWay   // it is being sent already
        };
        Result result = Result::Failed;
        std::optional<RequestFailure> failure = std::nullopt;
    };
    struct SentAll {
        int sent = 0; // with those whose files stay
        int failed = 0;
        std::optional<RequestFailure> updateNeeded = std::nullopt; // ends the run
    };
    template <class Result>
    using Then = std::function<void(const Result&)>;
    // What was asked for, or why there is none; both are empty when the file is gone.
    template <class Value>
    struct Fetched {
        std::optional<Value> value = std::nullopt;
        std::optional<RequestFailure> failure = std::nullopt;
    };
    // Why the server did not; nothing when it did.
    using Answer = std::optional<RequestFailure>;
    enum class Version { Device, Server };

    // Both outlive it.
    OrderActions(ServiceOperations& network, OrderDiskManager& orders, QObject* parent = nullptr);
    ~OrderActions() override;

    // Sends the order of a file of the outbox, read anew, under the key of its file: however often it is
    // sent, the server has it once. Afterwards the file goes, and a draft of its name that is the same order.
    void send(const OrderFile& file, const Then<Sending>& done);
    // One after the other, going on past a refused one. `begun` hears the number of the one that begins,
    // from 1.
    void sendAll(const std::vector<OrderFile>& files, const std::function<void(int)>& begun,
                 const Then<SentAll>& done);
    // Whether a send of the file waits for its answer.
    [[nodiscard]] bool isBeingSent(const OrderFile& file) const { return underWay_.contains(file); }
    // Why the server refused the file last; empty when it did not. As long as the process lives.
    [[nodiscard]] QString refusalOf(const OrderFile& file) const;

    // The order of a row for the wizard, or for the section of clothing: from the file, or from the server
    // under the row's name.
    void fetchToEdit(const DraftOrderRow& row, Version version, const Then<Fetched<OrderToEdit>>& done);
    void fetchTextileToEdit(const DraftOrderRow& row, Version version,
                            const Then<Fetched<TextileOrderToEdit>>& done);
    // The brochure that the server has under a number, as a draft that never went there.
    void fetchCopy(Int id, const Then<Fetched<SaveBrochuresOrder>>& done);
    // Writes the copy as a draft of this name; over another one only where that is wanted.
    void storeCopy(SaveBrochuresOrder copy, const std::string& plainName, bool overwrite,
                   const Then<bool>& done);
    [[nodiscard]] bool draftExists(const std::string& plainName) const;

    // Takes the file away; answers whether it is gone. One that was set aside can be brought back as it was
    // until it is forgotten, or the client starts anew.
    void remove(const OrderFile& file, const Then<bool>& done);
    void setAside(const OrderFile& file, const Then<bool>& done);
    void bringBack(const OrderFile& file, const Then<bool>& done);
    void forget(const OrderFile& file);
    // Deletes the order in the server's cloud.
    void deleteInCloud(Int id, ApplicationType type, const Then<Answer>& done);

signals:
    // A file was sent, removed, written or brought back.
    void filesChanged();

private:
    struct SendingAll;
    using Answered = Then<Answer>;

    template <class Record>
    void readAndSend(const OrderFile& file, const Then<Sending>& done);
    template <class Record>
    void removeSent(const OrderFile& file, const Record& order, const Then<Sending>& done);
    void post(const KeptOrder& order, const Answered& done, const QByteArray& key);
    void post(const KeptTextileOrder& order, const Answered& done, const QByteArray& key);
    void ended(const OrderFile& file, const Sending& sending, const Then<Sending>& done);
    void sendNext(const std::shared_ptr<SendingAll>& all);
    template <class Record, class ToEdit>
    void fetchFromFile(const OrderFile& file, const Then<Fetched<ToEdit>>& done);
    template <class Work>
    void changeFile(Work work, const Then<bool>& done);

    ServiceOperations& network_;
    OrderDiskManager& orders_;
    std::set<OrderFile> underWay_;
    std::map<OrderFile, QString> refusals_;
};

} // namespace kavor

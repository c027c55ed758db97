#pragma once

#include "device/Background.h"
#include "interaction/QtText.h"
#include "orders/OrderDiskManager.h"
#include "orders/services/OrderRoad.h"

#include <memory>
#include <utility>

namespace kavor {

// What became of an order that could not be sent.
struct QueuedOrder {
    enum class Result { Written, WaitsAlready, Failed };
    std::string name; // of its file in the outbox
    Result result = Result::Failed;
};

// What the user reads of it.
QString textOf(const QueuedOrder& queued, const OrderTexts& texts);

// Says that the order waits in the outbox under this plain name, empty when none does, and what another send
// would be: the user decides with this in sight.
QString textOfWaiting(const QString& name, bool isOpenedFromThere);

// "Guardar como": taken hears a name that can become a file; any other is refused with its reason and asked
// for again.
void askForFileName(AlertPresenter& alerts, QObject* context, const QString& proposal,
                    std::function<void(const std::string& plainName)> taken);
void askToOverwrite(AlertPresenter& alerts, QObject* context, std::function<void()> taken);
// Asks whether the order that was sent becomes the start of another one.
void askForAnotherOrder(AlertPresenter& alerts, QObject* context, const std::function<void(bool)>& answered);

// The road of a record that OrderDiskManager keeps: offline the order waits in the outbox, and a draft may be
// kept under a name, from where it goes to the cloud. Kept is the record as its file holds it.
template <class Order, class Answer, class Kept = Order>
class FiledOrderRoad : public OrderRoadOf<Order, Answer> {
public:
    // The files outlive the road.
    FiledOrderRoad(const OrderRoadServices& services, const OrderDiskManager& orders, OrderTexts texts,
                   QObject* parent = nullptr)
        : OrderRoadOf<Order, Answer>(services, std::move(texts), parent)
        , orders_(orders) {}

    // Keeps the draft under a name that the user gives, complete or not, and then in the cloud. An order that
    // was sent first becomes another one, if the user says so.
    void saveAs() {
        if (!this->sentTo())
            return askForName();
        askForAnotherOrder(this->alerts(), this, [this](bool another) {
            if (!another)
                return;
            beginAnotherOrder();
            emit this->anotherOrderBegun();
            askForName();
        });
    }

    [[nodiscard]] QString waitingText(const QString& name) const {
        return textOfWaiting(name, outboxFile().has_value());
    }

    // Looks whether an order of this draft waits in the outbox; waitingInOutbox tells it, beside the window's
    // thread and after this call.
    void lookIntoOutbox() {
        runInBackground(
            this,
            [&orders = orders_, unanswered = this->unansweredSends(), opened = outboxFile()] {
                if (opened && orders.template exists<Order>(*opened, Directory::outbox))
                    return *opened;
                return send_intent::anyInOutbox<Kept>(unanswered, orders).value_or("");
            },
            [this](const std::string& name) { emit this->waitingInOutbox(fromUtf8(name)); });
    }

protected:
    using Directory = OrderDiskManager::DirectoryName;

    // The record as a file holds it, with the sends of it that nobody has answered: the server may have the
    // order already, and whoever sends the file sends it under the same key.
    [[nodiscard]] virtual Kept keep(Order order, const UnansweredSends& unanswered) const = 0;
    // The name of the draft's file.
    [[nodiscard]] virtual std::optional<std::string>& fileName() = 0;
    // What the server's answer to a save changes in the draft.
    virtual void takeSaved(const Answer& answer) = 0;
    // The draft that was sent goes on as another order.
    virtual void beginAnotherOrder() = 0;
    // The file of the outbox that the draft was opened from.
    [[nodiscard]] virtual std::optional<std::string> outboxFile() const { return std::nullopt; }
    // The draft was kept under a name and the server does not have it so; or has it so by now.
    virtual void noteKeptLocally(const std::string&) {}
    virtual void noteUploaded(const std::string&) {}
    // Whether the user is asked before the file of this name, which is there, is written over.
    [[nodiscard]] virtual bool asksToOverwrite(const std::string&) { return true; }

    void queueOffline() override {
        const auto type = OrderRequestType::sendToPrint;
        const Order order = this->make(type);
        const SendContent content = this->contentOf(type, order);
        // What may be at the server already goes by the key under which it was sent.
        const Kept kept = keep(order, send_intent::sentWithoutAnswer(this->unansweredSends(), content));
        writeBehindVeil(
            [&orders = orders_, kept, content, unanswered = this->unansweredSends(), former = outboxFile()] {
                return intoOutbox(orders, kept, content, unanswered, former);
            },
            [this, kept, content](const QueuedOrder& queued) {
                if (queued.result == QueuedOrder::Result::Written)
                    noteQueued(kept, content, OrderDiskManager::fileName(queued.name));
                if (queued.result != QueuedOrder::Result::Failed)
                    emit this->waitingInOutbox(fromUtf8(queued.name));
                this->tell(this->texts().queuedTitle, textOf(queued, this->texts()));
            });
    }

    // An order that was changed since it waits in the outbox goes there first, with the key under which it is
    // sent: what is sent from there afterwards, because this end never heard the answer, is the same order.
    void beforePost(const Order& order, const SendContent& content,
                    const std::function<void()>& post) override {
        const auto waiting = outboxFile();
        if (content.type() != OrderRequestType::sendToPrint || !waiting)
            return post();
        const Kept kept = keep(order, send_intent::sentWithoutAnswer(this->unansweredSends(), content));
        writeBehindVeil(
            [&orders = orders_, kept, file = OrderDiskManager::fileName(*waiting)] {
                return orders.update(kept, file, Directory::outbox);
            },
            [post](bool) { post(); }); // a failure is logged
    }

    void savedInCloud(const Answer& answer) override {
        this->tell(this->texts().savedTitle, this->texts().saved);
        takeSaved(answer);
        this->keepSafe();
        if (!fileName())
            return;
        noteUploaded(*fileName());
        // The identifiers stand on disk too, so that the order is not kept twice in the cloud.
        runInBackground(
            this,
            [&orders = orders_, kept = keptDraft(), file = OrderDiskManager::fileName(*fileName())] {
                return orders.update(kept, file, Directory::draft);
            },
            [](bool) {}); // a failure is logged
    }

private:
    // A further tap on an order that waits already is no further order.
    static QueuedOrder intoOutbox(const OrderDiskManager& orders, const Kept& kept,
                                  const SendContent& content, const UnansweredSends& unanswered,
                                  const std::optional<std::string>& former) {
        if (auto waiting = send_intent::nameInOutbox<Kept>(unanswered, content, orders))
            return {std::move(*waiting), QueuedOrder::Result::WaitsAlready};
        if (former && orders.update(kept, OrderDiskManager::fileName(*former), Directory::outbox))
            return {*former, QueuedOrder::Result::Written};
        std::string name = "Sin enviar";
        for (int number = 1; orders.template exists<Order>(name, Directory::outbox); ++number)
            name = "Sin enviar(" + std::to_string(number) + ")";
        const bool written = orders.create(kept, Directory::outbox, name);
        return {std::move(name), written ? QueuedOrder::Result::Written : QueuedOrder::Result::Failed};
    }

    // The order may still be sent from here once the network is back: then it is the one of the file.
    void noteQueued(const Kept& kept, const SendContent& content, const std::string& file) {
        const auto moment = orders_.template moment<Kept>(file, Directory::outbox);
        if (!moment)
            return;
        send_intent::noteQueued(this->unansweredSends(), content,
                                send_intent::keyOfFile(kept, Directory::outbox, file, *moment));
        this->keepSafe();
    }

    void askForName() {
        askForFileName(this->alerts(), this, fromUtf8(fileName().value_or("")),
                       [this](const std::string& name) { saveUnderName(name); });
    }

    void saveUnderName(const std::string& name) {
        const bool there = orders_.template exists<Order>(name, Directory::draft);
        if (!there || !asksToOverwrite(name))
            return writeDraftFile(name);
        askToOverwrite(this->alerts(), this, [this, name] { writeDraftFile(name); });
    }

    void writeDraftFile(const std::string& name) {
        const auto former = std::exchange(fileName(), name);
        // Whoever sends the file afterwards does so under the key under which this road sends it.
        const auto type = OrderRequestType::saveCloud;
        send_intent::keyFor(this->unansweredSends(), this->contentOf(type, this->make(type)));
        this->keepSafe();
        writeBehindVeil(
            [&orders = orders_, name, kept = keptDraft()] {
                return orders.template exists<Order>(name, Directory::draft)
                           ? orders.update(kept, OrderDiskManager::fileName(name), Directory::draft)
                           : orders.create(kept, Directory::draft, name);
            },
            [this, former, name](bool written) {
                if (written) {
                    noteKeptLocally(name);
                    return this->send(OrderRequestType::saveCloud);
                }
                fileName() = former; // the draft is not in a file of that name
                this->keepSafe();
                this->tell(this->texts().notWrittenTitle,
                           former == name ? this->texts().notUpdated : this->texts().notWritten);
            });
    }

    [[nodiscard]] Kept keptDraft() {
        return keep(this->make(OrderRequestType::saveCloud), this->unansweredSends());
    }

    // A veil that cannot be left: a file does not take long.
    template <class Work, class Then>
    void writeBehindVeil(Work work, Then then) {
        showVeil(true, this->texts().writing.toUtf8().constData());
        runInBackground(this, std::move(work), [then = std::move(then)](const auto& result) {
            showVeil(false);
            then(result);
        });
    }

    const OrderDiskManager& orders_;
};

} // namespace kavor

#pragma once

#include "interaction/VeiledRun.h"
#include "network/ServiceOperations.h"
#include "orders/services/OrderTexts.h"
#include "orders/services/SendIntent.h"

#include <QObject>
#include <QStringList>
#include <QUrl>

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace kavor {

class AlertPresenter;
class UrlOpener;

// What the road of an order works with. Everything outlives the road.
struct OrderRoadServices {
    ServiceOperations& network;
    AlertPresenter& alerts;
    UrlOpener& urls;
};

// How the order of a draft leaves the client, the same for every kind of order: check, warnings, network
// test, veil, the request under the key of its intent, and what comes of it. Screens drive it and show what
// it tells; a section derives from OrderRoadOf, or from FiledOrderRoad where its orders are kept as files.
class OrderRoad : public QObject {
    Q_OBJECT
public:
    OrderRoad(const OrderRoadServices& services, OrderTexts texts, QObject* parent = nullptr);
    ~OrderRoad() override;

    // Sends the order to print. One that was sent is shown where it can be seen instead.
    void sendToPrint();
    // Asks the server for the document of the order.
    void preview();

signals:
    // The sentences of a check; none after one that passed.
    void checked(const QStringList& missing);
    void documentReady(const QUrl& document);
    // The server has the order, and the draft knows.
    void orderSent();
    // The draft goes on as another order than the one that was sent.
    void anotherOrderBegun();
    // An order of this draft waits in the outbox under this plain name; empty when none does.
    void waitingInOutbox(const QString& name);

protected:
    // What the order lacks to be printed or previewed, in the order of the check.
    [[nodiscard]] virtual std::vector<std::string> missing() const = 0;
    // What the user has to confirm.
    [[nodiscard]] virtual std::vector<std::string> warnings() const { return {}; }
    // Where the order that was sent can be seen; nothing while it may be sent.
    [[nodiscard]] virtual std::optional<QUrl> sentTo() const { return std::nullopt; }
    // An order that could be kept on the device only goes up later.
    virtual void planSync() {}
    // Makes the record and sends it, behind the veil.
    virtual void request(OrderRequestType type) = 0;
    // An order to print without network.
    virtual void queueOffline();

    // The network test, then the request.
    void send(OrderRequestType type);
    // Shows the veil, which the user may leave; the context of the request's answer.
    QObject* beginWait(OrderRequestType type);
    void endWait() { wait_.end(); }
    void tell(const QString& title, const QString& text);
    void tellFailure(OrderRequestType type, const RequestFailure& failure);
    [[nodiscard]] AlertPresenter& alerts() { return services_.alerts; }
    [[nodiscard]] const OrderTexts& texts() const { return texts_; }

private:
    void checkAndSend(OrderRequestType type);
    void savedLocallyOnly();
    void left(OrderRequestType type);

    OrderRoadServices services_;
    OrderTexts texts_;
    VeiledRun wait_;
};

// What an answer of the server says, whatever its record.
struct OrderAnswer {
    bool taken = false;           // to print, and it says where the order is
    std::optional<QUrl> document; // of a preview
    QString message;              // what the user is told of an order that was sent
};

// The road of one kind of record and its answer.
template <class Order, class Answer>
class OrderRoadOf : public OrderRoad {
protected:
    using OrderRoad::OrderRoad;

    // The record of the draft; only one that is kept in the cloud may be incomplete.
    [[nodiscard]] virtual Order make(OrderRequestType type) const = 0;
    // The operation of the server.
    virtual void post(const Order& order, Completion<Answer> done, const QByteArray& key) = 0;
    // What makes two sends of the record one order.
    [[nodiscard]] virtual SendContent contentOf(OrderRequestType type, const Order& order) const = 0;
    // Of the draft.
    [[nodiscard]] virtual UnansweredSends& unansweredSends() = 0;
    // Writes the draft where it outlives the process.
    virtual void keepSafe() = 0;
    // What is to be done first; then calls post, now or later.
    virtual void beforePost(const Order&, const SendContent&, const std::function<void()>& post) { post(); }
    [[nodiscard]] virtual OrderAnswer read(const Answer& answer) const = 0;
    // What the answer changes in the draft, once the order is sent.
    virtual void takeSent(const Answer& answer) = 0;
    virtual void tellSent(const OrderAnswer& answer) { tell(texts().sentTitle, answer.message); }
    virtual void savedInCloud(const Answer&) {}
    // The order was taken, and the answer does not say where it is; another send of it is the same order.
    virtual void takenWithoutPlace(const Answer&) { tell(QStringLiteral("Error"), texts().noOrder); }

    void request(OrderRequestType type) final {
        const Order order = make(type);
        const SendContent content = contentOf(type, order);
        const QByteArray key = send_intent::keyFor(unansweredSends(), content);
        keepSafe(); // the key outlives the process
        beforePost(order, content, [this, type, order, content, key] { postNow(type, order, content, key); });
    }

private:
    void postNow(OrderRequestType type, const Order& order, const SendContent& content,
                 const QByteArray& key) {
        post(order,
             {beginWait(type),
              [this, type, content](const Answer& answer) { answered(type, content, answer); },
              [this, type, content](const RequestFailure& failure) { failed(type, content, failure); }},
             key);
    }
    // An answer ends the intent, a lost one keeps its key for the next tap.
    void endIntent(const SendContent& content) {
        send_intent::answered(unansweredSends(), content);
        keepSafe();
    }
    void answered(OrderRequestType type, const SendContent& content, const Answer& response) {
        endWait();
        const OrderAnswer answer = read(response);
        const bool lacksOrder = type == OrderRequestType::sendToPrint && !answer.taken;
        if (!lacksOrder) // one that was taken without saying where it is may be sent again, and is the same
                         // one
            endIntent(content);
        switch (type) {
        case OrderRequestType::sendToPrint:
            return lacksOrder ? takenWithoutPlace(response) : sent(answer, response);
        case OrderRequestType::sendPreview:
            if (!answer.document)
                return tell(QStringLiteral("Error"), texts().noDocument);
            emit documentReady(*answer.document);
            return;
        case OrderRequestType::saveCloud:
            return savedInCloud(response);
        }
    }
    void sent(const OrderAnswer& answer, const Answer& response) {
        takeSent(response);
        emit orderSent();
        tellSent(answer);
    }
    void failed(OrderRequestType type, const SendContent& content, const RequestFailure& failure) {
        endWait();
        if (!send_intent::isAnswerLost(failure))
            endIntent(content);
        tellFailure(type, failure);
    }
};

} // namespace kavor

#pragma once

#include "Json.h"
#include "server/Database.h"

#include <optional>
#include <string>
#include <vector>

namespace kavor::demo {

/// States of an order, with their wire values.
enum class OrderState {
    withoutConfirm = 2,
    confirmed = 3,
    inProcess = 4,
    sent = 5,
    incidence = 6,
    deleted = 7,
    canceled = 8,
    delivered = 9,
    confirmSupport = 10,
    tradeAuthorization = 11,
    cloud = 12
};
std::string stateName(OrderState state);

/// What an order passes through as time goes by.
enum class Road {
    printed,  ///< from "Sin confirmar" to "Entregado"
    claimed,  ///< the same once the claim is settled
    demanded, ///< the same once the QR material is authorised again
};

/// A stored order of any kind ("brochure", "textile", "promotion", "sheet", "activation", "raw").
// The move of Json only asserts; the lint takes its assertion for a throw.
struct Order { // NOLINT(bugprone-exception-escape)
    std::int64_t id = 0;
    std::int64_t account = 0;
    std::string kind;
    std::string token;
    int type = 0; ///< raw kind of brochure, or application type
    std::int64_t created = 0;
    std::string filename, tevo, pdv;
    bool cloud = false;
    std::optional<OrderState> fixedState; ///< a state that time does not move
    Road road = Road::printed;
    std::int64_t since = 0;      ///< when it set out on its road; 0: when it was created
    std::optional<bool> pending; ///< unset: an incidence is pending, anything else is not
    bool linked = true;          ///< the lists name its page
    std::string note;
    bool qrAsked = false;
    bool seeded = false;
    std::optional<std::int64_t> qrBrand; ///< these three are of the body, for lists that go without it
    bool qrBlocks = false;
    std::int64_t typography = 0;
    Json body;

    void takeFromBody();
};

/// What a user wrote about an order, or asked of it.
struct OrderMessage { // NOLINT(bugprone-exception-escape)
    std::int64_t created = 0;
    std::string kind; ///< "claim" or "qr"
    Json body;
};

/// The orders in the database. A printed order moves from state to state as time passes.
class Orders {
public:
    Orders(Database& database, int stateSeconds)
        : database_(database)
        , stateSeconds_(stateSeconds) {}

    /// Stores a new order and gives it id and token.
    void add(Order& order);
    void update(Order& order);
    void remove(const Order& order);

    /// An order of this account.
    std::optional<Order> find(std::int64_t account, std::int64_t id, const std::string& kind);
    std::optional<Order> findByToken(const std::string& token);

    std::optional<Order> findById(std::int64_t id);

    /// Newest first. Without an account: those of all.
    std::vector<Order> list(std::optional<std::int64_t> account, const std::string& kind);
    /// The same without the bodies, which are most of the work.
    std::vector<Order> rows(std::int64_t account, const std::string& kind);

    OrderState stateOf(const Order& order) const;
    bool isPending(const Order& order) const;
    /// What the programme says about the order.
    std::string noteOf(const Order& order) const;
    /// When the programme has dealt with a message; that may be still to come.
    std::int64_t answeredAt(const OrderMessage& message) const { return message.created + stateSeconds_; }

    void addMessage(const Order& order, const std::string& kind, const Json& body);
    std::vector<OrderMessage> messages(const Order& order);

    /// How many earlier orders an account was given.
    int seeds(std::int64_t account);
    void setSeeds(std::int64_t account, int number);

    /// Documents are described by a body and made when they are fetched.
    struct Document {
        std::string kind;
        Json body;
    };
    std::string addDocument(const std::string& kind, const Json& body);
    std::optional<Document> document(const std::string& name);

    Database& database() { return database_; }

private:
    /// How many states the order has left behind on its road.
    std::int64_t stageOf(const Order& order) const;

    Database& database_;
    int stateSeconds_;
};

} // namespace kavor::demo

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
    cloud = 12
};
std::string stateName(OrderState state);

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
    std::string note;
    bool qrAsked = false;
    bool seeded = false;
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
    void update(const Order& order);

    /// An order of this account; the deleted ones are gone.
    std::optional<Order> find(std::int64_t account, std::int64_t id, const std::string& kind);
    std::optional<Order> findByToken(const std::string& token);

    /// Newest first. Without an account: those of all.
    std::vector<Order> list(std::optional<std::int64_t> account, const std::string& kind);

    OrderState stateOf(const Order& order) const;

    /// Documents are described by a body and made when they are fetched.
    struct Document {
        std::string kind;
        Json body;
    };
    std::string addDocument(const std::string& kind, const Json& body);
    std::optional<Document> document(const std::string& name);

private:
    Database& database_;
    int stateSeconds_;
};

} // namespace kavor::demo

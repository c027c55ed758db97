#include "server/History.h"

#include "catalogue/Activations.h"
#include "catalogue/Dice.h"
#include "catalogue/Posters.h"
#include "server/SampleOrder.h"
#include "server/SheetHistory.h"
#include "server/Time.h"

#include <algorithm>
#include <array>
#include <span>

namespace kavor::demo {

namespace {

using enum BrochureKind;
using State = OrderState;

/// An earlier order: what it was and what makes it special.
struct Past {
    BrochureKind kind = beer;
    int daysAgo = 1;
    State state = State::delivered;
    int textile = 0; ///< 8 or 21: clothing, and no menu
    const char* note = "";
    std::optional<bool> pending = {};
    bool code = true, pointOfSale = true, link = true;
    const char* name = nullptr; ///< of a bar without a code, which is also the name of its file
    bool stock = true;          ///< what it holds is still in the catalogue
    bool style = true;          ///< so is its style
};

constexpr int lastYear = 366;

/// The most telling ones come first, for those who ask for a few.
constexpr std::array chosen = {
    Past{.daysAgo = 1, .state = State::cloud},
    Past{.kind = beer, .daysAgo = 2, .state = State::withoutConfirm},
    Past{.kind = beverage, .daysAgo = 4, .state = State::incidence, .note = "Falta confirmar la dirección."},
    Past{.kind = wineA4, .daysAgo = 9, .state = State::sent},
    Past{.kind = menu, .daysAgo = 6, .state = State::inProcess},
    Past{.kind = chalkboard,
         .daysAgo = 33,
         .state = State::canceled,
         .note = "Cancelado a petición del local."},
    Past{.daysAgo = 3, .state = State::cloud, .code = false, .name = "Bar. La Nube"},
    Past{.daysAgo = 2, .state = State::cloud, .textile = 8},
    Past{.daysAgo = 11, .state = State::delivered},
    Past{.kind = beverage, .daysAgo = 5, .state = State::cloud, .style = false},
    Past{.daysAgo = 14, .state = State::sent, .stock = false},
    Past{.kind = flyer, .daysAgo = 3, .state = State::confirmed},
    Past{.kind = digital, .daysAgo = 8, .state = State::cloud},
    Past{.kind = wineOrder,
         .daysAgo = 12,
         .state = State::tradeAuthorization,
         .note = "Pendiente del visto bueno de la delegación comercial."},
    Past{.kind = video,
         .daysAgo = 10,
         .state = State::confirmSupport,
         .note = "Soporte ha revisado los textos: falta que los confirmes.",
         .pending = true},
    Past{.kind = mantel, .daysAgo = 16, .state = State::delivered},
    Past{.kind = encarte, .daysAgo = 18, .state = State::inProcess},
    Past{.kind = pennant, .daysAgo = 21, .state = State::cloud},
    Past{.kind = pennant, .daysAgo = 25, .state = State::sent},
    Past{.daysAgo = 5, .state = State::confirmed, .code = false, .name = "Chiringuito Las Dunas Quietas"},
    Past{.kind = menu, .daysAgo = 13, .state = State::sent, .pointOfSale = false},
    Past{.kind = wineA4, .daysAgo = 17, .state = State::deleted, .note = "Pedido duplicado.", .link = false},
    Past{.daysAgo = 7, .state = State::sent, .textile = 8},
    Past{
        .daysAgo = 19, .state = State::incidence, .textile = 21, .note = "Falta la talla de dos delantales."},
    Past{.daysAgo = 4, .state = State::cloud, .textile = 21},
    Past{.daysAgo = 22,
         .state = State::incidence,
         .note =
             "La imprenta avisa: el logotipo del local llega con poca resolución y en la portada se vería "
             "borroso. Envíanos otro de al menos 1.000 píxeles de ancho o dinos si lo imprimimos sin él.",
         .code = false,
         .name = "Merendero El Vado"},
    Past{.kind = wineOrder, .daysAgo = 24, .state = State::sent},
    Past{.kind = beverage, .daysAgo = 27, .state = State::withoutConfirm, .link = false},
    Past{.daysAgo = 29,
         .state = State::incidence,
         .note = "Resuelta: se repuso el material.",
         .pending = false},
    Past{.kind = chalkboard, .daysAgo = 31, .state = State::delivered},
    Past{.kind = flyer, .daysAgo = 31, .state = State::confirmSupport, .code = false, .pointOfSale = false},
    Past{.daysAgo = 41, .state = State::delivered, .stock = false},
    Past{.kind = mantel, .daysAgo = 47, .state = State::tradeAuthorization},
    Past{.kind = wineA4, .daysAgo = 15, .state = State::cloud, .stock = false},
    Past{.kind = menu, .daysAgo = lastYear, .state = State::delivered},
    Past{.daysAgo = lastYear + 9, .state = State::delivered},
    Past{.kind = wineA4, .daysAgo = lastYear + 23, .state = State::delivered, .link = false},
    Past{.daysAgo = lastYear + 31, .state = State::canceled, .code = false, .name = "Taberna Sin Rótulo"},
    Past{.daysAgo = lastYear + 40, .state = State::delivered, .textile = 8},
    Past{.kind = beverage, .daysAgo = lastYear + 58, .state = State::sent},
};

/// One more, of nothing special but its number; they reach three years back.
Past madeUp(int number) {
    constexpr std::array kinds = {beer, beverage, menu, wineA4, beer, flyer, chalkboard, wineOrder, mantel};
    constexpr std::array states = {State::delivered, State::delivered, State::sent,
                                   State::delivered, State::inProcess, State::withoutConfirm,
                                   State::confirmed, State::canceled};
    Dice dice{std::uint64_t(number) + 31};
    Past past;
    past.kind = kinds[size_t(dice.below(int(kinds.size())))];
    past.daysAgo = 6 + dice.below(3 * lastYear);
    past.state = past.daysAgo > 60 ? State::delivered : states[size_t(dice.below(int(states.size())))];
    past.code = dice.below(12) != 0;
    return past;
}

Bar barOfPast(const Past& past, int number) {
    Bar bar = bars()[size_t(number) * 5 % bars().size()];
    if (past.name) {
        bar.name = past.name;
    }
    if (!past.code) {
        bar.code.clear();
    }
    return bar;
}

/// A brand, and a format of a brand, that no catalogue holds.
void addWhatIsGone(Json& menu) {
    Json& known = menu["items"].front();
    Json format = known["sub_items"].front();
    format["product"] = known["brand"].get<int>() * 10 + 9;
    known["sub_items"].push_back(format);
    Json brand = known;
    brand["brand"] = retiredBrandId;
    brand["name"] = retiredBrandName;
    format["product"] = retiredBrandId * 10 + 1;
    brand["sub_items"] = Json::array({format});
    menu["items"].push_back(std::move(brand));
}

Json bodyOfPast(const Past& past, const Bar& bar, const Catalogue& catalogue, int number) {
    if (past.textile > 0) {
        return sampleTextileOrder(catalogue, bar, past.textile, number);
    }
    Json body = sampleOrder(catalogue, bar, past.kind, number);
    Json& content = body["menu"];
    if (bar.code.empty()) {
        content["customer"].erase("cod_tevo");
        content["customer"].erase("id");
    }
    if (!past.stock) {
        addWhatIsGone(content);
    }
    if (!past.style) {
        content["style"] = 4711;
    }
    return body;
}

/// Spread over the hours in which bars are visited; two of the chosen ones share a moment.
std::int64_t momentOf(const Past& past, int number) {
    constexpr std::int64_t minute = 60, hour = 60 * minute, day = 24 * hour;
    const int slot = number == 30 ? 29 : number;
    return startOfDay(now() - past.daysAgo * day) + 10 * hour + slot * 53 % 600 * minute + slot % 60;
}

Order orderOfPast(const Past& past, const Catalogue& catalogue, int number) {
    const Bar bar = barOfPast(past, number);
    Order order;
    order.kind = past.textile > 0 ? "textile" : "brochure";
    order.type = past.textile > 0 ? past.textile : int(past.kind);
    order.created = momentOf(past, number);
    order.filename = bar.name;
    order.tevo = bar.code;
    order.pdv = past.pointOfSale ? bar.name : "";
    order.note = past.note;
    order.pending = past.pending;
    order.linked = past.link;
    order.seeded = true;
    order.body = bodyOfPast(past, bar, catalogue, number);
    order.cloud = past.state == State::cloud;
    if (order.cloud) {
        order.body["save"] = 3;
    } else {
        order.fixedState = past.state;
    }
    return order;
}

/// A party of earlier days, or of days to come.
Order party(int activationId, int daysAhead, const Bar& bar, const char* from, const char* to) {
    const Activation& activation = *activationOf(activationId);
    Json items = Json::array();
    for (const ActivationElement& element : elementsOf(activation)) {
        items.push_back({{"id", element.id}});
    }
    Json attributes = Json::array();
    for (const ActivationQuestion& question : questionsOf(activation)) {
        attributes.push_back({{"id", question.id},
                              {"value", question.typeId == 3 ? "2.50"
                                        : question.regex     ? "120"
                                                             : bar.contact}});
    }
    constexpr std::int64_t day = 86400; // seconds
    Order order;
    order.kind = "activation";
    order.type = 9;
    order.pdv = bar.name;
    order.seeded = true;
    order.created = startOfDay(now() - 40 * day) + day / 2;
    order.body = {{"customer",
                   {{"name", bar.name},
                    {"contact", bar.contact},
                    {"telephone", bar.telephone},
                    {"email", bar.email},
                    {"full_address", "Calle Mayor 12, " + bar.town},
                    {"placePostalCode", bar.postalCode},
                    {"placeLocality", bar.town}}},
                  {"activation",
                   {{"activation_id", activationId},
                    {"date_event", wireDate(now() + daysAhead * day).substr(0, 10)},
                    {"time_from", from},
                    {"time_to", to},
                    {"comment", "El equipo de sonido se monta una hora antes."},
                    {"items", std::move(items)},
                    {"attributes", std::move(attributes)}}}};
    return order;
}

/// One that is over, and two on one day that are tied.
void addParties(Orders& orders, std::int64_t account) {
    Order done = party(1, -12, bars()[3], "20:00", "23:30");
    done.fixedState = State::delivered;
    Order first = party(4, 34, bars()[8], "18:00", "20:00");
    Order second = party(7, 34, bars()[8], "22:00", "23:45");
    for (Order* order : {&done, &first}) {
        order->account = account;
        orders.add(*order);
    }
    second.account = account;
    second.body["activation"]["activation_relation_id"] = first.id;
    orders.add(second);
}

} // namespace

void addHistory(Orders& orders, const Catalogue& catalogue, std::int64_t account, int number) {
    std::vector<Order> made;
    for (int i = orders.seeds(account); i < number; ++i) {
        made.push_back(orderOfPast(i < int(chosen.size()) ? chosen[size_t(i)] : madeUp(i), catalogue, i));
        made.back().account = account;
    }
    if (made.empty()) {
        return;
    }
    std::vector<Order> sheets;
    if (orders.seeds(account) == 0) {
        sheets = pastSheets(catalogue, account);
    }
    std::ranges::sort(made, {}, &Order::created); // an earlier order has the smaller number
    orders.database().together([&] {
        if (orders.seeds(account) == 0) {
            addParties(orders, account);
        }
        for (Order& order : made) {
            orders.add(order);
        }
        for (Order& sheet : sheets) {
            orders.add(sheet);
        }
        orders.setSeeds(account, number);
    });
}

} // namespace kavor::demo

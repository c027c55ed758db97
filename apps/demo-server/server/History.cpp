#include "server/History.h"

#include "catalogue/Dice.h"
#include "server/Time.h"

#include <algorithm>

namespace kavor::demo {

namespace {

Json soldFormat(const Format& format, bool secondPrice, Dice& dice) {
    const double price = format.price.value_or(format.minimalPrice * 2);
    Json prices = Json::array();
    prices.push_back({{"price_type", 1}, {"price", price}});
    if (secondPrice) {
        prices.push_back({{"price_type", 2}, {"price", price + 0.4}});
    }
    Json sold = {{"product", format.id}, {"product_type", format.typeId}, {"is_new", dice.below(4) == 0}};
    if (format.volumeEditable && format.minimumVolume) {
        sold["quantity"] = *format.minimumVolume + 5;
    }
    sold["sub_item_prices"] = std::move(prices);
    return sold;
}

Json soldBrand(const Brand& brand, bool secondPrice, Dice& dice) {
    Json item = {{"brand", brand.id}};
    const auto add = [&item](const char* key, const std::optional<int>& value) {
        if (value) {
            item[key] = *value;
        }
    };
    add("brand_segment", brand.segmentId);
    add("brand_typology", brand.typologyId);
    add("brand_taste", brand.tasteId);
    add("brand_sub_typology", brand.subTypologyId);
    add("brand_age", brand.ageId);
    item["name"] = brand.name;
    item["sub_items"] = Json::array();
    for (const Format& format : brand.formats) {
        if (format.onBrochures && item["sub_items"].size() < 3) {
            item["sub_items"].push_back(soldFormat(format, secondPrice, dice));
        }
    }
    return item;
}

Json customerOf(const Bar& bar) {
    Json customer = customerRecord(bar, std::nullopt);
    for (auto entry = customer.begin(); entry != customer.end();) {
        entry = entry->is_null() ? customer.erase(entry) : std::next(entry);
    }
    return customer;
}

const Style* styleOf(const Catalogue& catalogue, BrochureKind kind, int seed) {
    std::vector<const Style*> offered;
    for (const Style& style : catalogue.styles()) {
        if (style.kind == kind) {
            offered.push_back(&style);
        }
    }
    return offered.empty() ? nullptr : offered[size_t(seed) % offered.size()];
}

void addSpecials(Json& menu, const Catalogue& catalogue, BrochureKind kind) {
    if (kind == BrochureKind::beer) {
        for (const Json& item : menu["items"]) {
            for (const Json& sold : item["sub_items"]) {
                const Format* format = catalogue.format(sold["product"].get<int>());
                if (format->highlightable && !menu.contains("product_featured_id")) {
                    menu["product_featured_id"] = format->id;
                }
                if (format->onPennant && menu["product_pennant"].size() < 5) {
                    menu["product_pennant"].push_back(
                        {{"product_id", format->id}, {"position", int(menu["product_pennant"].size()) + 1}});
                }
            }
        }
    }
    if (kind == BrochureKind::beverage || kind == BrochureKind::menu) {
        menu["other_drinks"].push_back(
            {{"category_id", 3},
             {"category_position", 1},
             {"description", "De la cocina a la barra"},
             {"other_products",
              {{{"product_format_id", 301},
                {"product_format_position", 1},
                {"description", ""},
                {"sub_item_prices", {{{"price_type", 1}, {"price", 5.5}, {"format_name", "Ración"}}}}}}}});
    }
}

} // namespace

Json sampleOrder(const Catalogue& catalogue, const Bar& bar, BrochureKind kind, int seed) {
    Dice dice{std::uint64_t(seed) + 99};
    const Style* style = styleOf(catalogue, kind, seed);
    const bool secondPrice = seed % 2 == 0;
    Json menu = {{"order_type", int(kind)}};
    menu["style"] = style ? style->id : 0;
    menu["style_digital_id"] = 1001;
    menu["style_pennant_id"] = 1011;
    menu["language1_id"] = 1;
    if (seed % 3 == 0) {
        menu["language2_id"] = 3;
    }
    menu["customer"] = customerOf(bar);
    if (style && style->logos.size() >= 3) {
        menu["bottles"] = Json::array();
        for (int i = 0; i < 3; ++i) {
            menu["bottles"].push_back({{"id", style->logos[size_t(i)]}, {"position", i + 1}});
        }
    }
    menu["items"] = Json::array();
    const size_t wanted = 4 + size_t(dice.below(5));
    for (const Brand& brand : catalogue.brands()) {
        if (brand.family == familyOfKind(int(kind)) && menu["items"].size() < wanted && dice.below(3) != 0) {
            menu["items"].push_back(soldBrand(brand, secondPrice, dice));
        }
    }
    menu["product_pennant"] = Json::array();
    menu["other_drinks"] = Json::array();
    menu["promotions"] = Json::array();
    addSpecials(menu, catalogue, kind);
    menu["brand_qr_id"] = 700 + 2;
    menu["quantity_qr"] = 20;
    menu["show_qr_other_menu"] = false;
    menu["without_price_beer"] = false;
    menu["without_price_pennant"] = false;

    Json lines = Json::array();
    lines.push_back({{"price", 1}, {"quantity", 50}});
    if (secondPrice) {
        lines.push_back({{"price", 2}, {"quantity", 20}});
    }
    Json order = {{"save", 1}, {"order_lines", std::move(lines)}, {"menu", std::move(menu)}};
    order["name_archive_tablet"] = bar.name;
    for (const char* flag : {"with_digital_menu", "with_digital_menu_print", "with_default_menu",
                             "with_pennant", "includeDigitalBrochureTmp", "printDigitalBrochureTmp",
                             "includePaperBrochureTmp", "withPennantTmp"}) {
        order[flag] = true;
    }
    order["printed_myself"] = false;
    return order;
}

void addHistory(Orders& orders, const Catalogue& catalogue, std::int64_t account) {
    for (const Order& order : orders.list(account, "brochure")) {
        if (order.seeded) {
            return;
        }
    }
    struct Past {
        BrochureKind kind;
        int daysAgo;
        OrderState state;
        const char* note;
    };
    int seed = 0;
    for (const Past& past :
         {Past{BrochureKind::beer, 41, OrderState::delivered, ""},
          Past{BrochureKind::chalkboard, 33, OrderState::canceled, "Cancelado a petición del local."},
          Past{BrochureKind::wineA4, 20, OrderState::sent, ""},
          Past{BrochureKind::beverage, 12, OrderState::incidence, "Falta confirmar la dirección."},
          Past{BrochureKind::menu, 6, OrderState::inProcess, ""},
          Past{BrochureKind::beer, 2, OrderState::cloud, ""}}) {
        const Bar& bar = bars()[size_t(seed) * 5];
        Order order;
        order.account = account;
        order.kind = "brochure";
        order.type = int(past.kind);
        order.body = sampleOrder(catalogue, bar, past.kind, seed);
        order.created = now() - std::int64_t(past.daysAgo) * 24 * 3600;
        order.filename = bar.name;
        order.tevo = bar.code;
        order.pdv = bar.name;
        order.note = past.note;
        order.seeded = true;
        order.cloud = past.state == OrderState::cloud;
        if (order.cloud) {
            order.body["save"] = 3;
        } else {
            order.fixedState = past.state;
        }
        orders.add(order);
        ++seed;
    }
}

} // namespace kavor::demo

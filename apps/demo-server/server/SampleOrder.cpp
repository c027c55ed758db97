#include "server/SampleOrder.h"

#include "catalogue/BrochureTypes.h"
#include "catalogue/Content.h"
#include "catalogue/Dice.h"

#include <algorithm>
#include <array>

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

Json soldBrand(const Brand& brand, const KindLimits& limits, bool secondPrice, Dice& dice) {
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
        if (format.onBrochures && item["sub_items"].size() < size_t(limits.formats)) {
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
    if (kind == BrochureKind::beer || kind == BrochureKind::pennant) {
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
    if (kind == BrochureKind::chalkboard) {
        const Style* style = catalogue.style(menu["style"].get<int>());
        const bool landscape = style && style->chalkboardFormatType == 2;
        menu["blackboard_format_id"] = landscape ? 3 : 1;
        menu["blackboard_type_id"] = 1;
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

void addQr(Json& menu, const Catalogue& catalogue, BrochureKind kind, int seed) {
    std::vector<const Brand*> offered;
    for (const Brand* brand : qrBrands(catalogue.brands())) {
        if (brand->family == familyOfKind(int(kind))) {
            offered.push_back(brand);
        }
    }
    if (offered.empty()) {
        return;
    }
    menu["brand_qr_id"] = qrIdOf(offered[size_t(seed) % offered.size()]->id);
    if (offersQrBlocks(kind) && seed % 3 == 1) {
        menu["quantity_qr"] = 0;
        menu["quantity_qr_taco"] = qrBlockQuantities[size_t(seed) % qrBlockQuantities.size()];
    } else {
        menu["quantity_qr"] = qrTableQuantities[size_t(seed) % qrTableQuantities.size()];
        menu["quantity_qr_circular"] = seed % 2 == 0 ? 0 : qrDoorQuantities.front();
    }
}

} // namespace

Json sampleOrder(const Catalogue& catalogue, const Bar& bar, BrochureKind kind, int seed) {
    Dice dice{std::uint64_t(seed) + 99};
    const Style* style = styleOf(catalogue, kind, seed);
    const KindLimits limits = limitsOf(kind);
    const bool secondPrice = limits.secondPrice && seed % 2 == 0;
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
    // A chalkboard has places for a fixed number of brands, and every format of it one for four.
    const auto wanted =
        size_t(kind == BrochureKind::chalkboard ? 4 : std::min(limits.brands, 4 + dice.below(5)));
    for (const Brand& brand : catalogue.brands()) {
        if (menu["items"].size() == wanted) {
            break;
        }
        if (brand.family == familyOfKind(int(kind)) && dice.below(3) != 0) {
            menu["items"].push_back(soldBrand(brand, limits, secondPrice, dice));
        }
    }
    menu["product_pennant"] = Json::array();
    menu["other_drinks"] = Json::array();
    menu["promotions"] = Json::array();
    addSpecials(menu, catalogue, kind);
    addQr(menu, catalogue, kind, seed);
    menu["show_qr_other_menu"] = false;
    menu["without_price_beer"] = false;
    menu["without_price_pennant"] = false;

    Json lines = Json::array();
    const auto quantity = [&limits](int usual) {
        return std::clamp(usual, limits.leastQuantity, limits.greatestQuantity);
    };
    lines.push_back({{"price", 1}, {"quantity", quantity(50)}});
    if (secondPrice) {
        lines.push_back({{"price", 2}, {"quantity", quantity(20)}});
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

Json sampleTextileOrder(const Catalogue& catalogue, const Bar& bar, int applicationType, int seed) {
    constexpr std::array messages = {"Equipo de barra", "Cocina abierta", "Peña El Tonel",
                                     "Fiestas del barrio"};
    Json order = {{"message", messages[size_t(seed) % messages.size()]},
                  {"application_type_id", applicationType}};
    const Json& fonts = catalogue.textile()["textil_typography"];
    if (!fonts.empty()) {
        order["typography_id"] = fonts[size_t(seed) % fonts.size()]["id"];
    }
    if (seed % 2 == 0) {
        order["orderComment"] = "Entregar por la mañana, antes de abrir.";
    }
    order["lines"] = Json::array();
    for (const Json& item : catalogue.textile()["textil"]) {
        if (item["application_type_id"] == applicationType && order["lines"].size() < 4) {
            order["lines"].push_back({{"textil_id", item["id"]}, {"quantity", 4 + seed % 3}});
        }
    }
    Json customer = {{"id", bar.id},
                     {"name", bar.name},
                     {"contact", bar.contact},
                     {"email", bar.email},
                     {"telephone", bar.telephone},
                     {"tevo", bar.code},
                     {"placePostalCode", bar.postalCode},
                     {"placeLocality", bar.town},
                     {"placeLocalityId", bar.townId},
                     {"placeProvinceId", bar.provinceId},
                     {"placeProvinceName", bar.province}};
    return {{"save", 1},
            {"order", std::move(order)},
            {"customer", std::move(customer)},
            {"name_archive_tablet", bar.name}};
}

} // namespace kavor::demo

#include "server/OrderRecords.h"

#include "server/Time.h"

namespace kavor::demo {

namespace {

/// Copies members under other names where they are present.
void copy(const Json& from, Json& to, std::initializer_list<std::pair<const char*, const char*>> names) {
    for (const auto& [source, target] : names) {
        if (const auto found = from.find(source); found != from.end()) {
            to[target] = *found;
        }
    }
}

Json textOrNull(const std::string& text) {
    return text.empty() ? Json(nullptr) : Json(text);
}

std::string filenameOf(const Order& order) {
    return order.filename.empty() ? "Pedido " + std::to_string(order.id) : order.filename;
}

/// A format of a brand that the user added by hand: the catalogue knows nothing of it.
Json unknownFormat(const Json& sold) {
    return {{"id", sold["product"]},
            {"product_type", sold["product_type"]},
            {"factor_correction", 1.0},
            {"icon", ""},
            {"position", 1},
            {"show_order_sheet", false},
            {"show_order", true},
            {"is_highlightable", false},
            {"show_in_pennant", false},
            {"position_highlightable", 0},
            {"is_bottle", false},
            {"price_minimal", 0.0},
            {"price_maximum_avise", 1000.0},
            {"quantity_can_edit", false}};
}

Json retrievedFormat(const Json& sold, const Json* product) {
    Json format;
    if (product) {
        for (const Json& known : (*product)["productlist"]) {
            if (known["id"] == sold["product"]) {
                format = known;
                format["product_type"] = known["type_id"];
                format.erase("type_id");
            }
        }
    }
    if (format.is_null()) {
        format = unknownFormat(sold);
    }
    copy(sold, format, {{"quantity", "quantity"}});
    Json prices = Json::array();
    for (const Json& price : sold["sub_item_prices"]) {
        prices.push_back({{"id", price["price_type"]}, {"price", price["price"]}});
    }
    format["prices"] = std::move(prices);
    return format;
}

Json unknownBrand(const Json& item, int family) {
    Json brand = {{"id", item["brand"]},
                  {"application_father_id", family},
                  {"name", item.value("name", "")},
                  {"name_sanitice", sanitised(item.value("name", ""))},
                  {"position", 999},
                  {"with_logo", false},
                  {"is_main", false},
                  {"is_secondary", true},
                  {"use_color_typology", false}};
    Json category = {{"property_id", 4}};
    copy(item, category,
         {{"brand_segment", "segment_id"},
          {"brand_typology", "typology_id"},
          {"brand_taste", "taste_id"},
          {"brand_sub_typology", "sub_typology_id"},
          {"brand_age", "age_id"}});
    brand["category"] = std::move(category);
    return brand;
}

Json retrievedBrand(const Json& item, int family, const Catalogue& catalogue) {
    const std::optional<Json> product = catalogue.product(item["brand"].get<int>());
    Json brand = product ? *product : unknownBrand(item, family);
    brand.erase("productlist");
    copy(item, brand, {{"description", "description"}});
    Json formats = Json::array();
    for (const Json& sold : item["sub_items"]) {
        formats.push_back(retrievedFormat(sold, product ? &*product : nullptr));
    }
    brand["products"] = std::move(formats);
    return brand;
}

Json retrievedDrinks(const Json& menu) {
    Json drinks = Json::array();
    for (const Json& category : menu.value("other_drinks", Json::array())) {
        Json products = Json::array();
        for (const Json& element : category["other_products"]) {
            Json prices = Json::array();
            for (const Json& price : element["sub_item_prices"]) {
                prices.push_back({{"id", price["price_type"]},
                                  {"price", price.value("price", 0.0)},
                                  {"format_name", price["format_name"]}});
            }
            Json product = {{"id", element["product_format_id"]},
                            {"position", element["product_format_position"]}};
            copy(element, product, {{"product_format_name", "name"}, {"description", "description"}});
            product["prices"] = std::move(prices);
            products.push_back(std::move(product));
        }
        Json drink = {{"position", category["category_position"]}};
        copy(category, drink,
             {{"category_id", "id"}, {"category_name", "name"}, {"description", "description"}});
        drink["otherProducts"] = std::move(products);
        drinks.push_back(std::move(drink));
    }
    return drinks;
}

Json retrievedMenu(const Order& order, const Catalogue& catalogue) {
    const Json& menu = order.body["menu"];
    Json beer = {{"id", order.id * 10}, {"typeId", order.type}};
    copy(menu, beer,
         {{"style", "styleId"},
          {"style_digital_id", "styleDigitalId"},
          {"style_pennant_id", "stylePennantId"},
          {"comandero_id", "orderSheetId"},
          {"pennant_brand_id", "pennant_brand_id"}});
    beer["menuStyleLogos"] = menu.value("bottles", Json::array());
    beer["showQr"] = menu.contains("brand_qr_id");
    beer["language1Id"] = menu["language1_id"];
    copy(menu, beer,
         {{"language2_id", "language2Id"},
          {"product_featured_id", "productFeaturedId"},
          {"blackboard_format_id", "blackboard_format_id"},
          {"blackboard_type_id", "blackboard_type_id"}});
    Json brands = Json::array();
    for (const Json& item : menu["items"]) {
        brands.push_back(retrievedBrand(item, int(familyOfKind(order.type)), catalogue));
    }
    beer["brands"] = std::move(brands);
    beer["promotions"] = menu.value("promotions", Json::array());
    beer["product_pennant"] = menu.value("product_pennant", Json::array());
    copy(menu, beer,
         {{"format_visualize_id", "format_visualize_id"},
          {"wine_format_visualize_id", "wine_format_visualize_id"},
          {"brand_qr_id", "brand_qr_id"},
          {"quantity_qr", "quantity_qr"},
          {"quantity_qr_circular", "quantity_qr_circular"},
          {"quantity_qr_taco", "quantity_qr_taco"}});
    for (const char* flag : {"show_qr_other_menu", "without_price_beer", "without_price_pennant"}) {
        beer[flag] = menu.value(flag, false);
    }
    copy(menu, beer, {{"menu_style_attributes", "menu_style_attributes"}});
    return beer;
}

} // namespace

std::string orderPage(const Order& order, const std::string& baseUrl) {
    return baseUrl + "/pedido/" + order.token;
}
std::string orderPdf(const Order& order, const std::string& baseUrl) {
    return baseUrl + "/pdf/" + order.token + ".pdf";
}

namespace {

Json listedPage(const Order& order, const std::string& baseUrl) {
    return order.cloud || !order.linked ? Json(nullptr) : Json(orderPage(order, baseUrl));
}

} // namespace

bool canDemandQr(const Order& order, const Orders& orders) {
    const OrderState state = orders.stateOf(order);
    return !order.qrAsked && order.kind == "brochure" && order.qrBrand &&
           (state == OrderState::sent || state == OrderState::delivered);
}

Json brochureListEntry(const Order& order, const Orders& orders, const std::string& baseUrl) {
    const OrderState state = orders.stateOf(order);
    Json entry = {
        {"id", order.id}, {"fecha", wireDate(order.created)}, {"can_demand_qr", canDemandQr(order, orders)}};
    if (order.qrBrand) {
        entry["brand_qr_id"] = *order.qrBrand;
        entry["brand_qr_type"] = order.qrBlocks ? 2 : 1;
    }
    entry["tipo"] = kindName(order.type);
    entry["tipoId"] = order.type;
    entry["tevo"] = textOrNull(order.tevo);
    entry["pdv"] = textOrNull(order.pdv);
    entry["estado"] = stateName(state);
    entry["estadoId"] = int(state);
    entry["nota"] = textOrNull(orders.noteOf(order));
    entry["url"] = listedPage(order, baseUrl);
    entry["pendiente"] = orders.isPending(order);
    entry["name_archive_tablet"] = filenameOf(order);
    entry["token"] = order.token;
    return entry;
}

Json textileListEntry(const Order& order, const Orders& orders, const std::string& baseUrl) {
    const OrderState state = orders.stateOf(order);
    return {{"id", order.id},
            {"application_type_id", order.type},
            {"fecha", wireDate(order.created)},
            {"token", order.token},
            {"pdv", textOrNull(order.pdv)},
            {"tevo", textOrNull(order.tevo)},
            {"estado", stateName(state)},
            {"estadoId", int(state)},
            {"nota", textOrNull(orders.noteOf(order))},
            {"url", listedPage(order, baseUrl)},
            {"pendiente", orders.isPending(order)},
            {"name_archive_tablet", filenameOf(order)},
            {"typography_id", order.typography}};
}

Json retrievedBrochure(const Order& order, const Orders& orders, const Catalogue& catalogue) {
    const OrderState state = orders.stateOf(order);
    Json lines = Json::array();
    for (const Json& line : order.body["order_lines"]) {
        lines.push_back({{"priceId", line["price"]}, {"quantity", line["quantity"]}});
    }
    Json record = {{"id", order.id},
                   {"token", order.token},
                   {"fecha", wireDate(order.created)},
                   {"tipo", kindName(order.type)},
                   {"tipoId", order.type},
                   {"pdv", textOrNull(order.pdv)},
                   {"estado", stateName(state)},
                   {"estadoId", int(state)},
                   {"orderLines", std::move(lines)},
                   {"beer", retrievedMenu(order, catalogue)},
                   {"drinks", retrievedDrinks(order.body["menu"])},
                   {"name_archive_tablet", filenameOf(order)}};
    for (const char* flag : {"with_digital_menu", "with_digital_menu_print", "with_default_menu",
                             "with_pennant", "printed_myself"}) {
        record[flag] = order.body.value(flag, false);
    }
    return {{"code", 200},
            {"msg", "OK"},
            {"customer", order.body["menu"]["customer"]},
            {"order", std::move(record)}};
}

Json retrievedTextile(const Order& order, const Orders& orders, const std::string& baseUrl) {
    const OrderState state = orders.stateOf(order);
    const Json& sent = order.body["order"];
    Json record = {{"id", order.id},
                   {"application_type_id", order.type},
                   {"token", order.token},
                   {"fecha", wireDate(order.created)},
                   {"pdv", textOrNull(order.pdv)},
                   {"estadoId", int(state)},
                   {"estado", stateName(state)},
                   {"url", orderPage(order, baseUrl)},
                   {"pendiente", orders.isPending(order)},
                   {"name_archive_tablet", filenameOf(order)}};
    copy(sent, record,
         {{"orderComment", "nota"},
          {"typography_id", "typography_id"},
          {"message", "message"},
          {"lines", "lines"}});
    Json answer = {{"code", 200}, {"msg", "OK"}};
    copy(order.body, answer, {{"customer", "customer"}});
    answer["order"] = std::move(record);
    return answer;
}

Json sellingSheetEntry(const Order& order, const std::string& baseUrl) {
    Json entry = order.body;
    entry.erase("save");
    entry["id"] = order.id;
    entry["token"] = order.token;
    entry["created_at"] = wireDate(order.created);
    entry.erase("url_pdf");
    if (order.linked) {
        entry["url_pdf"] = orderPdf(order, baseUrl);
    }
    return entry;
}

} // namespace kavor::demo

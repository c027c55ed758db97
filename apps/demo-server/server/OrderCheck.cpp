#include "server/OrderCheck.h"

#include "catalogue/BrochureTypes.h"
#include "catalogue/Content.h"

#include <QString>
#include <QTextBoundaryFinder>

#include <algorithm>
#include <functional>
#include <set>
#include <span>

namespace kavor::demo {

namespace {

enum class Is { integer, number, boolean, text, object, list, priceType, request };

struct Member {
    const char* key;
    Is type;
    bool always;
    const std::vector<Member>* inner = nullptr; ///< of an object, or of the objects in a list
};
using Form = std::vector<Member>;

const Form itemPrice = {{"price_type", Is::priceType, true}, {"price", Is::number, true}};
const Form drinkPrice = {
    {"price_type", Is::priceType, true}, {"price", Is::number, false}, {"format_name", Is::text, true}};
const Form beer = {{"product", Is::integer, true},
                   {"product_type", Is::integer, true},
                   {"is_new", Is::boolean, true},
                   {"quantity", Is::integer, false},
                   {"sub_item_prices", Is::list, true, &itemPrice}};
const Form brand = {{"brand", Is::integer, true},
                    {"brand_segment", Is::integer, false},
                    {"brand_typology", Is::integer, false},
                    {"brand_taste", Is::integer, false},
                    {"brand_sub_typology", Is::integer, false},
                    {"brand_age", Is::integer, false},
                    {"name", Is::text, false},
                    {"description", Is::text, false},
                    {"sub_items", Is::list, true, &beer}};
const Form drink = {{"product_format_id", Is::integer, true},
                    {"product_format_name", Is::text, false},
                    {"product_format_position", Is::integer, true},
                    {"description", Is::text, false},
                    {"sub_item_prices", Is::list, true, &drinkPrice}};
const Form drinkCategory = {{"category_id", Is::integer, false},
                            {"category_name", Is::text, false},
                            {"category_position", Is::integer, true},
                            {"description", Is::text, false},
                            {"other_products", Is::list, true, &drink}};
const Form logo = {{"id", Is::integer, true}, {"position", Is::integer, true}};
const Form pennantProduct = {{"product_id", Is::integer, true}, {"position", Is::integer, true}};
const Form styleAttribute = {{"attribute_id", Is::integer, true},
                             {"menu_style_id", Is::integer, true},
                             {"value", Is::text, false},
                             {"value_list_id", Is::integer, false}};
const Form promotionAttribute = {
    {"id", Is::integer, true}, {"value", Is::text, true}, {"value_list_id", Is::integer, false}};
const Form menuPromotion = {{"id", Is::integer, false},
                            {"promotion_id", Is::integer, true},
                            {"promotion_name", Is::text, true},
                            {"brand_name", Is::text, true},
                            {"attributes", Is::list, true, &promotionAttribute}};
const Form customer = {{"id", Is::integer, false},
                       {"name", Is::text, true},
                       {"email", Is::text, false},
                       {"telephone", Is::text, false},
                       {"contact", Is::text, false},
                       {"local_phone", Is::text, false},
                       {"url", Is::text, false},
                       {"facebook", Is::text, false},
                       {"twitter", Is::text, false},
                       {"instagram", Is::text, false},
                       {"free_text_1", Is::text, false},
                       {"free_text_2", Is::text, false},
                       {"free_text_3", Is::text, false},
                       {"cod_tevo", Is::text, false},
                       {"placePostalCode", Is::text, false},
                       {"placeLocality", Is::text, false},
                       {"placeLocalityId", Is::integer, false},
                       {"placeProvinceId", Is::integer, false},
                       {"placeProvinceName", Is::text, false},
                       {"image_logo", Is::text, false},
                       {"comment_image_logo", Is::text, false},
                       {"brands", Is::list, false}};
const Form menu = {{"order_type", Is::integer, true},
                   {"style", Is::integer, false},
                   {"style_digital_id", Is::integer, false},
                   {"style_pennant_id", Is::integer, false},
                   {"comandero_id", Is::integer, false},
                   {"pennant_brand_id", Is::integer, false},
                   {"format_visualize_id", Is::integer, false},
                   {"wine_format_visualize_id", Is::integer, false},
                   {"product_featured_id", Is::integer, false},
                   {"blackboard_format_id", Is::integer, false},
                   {"blackboard_type_id", Is::integer, false},
                   {"language1_id", Is::integer, true},
                   {"language2_id", Is::integer, false},
                   {"customer", Is::object, true, &customer},
                   {"bottles", Is::list, false, &logo},
                   {"items", Is::list, true, &brand},
                   {"product_pennant", Is::list, false, &pennantProduct},
                   {"other_drinks", Is::list, false, &drinkCategory},
                   {"promotions", Is::list, false, &menuPromotion},
                   {"brand_qr_id", Is::integer, false},
                   {"quantity_qr", Is::integer, false},
                   {"quantity_qr_circular", Is::integer, false},
                   {"quantity_qr_taco", Is::integer, false},
                   {"show_qr_other_menu", Is::boolean, false},
                   {"without_price_beer", Is::boolean, false},
                   {"without_price_pennant", Is::boolean, false},
                   {"menu_style_attributes", Is::list, false, &styleAttribute}};
const Form orderLine = {{"price", Is::priceType, true}, {"quantity", Is::integer, true}};
const Form brochure = {{"order_copy", Is::integer, false},
                       {"save", Is::request, true},
                       {"order_lines", Is::list, true, &orderLine},
                       {"menu", Is::object, true, &menu},
                       {"name_archive_tablet", Is::text, false},
                       {"id", Is::integer, false},
                       {"with_digital_menu", Is::boolean, true},
                       {"with_digital_menu_print", Is::boolean, true},
                       {"with_default_menu", Is::boolean, true},
                       {"with_pennant", Is::boolean, true},
                       {"includeDigitalBrochureTmp", Is::boolean, true},
                       {"printDigitalBrochureTmp", Is::boolean, true},
                       {"includePaperBrochureTmp", Is::boolean, true},
                       {"withPennantTmp", Is::boolean, true},
                       {"printed_myself", Is::boolean, true}};

const Form textileLine = {{"textil_id", Is::integer, true}, {"quantity", Is::integer, true}};
const Form textileOrder = {{"message", Is::text, true},
                           {"application_type_id", Is::integer, true},
                           {"typography_id", Is::integer, false},
                           {"orderComment", Is::text, false},
                           {"lines", Is::list, true, &textileLine}};
const Form textileCustomer = {{"id", Is::integer, false},
                              {"name", Is::text, false},
                              {"contact", Is::text, false},
                              {"email", Is::text, false},
                              {"telephone", Is::text, false},
                              {"tevo", Is::text, false},
                              {"placePostalCode", Is::text, false},
                              {"placeLocality", Is::text, false},
                              {"placeLocalityId", Is::integer, false},
                              {"placeProvinceId", Is::integer, false},
                              {"placeProvinceName", Is::text, false}};
const Form textile = {{"save", Is::request, true},
                      {"order", Is::object, true, &textileOrder},
                      {"customer", Is::object, false, &textileCustomer},
                      {"name_archive_tablet", Is::text, false},
                      {"id", Is::integer, false}};

const Form email = {{"email", Is::text, true}};
const Form support = {{"id", Is::integer, true}, {"language_id", Is::integer, true}};
const Form value = {{"id", Is::integer, true}, {"value", Is::text, true}};
const Form promotionCustomer = {
    {"id", Is::integer, false}, {"cod_tevo", Is::text, false}, {"name", Is::text, false}};
const Form promotion = {{"save", Is::boolean, true},
                        {"promotion_id", Is::integer, true},
                        {"image_logo", Is::text, false},
                        {"emails", Is::list, true, &email},
                        {"supports", Is::list, true, &support},
                        {"attributes", Is::list, true, &value},
                        {"customer", Is::object, true, &promotionCustomer},
                        {"date_from", Is::text, false},
                        {"date_to", Is::text, false},
                        {"show_menu", Is::boolean, true},
                        {"show_promotion_day_1", Is::boolean, true},
                        {"show_promotion_day_2", Is::boolean, true},
                        {"show_promotion_day_3", Is::boolean, true},
                        {"show_promotion_day_4", Is::boolean, true},
                        {"show_promotion_day_5", Is::boolean, true},
                        {"show_promotion_day_6", Is::boolean, true},
                        {"show_promotion_day_7", Is::boolean, true},
                        {"comment", Is::text, false}};

const Form sheetModule = {{"id", Is::integer, true},
                          {"code_promotion", Is::text, false},
                          {"position", Is::integer, true},
                          {"product1_id", Is::integer, true},
                          {"product1_box", Is::integer, true},
                          {"product2_id", Is::integer, false},
                          {"product2_box", Is::integer, false},
                          {"price", Is::number, true}};
const Form sellingSheet = {{"id", Is::integer, true},
                           {"save", Is::boolean, false},
                           {"token", Is::text, true},
                           {"created_at", Is::text, true},
                           {"style_id", Is::integer, true},
                           {"name_order", Is::text, true},
                           {"title", Is::text, true},
                           {"sub_title", Is::text, false},
                           {"taxes_included", Is::boolean, true},
                           {"date_from", Is::text, true},
                           {"date_to", Is::text, true},
                           {"include_logo_nrv", Is::boolean, true},
                           {"distribution_logo", Is::text, false},
                           {"distribution_logo_url", Is::text, false},
                           {"free_text", Is::text, false},
                           {"show_one_module_per_page", Is::boolean, true},
                           {"url_pdf", Is::text, false},
                           {"email_to_send1", Is::text, false},
                           {"email_to_send2", Is::text, false},
                           {"email_to_send3", Is::text, false},
                           {"items", Is::list, true, &sheetModule}};

const Form activationItem = {{"id", Is::integer, true}};
const Form activationCustomer = {{"name", Is::text, true},
                                 {"cod_tevo", Is::integer, false},
                                 {"email", Is::text, false},
                                 {"telephone", Is::text, false},
                                 {"contact", Is::text, false},
                                 {"full_address", Is::text, true},
                                 {"placePostalCode", Is::text, false},
                                 {"placeLocality", Is::text, false}};
const Form activationEvent = {{"activation_id", Is::integer, true},
                              {"date_event", Is::text, true},
                              {"time_from", Is::text, true},
                              {"time_to", Is::text, true},
                              {"comment", Is::text, false},
                              {"favorite_steward", Is::text, false},
                              {"local_information", Is::text, false},
                              {"activation_relation_id", Is::integer, false},
                              {"items", Is::list, false, &activationItem},
                              {"attributes", Is::list, false, &value}};
const Form activation = {{"customer", Is::object, true, &activationCustomer},
                         {"activation", Is::object, true, &activationEvent}};

bool hasType(const Json& json, Is type) {
    switch (type) {
    case Is::integer:
        return json.is_number_integer();
    case Is::number:
        return json.is_number();
    case Is::boolean:
        return json.is_boolean();
    case Is::text:
        return json.is_string();
    case Is::object:
        return json.is_object();
    case Is::list:
        return json.is_array();
    case Is::priceType:
        return json.is_number_integer() && (json == 1 || json == 2 || json == 3 || json == 5);
    case Is::request:
        return json.is_number_integer() && json >= 1 && json <= 3;
    }
    return false;
}

void check(const Json& json, const Form& form, const std::string& path, Faults& faults) {
    if (!json.is_object()) {
        faults[path].push_back("El dato no tiene la forma esperada.");
        return;
    }
    std::set<std::string> seen;
    for (const Member& member : form) {
        const std::string here = path.empty() ? member.key : path + "." + member.key;
        seen.insert(member.key);
        const auto found = json.find(member.key);
        if (found == json.end()) {
            if (member.always) {
                faults[here].push_back("Falta el dato.");
            }
            continue;
        }
        if (!hasType(*found, member.type)) {
            faults[here].push_back("El dato no tiene la forma esperada.");
        } else if (member.inner && member.type == Is::object) {
            check(*found, *member.inner, here, faults);
        } else if (member.inner) {
            for (size_t i = 0; i < found->size(); ++i) {
                check((*found)[i], *member.inner, here + "[" + std::to_string(i) + "]", faults);
            }
        }
    }
    for (const auto& [key, ignored] : json.items()) {
        if (!seen.contains(key)) {
            std::string place = path;
            place.append(path.empty() ? "" : ".").append(key);
            faults[place].push_back("El dato no se conoce.");
        }
    }
}

Faults checked(const Json& order, const Form& form) {
    Faults faults;
    check(order, form, "", faults);
    return faults;
}

void checkReference(const Json& holder, const char* key, const std::function<bool(int)>& isKnown,
                    Faults& faults) {
    if (const auto found = holder.find(key); found != holder.end() && !isKnown(found->get<int>())) {
        faults[std::string("menu.") + key].push_back("La referencia " + found->dump() +
                                                     " ya no está en el catálogo.");
    }
}

void checkQuantity(const char* member, std::int64_t quantity, bool ofThisType, std::span<const int> offered,
                   Faults& faults) {
    if (quantity == 0) {
        return;
    }
    if (!ofThisType) {
        faults[member].push_back("Esa cantidad no es del tipo de material QR elegido.");
    } else if (std::ranges::find(offered, quantity) == offered.end()) {
        faults[member].push_back("La cantidad " + std::to_string(quantity) +
                                 " de material QR no está en el catálogo.");
    }
}

void checkPromotions(const Json& content, Faults& faults) {
    const auto promotions = content.find("promotions");
    for (size_t i = 0; promotions != content.end() && i < promotions->size(); ++i) {
        const Json& attached = (*promotions)[i];
        const std::string path = "menu.promotions[" + std::to_string(i) + "]";
        if (const Poster* poster = posterOf(attached["promotion_id"].get<int>())) {
            checkAttributes(attached["attributes"], *poster, path + ".attributes", faults);
        } else {
            faults[path + ".promotion_id"].push_back("La promoción «" +
                                                     attached["promotion_name"].get<std::string>() +
                                                     "» ya no está en el catálogo.");
        }
    }
}

QrMaterial qrOf(const Json& content) {
    QrMaterial material;
    material.brand = content["brand_qr_id"].get<std::int64_t>();
    material.tables = content.value("quantity_qr", std::int64_t(0));
    material.doors = content.value("quantity_qr_circular", std::int64_t(0));
    material.blocks = content.value("quantity_qr_taco", std::int64_t(0));
    material.type = material.blocks > 0 ? 2 : 1;
    return material;
}

} // namespace

/// Something on either side of one "@".
bool isEmail(const std::string& text) {
    const auto at = text.find('@');
    return at != std::string::npos && at > 0 && at + 1 < text.size() && text.rfind('@') == at;
}

Faults brochureFormFaults(const Json& order, bool raw) {
    if (!raw) {
        return checked(order, brochure);
    }
    Form form = brochure;
    form.push_back({"fileName", Is::text, true});
    return checked(order, form);
}

Faults textileFormFaults(const Json& order) {
    return checked(order, textile);
}
Faults promotionFormFaults(const Json& order) {
    return checked(order, promotion);
}
Faults sellingSheetFormFaults(const Json& order) {
    return checked(order, sellingSheet);
}
Faults activationFormFaults(const Json& order) {
    return checked(order, activation);
}

Faults brochureContentFaults(const Json& order, const Catalogue& catalogue) {
    Faults faults;
    const Json& content = order["menu"];
    if (content["customer"]["name"].get<std::string>().empty()) {
        faults["menu.customer.name"].push_back("El nombre del establecimiento es obligatorio.");
    }
    if (const auto address = content["customer"].value("email", ""); !address.empty() && !isEmail(address)) {
        faults["menu.customer.email"].push_back("«" + address + "» no es una dirección de correo.");
    }
    const bool noDrinks = content.value("other_drinks", Json::array()).empty();
    if (content["items"].empty() && noDrinks) {
        faults["menu.items"].push_back("El pedido no lleva ninguna referencia.");
    }
    for (const Json& item : content["items"]) {
        const int id = item["brand"].get<int>();
        if (id <= 0) {
            continue; // a brand that the user added by hand
        }
        if (!catalogue.brand(id)) {
            faults["menu.items"].push_back("La marca " + std::to_string(id) + " ya no está en el catálogo.");
            continue;
        }
        for (const Json& sold : item["sub_items"]) {
            const int format = sold["product"].get<int>();
            if (!catalogue.format(format) || catalogue.brandOfFormat(format)->id != id) {
                faults["menu.items"].push_back("El formato " + std::to_string(format) +
                                               " no es de la marca " + std::to_string(id) + ".");
            }
        }
    }
    for (const char* key : {"style", "style_digital_id", "style_pennant_id"}) {
        checkReference(
            content, key, [&](int id) { return catalogue.style(id) != nullptr; }, faults);
    }
    checkPromotions(content, faults);
    if (content.contains("brand_qr_id")) {
        for (auto& [member, sentences] :
             qrFaults(qrOf(content), content["order_type"].get<int>(), catalogue)) {
            faults["menu." + member] = std::move(sentences);
        }
    }
    return faults;
}

/// As a reader counts them.
static int charactersOf(const std::string& text) {
    const QString words = QString::fromStdString(text);
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, words);
    int count = 0;
    while (finder.toNextBoundary() >= 0) {
        ++count;
    }
    return count;
}

Faults textileContentFaults(const Json& order, const Catalogue& catalogue) {
    Faults faults;
    const Json& sent = order["order"];
    const Json& clothes = catalogue.textile();
    const auto holds = [&clothes](const char* list, const Json& id) {
        return std::ranges::any_of(clothes[list], [&id](const Json& record) { return record["id"] == id; });
    };
    std::int64_t units = 0;
    for (std::size_t i = 0; i < sent["lines"].size(); ++i) {
        const Json& line = sent["lines"][i];
        const std::string path = "order.lines." + std::to_string(i);
        if (!holds("textil", line["textil_id"])) {
            faults[path + ".textil_id"].push_back("La prenda ya no está en el catálogo.");
        }
        const auto quantity = line["quantity"].get<std::int64_t>();
        if (quantity < 1) {
            faults[path + ".quantity"].push_back("Las unidades deben ser al menos 1.");
        }
        units += std::clamp<std::int64_t>(quantity, 0, 100'000);
    }
    const auto least = clothes["validaciones"]["order_min"].get<std::int64_t>();
    if (units < least) {
        faults["order.lines"].push_back("El pedido debe llevar al menos " + std::to_string(least) +
                                        " unidades.");
    }
    const auto most = clothes["validaciones"]["message_max"].get<int>();
    const int length = charactersOf(sent["message"].get<std::string>());
    if (length == 0) {
        faults["order.message"].push_back("Falta el texto que se estampa.");
    } else if (length > most) {
        faults["order.message"].push_back("El texto no puede pasar de " + std::to_string(most) +
                                          " caracteres.");
    }
    if (!holds("textil_typography", sent.value("typography_id", Json()))) {
        faults["order.typography_id"].push_back("La tipografía ya no está en el catálogo.");
    }
    return faults;
}

Faults qrFaults(const QrMaterial& material, int kind, const Catalogue& catalogue) {
    Faults faults;
    const auto offered = qrBrands(catalogue.brands());
    const auto wanted =
        std::ranges::find(offered, material.brand, [](const Brand* each) { return qrIdOf(each->id); });
    if (wanted == offered.end()) {
        faults["brand_qr_id"].push_back("La marca del material QR ya no está en el catálogo.");
    } else if ((*wanted)->family != familyOfKind(kind)) {
        faults["brand_qr_id"].push_back("La marca del material QR no es de la familia de este pedido.");
    }
    if (material.type != 1 && material.type != 2) {
        faults["type"].push_back("El tipo de material QR no se conoce.");
    } else if (material.type == 2 && !offersQrBlocks(BrochureKind(kind))) {
        faults["type"].push_back("Este tipo de pedido no lleva tacos de madera.");
    }
    const bool blocks = material.type == 2;
    checkQuantity("quantity_qr", material.tables, !blocks, qrTableQuantities, faults);
    checkQuantity("quantity_qr_circular", material.doors, !blocks, qrDoorQuantities, faults);
    checkQuantity("quantity_qr_taco", material.blocks, blocks, qrBlockQuantities, faults);
    return faults;
}

} // namespace kavor::demo

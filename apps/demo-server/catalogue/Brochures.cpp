#include "catalogue/BrochureTypes.h"
#include "catalogue/Catalogue.h"
#include "catalogue/Classifications.h"
#include "catalogue/Content.h"
#include "catalogue/Sections.h"

namespace kavor::demo {

namespace {

Json brandIds(std::span<const Brand> brands, const std::vector<int>& places) {
    Json ids = Json::array();
    for (const int place : places) {
        ids.push_back(brandAt(brands, Family::beer, place).id);
    }
    return ids;
}

std::string themeLook(int theme) {
    const Theme& chosen = themes()[size_t(theme)];
    return std::string(chosen.name) +
           std::to_string(chosen.paper ^ chosen.ink ^ chosen.accent ^ chosen.second);
}

Json styleAttributes(const Style& style) {
    Json attributes = Json::array();
    if (!style.withAttributes) {
        return attributes;
    }
    const int first = style.id * 10;
    attributes.push_back({{"id", first + 1},
                          {"name", "Lema de la portada"},
                          {"max_length", 40},
                          {"type_id", 1},
                          {"values", Json::array()}});
    attributes.push_back({{"id", first + 2},
                          {"name", "Acabado"},
                          {"max_length", 20},
                          {"type_id", 4},
                          {"values",
                           {{{"id", first * 10 + 1}, {"value", "Mate"}, {"position", 1}},
                            {{"id", first * 10 + 2}, {"value", "Brillo"}, {"position", 2}},
                            {{"id", first * 10 + 3}, {"value", "Verjurado"}, {"position", 3}}}}});
    return attributes;
}

Json styleRecords(std::span<const Style> styles, PictureBook& book) {
    Json list = Json::array();
    for (const Style& style : styles) {
        const std::string look = themeLook(style.theme) + style.name;
        Json record = {
            {"id", style.id},
            {"name", style.name},
            {"position", style.position},
            {"type_id", int(style.kind)},
            {"blackboard_format_type_id", orNull(style.chalkboardFormatType)},
            {"image_sample_f1", book.resource({PictureKind::coverFront, style.id}, look, 2)},
            {"image_sample_f2", book.resource({PictureKind::coverBack, style.id}, look, 2)},
            {"image_thumb", book.resource({PictureKind::coverThumb, style.id}, look, 1)},
            {"logos", Json(style.logos)},
            {"brand_ids", Json(style.preferredBrands)},
            {"attributes", styleAttributes(style)},
        };
        if (style.position % 2 == 1) {
            record["application_father_id"] = int(familyOfKind(int(style.kind)));
        }
        list.push_back(std::move(record));
    }
    return list;
}

Json chalkboardRecords(PictureBook& book) {
    Json list = Json::array();
    for (const ChalkboardFormat& format : chalkboardFormats()) {
        list.push_back(
            {{"id", format.id},
             {"type_id", format.typeId},
             {"name", format.name},
             {"description", format.description},
             {"image_on", book.resource({PictureKind::chalkboardFormat, format.id, 1}, format.name, 1)},
             {"image_off", book.resource({PictureKind::chalkboardFormat, format.id, 0}, format.name, 1)},
             {"size_icon", format.sizeIcon},
             {"number_of_print", format.prints},
             {"marcas", Json(format.brandCounts)}});
    }
    return list;
}

Json chalkboardTypes() {
    return {
        {{"id", 1}, {"position", 1}, {"name", "Vinilo de tiza"}, {"is_default", true}, {"is_premium", false}},
        {{"id", 2}, {"position", 2}, {"name", "Cartón pluma"}, {"is_default", false}, {"is_premium", false}},
        {{"id", 3},
         {"position", 3},
         {"name", "Madera con marco"},
         {"is_default", false},
         {"is_premium", true}}};
}

Json orderSheetRecords(std::span<const Brand> brands, PictureBook& book) {
    Json list = Json::array();
    for (const OrderSheet& sheet : orderSheets()) {
        list.push_back({{"id", sheet.id},
                        {"position", sheet.id},
                        {"name", sheet.name},
                        {"reference", sheet.reference},
                        {"image", book.resource({PictureKind::orderSheet, sheet.id}, sheet.name, 2)},
                        {"brands", brandIds(brands, sheet.brandPlaces)}});
    }
    return list;
}

Json pennantRecords(std::span<const Brand> brands, PictureBook& book) {
    Json list = Json::array();
    for (const PennantBrand& pennant : pennantBrands()) {
        const Brand& first = brandAt(brands, Family::beer, pennant.brandPlaces.front());
        const std::string look = lookText(first.look) + pennant.name;
        list.push_back(
            {{"id", pennant.id},
             {"position", pennant.id},
             {"name", pennant.name},
             {"description", pennant.description},
             {"reference", "BD-30" + std::to_string(pennant.id)},
             {"help_text", pennant.help},
             {"image_thumb", book.resource({PictureKind::pennantThumb, pennant.id}, look, 2)},
             {"image_sample", book.resource({PictureKind::pennantSample, pennant.id}, look, 2)},
             {"image_brand", book.resource({PictureKind::emblem, first.id}, lookText(first.look), 1)},
             {"brands", brandIds(brands, pennant.brandPlaces)}});
    }
    return list;
}

Json languageRecords() {
    Json list = Json::array();
    for (const Language& language : languages()) {
        Json kinds = Json::array();
        for (const BrochureKind kind : language.kinds) {
            kinds.push_back({{"id", int(kind)}});
        }
        list.push_back({{"id", language.id},
                        {"name", language.name},
                        {"code", language.code},
                        {"reference", language.reference},
                        {"position", language.id},
                        {"ordertypes", std::move(kinds)}});
    }
    return list;
}

Json drinkRecords() {
    Json list = Json::array();
    for (const DrinkCategory& category : drinkCategories()) {
        Json products = Json::array();
        for (const DrinkProduct& product : category.products) {
            Json record = {
                {"id", product.id}, {"name", product.name}, {"position", int(products.size()) + 1}};
            record["price1"] = orNull(product.price);
            record["price2"] = orNull(product.secondPrice);
            if (product.description) {
                record["description"] = product.description;
            }
            if (product.format) {
                record["formatName"] = product.format;
            }
            products.push_back(std::move(record));
        }
        Json record = {{"id", category.id}, {"name", category.name}, {"position", category.id}};
        if (category.description) {
            record["description"] = category.description;
        }
        record["products"] = std::move(products);
        list.push_back(std::move(record));
    }
    return list;
}

Json logoRecords(std::span<const Brand> brands, PictureBook& book) {
    Json list = Json::array();
    for (const Brand& brand : brands.first(std::min(brandsWithMaterial, brands.size()))) {
        if (brand.withLogo) {
            list.push_back(
                {{"id", logoIdOf(brand.id)},
                 {"type_id", brand.family == Family::wine ? 2 : 1},
                 {"brand_id", brand.id},
                 {"name", brand.name},
                 {"position", int(list.size()) + 1},
                 {"image", book.resource({PictureKind::wordmark, brand.id}, lookText(brand.look), 2)}});
        }
    }
    return list;
}

Json qrRecords(std::span<const Brand> brands, PictureBook& book) {
    Json list = Json::array();
    for (const Brand* brand : qrBrands(brands)) {
        const std::string look = lookText(brand->look);
        list.push_back({{"id", qrIdOf(brand->id)},
                        {"position", int(list.size()) + 1},
                        {"name", "QR " + brand->name},
                        {"image", book.resource({PictureKind::qrSticker, brand->id}, look, 2)},
                        {"image_taco", book.resource({PictureKind::qrBlock, brand->id}, look, 3)},
                        {"brand_id", brand->id},
                        {"application_father_id", int(brand->family)}});
    }
    return list;
}

Json priceRecords() {
    Json list = Json::array();
    for (const int type : {1, 2, 3, 5}) {
        list.push_back({{"id", type}, {"name", priceName(type)}});
    }
    return list;
}

} // namespace

Json brochuresSection(std::span<const Brand> brands, std::span<const Style> styles, PictureBook& book) {
    Json section = Json::object();
    addClassifications(section, book);
    addFormatLists(section);
    section["estilos"] = styleRecords(styles, book);
    section["pizarra_formato"] = chalkboardRecords(book);
    section["blackboard_type"] = chalkboardTypes();
    section["cartatipos"] = brochureTypes();
    section["comanderos"] = orderSheetRecords(brands, book);
    section["pennant_brands"] = pennantRecords(brands, book);
    section["precios"] = priceRecords();
    section["languages"] = languageRecords();
    section["bebidas"] = drinkRecords();
    section["logos"] = logoRecords(brands, book);
    section["brandqrs"] = qrRecords(brands, book);
    section["carteleria"] = postersSection(brands, book, true);
    return section;
}

} // namespace kavor::demo

#include "catalogue/Catalogue.h"
#include "catalogue/Content.h"
#include "catalogue/Sections.h"

namespace kavor::demo {

namespace {

/// Brands beyond the first ones are fetched when they are first shown.
constexpr int prefetchedBrands = 60;

Json formatRecord(const Brand& brand, const Format& format, int place, const std::string& look,
                  PictureBook& book) {
    const bool early = brand.id <= prefetchedBrands;
    const std::string served = look + format.icon;
    Json record = {
        {"id", format.id},
        {"type_id", format.typeId},
        {"factor_correction", format.factor},
        {"icon", format.icon},
        {"image", book.resource({PictureKind::vessel, brand.id, place}, served, early ? 2 : 3, early)},
        {"image_thumb", book.resource({PictureKind::vesselThumb, brand.id, place}, served, 3, early)},
        {"position", place + 1},
        {"show_order_sheet", format.onSellingSheet},
        {"show_order", format.onBrochures},
        {"is_highlightable", format.highlightable},
        {"show_in_pennant", format.onPennant},
        {"position_highlightable", format.highlightPosition},
        {"is_bottle", format.isBottle},
        {"price_minimal", format.minimalPrice},
        {"price_maximum_avise", format.warningPrice},
        {"bottles_box", orNull(format.bottlesPerBox)},
        {"quantity_can_edit", format.volumeEditable},
        {"quantity_min", orNull(format.minimumVolume)},
        {"quantity_max", orNull(format.maximumVolume)},
        {"price", orNull(format.price)},
    };
    if (format.bottlesPerBox && format.isBottle) {
        record["bottles_box_image"] = book.resource({PictureKind::box, brand.id, place}, served, 3, early);
    }
    return record;
}

Json categoryRecord(const Brand& brand) {
    return {{"category_label_all", brand.style},       {"category_label", brand.style},
            {"property_id", brand.propertyId},         {"segment_id", orNull(brand.segmentId)},
            {"typology_id", orNull(brand.typologyId)}, {"sub_typology_id", orNull(brand.subTypologyId)},
            {"taste_id", orNull(brand.tasteId)},       {"age_id", orNull(brand.ageId)}};
}

Json pairingsLabel(const Brand& brand) {
    std::string label;
    for (const int id : brand.pairings) {
        label += label.empty() ? "" : ", ";
        label += pairingNames()[size_t(id) - 1];
    }
    return label.empty() ? Json(nullptr) : Json(label);
}

} // namespace

Json productRecord(const Brand& brand, PictureBook& book) {
    const std::string look = lookText(brand.look);
    Json formats = Json::array();
    for (size_t place = 0; place < brand.formats.size(); ++place) {
        formats.push_back(formatRecord(brand, brand.formats[place], int(place), look, book));
    }
    Json record = {
        {"id", brand.id},
        {"application_father_id", int(brand.family)},
        {"name", brand.name},
        {"name_sanitice", brand.sanitised},
        {"position", brand.position},
        {"with_logo", brand.withLogo},
        {"image", book.resource({PictureKind::emblem, brand.id}, look, brand.id <= prefetchedBrands ? 1 : 3,
                                brand.id <= prefetchedBrands)},
        {"amargor", orNull(brand.bitterness)},
        {"maridaje", Json(brand.pairings)},
        {"maridaje_label", pairingsLabel(brand)},
        {"category", categoryRecord(brand)},
        {"productlist", std::move(formats)},
        {"is_main", brand.isMain},
        {"is_secondary", brand.isSecondary},
        {"use_color_typology", brand.colourByTypology},
    };
    return record;
}

} // namespace kavor::demo

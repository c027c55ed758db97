#pragma once

#include "base/json/Table.h"
#include "catalogue/Shared.h"

namespace kavor::json {

template <>
struct Table<HashedResource> {
    using R = HashedResource;
    static constexpr auto fields =
        std::tuple{required("hash", &R::cacheKey), required("path", &R::downloadURL),
                   required("download_type", &R::downloadType)};
};

template <>
struct Table<Validations> {
    using R = Validations;
    static constexpr auto fields =
        std::tuple{required("categoria_nombre", &R::categoryName),
                   required("categoria_descripcion", &R::categoryDescription),
                   required("producto_nombre", &R::productName),
                   required("producto_descripcion", &R::productDescription),
                   required("product_format_length", &R::productFormatLength),
                   required("product_format_number", &R::productFormatNumber),
                   required("customer_facebook", &R::customerFacebook),
                   required("customer_twitter", &R::customerTwitter),
                   required("customer_instagram", &R::customerInstagram),
                   required("customer_local_phone", &R::customerLocalPhone),
                   required("customer_url", &R::customerUrl),
                   required("customer_free_text", &R::customerFreeText),
                   required("with_print_qr", &R::withPrintQr),
                   required("cartas_qr_quantity", &R::lstMenuQrTableQuantity),
                   required("cartas_qr_quantity_circle", &R::lstMenuQrDoorQuantity),
                   required("cartas_qr_quantity_taco", &R::lstMenuQrTacoQuantity),
                   required("with_printed_myself", &R::withPrintedMyself),
                   required("default_printed_myself", &R::defaultPrintedMyself),
                   required("printed_myself_helptext", &R::printedMyselfHelptext),
                   required("printed_kavor_helptext", &R::printedKavorHelptext),
                   required("pennant_helptext", &R::pennantHeltext),
                   required("promotion_hour_day_init", &R::promotionHourDayInit),
                   optional("archive_price", &R::archivePrice),
                   optional("archive_price_secondary", &R::archivePriceSecondary),
                   required("manteleria_support_text", &R::manteleriaSupportText)};
};

template <>
struct Table<Pairing> {
    using R = Pairing;
    static constexpr auto fields =
        std::tuple{required("id", &R::id), required("name", &R::name), required("position", &R::position)};
};

template <>
struct Table<SuggestionCategory> {
    using R = SuggestionCategory;
    static constexpr auto fields = std::tuple{required("id", &R::id), required("name", &R::name)};
};

template <>
struct Table<Attribute::SortableElement> {
    using R = Attribute::SortableElement;
    static constexpr auto fields = std::tuple{required("id", &R::identifier), required("value", &R::value),
                                              required("position", &R::position)};
};

template <>
struct Table<Attribute> {
    using R = Attribute;
    static constexpr auto fields =
        std::tuple{required("id", &R::id), required("name", &R::name), required("max_length", &R::maxLength),
                   required("type_id", &R::typeId), required("values", &R::values)};
};

template <>
struct Table<Product::Category> {
    using R = Product::Category;
    static constexpr auto fields = std::tuple{optional("category_label_all", &R::categoryLabelAll),
                                              optional("category_label", &R::categoryLabel),
                                              required("property_id", &R::propertyId),
                                              optional("segment_id", &R::segmentId),
                                              optional("typology_id", &R::typologyId),
                                              optional("sub_typology_id", &R::subTypologyId),
                                              optional("taste_id", &R::tasteId),
                                              optional("age_id", &R::ageId)};
};

template <>
struct Table<Product::ProductFormat> {
    using R = Product::ProductFormat;
    static constexpr auto fields = std::tuple{required("id", &R::id),
                                              required("type_id", &R::typeId),
                                              required("factor_correction", &R::factorCorrection),
                                              required("icon", &R::icon),
                                              optional("image", &R::image),
                                              optional("image_thumb", &R::imageThumb),
                                              required("position", &R::position),
                                              required("show_order_sheet", &R::showOnSellingSheet),
                                              required("show_order", &R::showOnBrochures),
                                              required("is_highlightable", &R::isHighlightable),
                                              required("show_in_pennant", &R::showInPennant),
                                              required("position_highlightable", &R::positionHighlightable),
                                              required("is_bottle", &R::isBottle),
                                              optional("bottles_box_image", &R::bottleBoxImage),
                                              required("price_minimal", &R::minimalPrice),
                                              required("price_maximum_avise", &R::priceMaximumAvise),
                                              optional("bottles_box", &R::bottlesPerBox),
                                              required("quantity_can_edit", &R::isVolumeEditable),
                                              optional("quantity_min", &R::minimumVolume),
                                              optional("quantity_max", &R::maximumVolume),
                                              optional("price", &R::price)};
};

template <>
struct Table<Product> {
    using R = Product;
    static constexpr auto fields = std::tuple{required("id", &R::id),
                                              required("application_father_id", &R::applicationFather),
                                              required("name", &R::name),
                                              required("name_sanitice", &R::nameSanitice),
                                              required("position", &R::position),
                                              required("with_logo", &R::withLogo),
                                              optional("image", &R::image),
                                              optional("amargor", &R::bitterness),
                                              optional("maridaje", &R::pairings),
                                              optional("maridaje_label", &R::pairingsLabel),
                                              optional("category", &R::category),
                                              required("productlist", &R::productList),
                                              required("is_main", &R::isMain),
                                              required("is_secondary", &R::isSecondary),
                                              required("use_color_typology", &R::useColorTypology)};
};

} // namespace kavor::json

#pragma once

#include "catalogue/Brochures.h"
#include "catalogue/SharedTables.h"

namespace kavor::json {

template <>
struct Table<Posters::SupportType> {
    using R = Posters::SupportType;
    static constexpr auto fields =
        std::tuple{required("id", &R::id), required("position", &R::position), required("name", &R::name),
                   required("description", &R::description), required("icon", &R::icon)};
};

template <>
struct Table<Posters::Classification> {
    using R = Posters::Classification;
    static constexpr auto fields = std::tuple{required("id", &R::identifier),
                                              required("position", &R::position), required("name", &R::name)};
};

template <>
struct Table<Posters::Promotion::Language> {
    using R = Posters::Promotion::Language;
    static constexpr auto fields =
        std::tuple{required("id", &R::id), required("name", &R::name), required("default", &R::isDefault),
                   required("image", &R::image)};
};

template <>
struct Table<Posters::Promotion::Support> {
    using R = Posters::Promotion::Support;
    static constexpr auto fields =
        std::tuple{required("id", &R::id), required("type_id", &R::typeId),
                   required("type_name", &R::typeName), required("position", &R::position)};
};

template <>
struct Table<Posters::Promotion> {
    using R = Posters::Promotion;
    static constexpr auto fields = std::tuple{required("id", &R::id),
                                              required("brand_id", &R::brandId),
                                              required("brand_name", &R::brandName),
                                              required("type_id", &R::typeId),
                                              required("type_name", &R::typeName),
                                              optional("clasification_id", &R::classificationIdentifier),
                                              required("title", &R::title),
                                              required("description", &R::description),
                                              required("position", &R::position),
                                              required("show_menu_online", &R::showMenuOnline),
                                              required("languages", &R::languages),
                                              required("supports", &R::supports),
                                              required("attributes", &R::attributes)};
};

template <>
struct Table<Posters> {
    using R = Posters;
    static constexpr auto fields =
        std::tuple{required("support_types", &R::supportTypes),
                   required("clasificaciones", &R::classifications), required("promociones", &R::promotions)};
};

template <>
struct Table<Brochures::ProductType::TasteImage> {
    using R = Brochures::ProductType::TasteImage;
    static constexpr auto fields =
        std::tuple{required("segment_id", &R::segmentId), optional("taste_id", &R::tasteId),
                   required("image", &R::image)};
};

template <>
struct Table<Brochures::ProductType> {
    using R = Brochures::ProductType;
    static constexpr auto fields = std::tuple{required("id", &R::id),
                                              required("application_father_id", &R::applicationFather),
                                              required("position", &R::position),
                                              required("name", &R::name),
                                              optional("image", &R::image),
                                              optional("image_thumb", &R::imageThumb),
                                              optional("factor_correction", &R::factorCorrection),
                                              optional("image_tastes", &R::imageTastes)};
};

template <>
struct Table<Brochures::BrandProperty> {
    using R = Brochures::BrandProperty;
    static constexpr auto fields =
        std::tuple{required("id", &R::id), required("application_father_id", &R::applicationFather),
                   required("name", &R::name)};
};

template <>
struct Table<Brochures::BrandTipology> {
    using R = Brochures::BrandTipology;
    static constexpr auto fields = std::tuple{required("id", &R::id),
                                              required("application_father_id", &R::applicationFather),
                                              required("name", &R::name),
                                              required("position", &R::position),
                                              optional("color_text", &R::textColor),
                                              optional("color", &R::backGroundColor)};
};

template <>
struct Table<Brochures::BrandTaste> {
    using R = Brochures::BrandTaste;
    static constexpr auto fields = std::tuple{required("id", &R::id),
                                              required("application_father_id", &R::applicationFather),
                                              required("name", &R::name),
                                              required("position", &R::position),
                                              optional("color_text", &R::textColor),
                                              optional("color", &R::backGroundColor),
                                              required("with_image", &R::withImage)};
};

template <>
struct Table<Brochures::BrandSubTipology> {
    using R = Brochures::BrandSubTipology;
    static constexpr auto fields =
        std::tuple{required("id", &R::id), required("application_father_id", &R::applicationFather),
                   required("name", &R::name), required("position", &R::position)};
};

template <>
struct Table<Brochures::BrandSegment> {
    using R = Brochures::BrandSegment;
    static constexpr auto fields =
        std::tuple{required("id", &R::id), required("application_father_id", &R::applicationFather),
                   required("name", &R::name), required("position", &R::position),
                   optional("segment_image", &R::segmentImage)};
};

template <>
struct Table<Brochures::BrandAge> {
    using R = Brochures::BrandAge;
    static constexpr auto fields =
        std::tuple{required("id", &R::id), required("application_father_id", &R::applicationFather),
                   required("name", &R::name), required("position", &R::position)};
};

template <>
struct Table<Brochures::MenuFormatVisualize> {
    using R = Brochures::MenuFormatVisualize;
    static constexpr auto fields =
        std::tuple{required("id", &R::id), required("name", &R::name), required("position", &R::position)};
};

template <>
struct Table<Brochures::MenuWineFormatVisualize> {
    using R = Brochures::MenuWineFormatVisualize;
    static constexpr auto fields =
        std::tuple{required("id", &R::id), required("name", &R::name), required("position", &R::position)};
};

template <>
struct Table<Brochures::OtherFormat> {
    using R = Brochures::OtherFormat;
    static constexpr auto fields = std::tuple{
        required("id", &R::id), required("other_type_id", &R::otherTypeId), required("name", &R::name),
        required("position", &R::position), required("show_label", &R::showLabel)};
};

template <>
struct Table<Brochures::Style> {
    using R = Brochures::Style;
    static constexpr auto fields =
        std::tuple{required("id", &R::id),
                   required("name", &R::name),
                   required("position", &R::position),
                   required("type_id", &R::typeId),
                   optional("blackboard_format_type_id", &R::blackboardFormatTypeId),
                   optional("application_father_id", &R::applicationFather),
                   required("image_sample_f1", &R::firstImage),
                   required("image_sample_f2", &R::secondImage),
                   required("image_thumb", &R::thumbImage),
                   required("logos", &R::logotypeIdentifiers),
                   required("brand_ids", &R::preferredBrands),
                   required("attributes", &R::attributesList)};
};

template <>
struct Table<Brochures::BlackBoardFormat> {
    using R = Brochures::BlackBoardFormat;
    static constexpr auto fields = std::tuple{required("id", &R::id),
                                              required("type_id", &R::typeId),
                                              required("name", &R::name),
                                              required("description", &R::description),
                                              required("image_on", &R::imageSelected),
                                              required("image_off", &R::imageUnselected),
                                              required("size_icon", &R::sizeIcon),
                                              required("number_of_print", &R::numberOfPrint),
                                              required("marcas", &R::numberOfSelectableBrands)};
};

template <>
struct Table<Brochures::BlackBoardType> {
    using R = Brochures::BlackBoardType;
    static constexpr auto fields =
        std::tuple{required("id", &R::id), required("position", &R::position), required("name", &R::name),
                   required("is_default", &R::isDefault), required("is_premium", &R::isPremium)};
};

template <>
struct Table<Brochures::Type::Parameters> {
    using R = Brochures::Type::Parameters;
    static constexpr auto fields =
        std::tuple{required("with_promotion", &R::withPromotion),
                   required("with_digital_menu", &R::allowSelectDigitalBrochure),
                   required("with_default_menu", &R::allowUserToSelectOrDeselectPaperBrochure),
                   required("with_optional_menu", &R::allowNotSelectPaperBrouchure),
                   required("with_comandero", &R::allowOrderSheet),
                   required("with_pennants", &R::withPennants),
                   required("with_pennant_brand", &R::withPennantBrand),
                   required("with_digital_pdf", &R::allowDigitalPdf),
                   required("print_second_price", &R::printSecondPrice),
                   required("required_price_beer", &R::requiredPriceBeer),
                   required("number_comandero", &R::numberOfOrderSheetsToSend),
                   optional("marca_min_main", &R::minBrandMainSelection),
                   optional("marca_min", &R::minBrandSelection),
                   optional("marca_max", &R::maxBrandSelection),
                   optional("marca_list_min", &R::minBrandListSelection),
                   optional("marca_list_max", &R::maxBrandListSelection),
                   optional("formato_min", &R::minFormatSelected),
                   optional("formato_max", &R::maxFormatSelected),
                   required("destacado_num_productos", &R::highLightedNumber),
                   required("destacado_num_productos_list", &R::highLightedNumberList),
                   required("multiidioma", &R::multiLanguage),
                   required("multiprecio", &R::multiPrices),
                   required("rrss", &R::isRRSSAvailable),
                   required("textolibre", &R::freeTextNumberOfFields),
                   required("destacados", &R::isHighlightable),
                   required("pedido_min", &R::minimumOrderQuantity),
                   required("pedido_max", &R::maximumOrderQuantity),
                   required("pedido_range", &R::rangeOrderQuantity),
                   required("pedido_required", &R::checkUnitsNumber),
                   required("with_printer", &R::withPrinter),
                   required("with_menu_format", &R::withMenuFormat),
                   required("with_menu_format_wine", &R::withMenuFormatWine),
                   required("show_other_drink", &R::showOtherDrink),
                   required("show_product_secondary", &R::showProductSecondary),
                   required("with_taco", &R::withTaco),
                   optional("dt_column_file_price_recomended", &R::dtColumnFilePriceRecomended)};
};

template <>
struct Table<Brochures::Type> {
    using R = Brochures::Type;
    static constexpr auto fields =
        std::tuple{required("id", &R::id), required("application_father_id", &R::applicationFather),
                   required("name", &R::name),
                   required("permiteIndicarCartas2Precio", &R::isSecondBrochuresPriceAllowed),
                   optional("parametros", &R::parameters)};
};

template <>
struct Table<Brochures::OrderSheet> {
    using R = Brochures::OrderSheet;
    static constexpr auto fields =
        std::tuple{required("id", &R::id),       required("position", &R::position),
                   required("name", &R::name),   required("reference", &R::reference),
                   required("image", &R::image), required("brands", &R::brands)};
};

template <>
struct Table<Brochures::PennantBrand> {
    using R = Brochures::PennantBrand;
    static constexpr auto fields = std::tuple{required("id", &R::id),
                                              required("position", &R::position),
                                              required("name", &R::name),
                                              required("description", &R::description),
                                              required("reference", &R::reference),
                                              required("help_text", &R::helpText),
                                              required("image_thumb", &R::imageThumb),
                                              required("image_sample", &R::imageSample),
                                              required("image_brand", &R::imageBrand),
                                              required("brands", &R::brands)};
};

template <>
struct Table<Brochures::Price> {
    using R = Brochures::Price;
    static constexpr auto fields = std::tuple{required("id", &R::id), required("name", &R::name)};
};

template <>
struct Table<Brochures::Language::OrderType> {
    using R = Brochures::Language::OrderType;
    static constexpr auto fields = std::tuple{required("id", &R::id)};
};

template <>
struct Table<Brochures::Language> {
    using R = Brochures::Language;
    static constexpr auto fields = std::tuple{required("id", &R::id),
                                              required("name", &R::name),
                                              required("code", &R::code),
                                              required("reference", &R::reference),
                                              required("position", &R::position),
                                              required("ordertypes", &R::orderTypes)};
};

template <>
struct Table<Brochures::Drink::Product> {
    using R = Brochures::Drink::Product;
    static constexpr auto fields = std::tuple{required("id", &R::id),
                                              required("name", &R::name),
                                              required("position", &R::position),
                                              optional("price1", &R::price1),
                                              optional("price2", &R::price2),
                                              optional("description", &R::description),
                                              optional("formatName", &R::formatName)};
};

template <>
struct Table<Brochures::Drink> {
    using R = Brochures::Drink;
    static constexpr auto fields =
        std::tuple{required("id", &R::id), required("name", &R::name), required("position", &R::position),
                   optional("description", &R::description), required("products", &R::products)};
};

template <>
struct Table<Brochures::Logo> {
    using R = Brochures::Logo;
    static constexpr auto fields = std::tuple{
        required("id", &R::id),      required("type_id", &R::typeId),    required("brand_id", &R::brandId),
        required("name", &R::brand), required("position", &R::position), required("image", &R::image)};
};

template <>
struct Table<Brochures::BrandQr> {
    using R = Brochures::BrandQr;
    static constexpr auto fields = std::tuple{required("id", &R::id),
                                              required("position", &R::position),
                                              required("name", &R::name),
                                              required("image", &R::image),
                                              required("image_taco", &R::imageTaco),
                                              required("brand_id", &R::brandId),
                                              required("application_father_id", &R::applicationFather)};
};

template <>
struct Table<Brochures> {
    using R = Brochures;
    static constexpr auto fields =
        std::tuple{required("product_types", &R::productTypes),
                   required("brand_properties", &R::brandProperties),
                   required("brand_typologies", &R::brandTypologies),
                   required("brand_tastes", &R::brandTastes),
                   required("brand_sub_typologies", &R::brandSubTypologies),
                   required("brand_segments", &R::brandSegments),
                   required("brand_ages", &R::brandAges),
                   required("menu_format_visualize", &R::menuFormatVisualize),
                   required("menu_wine_format_visualize", &R::menuWineFormatVisualize),
                   required("other_formats", &R::otherFormats),
                   required("estilos", &R::styles),
                   required("pizarra_formato", &R::blackboardFormats),
                   required("blackboard_type", &R::blackboardTypes),
                   required("cartatipos", &R::types),
                   required("comanderos", &R::orderSheets),
                   required("pennant_brands", &R::pennantBrands),
                   required("precios", &R::prices),
                   required("languages", &R::languages),
                   required("bebidas", &R::drinks),
                   required("logos", &R::logos),
                   required("brandqrs", &R::brandQrs),
                   required("carteleria", &R::promotions)};
};

} // namespace kavor::json

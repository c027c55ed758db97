#include "brochures/engine/RetrieveBrochureOrderListResponse.h"

#include "brochures/engine/SaveBrochuresOrderTables.h"
#include "catalogue/SharedTables.h"

namespace kavor::json {

using Retrieved = RetrieveBrochureOrderListResponse::Order;

template <>
struct Table<Retrieved::OrderLine> {
    using R = Retrieved::OrderLine;
    static constexpr auto fields =
        std::tuple{required("priceId", &R::priceId), required("quantity", &R::quantity)};
};

template <>
struct Table<Retrieved::Beer::LogoTypes> {
    using R = Retrieved::Beer::LogoTypes;
    static constexpr auto fields = std::tuple{required("id", &R::id), required("position", &R::position)};
};

template <>
struct Table<Retrieved::Beer::Brand::ProductPrice::Price> {
    using R = Retrieved::Beer::Brand::ProductPrice::Price;
    static constexpr auto fields = std::tuple{required("id", &R::id), required("price", &R::price)};
};

template <>
struct Table<Retrieved::Beer::Brand::ProductPrice> {
    using R = Retrieved::Beer::Brand::ProductPrice;
    static constexpr auto fields = std::tuple{required("id", &R::id),
                                              required("product_type", &R::typeId),
                                              required("factor_correction", &R::factorCorrrection),
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
                                              optional("price", &R::price),
                                              optional("quantity", &R::volume),
                                              required("prices", &R::prices)};
};

template <>
struct Table<Retrieved::Beer::Brand> {
    using R = Retrieved::Beer::Brand;
    static constexpr auto fields = std::tuple{required("id", &R::id),
                                              required("application_father_id", &R::applicationFather),
                                              required("position", &R::position),
                                              optional("name", &R::name),
                                              optional("name_sanitice", &R::nameSanitice),
                                              optional("description", &R::description),
                                              required("with_logo", &R::withLogo),
                                              optional("image", &R::image),
                                              optional("amargor", &R::bitterness),
                                              optional("maridaje", &R::pairings),
                                              optional("maridaje_label", &R::pairingsLabel),
                                              required("is_main", &R::isMain),
                                              required("is_secondary", &R::isSecondary),
                                              required("use_color_typology", &R::useColorTypology),
                                              optional("category", &R::category),
                                              required("products", &R::products)};
};

template <>
struct Table<Retrieved::Beer> {
    using R = Retrieved::Beer;
    static constexpr auto fields = std::tuple{required("id", &R::id),
                                              required("typeId", &R::typeId),
                                              optional("styleId", &R::styleId),
                                              optional("styleDigitalId", &R::styleDigitalId),
                                              optional("stylePennantId", &R::stylePennantId),
                                              optional("orderSheetId", &R::orderSheetId),
                                              optional("pennant_brand_id", &R::pennantBrandId),
                                              required("menuStyleLogos", &R::menuStyleLogos),
                                              required("showQr", &R::showQr),
                                              required("language1Id", &R::language1Id),
                                              optional("language2Id", &R::language2Id),
                                              optional("productFeaturedId", &R::productFeaturedId),
                                              optional("blackboard_format_id", &R::blackboard_format_id),
                                              optional("blackboard_type_id", &R::blackboard_type_id),
                                              required("brands", &R::brands),
                                              required("promotions", &R::promotions),
                                              required("product_pennant", &R::productPennant),
                                              optional("format_visualize_id", &R::formatVisualizeId),
                                              optional("wine_format_visualize_id", &R::wineFormatVisualizeId),
                                              optional("brand_qr_id", &R::brandQrId),
                                              optional("quantity_qr", &R::brandQrTableQuantity),
                                              optional("quantity_qr_circular", &R::brandQrCircleQuantity),
                                              optional("quantity_qr_taco", &R::brandQrTacoQuantity),
                                              required("show_qr_other_menu", &R::showQrOtherMenu),
                                              required("without_price_beer", &R::withoutPriceBeer),
                                              required("without_price_pennant", &R::withoutPricePennant),
                                              optional("menu_style_attributes", &R::menuStyleAttributes)};
};

template <>
struct Table<Retrieved::Drink::OtherProduct::Price> {
    using R = Retrieved::Drink::OtherProduct::Price;
    static constexpr auto fields = std::tuple{required("id", &R::id), required("price", &R::price),
                                              optional("format_name", &R::formatName)};
};

template <>
struct Table<Retrieved::Drink::OtherProduct> {
    using R = Retrieved::Drink::OtherProduct;
    static constexpr auto fields = std::tuple{
        required("id", &R::id), optional("name", &R::name), optional("description", &R::description),
        required("position", &R::position), required("prices", &R::prices)};
};

template <>
struct Table<Retrieved::Drink> {
    using R = Retrieved::Drink;
    static constexpr auto fields =
        std::tuple{optional("id", &R::id), optional("name", &R::name), required("position", &R::position),
                   optional("description", &R::description), required("otherProducts", &R::otherProducts)};
};

template <>
struct Table<Retrieved> {
    using R = Retrieved;
    static constexpr auto fields = std::tuple{required("id", &R::id),
                                              required("token", &R::token),
                                              required("fecha", &R::date),
                                              required("tipo", &R::type),
                                              required("tipoId", &R::typeId),
                                              optional("pdv", &R::pdv),
                                              required("estado", &R::state),
                                              required("estadoId", &R::stateId),
                                              required("orderLines", &R::orderLineList),
                                              required("beer", &R::beerList),
                                              optional("drinks", &R::drinkList),
                                              optional("name_archive_tablet", &R::filename),
                                              required("with_digital_menu", &R::includeDigitalBrochure),
                                              required("with_digital_menu_print", &R::printDigitalBrochure),
                                              required("with_default_menu", &R::includePaperBrochure),
                                              required("with_pennant", &R::withPennant),
                                              required("printed_myself", &R::printedMyself)};
};

template <>
struct Table<RetrieveBrochureOrderListResponse> {
    using R = RetrieveBrochureOrderListResponse;
    static constexpr auto fields =
        std::tuple{required("code", &R::code), required("msg", &R::errorMessage),
                   required("customer", &R::customerInformation), required("order", &R::orderInformation)};
};

} // namespace kavor::json

KAVOR_JSON_DOCUMENT(kavor::RetrieveBrochureOrderListResponse)

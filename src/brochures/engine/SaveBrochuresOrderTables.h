#pragma once

#include "brochures/engine/SaveBrochuresOrder.h"
#include "documents/DocumentTables.h"

namespace kavor::json {

template <>
struct Table<SaveBrochuresOrder::OrderLine> {
    using R = SaveBrochuresOrder::OrderLine;
    static constexpr auto fields =
        std::tuple{required("price", &R::priceIdentifier), required("quantity", &R::quantity)};
};

template <>
struct Table<SaveBrochuresOrder::Menu::SelectedLogoIdentifiers> {
    using R = SaveBrochuresOrder::Menu::SelectedLogoIdentifiers;
    static constexpr auto fields = std::tuple{required("id", &R::id), required("position", &R::position)};
};

template <>
struct Table<SaveBrochuresOrder::Menu::BeerBrand::Beer::SubItemPrice> {
    using R = SaveBrochuresOrder::Menu::BeerBrand::Beer::SubItemPrice;
    static constexpr auto fields = std::tuple{required("price_type", &R::id), required("price", &R::price)};
};

template <>
struct Table<SaveBrochuresOrder::Menu::BeerBrand::Beer> {
    using R = SaveBrochuresOrder::Menu::BeerBrand::Beer;
    static constexpr auto fields = std::tuple{
        optional("product", &R::id), required("product_type", &R::productType), required("is_new", &R::isNew),
        optional("quantity", &R::volume), required("sub_item_prices", &R::prices)};
};

template <>
struct Table<SaveBrochuresOrder::Menu::BeerBrand> {
    using R = SaveBrochuresOrder::Menu::BeerBrand;
    static constexpr auto fields = std::tuple{optional("brand", &R::brand),
                                              optional("brand_segment", &R::segment),
                                              optional("brand_typology", &R::typology),
                                              optional("brand_taste", &R::taste),
                                              optional("brand_sub_typology", &R::subTypology),
                                              optional("brand_age", &R::age),
                                              optional("name", &R::name),
                                              optional("description", &R::description),
                                              required("sub_items", &R::beers)};
};

template <>
struct Table<SaveBrochuresOrder::Menu::OtherDrinkCategory::OtherDrink::SubItemPrice> {
    using R = SaveBrochuresOrder::Menu::OtherDrinkCategory::OtherDrink::SubItemPrice;
    static constexpr auto fields =
        std::tuple{required("price_type", &R::identifier), optional("price", &R::value),
                   optional("format_name", &R::formatName)};
};

template <>
struct Table<SaveBrochuresOrder::Menu::OtherDrinkCategory::OtherDrink> {
    using R = SaveBrochuresOrder::Menu::OtherDrinkCategory::OtherDrink;
    static constexpr auto fields =
        std::tuple{required("product_format_id", &R::id), optional("product_format_name", &R::name),
                   required("product_format_position", &R::position),
                   optional("description", &R::description), required("sub_item_prices", &R::prices)};
};

template <>
struct Table<SaveBrochuresOrder::Menu::OtherDrinkCategory> {
    using R = SaveBrochuresOrder::Menu::OtherDrinkCategory;
    static constexpr auto fields =
        std::tuple{optional("category_id", &R::id), optional("category_name", &R::name),
                   required("category_position", &R::position), optional("description", &R::description),
                   required("other_products", &R::elements)};
};

template <>
struct Table<SaveBrochuresOrder::Menu::ProductPennant> {
    using R = SaveBrochuresOrder::Menu::ProductPennant;
    static constexpr auto fields =
        std::tuple{required("product_id", &R::product), required("position", &R::position)};
};

template <>
struct Table<SaveBrochuresOrder::Menu::MenuStyleAttribute> {
    using R = SaveBrochuresOrder::Menu::MenuStyleAttribute;
    static constexpr auto fields =
        std::tuple{required("attribute_id", &R::attributeId), required("menu_style_id", &R::menuStyleId),
                   optional("value", &R::value), optional("value_list_id", &R::valueListId)};
};

template <>
struct Table<SaveBrochuresOrder::Menu> {
    using R = SaveBrochuresOrder::Menu;
    static constexpr auto fields =
        std::tuple{required("order_type", &R::orderType),
                   optional("style", &R::style),
                   optional("style_digital_id", &R::styleDigital),
                   optional("style_pennant_id", &R::stylePennant),
                   optional("comandero_id", &R::orderSheetIdentifier),
                   optional("pennant_brand_id", &R::pennantBrandId),
                   optional("format_visualize_id", &R::formatVisualizeId),
                   optional("wine_format_visualize_id", &R::wineFormatVisualizeId),
                   optional("product_featured_id", &R::highlightedProductIdentifier),
                   optional("blackboard_format_id", &R::orientation),
                   optional("blackboard_type_id", &R::blackboardTypeId),
                   required("language1_id", &R::language1Id),
                   optional("language2_id", &R::language2Id),
                   required("customer", &R::customer),
                   optional("bottles", &R::selectedLogoIdentifiersList),
                   required("items", &R::beerBrands),
                   optional("product_pennant", &R::productPennant),
                   optional("other_drinks", &R::otherDrinks),
                   optional("promotions", &R::promotions),
                   optional("brand_qr_id", &R::brandQrId),
                   optional("quantity_qr", &R::brandQrTableQuantity),
                   optional("quantity_qr_circular", &R::brandQrCircleQuantity),
                   optional("quantity_qr_taco", &R::brandQrTacoQuantity),
                   optional("show_qr_other_menu", &R::showQrOtherMenu),
                   optional("without_price_beer", &R::withoutPriceBeer),
                   optional("without_price_pennant", &R::withoutPricePennant),
                   optional("menu_style_attributes", &R::menuStyleAttributes)};
};

template <>
struct Table<SaveBrochuresOrder> {
    using R = SaveBrochuresOrder;
    static constexpr auto fields =
        std::tuple{optional("order_copy", &R::sourceIdentifier),
                   requiredAs<SaveModeCodec>("save", &R::save),
                   required("order_lines", &R::orderLines),
                   required("menu", &R::menu),
                   optional("name_archive_tablet", &R::filename),
                   optional("id", &R::orderIdentifier),
                   orTrue("with_digital_menu", &R::includeDigitalBrochure),
                   orTrue("with_digital_menu_print", &R::printDigitalBrochure),
                   orTrue("with_default_menu", &R::includePaperBrochure),
                   orTrue("with_pennant", &R::withPennant),
                   orTrue("includeDigitalBrochureTmp", &R::includeDigitalBrochureTmp),
                   orTrue("printDigitalBrochureTmp", &R::printDigitalBrochureTmp),
                   orTrue("includePaperBrochureTmp", &R::includePaperBrochureTmp),
                   orTrue("withPennantTmp", &R::withPennantTmp),
                   ignoredWhenRead("printed_myself", &R::printedMyself)};
};

} // namespace kavor::json

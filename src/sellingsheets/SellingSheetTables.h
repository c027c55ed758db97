#pragma once

#include "base/json/Table.h"
#include "sellingsheets/SellingSheetOrder.h"

// The tables of the sheet, for the sources that declare documents which hold one.
namespace kavor::json {

template <>
struct Table<SellingSheetOrder::Item> {
    using R = SellingSheetOrder::Item;
    static constexpr auto fields = std::tuple{required("id", &R::identifier),
                                              optional("code_promotion", &R::promotionCode),
                                              required("position", &R::position),
                                              required("product1_id", &R::productIdentifier1),
                                              required("product1_box", &R::productBox1),
                                              optional("product2_id", &R::productIdentifier2),
                                              optional("product2_box", &R::productBox2),
                                              required("price", &R::price)};
};

template <>
struct Table<SellingSheetOrder> {
    using R = SellingSheetOrder;
    static constexpr auto fields = std::tuple{required("id", &R::identifier),
                                              writeOnly("save", &R::save),
                                              required("token", &R::orderToken),
                                              required("created_at", &R::createdAt),
                                              required("style_id", &R::styleIdentifier),
                                              required("name_order", &R::orderName),
                                              required("title", &R::title),
                                              optional("sub_title", &R::subtitle),
                                              required("taxes_included", &R::areTaxesIncluded),
                                              required("date_from", &R::fromDate),
                                              required("date_to", &R::toDate),
                                              required("include_logo_nrv", &R::isNRVLogoIncluded),
                                              optional("distribution_logo", &R::distributionLogo),
                                              optional("distribution_logo_url", &R::distributionLogoURL),
                                              optional("free_text", &R::freeText),
                                              required("show_one_module_per_page", &R::showOneModulePerPage),
                                              optional("url_pdf", &R::PDFURL),
                                              optional("email_to_send1", &R::emailToSend1),
                                              optional("email_to_send2", &R::emailToSend2),
                                              optional("email_to_send3", &R::emailToSend3),
                                              required("items", &R::items)};
};

template <>
struct Table<SellingSheetOrderListResponse> {
    using R = SellingSheetOrderListResponse;
    static constexpr auto fields = std::tuple{required("orders", &R::orders)};
};

} // namespace kavor::json

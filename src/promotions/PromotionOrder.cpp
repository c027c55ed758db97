#include "promotions/PromotionOrder.h"

#include "base/json/Table.h"

namespace kavor::json {

template <>
struct Table<PromotionOrder::Email> {
    using R = PromotionOrder::Email;
    static constexpr auto fields = std::tuple{required("email", &R::email)};
};

template <>
struct Table<PromotionOrder::Support> {
    using R = PromotionOrder::Support;
    static constexpr auto fields =
        std::tuple{required("id", &R::id), required("language_id", &R::languageId)};
};

template <>
struct Table<PromotionOrder::Attribute> {
    using R = PromotionOrder::Attribute;
    static constexpr auto fields = std::tuple{required("id", &R::id), required("value", &R::value)};
};

template <>
struct Table<PromotionOrder::Customer> {
    using R = PromotionOrder::Customer;
    static constexpr auto fields =
        std::tuple{optional("id", &R::id), optional("cod_tevo", &R::codTevo), optional("name", &R::name)};
};

template <>
struct Table<PromotionOrder> {
    using R = PromotionOrder;
    static constexpr auto fields = std::tuple{required("save", &R::save),
                                              required("promotion_id", &R::promotionId),
                                              optional("image_logo", &R::imageLogo),
                                              required("emails", &R::emails),
                                              required("supports", &R::supports),
                                              required("attributes", &R::attributes),
                                              required("customer", &R::customer),
                                              optional("date_from", &R::dateFrom),
                                              optional("date_to", &R::dateTo),
                                              required("show_menu", &R::showMenu),
                                              required("show_promotion_day_1", &R::showPromotionDay1),
                                              required("show_promotion_day_2", &R::showPromotionDay2),
                                              required("show_promotion_day_3", &R::showPromotionDay3),
                                              required("show_promotion_day_4", &R::showPromotionDay4),
                                              required("show_promotion_day_5", &R::showPromotionDay5),
                                              required("show_promotion_day_6", &R::showPromotionDay6),
                                              required("show_promotion_day_7", &R::showPromotionDay7),
                                              optional("comment", &R::comment)};
};

} // namespace kavor::json

KAVOR_JSON_DOCUMENT(kavor::PromotionOrder)

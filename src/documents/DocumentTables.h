#pragma once

#include "base/json/Table.h"
#include "documents/Customer.h"
#include "documents/MenuPromotion.h"
#include "documents/OrderRequestType.h"
#include "documents/UnansweredSend.h"

namespace kavor::json {

// "save" is a number; in files of older versions it is a boolean, true for print and false for preview.
struct SaveModeCodec {
    static bool read(Element element, OrderRequestType& out, Context& context) {
        bool print = false;
        if (element.get(print) == simdjson::SUCCESS) {
            out = print ? OrderRequestType::sendToPrint : OrderRequestType::sendPreview;
            return true;
        }
        return readCase(element, out, context);
    }
    static bool write(Writer& writer, const OrderRequestType& value) { return writeElement(writer, value); }
};

template <>
struct Table<Customer> {
    using R = Customer;
    static constexpr auto fields = std::tuple{optional("id", &R::id),
                                              required("name", &R::name),
                                              optional("email", &R::email),
                                              optional("telephone", &R::telephone),
                                              optional("contact", &R::contact),
                                              optional("local_phone", &R::localPhone),
                                              optional("url", &R::url),
                                              optional("facebook", &R::facebook),
                                              optional("twitter", &R::twitter),
                                              optional("instagram", &R::instagram),
                                              optional("free_text_1", &R::freeText1),
                                              optional("free_text_2", &R::freeText2),
                                              optional("free_text_3", &R::freeText3),
                                              optional("cod_tevo", &R::tevo),
                                              optional("placePostalCode", &R::placePostalCode),
                                              optional("placeLocality", &R::placeLocality),
                                              optional("placeLocalityId", &R::placeLocalityId),
                                              optional("placeProvinceId", &R::placeProvinceId),
                                              optional("placeProvinceName", &R::placeProvinceName),
                                              optional("image_logo", &R::imageLogo),
                                              optional("comment_image_logo", &R::commentImageLogo),
                                              optional("brands", &R::priorityBrandIdentifiers)};
};

template <>
struct Table<MenuPromotion::PromotionAttribute> {
    using R = MenuPromotion::PromotionAttribute;
    static constexpr auto fields = std::tuple{required("id", &R::id), required("value", &R::value),
                                              optional("value_list_id", &R::valueListId)};
};

template <>
struct Table<MenuPromotion> {
    using R = MenuPromotion;
    static constexpr auto fields =
        std::tuple{optional("id", &R::id), required("promotion_id", &R::promotionId),
                   optional("promotion_name", &R::promotionName), optional("brand_name", &R::brandName),
                   required("attributes", &R::attributes)};
};

template <>
struct Table<UnansweredSend> {
    using R = UnansweredSend;
    static constexpr auto fields = std::tuple{required("content", &R::content), required("key", &R::key),
                                              required("only_queued", &R::onlyQueued)};
};

} // namespace kavor::json

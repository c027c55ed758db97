#include "activations/ActivationOrder.h"

#include "base/json/Table.h"

namespace kavor::json {

template <>
struct Table<ActivationOrder::CustomerActivation> {
    using R = ActivationOrder::CustomerActivation;
    static constexpr auto fields = std::tuple{required("name", &R::name),
                                              optional("cod_tevo", &R::cobrixCode),
                                              optional("email", &R::email),
                                              optional("telephone", &R::telephone),
                                              optional("contact", &R::contact),
                                              required("full_address", &R::fullAddress),
                                              optional("placePostalCode", &R::postalCode),
                                              optional("placeLocality", &R::city)};
};

template <>
struct Table<ActivationOrder::ActivationInfo::Item> {
    using R = ActivationOrder::ActivationInfo::Item;
    static constexpr auto fields = std::tuple{required("id", &R::id)};
};

template <>
struct Table<ActivationOrder::ActivationInfo::Attributes> {
    using R = ActivationOrder::ActivationInfo::Attributes;
    static constexpr auto fields = std::tuple{required("id", &R::id), required("value", &R::value)};
};

template <>
struct Table<ActivationOrder::ActivationInfo> {
    using R = ActivationOrder::ActivationInfo;
    static constexpr auto fields =
        std::tuple{required("activation_id", &R::activationId),
                   required("date_event", &R::dateEvent),
                   required("time_from", &R::hourFrom),
                   required("time_to", &R::hourTo),
                   optional("comment", &R::comment),
                   optional("favorite_steward", &R::favoriteSteward),
                   optional("local_information", &R::localInformation),
                   optional("activation_relation_id", &R::otherActivationRelationIdentifier),
                   optional("items", &R::itemList),
                   optional("attributes", &R::attributesList)};
};

template <>
struct Table<ActivationOrder> {
    using R = ActivationOrder;
    static constexpr auto fields =
        std::tuple{required("customer", &R::customer), required("activation", &R::activationInfo)};
};

template <>
struct Table<SaveBrochuresOrderActivationResponse> {
    using R = SaveBrochuresOrderActivationResponse;
    static constexpr auto fields =
        std::tuple{optional("url", &R::urlOrder), optional("order_id", &R::orderId),
                   optional("quota", &R::quota), optional("number_made", &R::numberMade)};
};

template <>
struct Table<ActivationsUserQuota::ActivationUserQuota> {
    using R = ActivationsUserQuota::ActivationUserQuota;
    static constexpr auto fields = std::tuple{required("id", &R::id), required("quota", &R::quota),
                                              required("number_made", &R::numberMade)};
};

template <>
struct Table<ActivationsUserQuota> {
    using R = ActivationsUserQuota;
    static constexpr auto fields = std::tuple{required("activations", &R::activationList)};
};

template <>
struct Table<SearchMapsResponse::Address> {
    using R = SearchMapsResponse::Address;
    static constexpr auto fields = std::tuple{required("full_address", &R::fullAddress),
                                              optional("number", &R::number),
                                              optional("address", &R::address),
                                              optional("city", &R::city),
                                              optional("province", &R::province),
                                              optional("comunidad_autonoma", &R::region),
                                              optional("country_code", &R::countryCode),
                                              optional("country", &R::country),
                                              optional("zip", &R::zip),
                                              required("latitude", &R::latitude),
                                              required("longitude", &R::longitude)};
};

template <>
struct Table<SearchMapsResponse> {
    using R = SearchMapsResponse;
    static constexpr auto fields = std::tuple{required("addresses", &R::addresses)};
};

} // namespace kavor::json

KAVOR_JSON_DOCUMENT(kavor::ActivationOrder)
KAVOR_JSON_DOCUMENT(kavor::SaveBrochuresOrderActivationResponse)
KAVOR_JSON_DOCUMENT(kavor::ActivationsUserQuota)
KAVOR_JSON_DOCUMENT(kavor::SearchMapsResponse)

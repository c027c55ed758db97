#include "textile/SaveTextileOrder.h"

#include "textile/TextileTables.h"

namespace kavor::json {

template <>
struct Table<SaveTextileOrder::Order::OrderLine> {
    using R = SaveTextileOrder::Order::OrderLine;
    static constexpr auto fields =
        std::tuple{required("textil_id", &R::textileId), required("quantity", &R::quantity)};
};

template <>
struct Table<SaveTextileOrder::Order> {
    using R = SaveTextileOrder::Order;
    static constexpr auto fields =
        std::tuple{required("message", &R::message), required("application_type_id", &R::applicationType),
                   optional("typography_id", &R::typographyId), optional("orderComment", &R::orderComment),
                   required("lines", &R::orderLines)};
};

template <>
struct Table<SaveTextileOrder> {
    using R = SaveTextileOrder;
    static constexpr auto fields =
        std::tuple{requiredAs<SaveModeCodec>("save", &R::save), required("order", &R::orderInformation),
                   optional("customer", &R::customer), optional("name_archive_tablet", &R::filename),
                   optional("id", &R::orderIdentifier)};
};

template <>
struct Table<KeptTextileOrder> {
    static constexpr auto fields =
        std::tuple_cat(Table<SaveTextileOrder>::fields,
                       std::tuple{optional("unanswered_sends", &KeptTextileOrder::unansweredSends)});
};

template <>
struct Table<SaveTextileOrderResponse> {
    using R = SaveTextileOrderResponse;
    static constexpr auto fields =
        std::tuple{optional("url_pdf", &R::urlPDF), optional("url_order", &R::urlOrder),
                   optional("order_id", &R::orderId)};
};

template <>
struct Table<RetrieveTextileOrderResponse::Order> {
    using R = RetrieveTextileOrderResponse::Order;
    static constexpr auto fields = std::tuple{required("id", &R::id),
                                              required("application_type_id", &R::applicationType),
                                              required("token", &R::token),
                                              optional("order_copy_id", &R::sourceIdentifier),
                                              required("fecha", &R::date),
                                              optional("pdv", &R::pdv),
                                              required("estadoId", &R::stateIdentifier),
                                              required("estado", &R::state),
                                              optional("nota", &R::orderComment),
                                              optional("url", &R::url),
                                              required("pendiente", &R::pending),
                                              optional("name_archive_tablet", &R::filename),
                                              optional("typography_id", &R::typographyId),
                                              optional("message", &R::message),
                                              required("lines", &R::orderLineList)};
};

template <>
struct Table<RetrieveTextileOrderResponse> {
    using R = RetrieveTextileOrderResponse;
    static constexpr auto fields =
        std::tuple{required("code", &R::code), required("msg", &R::errorMessage),
                   optional("customer", &R::customerInformation), required("order", &R::orderInformation)};
};

} // namespace kavor::json

KAVOR_JSON_DOCUMENT(kavor::SaveTextileOrder)
KAVOR_JSON_DOCUMENT(kavor::KeptTextileOrder)
KAVOR_JSON_DOCUMENT(kavor::SaveTextileOrderResponse)
KAVOR_JSON_DOCUMENT(kavor::RetrieveTextileOrderResponse)

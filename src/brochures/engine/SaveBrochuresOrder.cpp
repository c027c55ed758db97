#include "brochures/engine/SaveBrochuresOrder.h"

#include "brochures/engine/SaveBrochuresOrderTables.h"

namespace kavor::json {

template <>
struct Table<SaveBrochuresOrderResponse> {
    using R = SaveBrochuresOrderResponse;
    static constexpr auto fields =
        std::tuple{optional("url_pdf", &R::urlPDF), optional("url_order", &R::urlOrder),
                   optional("order_id", &R::orderId), optional("customer_id", &R::customerId),
                   optional("message", &R::message)};
};

template <>
struct Table<KeptOrder> {
    static constexpr auto fields =
        std::tuple_cat(Table<SaveBrochuresOrder>::fields,
                       std::tuple{optional("unanswered_sends", &KeptOrder::unansweredSends),
                                  optional("outbox_file", &KeptOrder::outboxFile),
                                  optional("prints_myself", &KeptOrder::printsMyself),
                                  optional("support_comment", &KeptOrder::supportComment)});
};

template <>
struct Table<RawOrder> {
    static constexpr auto fields = std::tuple_cat(Table<SaveBrochuresOrder>::fields,
                                                  std::tuple{required("fileName", &RawOrder::fileName)});
};

} // namespace kavor::json

KAVOR_JSON_DOCUMENT(kavor::SaveBrochuresOrder)
KAVOR_JSON_DOCUMENT(kavor::SaveBrochuresOrderResponse)
KAVOR_JSON_DOCUMENT(kavor::KeptOrder)
KAVOR_JSON_DOCUMENT(kavor::RawOrder)

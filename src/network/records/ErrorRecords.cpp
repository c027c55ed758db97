#include "network/records/ErrorRecords.h"

#include "base/json/Table.h"

namespace kavor::json {

template <>
struct Table<MessageResponse> {
    static constexpr auto fields = std::tuple{required("msg", &MessageResponse::msg)};
};

template <>
struct Table<ValidationErrorsResponse> {
    using R = ValidationErrorsResponse;
    static constexpr auto fields = std::tuple{required("msg", &R::msg), required("errors", &R::errors)};
};

template <>
struct Table<OutdatedVersionErrorResponse> {
    using R = OutdatedVersionErrorResponse;
    static constexpr auto fields =
        std::tuple{required("msg", &R::message), required("update_link", &R::updateLink)};
};

template <>
struct Table<DemandBrandQrErrorResponse> {
    using R = DemandBrandQrErrorResponse;
    static constexpr auto fields = std::tuple{
        required("msg", &R::message), optional("can_demand_qr", &R::canDemandQr),
        optional("order_state_id", &R::orderStateId), optional("order_state_name", &R::orderStateName)};
};

// Any JSON document will do.
inline bool readValue(Element element, SimpleResponse&, Context& context) {
    return ignore(element, context);
}
inline bool writeValue(Writer& writer, const SimpleResponse&) {
    writer.open('{');
    writer.close('}');
    return true;
}

} // namespace kavor::json

KAVOR_JSON_DOCUMENT(kavor::MessageResponse)
KAVOR_JSON_DOCUMENT(kavor::ValidationErrorsResponse)
KAVOR_JSON_DOCUMENT(kavor::OutdatedVersionErrorResponse)
KAVOR_JSON_DOCUMENT(kavor::DemandBrandQrErrorResponse)
KAVOR_JSON_DOCUMENT(kavor::SimpleResponse)

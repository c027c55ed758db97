#include "network/records/ErrorRecords.h"

#include "base/json/Table.h"

namespace kavor::json {

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

} // namespace kavor::json

KAVOR_JSON_DOCUMENT(kavor::ValidationErrorsResponse)
KAVOR_JSON_DOCUMENT(kavor::OutdatedVersionErrorResponse)
KAVOR_JSON_DOCUMENT(kavor::DemandBrandQrErrorResponse)

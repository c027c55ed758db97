#include "orders/OrderList.h"

#include "base/json/Table.h"

namespace kavor::json {

template <>
struct Table<OrderList::Summary> {
    using R = OrderList::Summary;
    static constexpr auto fields =
        std::tuple{optional("total", &R::total), optional("sin_confirmar", &R::noConfirm),
                   optional("sin_completar", &R::noComplete)};
};

template <>
struct Table<OrderList::Order> {
    using R = OrderList::Order;
    static constexpr auto fields = std::tuple{required("id", &R::id),
                                              required("fecha", &R::date),
                                              required("can_demand_qr", &R::canDemandQr),
                                              optional("brand_qr_id", &R::brandQrId),
                                              optional("brand_qr_type", &R::brandQrType),
                                              required("tipo", &R::type),
                                              required("tipoId", &R::typeId),
                                              optional("tevo", &R::clientCode),
                                              optional("pdv", &R::pdv),
                                              required("estado", &R::state),
                                              required("estadoId", &R::stateId),
                                              optional("nota", &R::note),
                                              optional("url", &R::url),
                                              optional("pendiente", &R::pending),
                                              optional("name_archive_tablet", &R::filename),
                                              required("token", &R::token)};
};

template <>
struct Table<OrderList::OrderTextile> {
    using R = OrderList::OrderTextile;
    static constexpr auto fields = std::tuple{required("id", &R::id),
                                              required("application_type_id", &R::applicationType),
                                              required("fecha", &R::date),
                                              required("token", &R::token),
                                              optional("order_copy_id", &R::sourceIdentifier),
                                              optional("pdv", &R::pdv),
                                              optional("tevo", &R::tevo),
                                              required("estado", &R::state),
                                              required("estadoId", &R::stateId),
                                              optional("nota", &R::note),
                                              optional("url", &R::url),
                                              optional("pendiente", &R::pending),
                                              optional("name_archive_tablet", &R::filename),
                                              required("typography_id", &R::typographyIdentifier)};
};

template <>
struct Table<OrderList> {
    using R = OrderList;
    static constexpr auto fields =
        std::tuple{required("resumen", &R::summary), optional("pedidos", &R::orders),
                   optional("pedidos_textil", &R::textileOrders)};
};

} // namespace kavor::json

KAVOR_JSON_DOCUMENT(kavor::OrderList)

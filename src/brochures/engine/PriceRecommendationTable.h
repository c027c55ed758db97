#pragma once

#include "base/json/Table.h"
#include "brochures/engine/PriceRecommendationResponse.h"

namespace kavor::json {

template <>
struct Table<PriceRecommendationResponse> {
    using R = PriceRecommendationResponse;
    static constexpr auto fields = std::tuple{
        required("tabla", &R::table), required("columnas", &R::columns), required("filas", &R::files),
        optional("brand_name", &R::brandName), optional("product_name", &R::productName)};
};

} // namespace kavor::json

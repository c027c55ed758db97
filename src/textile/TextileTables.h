#pragma once

#include "documents/DocumentTables.h"
#include "textile/SaveTextileOrder.h"

// Of the records that several documents of textile orders hold.
namespace kavor::json {

template <>
struct Table<SaveTextileOrder::Customer> {
    using R = SaveTextileOrder::Customer;
    static constexpr auto fields = std::tuple{optional("id", &R::id),
                                              optional("name", &R::name),
                                              optional("contact", &R::contactName),
                                              optional("email", &R::email),
                                              optional("telephone", &R::telephone),
                                              optional("tevo", &R::tevo),
                                              optional("placePostalCode", &R::placePostalCode),
                                              optional("placeLocality", &R::placeLocality),
                                              optional("placeLocalityId", &R::placeLocalityId),
                                              optional("placeProvinceId", &R::placeProvinceId),
                                              optional("placeProvinceName", &R::placeProvinceName)};
};

} // namespace kavor::json

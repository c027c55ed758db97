#include "account/UserProfile.h"

#include "base/json/Table.h"

namespace kavor::json {

template <>
struct Table<UserProfile::User> {
    using R = UserProfile::User;
    static constexpr auto fields = std::tuple{optional("name", &R::name),
                                              optional("delegacion", &R::delegation),
                                              optional("perfil", &R::profile),
                                              optional("type", &R::type),
                                              optional("zona", &R::zone),
                                              optional("email", &R::email),
                                              optional("telefono", &R::phoneNumber),
                                              optional("direccion1", &R::firstDirection),
                                              optional("direccion2", &R::secondDirection),
                                              optional("cp", &R::postalCode),
                                              optional("municipio", &R::municipality),
                                              optional("provincia", &R::province),
                                              optional("url", &R::editUrl),
                                              required("presupuesto", &R::brochuresInitialBudget),
                                              required("disponible", &R::brochuresAvailableBudget),
                                              required("cartas_realizadas", &R::brochureOrdersDone),
                                              required("textil_presupuesto", &R::textileInitialBudget),
                                              required("textil_disponible", &R::textileAvailableBudget),
                                              required("textil_pedidos", &R::textileOrdersDone)};
};

template <>
struct Table<UserProfile> {
    using R = UserProfile;
    static constexpr auto fields = std::tuple{required("usuario", &R::user)};
};

} // namespace kavor::json

KAVOR_JSON_DOCUMENT(kavor::UserProfile)

#include "session/LoginResult.h"

#include "base/json/Table.h"

namespace kavor::json {

template <>
struct Table<UserNotification> {
    using R = UserNotification;
    static constexpr auto fields = std::tuple{
        required("title", &R::title), optional("description", &R::description), optional("image", &R::image)};
};

template <>
struct Table<LoginResult> {
    using R = LoginResult;
    static constexpr auto fields = std::tuple{required("msg", &R::msg),
                                              optional("id", &R::userIdentifier),
                                              optional("token", &R::token),
                                              optional("user_token", &R::userToken),
                                              optional("show_cdc", &R::showBeerBrochures),
                                              optional("app_show_carta_bebida", &R::showBeveragesBrochures),
                                              optional("app_show_carta_menu", &R::showFoodBrochures),
                                              optional("app_show_order_sheet", &R::showSellingSheet),
                                              optional("show_flyer", &R::showFlyer),
                                              optional("show_pizarra", &R::showChalkboard),
                                              optional("app_show_promotion", &R::showPromotion),
                                              optional("show_carteleria", &R::showCarteleria),
                                              optional("app_show_activaciones", &R::showActivations),
                                              optional("app_show_textil", &R::showTextile),
                                              optional("app_show_rrss", &R::showRRSS),
                                              optional("app_show_video_carta", &R::showVideoBrochure),
                                              optional("app_show_manteleria", &R::showMantelBrochure),
                                              optional("app_show_encarte", &R::showEncarteBrochure),
                                              optional("test_send_order_info", &R::sendOrderInformation),
                                              optional("customer_code_required", &R::customerCodeRequired),
                                              optional("with_show_menu_online", &R::withShowMenuOnline),
                                              optional("app_show_wine_a4", &R::appShowWineA4),
                                              optional("app_show_wine_order", &R::appShowWineOrder),
                                              optional("app_show_wine_textil", &R::appShowWineTextil),
                                              optional("show_logo_nrv", &R::showLogoNrv),
                                              optional("notificaciones", &R::notifications)};
};

template <>
struct Table<AuthCredentials> {
    using R = AuthCredentials;
    static constexpr auto fields =
        std::tuple{required("password", &R::password), required("token", &R::token)};
};

} // namespace kavor::json

KAVOR_JSON_DOCUMENT(kavor::LoginResult)
KAVOR_JSON_DOCUMENT(kavor::AuthCredentials)

#pragma once

#include "base/json/Table.h"
#include "catalogue/Enumerations.h"

// The numbers that each enumeration has on the wire.
namespace kavor::json {

template <>
struct Cases<ApplicationType> {
    static constexpr std::array values{
        ApplicationType::orderBeer,      ApplicationType::orderDrink,      ApplicationType::orderFood,
        ApplicationType::orderFlyer,     ApplicationType::orderChalkboard, ApplicationType::orderVideo,
        ApplicationType::orderMantel,    ApplicationType::encarte,         ApplicationType::orderWineA4,
        ApplicationType::orderWineOrder, ApplicationType::carteleria,      ApplicationType::promotion,
        ApplicationType::carteleriaVino, ApplicationType::textil,          ApplicationType::textilWine,
        ApplicationType::hojaVendedora,  ApplicationType::activaciones,    ApplicationType::rrss,
        ApplicationType::mercado};
};

template <>
struct Cases<BrochureType> {
    static constexpr std::array values{
        BrochureType::beer,       BrochureType::beverage,  BrochureType::menu,    BrochureType::flyer,
        BrochureType::chalkboard, BrochureType::video,     BrochureType::mantel,  BrochureType::encarte,
        BrochureType::wineA4,     BrochureType::wineOrder, BrochureType::digital, BrochureType::pennant};
};

template <>
struct Cases<ApplicationFather> {
    static constexpr std::array values{ApplicationFather::orderBeer,      ApplicationFather::carteleria,
                                       ApplicationFather::hojaVendedora,  ApplicationFather::textil,
                                       ApplicationFather::activaciones,   ApplicationFather::rrss,
                                       ApplicationFather::mercado,        ApplicationFather::orderWine,
                                       ApplicationFather::carteleriaVine, ApplicationFather::textilWine};
};

template <>
struct Cases<PriceType> {
    static constexpr std::array values{PriceType::main, PriceType::terrace, PriceType::table,
                                       PriceType::night};
};

template <>
struct Cases<OrderState> {
    static constexpr std::array values{OrderState::withoutConfirm, OrderState::confirmed,
                                       OrderState::inProcess,      OrderState::sent,
                                       OrderState::incidence,      OrderState::deleted,
                                       OrderState::canceled,       OrderState::delivered,
                                       OrderState::confirmSupport, OrderState::tradeAuthorization,
                                       OrderState::cloud};
};

} // namespace kavor::json

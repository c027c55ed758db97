#pragma once

#include "base/Int.h"

#include <array>
#include <optional>
#include <string_view>

// The integer enumerations that documents share. The values are the numbers on the wire; a number outside a
// table does not decode.
namespace kavor {

// The kind of an order in the order list and in order files ("application_type_id").
enum class ApplicationType : Int {
    orderBeer = 1,
    orderDrink = 2,
    orderFood = 3,
    orderFlyer = 4,
    orderChalkboard = 5,
    orderVideo = 11,
    orderMantel = 13,
    encarte = 23,
    orderWineA4 = 19,
    orderWineOrder = 24,
    carteleria = 6,
    promotion = 12,
    carteleriaVino = 20,
    textil = 8,
    textilWine = 21,
    hojaVendedora = 7,
    activaciones = 9,
    rrss = 10,
    mercado = 14,
};

// The kind of a brochure ("tipoId"). It numbers the same things differently from ApplicationType.
enum class BrochureType : Int {
    beer = 1,
    beverage = 2,
    menu = 3,
    flyer = 4,
    chalkboard = 5,
    video = 6,
    mantel = 7,
    encarte = 13,
    wineA4 = 12,
    wineOrder = 14,
    digital = 100,
    pennant = 101,
};

// The product family ("application_father_id").
enum class ApplicationFather : Int {
    orderBeer = 1,
    carteleria = 2,
    hojaVendedora = 3,
    textil = 4,
    activaciones = 5,
    rrss = 6,
    mercado = 7,
    orderWine = 8,
    carteleriaVine = 9,
    textilWine = 10,
};

enum class PromotionType : Int { carteleria = 1, promotion = 2, carteleriaVino = 3 };

// The price column of a brochure. The value 4 is unassigned.
enum class PriceType : Int { main = 1, terrace = 2, table = 3, night = 5 };

// The state of an order at the server. The values begin at 2.
enum class OrderState : Int {
    withoutConfirm = 2,
    confirmed = 3,
    inProcess = 4,
    sent = 5,
    incidence = 6,
    deleted = 7,
    canceled = 8,
    delivered = 9,
    confirmSupport = 10,
    tradeAuthorization = 11,
    cloud = 12,
};

// The Spanish titles of the kinds; some kinds have none and answer the empty text.
std::string_view label(ApplicationType type);
std::string_view label(BrochureType type);

// The names of the kinds as the model has them: "beer", "wineA4", "textil" ...
std::string_view caseName(ApplicationType type);
std::string_view caseName(BrochureType type);

} // namespace kavor

#pragma once

#include "base/Enumeration.h"

// The integer enumerations that documents share. The values are the numbers on the wire; a number outside a
// table does not decode.
namespace kavor {

// The kind of an order in the order list and in order files ("application_type_id").
#define KAVOR_APPLICATION_TYPES(CASE)                                                                        \
    CASE(orderBeer, 1, "Carta de Cervezas")                                                                  \
    CASE(orderDrink, 2, "Carta de Bebidas")                                                                  \
    CASE(orderFood, 3, "Carta de Menú")                                                                      \
    CASE(orderFlyer, 4, "Carta de Cervezas (hoja única)")                                                    \
    CASE(orderChalkboard, 5, "Pizarra")                                                                      \
    CASE(orderVideo, 11, "Video carta")                                                                      \
    CASE(orderMantel, 13, "Mantelería")                                                                      \
    CASE(encarte, 23, "Encarte de Cervezas")                                                                 \
    CASE(orderWineA4, 19, "Carta de Vinos A4")                                                               \
    CASE(orderWineOrder, 24, "Carta de Vinos")                                                               \
    CASE(carteleria, 6, "Cartelería Promocional")                                                            \
    CASE(promotion, 12, "Promociones")                                                                       \
    CASE(carteleriaVino, 20)                                                                                 \
    CASE(textil, 8, "Textil")                                                                                \
    CASE(textilWine, 21, "Textil Vino")                                                                      \
    CASE(hojaVendedora, 7, "Hoja vendedora")                                                                 \
    CASE(activaciones, 9, "Activaciones")                                                                    \
    CASE(rrss, 10)                                                                                           \
    CASE(mercado, 14)
KAVOR_ENUMERATION(ApplicationType, KAVOR_APPLICATION_TYPES)

// The kind of a brochure ("tipoId"). It numbers the same things differently from ApplicationType.
#define KAVOR_BROCHURE_TYPES(CASE)                                                                           \
    CASE(beer, 1, "Carta de Cervezas")                                                                       \
    CASE(beverage, 2, "Carta de Bebidas")                                                                    \
    CASE(menu, 3, "Carta de Menú")                                                                           \
    CASE(flyer, 4, "Hoja única")                                                                             \
    CASE(chalkboard, 5, "Pizarra")                                                                           \
    CASE(video, 6, "Video Carta")                                                                            \
    CASE(mantel, 7, "Mantelería")                                                                            \
    CASE(encarte, 13, "Encarte de Cervezas")                                                                 \
    CASE(wineA4, 12, "Carta de vinos")                                                                       \
    CASE(wineOrder, 14, "Carta de vinos")                                                                    \
    CASE(digital, 100, "Digital")                                                                            \
    CASE(pennant, 101, "Banderines")
KAVOR_ENUMERATION(BrochureType, KAVOR_BROCHURE_TYPES)

// The product family ("application_father_id").
#define KAVOR_APPLICATION_FATHERS(CASE)                                                                      \
    CASE(orderBeer, 1)                                                                                       \
    CASE(carteleria, 2)                                                                                      \
    CASE(hojaVendedora, 3)                                                                                   \
    CASE(textil, 4)                                                                                          \
    CASE(activaciones, 5)                                                                                    \
    CASE(rrss, 6)                                                                                            \
    CASE(mercado, 7)                                                                                         \
    CASE(orderWine, 8)                                                                                       \
    CASE(carteleriaVine, 9)                                                                                  \
    CASE(textilWine, 10)
KAVOR_ENUMERATION(ApplicationFather, KAVOR_APPLICATION_FATHERS)

// The kind of a promotion, as the section entered names it.
#define KAVOR_PROMOTION_TYPES(CASE)                                                                          \
    CASE(carteleria, 1)                                                                                      \
    CASE(promotion, 2)                                                                                       \
    CASE(carteleriaVino, 3)
KAVOR_ENUMERATION(PromotionType, KAVOR_PROMOTION_TYPES)

// The price column of a brochure. The value 4 is unassigned.
#define KAVOR_PRICE_TYPES(CASE)                                                                              \
    CASE(main, 1)                                                                                            \
    CASE(terrace, 2)                                                                                         \
    CASE(table, 3)                                                                                           \
    CASE(night, 5)
KAVOR_ENUMERATION(PriceType, KAVOR_PRICE_TYPES)

// The state of an order at the server. The values begin at 2.
#define KAVOR_ORDER_STATES(CASE)                                                                             \
    CASE(withoutConfirm, 2)                                                                                  \
    CASE(confirmed, 3)                                                                                       \
    CASE(inProcess, 4)                                                                                       \
    CASE(sent, 5)                                                                                            \
    CASE(incidence, 6)                                                                                       \
    CASE(deleted, 7)                                                                                         \
    CASE(canceled, 8)                                                                                        \
    CASE(delivered, 9)                                                                                       \
    CASE(confirmSupport, 10)                                                                                 \
    CASE(tradeAuthorization, 11)                                                                             \
    CASE(cloud, 12)
KAVOR_ENUMERATION(OrderState, KAVOR_ORDER_STATES)

} // namespace kavor

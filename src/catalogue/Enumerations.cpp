#include "catalogue/Enumerations.h"

namespace kavor {

std::string_view label(ApplicationType type) {
    switch (type) {
    case ApplicationType::orderBeer:
        return "Carta de Cervezas";
    case ApplicationType::orderDrink:
        return "Carta de Bebidas";
    case ApplicationType::orderFood:
        return "Carta de Menú";
    case ApplicationType::orderFlyer:
        return "Carta de Cervezas (hoja única)";
    case ApplicationType::orderChalkboard:
        return "Pizarra";
    case ApplicationType::orderVideo:
        return "Video carta";
    case ApplicationType::orderMantel:
        return "Mantelería";
    case ApplicationType::encarte:
        return "Encarte de Cervezas";
    case ApplicationType::orderWineA4:
        return "Carta de Vinos A4";
    case ApplicationType::orderWineOrder:
        return "Carta de Vinos";
    case ApplicationType::carteleria:
        return "Cartelería Promocional";
    case ApplicationType::promotion:
        return "Promociones";
    case ApplicationType::textil:
        return "Textil";
    case ApplicationType::textilWine:
        return "Textil Vino";
    case ApplicationType::hojaVendedora:
        return "Hoja vendedora";
    case ApplicationType::activaciones:
        return "Activaciones";
    case ApplicationType::carteleriaVino:
    case ApplicationType::rrss:
    case ApplicationType::mercado:
        break;
    }
    return "";
}

std::string_view label(BrochureType type) {
    switch (type) {
    case BrochureType::beer:
        return "Carta de Cervezas";
    case BrochureType::beverage:
        return "Carta de Bebidas";
    case BrochureType::menu:
        return "Carta de Menú";
    case BrochureType::flyer:
        return "Hoja única";
    case BrochureType::chalkboard:
        return "Pizarra";
    case BrochureType::video:
        return "Video Carta";
    case BrochureType::mantel:
        return "Mantelería";
    case BrochureType::encarte:
        return "Encarte de Cervezas";
    case BrochureType::wineA4:
    case BrochureType::wineOrder:
        return "Carta de vinos";
    case BrochureType::digital:
        return "Digital";
    case BrochureType::pennant:
        return "Banderines";
    }
    return "";
}

} // namespace kavor

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

std::string_view caseName(ApplicationType type) {
    switch (type) {
    case ApplicationType::orderBeer:
        return "orderBeer";
    case ApplicationType::orderDrink:
        return "orderDrink";
    case ApplicationType::orderFood:
        return "orderFood";
    case ApplicationType::orderFlyer:
        return "orderFlyer";
    case ApplicationType::orderChalkboard:
        return "orderChalkboard";
    case ApplicationType::orderVideo:
        return "orderVideo";
    case ApplicationType::orderMantel:
        return "orderMantel";
    case ApplicationType::encarte:
        return "encarte";
    case ApplicationType::orderWineA4:
        return "orderWineA4";
    case ApplicationType::orderWineOrder:
        return "orderWineOrder";
    case ApplicationType::carteleria:
        return "carteleria";
    case ApplicationType::promotion:
        return "promotion";
    case ApplicationType::carteleriaVino:
        return "carteleriaVino";
    case ApplicationType::textil:
        return "textil";
    case ApplicationType::textilWine:
        return "textilWine";
    case ApplicationType::hojaVendedora:
        return "hojaVendedora";
    case ApplicationType::activaciones:
        return "activaciones";
    case ApplicationType::rrss:
        return "rrss";
    case ApplicationType::mercado:
        return "mercado";
    }
    return "";
}

std::string_view caseName(BrochureType type) {
    switch (type) {
    case BrochureType::beer:
        return "beer";
    case BrochureType::beverage:
        return "beverage";
    case BrochureType::menu:
        return "menu";
    case BrochureType::flyer:
        return "flyer";
    case BrochureType::chalkboard:
        return "chalkboard";
    case BrochureType::video:
        return "video";
    case BrochureType::mantel:
        return "mantel";
    case BrochureType::encarte:
        return "encarte";
    case BrochureType::wineA4:
        return "wineA4";
    case BrochureType::wineOrder:
        return "wineOrder";
    case BrochureType::digital:
        return "digital";
    case BrochureType::pennant:
        return "pennant";
    }
    return "";
}

} // namespace kavor

#include "catalogue/Content.h"

#include <algorithm>
#include <array>

namespace kavor::demo {

std::span<const ChalkboardFormat> chalkboardFormats() {
    static const std::array formats = {
        ChalkboardFormat{1, 1, "Vertical grande", "60 x 90 cm, para la entrada", 3, 1, {3, 4, 5}, false},
        ChalkboardFormat{2, 1, "Vertical de mesa", "20 x 30 cm, para la barra", 1, 2, {2, 3}, false},
        ChalkboardFormat{3, 2, "Apaisada grande", "90 x 60 cm, para la pared", 3, 1, {4, 6}, true},
        ChalkboardFormat{4, 2, "Apaisada de barra", "40 x 20 cm, junto al grifo", 2, 2, {1, 2}, true},
    };
    return formats;
}

std::span<const OrderSheet> orderSheets() {
    static const std::array sheets = {
        OrderSheet{1, "Comandero de cervezas", "CM-201", 0x123F31, {0, 1, 2, 4}},
        OrderSheet{2, "Comandero de verano", "CM-202", 0x01A7C2, {3, 5, 6}},
        OrderSheet{3, "Comandero de terraza", "CM-203", 0xC8452F, {0, 7, 8, 9, 10}},
        OrderSheet{4, "Comandero neutro", "CM-204", 0x5B3A6B, {}},
    };
    return sheets;
}

std::span<const PennantBrand> pennantBrands() {
    static const std::array pennants = {
        PennantBrand{1,
                     "Tira de barra",
                     "Banderines pequeños en tira de cinco metros",
                     "Se cuelga sobre la barra. Un juego por local.",
                     {0, 1, 2},
                     0},
        PennantBrand{2,
                     "Banderola de fachada",
                     "Banderola de tela con ojales",
                     "Pide permiso municipal antes de colgarla.",
                     {3, 4},
                     1},
        PennantBrand{3,
                     "Guirnalda de fiesta",
                     "Guirnalda de papel de colores",
                     "Pensada para verbenas y terrazas.",
                     {5, 6, 7, 8},
                     2},
    };
    return pennants;
}

std::span<const SheetStyle> sheetStyles() {
    static const std::array table = {
        SheetStyle{1, "Hoja clásica", 0},   SheetStyle{2, "Hoja de costa", 3},
        SheetStyle{3, "Hoja de bodega", 9}, SheetStyle{4, "Hoja de verbena", 8},
        SheetStyle{5, "Hoja de kraft", 7},
    };
    return table;
}

std::span<const ActivationGroup> activationGroups() {
    static const std::array table = {
        ActivationGroup{1, "Fiestas de barra", 0, 0x123F31},
        ActivationGroup{2, "Catas y maridajes", 1, 0x6B4423},
        ActivationGroup{3, "Noches de música", 4, 0x4A2C63},
        ActivationGroup{4, "Barril invitado", 9, 0xB5541C},
    };
    return table;
}

std::span<const Activation> activations() {
    static const std::array table = {
        Activation{1, 1, "Fiesta del grifo", "Dos azafatos, vasos serigrafiados y juego de la ruleta",
                   "Agencia Farolillo Norte", 0, 0xE0A126, 10, 4, 1, true, true, 9},
        Activation{2, 1, "Verbena en la terraza", "Farolillos, música de vinilo y sorteo de camisetas",
                   "Agencia Farolillo Norte", 4, 0xE4572E, 15, 2, 2, false, true, 6},
        Activation{3, 1, "Torneo de futbolín", "Mesa de competición y trofeos para tres parejas",
                   "Agencia Gol y Corcho", 3, 0x01A7C2, 0, 6, 0, true, false, std::nullopt},
        Activation{4, 2, "Cata guiada", "Cinco cervezas, cinco bocados y un maestro cervecero",
                   "Estudio Paladar Abierto", 1, 0xC77B3B, 21, 3, 1, true, true, 12},
        Activation{5, 2, "Maridaje de quesos", "Tabla de quesos y cuatro cervezas", "Estudio Paladar Abierto",
                   2, 0xF2C14E, 14, 2, 0, false, false, 0},
        Activation{6, 3, "Concierto acústico", "Dúo acústico de noventa minutos con equipo propio",
                   "Promotora Compás de Barra", 7, 0xE94F64, 30, 2, 0, false, true, 8},
        Activation{7, 3, "Noche de vinilos", "Pinchadiscos con maletas de los setenta",
                   "Promotora Compás de Barra", 6, 0x9ED8DB, 12, 4, 3, true, false, 10},
        Activation{8, 4, "Barril invitado", "Un barril de edición corta con su columna de grifo",
                   "Agencia Gol y Corcho", 0, 0xD9A441, 5, 8, 2, false, true, std::nullopt},
    };
    return table;
}

std::span<const GarmentType> garmentTypes() {
    static const std::array table = {
        GarmentType{1, "Camiseta", 5, 200},
        GarmentType{2, "Polo", 5, 100},
        GarmentType{3, "Delantal", 2, 60},
        GarmentType{4, "Sudadera", 5, 80},
    };
    return table;
}

std::span<const GarmentColour> garmentColours() {
    static const std::array table = {
        GarmentColour{1, "Verde botella", 0x123F31}, GarmentColour{2, "Crudo", 0xF1E7D0},
        GarmentColour{3, "Negro", 0x22252A},         GarmentColour{4, "Granate", 0x7A1F2B},
        GarmentColour{5, "Azul marino", 0x1F3A68},
    };
    return table;
}

std::span<const Manual> manuals() {
    static const std::array table = {
        Manual{1,
               "Cartas",
               "Tu primera carta",
               {"Busca el bar por su código", "Elige un estilo de portada", "Marca cervezas y formatos",
                "Escribe los precios", "Revisa y envía"}},
        Manual{2,
               "Cartas",
               "Precios y vista previa",
               {"Los precios recomendados ya están puestos", "Si falta algo, se dice qué",
                "La vista previa enseña cómo quedará"}},
        Manual{3,
               "Sin conexión",
               "Trabajar sin conexión",
               {"Prepara el pedido aunque no haya red", "Se queda en el dispositivo",
                "El panel cuenta los que faltan por enviar"}},
        Manual{4,
               "Tu cuenta",
               "Perfil y buzón",
               {"Mira lo que queda de tu presupuesto", "Cambia tus datos", "Cuéntanos qué mejorarías"}},
    };
    return table;
}

std::span<const char* const> suggestionCategories() {
    static constexpr std::array names = {"Catálogo", "Pedidos y entregas", "La aplicación", "Otros"};
    return names;
}

std::span<const Notice> notices() {
    static const std::array table = {
        Notice{1, "Novedades de temporada", "Ya puedes pedir las cartas con los estilos Verbena y Huerta.",
               4},
        Notice{2, "Barril invitado", "Quedan plazas para la activación de este mes.", 0},
        Notice{3, "Consejo de la semana",
               "Marca como nuevas las referencias que el bar estrena: se distinguen en la carta.", 1},
    };
    return table;
}

std::span<const Language> languages() {
    using enum BrochureKind;
    static const std::array table = {
        Language{1,
                 "Español",
                 "es",
                 "ES",
                 {beer, beverage, menu, flyer, chalkboard, video, mantel, encarte, wineA4, wineOrder, digital,
                  pennant}},
        Language{
            2, "Catalán", "ca", "CA", {beer, beverage, menu, flyer, chalkboard, mantel, wineA4, digital}},
        Language{3, "Inglés", "en", "EN", {beer, beverage, menu, video, encarte, wineA4, wineOrder, digital}},
        Language{4, "Gallego", "gl", "GL", {beer, menu, mantel, wineOrder}},
        Language{5, "Euskera", "eu", "EU", {beer, menu, chalkboard}},
        Language{6, "Francés", "fr", "FR", {beer, beverage, wineA4, wineOrder}},
        Language{7, "Alemán", "de", "DE", {beer, beverage}},
    };
    return table;
}

std::span<const DrinkCategory> drinkCategories() {
    static const std::array table = {
        DrinkCategory{1,
                      "Cafés e infusiones",
                      "Café molido en el momento",
                      {{101, "Café solo", nullptr, "Taza", 1.40, 1.60},
                       {102, "Café con leche", "Con leche fresca", "Taza", 1.70, 1.90},
                       {103, "Infusión de hierbaluisa", nullptr, "Tetera", 1.90, std::nullopt}}},
        DrinkCategory{2,
                      "Combinados",
                      nullptr,
                      {{201, "Ginebra con tónica", "Con piel de limón", "Copa", 7.50, 8.50},
                       {202, "Ron con cola", nullptr, "Copa", 7.00, 8.00},
                       {203, "Vermut de grifo", "Con aceituna y naranja", "Vaso", 3.20, 3.60},
                       {203, "Vermut de grifo", "Con aceituna y naranja", "Jarra", 11.00, 12.50}}},
        DrinkCategory{3,
                      "Tapas",
                      "De la cocina a la barra",
                      {{301, "Bravas de la casa", nullptr, "Ración", 5.50, 6.20},
                       {302, "Croquetas de puerro", "Seis unidades", "Ración", 6.80, 7.50},
                       {303, "Ensaladilla", nullptr, "Tapa", 2.90, std::nullopt},
                       {304, "Tortilla de patata", "Con cebolla", "Pincho", 2.60, 3.00}}},
        DrinkCategory{4,
                      "Raciones",
                      nullptr,
                      {{401, "Calamares a la romana", nullptr, "Ración", 9.80, 10.90},
                       {402, "Pulpo a la brasa", "Con patata revolcona", "Media", 11.50, std::nullopt},
                       {403, "Tabla de quesos", nullptr, nullptr, 12.00, 13.50}}},
        DrinkCategory{5,
                      "Postres",
                      "Hechos en casa",
                      {{501, "Torrija caramelizada", nullptr, nullptr, 4.80, std::nullopt},
                       {502, "Arroz con leche", nullptr, "Cuenco", std::nullopt, std::nullopt}}},
        DrinkCategory{6,
                      "Refrescos y zumos",
                      "Sin alcohol",
                      {{601, "Limonada de la casa", "Con hierbabuena", "Vaso", 2.80, 3.20},
                       {601, "Limonada de la casa", "Con hierbabuena", "Jarra", 8.50, 9.50},
                       {602, "Zumo de naranja", "Recién exprimido", "Vaso", 3.10, 3.50},
                       {603, "Agua con gas", nullptr, "Botella", 1.80, 2.00},
                       {604, "Mosto de uva", nullptr, nullptr, 1.90, 2.20}}},
        DrinkCategory{7,
                      "Desayunos",
                      "Hasta las doce",
                      {{701, "Tostada con tomate", nullptr, "Media", 1.80, 2.00},
                       {701, "Tostada con tomate", nullptr, "Entera", 2.60, 2.90},
                       {102, "Café con leche", "Con leche fresca", "Taza", 1.70, 1.90},
                       {602, "Zumo de naranja", "Recién exprimido", "Vaso", 3.10, 3.50}}},
    };
    return table;
}

const char* priceName(int priceType) {
    switch (priceType) {
    case 1:
        return "Barra";
    case 2:
        return "Terraza";
    case 3:
        return "Mesa";
    case 5:
        return "Noche";
    default:
        return "";
    }
}

std::span<const char* const> pairingNames() {
    static constexpr std::array names = {"Quesos curados", "Frituras", "Arroces",   "Carnes a la brasa",
                                         "Ensaladas",      "Mariscos", "Embutidos", "Guisos",
                                         "Postres",        "Setas"};
    return names;
}

std::vector<const Brand*> qrBrands(std::span<const Brand> brands) {
    std::vector<const Brand*> found;
    for (const Brand& brand : brands.first(std::min(brandsWithMaterial, brands.size()))) {
        if (brand.withLogo && (brand.id % 2 == 0 || brand.family == Family::wine)) {
            found.push_back(&brand);
        }
    }
    return found;
}

const Brand& brandAt(std::span<const Brand> brands, Family family, int place) {
    std::vector<const Brand*> found;
    for (const Brand& brand : brands) {
        if (brand.family == family) {
            if (int(found.size()) == place) {
                return brand;
            }
            found.push_back(&brand);
        }
    }
    return found.empty() ? brands.front() : *found[size_t(place) % found.size()];
}

} // namespace kavor::demo

#pragma once

#include "promotions/PromotionGallery.h"
#include "support/CatalogueBuilder.h"

namespace kavor {

// A catalogue with promotions:
//
//   1 "Martes de tapa" (brand 11 Encina, classification 7): default language 2, formats 102 and 101 by
//     position, a phrase 14, a price 13, hours 12, a logo 11; in the online menu
//   2 "Mundial" (brand 10 Roble), without classification, one format and language; in the online menu
//   3 "Feria" of a brand that left the catalogue; not in the online menu
inline void addPromotions(CatalogueBuilder& builder) {
    const auto picture = [](const char* key) {
        return HashedResource{key, Url{std::string("http://server.example/") + key}, 3};
    };
    builder.information.attributesTypes = {{1, "Texto", "Texto libre", {}, "text"},
                                           {2, "Logotipo", {}, {}, "image"},
                                           {3, "Precio", "Importe en euros", {}, {}},
                                           {4, "Lista", {}, {}, {}}};
    Posters posters;
    posters.supportTypes = {{1, 1, "Cartel A3", "Para la pared", picture("wall")}};
    posters.classifications = {{8, 2, "De temporada"}, {7, 1, "Entre semana"}};
    posters.promotions = {
        {2,
         10,
         "Roble",
         2,
         "Promoción",
         {},
         "Mundial",
         "Con la selección",
         5,
         true,
         {{1, "Castellano", false, picture("world")}},
         {{201, 1, "Cartel A3", 1}},
         {}},
        {1,
         11,
         "Encina",
         1,
         "Cartelería",
         7,
         "Martes de tapa",
         "Caña y tapa",
         2,
         true,
         {{1, "Castellano", false, picture("tapa-es")}, {2, "Català", true, picture("tapa-ca")}},
         {{102, 9, "Tríptico", 2}, {101, 1, "Cartel A3", 1}},
         {{14, "Frase", 60, 1, {}},
          {13, "Precio", 8, 3, {}},
          {12, "Franja", 20, 4, {{121, "Noche", 2}, {120, "Mediodía", 1}}},
          {11, "Logotipo", 0, 2, {}}}},
        {3,
         999,
         "Abeto",
         1,
         "Cartelería",
         8,
         "Feria",
         "",
         9,
         false,
         {{1, "Castellano", true, picture("fair")}},
         {{301, 1, "Cartel A3", 1}},
         {}}};
    builder.information.promotion = posters;
    builder.brochures().promotions = posters;
}

} // namespace kavor

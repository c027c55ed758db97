#pragma once

#include "activations/ActivationForm.h"
#include "support/CatalogueBuilder.h"

namespace kavor {

// A catalogue with activations:
//
//   definition 1 "Noches Roble": 21 "Concierto" with 10 days of notice, 1 of 3 made, may be tied; element 211
//   is required, 212 and 213 are not; attribute 52 "Precio" (a price, required, with a format), 51 "Aforo"
//   22 "Cata" without notice, 2 of 2 made
//   definition 2 "Encina en la calle": 31 "Terraza" alone, with 2 days of notice, 0 of 1 made, a document,
//   open from 01-12-2026 to 31-12-2026
//   definition 3 "Sin fiestas": none
inline void addActivations(CatalogueBuilder& builder) {
    using Definition = ActivationsInformation::Definition;
    const auto picture = [](const std::string& key) {
        return HashedResource{key, Url{"http://server.example/" + key}, 3};
    };
    const auto activation = [&](Int id, std::string name, Int notice, Int quota, Int made) {
        ActivationInformation result;
        result.id = id;
        result.name = std::move(name);
        result.description = "Una noche para recordar";
        result.imageOn = picture("on");
        result.imageOff = picture("off");
        result.agencyName = "Agencia Norte";
        result.antelationDays = notice;
        result.quota = quota;
        result.numberMade = made;
        result.imageWidth = 300;
        result.imageHeight = 200;
        result.quotaW = result.quotaH = 60;
        result.quotaSize = 20;
        return result;
    };
    const auto definition = [&](Int id, std::string name) {
        Definition result;
        result.id = id;
        result.brandName = "Roble";
        result.name = std::move(name);
        result.imageLogo = picture("logo");
        result.imageX = 320 * (id - 1);
        result.imageWidth = 300;
        result.imageHeight = 200;
        return result;
    };
    ActivationInformation concert = activation(21, "Concierto", 10, 3, 1);
    concert.canBeRelatedWithAnotherActivations = true;
    concert.imageX = 500;
    concert.quotaX = 760;
    concert.imageRotate = 90;
    concert.itemsList = {{211, 1, "Escenario", true, "Incluido", {{picture("stage"), 1}}},
                         {212, 2, "Vasos", false, {}, {}},
                         {213, 3, "Guirnalda", false, {}, {}}};
    concert.attributesList = {{52, 3, 1, "Precio", "un importe", true, R"(^[0-9]+(\.[0-9]{1,2})?$)"},
                              {51, 1, 2, "Aforo", "un número de personas", false, "[0-9]"}};
    ActivationInformation terrace = activation(31, "Terraza", 2, 1, 0);
    terrace.detailsPDF = Url{"http://127.0.0.1:9/terraza.pdf"};
    terrace.dateFrom = LocalDateTime{2026, 12, 1};
    terrace.dateTo = LocalDateTime{2026, 12, 31, 23, 59, 59};
    Definition nights = definition(1, "Noches Roble");
    nights.activationsList = {concert, activation(22, "Cata", 0, 2, 2)};
    Definition street = definition(2, "Encina en la calle");
    street.activationsList = {terrace};
    builder.information.activations = ActivationsInformation{{nights, street, definition(3, "Sin fiestas")}};
}

// A form of activation 21 that lacks nothing.
inline ActivationForm completeForm() {
    ActivationForm form;
    form.name = "Bar Sol";
    form.place = {"Calle Mayor 1, Madrid", "28013", "Madrid"};
    form.partyDate = "02-12-2026";
    form.hourFrom = "20:00";
    form.hourTo = "23:30";
    form.attributesToSend = {{52, "2.5"}};
    return form;
}

} // namespace kavor

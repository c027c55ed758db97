#pragma once

#include "session/AppSingleton.h"
#include "support/CatalogueBuilder.h"
#include "textile/TextileIntermediateData.h"

namespace kavor {

// A textile catalogue: 6 units at least, 10 characters at most.
//
//   brand 11 Encina: T-shirts (1) for men (1) in black (1) and white (2), S M L (1 2 3), articles 100 to 105;
//     T-shirts for women (2) in black, S and M, articles 110 and 111; 111 has `by_default` false
//   brand 10 Roble: aprons (2), for men, red (3), one size (4), article 120
//   brand 12 Tinto: T-shirts for men in red, M, article 130 of the wine section
inline void addTextile(CatalogueBuilder& builder) {
    Textile textile;
    textile.validations = {6, 10};
    textile.types = {{1, 2, "Camiseta", 1, 50}, {2, 1, "Delantal", 1, 10}};
    textile.genders = {{1, 2, "Hombre"}, {2, 1, "Mujer"}};
    textile.colors = {{1, 3, "Negro", "#101010"}, {2, 1, "Blanco", "#FFFFFF"}, {3, 2, "Rojo", "#B01010"}};
    textile.sizes = {
        {3, 3, "Grande", "L"}, {1, 1, "Pequeña", "S"}, {2, 2, "Mediana", "M"}, {4, 4, "Única", "U"}};
    const auto font = [](Int id, Int position, const char* name) {
        const std::string file = std::string(name) + ".ttf";
        return Textile::Typography{id,  position, name, file, Url{"http://server.example/fonts/" + file},
                                   name};
    };
    textile.typographies = {font(2, 1, "Pacifico"), font(1, 2, "Roboto")};
    const auto article = [&textile](Int id, Int position, std::array<Int, 5> what) {
        auto& added = textile.items.emplace_back();
        added.identifier = id;
        added.position = position;
        added.brandIdentifier = what[0];
        added.typeIdentifier = what[1];
        added.genderIdentifier = what[2];
        added.colorIdentifier = what[3];
        added.sizeIdentifier = what[4];
        added.isDefault = true;
        added.image = {"garment" + std::to_string(id), Url{"http://server.example/garments"}, 3};
    };
    for (const Int size : {1, 2, 3}) {
        article(99 + size, 20 - size, {11, 1, 1, 1, size});
        article(102 + size, 10 + size, {11, 1, 1, 2, size});
    }
    article(110, 5, {11, 1, 2, 1, 1});
    article(111, 4, {11, 1, 2, 1, 2});
    textile.items.back().isDefault = false;
    article(120, 1, {10, 2, 1, 3, 4});
    article(130, 2, {12, 1, 1, 3, 2});
    textile.items.back().applicationType = ApplicationType::textilWine;
    builder.information.textile = std::move(textile);
}

// The session in the textile section with that catalogue.
inline void enterTextile(const CatalogueBuilder& builder, ApplicationType section = ApplicationType::textil) {
    auto& session = AppSingleton::shared();
    session.applicationInformation = builder.take();
    session.actualSection = SectionIdentifier::textile(section);
    session.actualApplicationType = section;
}

// The session as it was.
inline void leaveTextile() {
    auto& session = AppSingleton::shared();
    session.applicationInformation.reset();
    session.actualSection.reset();
    session.actualApplicationType.reset();
    TextileIntermediateData::setShared(std::make_shared<TextileIntermediateData>());
}

// A draft that may be sent: six black T-shirts.
inline void fillTextile(TextileIntermediateData& draft) {
    draft.customer = SaveTextileOrder::Customer{};
    draft.customer->tevo = "77";
    draft.customer->name = "Bar Sol";
    draft.customer->email = "ana@sol.example";
    draft.customer->telephone = "600";
    draft.customizedText = "Bar Sol";
    draft.typographyIdentifier = 2;
    draft.order = {{{11, 1, 1, 1}, {{2, 4}, {3, 2}}}};
}

} // namespace kavor

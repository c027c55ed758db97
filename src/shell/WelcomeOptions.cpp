#include "shell/WelcomeOptions.h"

#include "base/StopProcess.h"
#include "session/LoginResult.h"

#include <algorithm>
#include <array>
#include <string>

namespace kavor {

namespace {

using Type = ApplicationType;
using Rights = LoginResult;

constexpr WelcomeOption brochure(Type type, std::optional<bool> Rights::*flag, std::string_view label,
                                 std::string_view image, BrochureType kind) {
    return {type, flag, label, image, transition::brochure, SectionIdentifier{kind}};
}

constexpr std::array options{
    brochure(Type::orderBeer, &Rights::showBeerBrochures, "Carta de Cervezas", "cartadecervezas",
             BrochureType::beer),
    brochure(Type::orderFlyer, &Rights::showFlyer, "Carta de Cervezas (hoja única)", "flyer",
             BrochureType::flyer),
    brochure(Type::orderDrink, &Rights::showBeveragesBrochures, "Carta de Bebidas", "cartadebebidas",
             BrochureType::beverage),
    brochure(Type::orderFood, &Rights::showFoodBrochures, "Carta de Menú", "cartadecomidas",
             BrochureType::menu),
    brochure(Type::orderChalkboard, &Rights::showChalkboard, "Pizarra", "pizarra", BrochureType::chalkboard),
    brochure(Type::orderMantel, &Rights::showMantelBrochure, "Mantelería", "manteleria",
             BrochureType::mantel),
    brochure(Type::orderVideo, &Rights::showVideoBrochure, "Video carta", "videocarta", BrochureType::video),
    brochure(Type::encarte, &Rights::showEncarteBrochure, "Encarte de Cervezas", "encarte",
             BrochureType::encarte),
    brochure(Type::orderWineA4, &Rights::appShowWineA4, "Carta de Vinos A4", "order_vino_a4",
             BrochureType::wineA4),
    brochure(Type::orderWineOrder, &Rights::appShowWineOrder, "Carta de Vinos", "order_vino_diptico_alto",
             BrochureType::wineOrder),
    // The payload of the posters is `promotion`, and that of the promotions `carteleria`: crossed on purpose.
    WelcomeOption{Type::carteleria, &Rights::showCarteleria, "Cartelería Promocional", "carteleria",
                  transition::promotion, SectionIdentifier{PromotionType::promotion}},
    WelcomeOption{Type::hojaVendedora, &Rights::showSellingSheet, "Hoja vendedora", "hojavendedora",
                  transition::sellingSheet, SectionIdentifier{SectionIdentifier::SellingSheet{}}},
    WelcomeOption{Type::textil, &Rights::showTextile, "Textil", "textil", transition::textile,
                  SectionIdentifier{Type::textil}},
    WelcomeOption{Type::textilWine, &Rights::appShowWineTextil, "Textil Vino", "textil", transition::textile,
                  SectionIdentifier{Type::textilWine}},
    WelcomeOption{Type::activaciones, &Rights::showActivations, "Activaciones", "activaciones",
                  transition::activations, SectionIdentifier{SectionIdentifier::Activations{}}},
    // Keeps its right and can be opened, but has no button.
    WelcomeOption{Type::promotion, &Rights::showPromotion, "Promociones", "promociones",
                  transition::promotion, SectionIdentifier{PromotionType::carteleria}},
};

} // namespace

std::span<const WelcomeOption> sortedWelcomeOptions() {
    return std::span(options).first(options.size() - 1);
}

const WelcomeOption& openableOption(Int identifier) {
    const auto found =
        std::ranges::find(options, identifier, [](const auto& option) { return Int(option.type); });
    if (found == options.end())
        stopProcess("a section for the identifier " + std::to_string(identifier));
    return *found;
}

std::optional<ApplicationType> applicationTypeOf(const SectionIdentifier& section) {
    const auto found = std::ranges::find(options, section, &WelcomeOption::section);
    return found == options.end() ? std::nullopt : std::optional(found->type);
}

std::map<ApplicationType, bool> welcomeFlags(const LoginResult& rights) {
    std::map<ApplicationType, bool> flags;
    for (const WelcomeOption& option : options) {
        if (const std::optional<bool>& flag = rights.*option.flag)
            flags[option.type] = *flag;
    }
    return flags;
}

int welcomeColumns(int total, bool landscape) {
    if (landscape)
        return total < 13 ? 4 : 5;
    return total > 15 ? 4 : 3;
}

} // namespace kavor

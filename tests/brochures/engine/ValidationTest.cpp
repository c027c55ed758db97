#include "base/StopProcess.h"
#include "brochures/engine/DraftTest.h"

#include <functional>

namespace kavor {

namespace {

using Draft = BrochureIntermediateData;
using Messages = std::vector<std::string>;

class Validation : public DraftTest {
public:
    struct Case {
        const char* what;
        std::function<void(Validation&)> change; // of the shared draft or of the catalogue
        Messages expected;
    };

    // Each case begins with a complete order of the kind.
    void check(BrochureType kind, const std::vector<Case>& cases) {
        for (const auto& [what, change, expected] : cases) {
            SCOPED_TRACE(what);
            catalogue = CatalogueBuilder();
            useCatalogue();
            session().loginResult.reset();
            enter(kind);
            Draft::replaceTemporalBrochure();
            complete();
            change(*this);
            useCatalogue();
            if (const auto* parameters = &catalogue.type(kind).parameters; *parameters)
                draft().brochureTypeParameters = *parameters;
            EXPECT_EQ(draft().validationErrors(), expected);
        }
    }
    static Customer& customer() { return *draft().customerInformation; }
    Brochures::Type::Parameters& beer() { return catalogue.parameters(BrochureType::beer); }
};

TEST_F(Validation, ACompleteOrderOfEveryKindHasNoMessages) {
    for (const auto kind : CatalogueBuilder::kinds)
        check(kind, {{label(kind).data(), [](Validation&) {}, {}}});
}

TEST_F(Validation, OutputLanguagesAndNumbers) {
    using Pair = Draft::MainAndSecondary;
    const auto number = [](Int main, std::optional<Int> second) {
        return [=](Validation&) { draft().selectedNumberOfBrochures = Pair{main, second}; };
    };
    check(BrochureType::beer,
          {{"no output",
            [](Validation&) { draft().includePaperBrochure = draft().includeDigitalBrochure = false; },
            {"Ha de seleccionar un formato de generación de la Carta (Impresa, Vídeo, Online)"}},
           {"no languages",
            [](Validation&) { draft().selectedLanguageIdentifiers.reset(); },
            {"Faltan por seleccionar los idiomas", "No se ha introducido un número de cartas."}},
           {"a language that left",
            [](Validation& test) { test.catalogue.brochures().languages.clear(); },
            {"Faltan por seleccionar los idiomas"}},
           {"no number",
            [](Validation&) { draft().selectedNumberOfBrochures.reset(); },
            {"No se ha introducido un número de cartas."}},
           {"at the least", number(5, 5), {}},
           {"at the most", number(50, 50), {}},
           {"too few", number(4, {}), {"El número de cartas principal es inferior al mínimo permitido (5)."}},
           {"both too many",
            number(51, 52),
            {"El número de cartas principal es superior al máximo permitido (50).",
             "El número de cartas secundario es superior al máximo permitido (50)."}},
           {"too few of the second",
            number(5, 0),
            {"El número de cartas secundario es inferior al mínimo permitido (5)."}},
           {"one price column only",
            [](Validation& test) {
                test.beer().multiPrices = false;
                draft().selectedNumberOfBrochures = Pair{5, 0};
            },
            {}},
           {"a kind that counts nothing",
            [](Validation& test) {
                test.beer().checkUnitsNumber = false;
                draft().selectedNumberOfBrochures.reset();
            },
            {}}});
}

TEST_F(Validation, TheCustomer) {
    const Messages four{"El nombre del establecimiento es obligatorio.", "El email es obligatorio.",
                        "El teléfono es obligatorio.", "El nombre de contacto es obligatorio."};
    const auto codeRequired = [](std::optional<bool> required) {
        session().loginResult.emplace().customerCodeRequired = required;
        customer().tevo = "";
    };
    check(BrochureType::beer,
          {{"none", [](Validation&) { draft().customerInformation.reset(); }, four},
           {"empty", [](Validation&) { customer() = Customer(); }, four},
           {"no code, asked for",
            [=](Validation&) { codeRequired(true); },
            {"El código cliente debe informarse."}},
           {"no code, not asked for", [=](Validation&) { codeRequired(false); }, {}},
           {"no code, nothing said", [=](Validation&) { codeRequired({}); }, {}},
           {"ten characters that are many bytes",
            [](Validation&) { customer().freeText1 = "🇪🇸e\u0301ñçüöäïàé"; },
            {}},
           {"everything too long",
            [](Validation&) {
                for (auto* value : {&customer().freeText1, &customer().freeText2, &customer().freeText3,
                                    &customer().localPhone, &customer().url, &customer().instagram,
                                    &customer().twitter, &customer().facebook})
                    *value = "12345678901";
            },
            {"El texto libre 1 tiene una longitud mayor a la permitida (10).",
             "El texto libre 2 tiene una longitud mayor a la permitida (10).",
             "El texto libre 3 tiene una longitud mayor a la permitida (10).",
             "El teléfono del local tiene una longitud mayor a la permitida (10).",
             "La url introducida tiene una longitud mayor a la permitida (10).",
             "La dirección de instagram introducida tiene una longitud superior a la permitida (10).",
             "El nick de twitter tiene una longitud superior a la permitida (10).",
             "La url de facebook tiene una longitud superior a la permitida (10)."}},
           {"a negative limit",
            [](Validation& test) {
                test.catalogue.information.validations.customerFreeText = -1;
                customer().freeText2 = "";
            },
            {"El texto libre 2 tiene una longitud mayor a la permitida (-1)."}}});
}

TEST_F(Validation, NumbersOfBrandsAndFormats) {
    const auto low = [](Int value) {
        return [value](Validation& test) { test.beer().minBrandSelection = value; };
    };
    const auto high = [](Int value) {
        return [value](Validation& test) { test.beer().maxBrandSelection = value; };
    };
    const auto highlighted = [](Int value, bool on) {
        return [=](Validation& test) {
            test.beer().minBrandSelection = value;
            test.beer().isHighlightable = on;
            draft().setFormatHighlighted(true, 100, 10);
        };
    };
    check(BrochureType::beer,
          {{"the least", low(2), {}},
           {"too few", low(3), {"El número de marcas seleccionadas es inferior a 3."}},
           {"the most", high(2), {}},
           {"too many", high(1), {"El número de marcas seleccionadas es superior a 1."}},
           {"a highlighted brand counts twice", highlighted(3, true), {}},
           {"unless the kind has no highlights",
            highlighted(3, false),
            {"El número de marcas seleccionadas es inferior a 3."}},
           {"a wine does not count",
            [](Validation& test) {
                test.beer().maxBrandSelection = 2;
                draft().setFormatSelected(true, 120, 12);
            },
            {}},
           {"formats of each brand, also of the wine",
            [](Validation& test) {
                test.beer().minFormatSelected = 2;
                test.beer().maxFormatSelected = 2;
                draft().setFormatSelected(true, 120, 12);
                draft().setFormatSelected(true, 101, 10);
                draft().selectedBrands[11] = {110, 111, 112};
                draft().setPrice(PriceType::main, 101, 10, 2);
            },
            {"El número de formatos seleccionado para la marca Tinto es inferior al mínimo (2).",
             "El número de formatos seleccionados para la marca Encina es superior al máximo (2)."}}});
}

TEST_F(Validation, Chalkboards) {
    check(
        BrochureType::chalkboard,
        {{"a number that the format doesn't take",
          [](Validation&) { draft().setFormatSelected(false, 100, 10); },
          {"El número de marcas seleccionado debe ser 2 o 4."}},
         {"no format and no board",
          [](Validation&) {
              draft().setBlackboardFormat(std::nullopt);
              draft().setBlackboardType(std::nullopt);
          },
          {"Se debe elegir un formato de pizarra.", "No se ha seleccionado ninguna orientación para pizarra.",
           "No se ha seleccionado tipo de pizarra a imprimir."}},
         {"a format that left",
          [](Validation& test) { test.catalogue.brochures().blackboardFormats.clear(); },
          {"Se debe elegir un formato de pizarra."}}});
}

TEST_F(Validation, Drinks) {
    const auto add = [](const std::string& category, const std::string& product, const char* format) {
        const Int id = draft().addBeverageCategory(category);
        draft().setBeverageFormatSelected(true, format, *draft().addBeverageProduct(product, id), id);
    };
    check(
        BrochureType::menu,
        {{"catalogue drinks with their prices",
          [](Validation&) {
              draft().setBeverageSelected(true, {.identifier = 1, .formatName = "Vaso"}, 1);
              draft().setBeverageSelected(true, {.identifier = 2}, 1);
          },
          {}},
         {"no names and no prices",
          [=](Validation&) {
              draft().setSecondPrice(PriceType::night);
              add("", "", "Copa");
          },
          {"El nombre de una categoría personalizada se encuentra vacío.",
           "El nombre de un producto personalizado en la categoría \"\" se encuentra vacío.",
           "El precio principal para el producto \"\" en la categoría \"\" se encuentra vacío.",
           "El precio secundario para el producto \"\" en la categoría \"\" se encuentra vacío."}},
         {"no price in the one column",
          [=](Validation&) { add("Zumos", "Naranja", "Copa"); },
          {"El precio principal para el producto \"Naranja\" en la categoría \"Zumos\" se encuentra vacío."}},
         {"a product without record",
          [](Validation&) {
              draft().selectedBeverages[1] = {77};
              draft().selectedProductFormat[77] = {"Copa", "Vaso"};
          },
          Messages(2, "Alguno de los productos de la categoría \"Refrescos\" no ha sido seleccionado "
                      "correctamente.")},
         {"an unknown category ends the drinks",
          [=](Validation&) {
              add("", "", "Copa");
              draft().selectedBeverages[-9] = {};
          },
          {"Alguna de las categorías de bebidas no ha sido seleccionada correctamente."}}});
    check(BrochureType::beer, {{"not in a beer menu", [=](Validation&) { add("", "", "Copa"); }, {}}});
}

TEST_F(Validation, Styles) {
    const std::string incorrect =
        "El estilo no está seleccionado correctamente. Vuelva a estilos y selecciónelo de nuevo.";
    const auto logos = [](Int first, Int second, Int third) {
        return [=](Validation&) { draft().selectedLogoIdentifiers = {first, second, third, 1, 2, 3}; };
    };
    check(BrochureType::beer,
          {{"none",
            [](Validation&) { draft().selectedStyleIdentifier.reset(); },
            {"No hay ningún estilo seleccionado."}},
           {"one that left",
            [](Validation&) { draft().selectedStyleIdentifier = 999; },
            {"No hay ningún estilo seleccionado."}},
           {"of another kind, without logos",
            [](Validation&) { draft().selectedStyleIdentifier = 3; },
            {"El estilo seleccionado no es válido para el tipo de carta que estás generando."}},
           {"no logos",
            [](Validation&) { draft().selectedLogoIdentifiers.reset(); },
            {"El estilo seleccionado requiere de logotipos."}},
           {"a logo of another style",
            logos(1, 2, 9),
            {"Alguno de los logos para el estilo son incorrectos. Selecciónelos de nuevo."}},
           {"a logo twice",
            logos(1, 2, 1),
            {"Los logotipos que aparecen en el diseño de la portada deben mostrar tres referencias "
             "diferentes. (Ver "
             "pantalla de “Estilo”)."}},
           {"no online style",
            [](Validation&) { draft().selectedStyleDigitalIdentifier.reset(); },
            {"No hay ningún estilo online seleccionado."}},
           {"an online style that left",
            [=](Validation&) { draft().selectedStyleDigitalIdentifier = 999; },
            {incorrect}},
           {"nothing online",
            [](Validation&) {
                draft().includeDigitalBrochure = false;
                draft().selectedStyleDigitalIdentifier.reset();
            },
            {}},
           {"nothing on paper",
            [](Validation&) {
                draft().includePaperBrochure = false;
                draft().selectedStyleIdentifier.reset();
            },
            {}},
           {"nothing on paper but a digital document",
            [](Validation& test) {
                test.beer().allowDigitalPdf = true;
                draft().includePaperBrochure = false;
                draft().selectedStyleIdentifier.reset();
            },
            {"No hay ningún estilo seleccionado."}}});
}

TEST_F(Validation, TheOutputsOfTheSharedDraftDecideOnTheStylesOfAnother) {
    complete();
    Draft other;
    other.brochureTypeParameters = draft().brochureTypeParameters;
    other.includeDigitalBrochure = other.includePaperBrochure = false;
    other.customerInformation = draft().customerInformation;
    other.setLanguages(1, std::nullopt);
    EXPECT_EQ(other.validationErrors(),
              (Messages{"Ha de seleccionar un formato de generación de la Carta (Impresa, Vídeo, Online)",
                        "No hay ningún estilo seleccionado.", "No hay ningún estilo online seleccionado."}));
}

TEST_F(Validation, MinimalPrices) {
    const auto price = [](double value) {
        return [value](Validation&) { draft().setPrice(PriceType::main, 100, 10, value); };
    };
    const std::string low = "El formato Tercio para la marca Roble tiene un precio inferior al mínimo (1.5) "
                            "en el tipo de precio ";
    check(BrochureType::beer,
          {{"the least", price(1.5), {}},
           {"too low", price(1.49), {low + "Barra"}},
           {"in two columns, one of them without a name",
            [](Validation&) {
                draft().setPrice(PriceType::table, 100, 10, 1);
                draft().setPrice(PriceType::night, 100, 10, 0);
            },
            {low + "Principal", low + "Noche"}},
           {"without prices",
            [](Validation&) {
                draft().withoutPriceBeer = true;
                draft().setPrice(PriceType::main, 100, 10, 0);
            },
            {}},
           {"an unknown brand ends the run, also without prices",
            [](Validation& test) {
                draft().setPrice(PriceType::main, 110, 11, 0);
                draft().withoutPriceBeer = true;
                test.catalogue.removeProduct(10);
            },
            {"No se ha conseguido validar una marca."}},
           {"an unknown format ends the run",
            [](Validation& test) {
                draft().setPrice(PriceType::main, 110, 11, 0);
                test.catalogue.product(10).productList.erase(test.catalogue.product(10).productList.begin());
            },
            {"No se ha conseguido validar un formato de una marca."}}});
}

TEST_F(Validation, SentencesStandInTheOrderOfTheRules) {
    Draft::replaceTemporalBrochure();
    draft().brochureTypeParameters = catalogue.parameters(BrochureType::beer);
    draft().setFormatSelected(true, 101, 10);
    catalogue.parameters(BrochureType::beer).minBrandSelection = 2;
    useCatalogue();
    const std::string price =
        "El formato Caña para la marca Roble tiene un precio inferior al mínimo (1.5) en el "
        "tipo de precio Barra";
    EXPECT_EQ(
        draft().validationErrors(),
        (Messages{"Faltan por seleccionar los idiomas", "No se ha introducido un número de cartas.",
                  "El nombre del establecimiento es obligatorio.", "El email es obligatorio.",
                  "El teléfono es obligatorio.", "El nombre de contacto es obligatorio.",
                  "El número de marcas seleccionadas es inferior a 2.", "No hay ningún estilo seleccionado.",
                  "No hay ningún estilo online seleccionado.", price}));
}

TEST_F(Validation, HighPricesAreToldButNotRefused) {
    complete();
    EXPECT_EQ(draft().priceWarnings(), Messages());
    draft().setPrice(PriceType::main, 100, 10, 6.0);
    draft().setPrice(PriceType::night, 100, 10, 12);
    draft().setPrice(PriceType::table, 110, 11, 6.25);
    EXPECT_EQ(draft().validationErrors(), Messages());
    EXPECT_EQ(draft().priceWarnings(),
              (Messages{"Roble / Tercio / Noche : 12.0€", "Encina / Tercio / Principal : 6.25€"}));
    catalogue.removeProduct(11);
    useCatalogue();
    EXPECT_EQ(draft().priceWarnings(), (Messages{"No se ha conseguido validar una marca."}));
}

} // namespace
} // namespace kavor

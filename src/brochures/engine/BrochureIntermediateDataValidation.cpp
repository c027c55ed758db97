#include "base/AppFormatter.h"
#include "base/StopProcess.h"
#include "base/Text.h"
#include "brochures/engine/BrochureIntermediateData.h"
#include "brochures/engine/DrinkKinds.h"
#include "brochures/engine/EngineSession.h"

#include <algorithm>
#include <utility>

// The sentences are the user's, to the letter.
namespace kavor {

namespace {

using Draft = BrochureIntermediateData;
using Place = ValidationPlace;

// The sentences in their order, each with the place where the user mends it.
class Messages {
public:
    void add(Place place, std::string sentence) { all_.push_back({std::move(sentence), place}); }
    [[nodiscard]] std::vector<ValidationMessage> take() { return std::move(all_); }

private:
    std::vector<ValidationMessage> all_;
};

using engine::catalogue;

std::string number(Int value) {
    return std::to_string(value);
}
std::string number(double value) {
    return AppFormatter::shared().machineNumberFormatter(value);
}
std::string quoted(const std::string& name) {
    return "\"" + name + "\"";
}

const Brochures::Type::Parameters& parametersOf(const Draft& draft) {
    if (!draft.brochureTypeParameters)
        stopProcess("parameters of the brochure type (brochureTypeParameters)");
    return *draft.brochureTypeParameters;
}

bool isEmpty(const std::optional<std::string>& value) {
    return !value || value->empty();
}

std::string nameOfBrand(Int brand) {
    const auto* product = catalogue().product(brand);
    return product ? product->name : "";
}

std::string nameOfPrice(PriceType type) {
    const auto* price = catalogue().price(type);
    return price ? price->name : "Principal";
}

void checkQuantity(Int quantity, const std::string& which, const Draft& draft, Messages& messages) {
    const Int least = parametersOf(draft).minimumOrderQuantity;
    const Int most = parametersOf(draft).maximumOrderQuantity;
    if (quantity < least)
        messages.add(Place::quantity, "El número de cartas " + which + " es inferior al mínimo permitido (" +
                                          number(least) + ").");
    else if (quantity > most)
        messages.add(Place::quantity, "El número de cartas " + which + " es superior al máximo permitido (" +
                                          number(most) + ").");
}

void checkNumberOfBrochures(const Draft& draft, std::optional<BrochureType> kind, Messages& messages) {
    if (!draft.includePaperBrochure || !kind || !parametersOf(draft).checkUnitsNumber)
        return;
    // The languages are tested on purpose, though the sentence speaks only of the number.
    if (!draft.selectedLanguageIdentifiers || !draft.selectedNumberOfBrochures) {
        messages.add(Place::quantity, "No se ha introducido un número de cartas.");
        return;
    }
    const auto& [main, secondary] = *draft.selectedNumberOfBrochures;
    checkQuantity(main, "principal", draft, messages);
    if (parametersOf(draft).multiPrices && secondary)
        checkQuantity(*secondary, "secundario", draft, messages);
}

void checkLengths(const Customer& customer, Messages& messages) {
    const auto& limits = catalogue().information().validations;
    const auto check = [&messages](const std::optional<std::string>& value, Int limit, const char* opening) {
        if (value && static_cast<Int>(text::characterCount(*value)) > limit)
            messages.add(Place::customerTexts, opening + number(limit) + ").");
    };
    check(customer.freeText1, limits.customerFreeText,
          "El texto libre 1 tiene una longitud mayor a la permitida (");
    check(customer.freeText2, limits.customerFreeText,
          "El texto libre 2 tiene una longitud mayor a la permitida (");
    check(customer.freeText3, limits.customerFreeText,
          "El texto libre 3 tiene una longitud mayor a la permitida (");
    check(customer.localPhone, limits.customerLocalPhone,
          "El teléfono del local tiene una longitud mayor a la permitida (");
    check(customer.url, limits.customerUrl, "La url introducida tiene una longitud mayor a la permitida (");
    check(customer.instagram, limits.customerInstagram,
          "La dirección de instagram introducida tiene una longitud superior a la permitida (");
    check(customer.twitter, limits.customerTwitter,
          "El nick de twitter tiene una longitud superior a la permitida (");
    check(customer.facebook, limits.customerFacebook,
          "La url de facebook tiene una longitud superior a la permitida (");
}

void checkCustomer(const std::optional<Customer>& customer, Messages& messages) {
    if (engine::isCustomerCodeRequired() && (!customer || isEmpty(customer->tevo)))
        messages.add(Place::customerCode, "El código cliente debe informarse.");
    if (customer)
        checkLengths(*customer, messages);
    if (!customer || customer->name.empty())
        messages.add(Place::customerName, "El nombre del establecimiento es obligatorio.");
    if (!customer || isEmpty(customer->email))
        messages.add(Place::customerEmail, "El email es obligatorio.");
    if (!customer || isEmpty(customer->telephone))
        messages.add(Place::customerTelephone, "El teléfono es obligatorio.");
    if (!customer || isEmpty(customer->contact))
        messages.add(Place::customerContact, "El nombre de contacto es obligatorio.");
}

void checkBrandCount(const Draft& draft, const Brochures::Type& type, Messages& messages) {
    const auto selection = draft.filteredSelection();
    const bool highlightable = type.parameters && type.parameters->isHighlightable;
    // A highlighted brand counts twice, once in each map.
    const auto entries = selection.selectedBrands.size() +
                         (highlightable ? selection.highlightedBrands.size() : std::size_t(0));
    const auto count = static_cast<Int>(entries);
    if (type.id != BrochureType::chalkboard) {
        if (const Int low = draft.minimumBrands(0); count < low)
            messages.add(Place::brands,
                         "El número de marcas seleccionadas es inferior a " + number(low) + ".");
        if (const Int high = draft.maximumBrands(1000000); count > high)
            messages.add(Place::brands,
                         "El número de marcas seleccionadas es superior a " + number(high) + ".");
        return;
    }
    const auto* format = draft.currentBlackboardFormat();
    if (!format) {
        messages.add(Place::blackboardFormat, "Se debe elegir un formato de pizarra.");
        return;
    }
    const auto& allowed = format->numberOfSelectableBrands;
    if (std::ranges::find(allowed, count) != allowed.end())
        return;
    std::string numbers;
    for (const Int each : allowed)
        numbers += (numbers.empty() ? "" : " o ") + number(each);
    messages.add(Place::brands, "El número de marcas seleccionado debe ser " + numbers + ".");
}

void checkFormatCounts(const Draft& draft, const Brochures::Type& type, Messages& messages) {
    if (!type.parameters)
        return;
    if (const auto least = type.parameters->minFormatSelected) {
        for (const auto& [brand, formats] : draft.selectedBrands) {
            if (static_cast<Int>(formats.size()) < *least)
                messages.add(Place::brands, "El número de formatos seleccionado para la marca " +
                                                nameOfBrand(brand) + " es inferior al mínimo (" +
                                                number(*least) + ").");
        }
    }
    if (const auto most = type.parameters->maxFormatSelected) {
        for (const auto& [brand, formats] : draft.selectedBrands) {
            if (static_cast<Int>(formats.size()) > *most)
                messages.add(Place::brands, "El número de formatos seleccionados para la marca " +
                                                nameOfBrand(brand) + " es superior al máximo (" +
                                                number(*most) + ").");
        }
    }
}

void checkDrink(const Draft& draft, Int category, const std::string& categoryName, Int product,
                const std::string& formatName, Messages& messages) {
    const auto info = draft.beverageInfo(category, product, false, formatName);
    if (!info) {
        messages.add(Place::drinks, "Alguno de los productos de la categoría " + quoted(categoryName) +
                                        " no ha sido seleccionado correctamente.");
        return;
    }
    const std::string where = " para el producto " + quoted(info->name) + " en la categoría " +
                              quoted(categoryName) + " se encuentra vacío.";
    if (info->name.empty())
        messages.add(Place::drinks, "El nombre de un producto personalizado en la categoría " +
                                        quoted(categoryName) + " se encuentra vacío.");
    if (!info->price1)
        messages.add(Place::drinks, "El precio principal" + where);
    if (draft.currentSecondPrice() && !info->price2)
        messages.add(Place::drinks, "El precio secundario" + where);
}

void checkDrinks(const Draft& draft, Messages& messages) {
    for (const auto& [category, products] : draft.selectedBeverages) {
        const auto info = draft.beverageInfo(category, 0, true, std::nullopt);
        if (!info) {
            messages.add(Place::drinks,
                         "Alguna de las categorías de bebidas no ha sido seleccionada correctamente.");
            return;
        }
        if (!catalogue().drink(category) && info->name.empty())
            messages.add(Place::drinks, "El nombre de una categoría personalizada se encuentra vacío.");
        for (const Int product : products) {
            const auto names = draft.selectedProductFormat.find(product);
            if (names == draft.selectedProductFormat.end())
                continue;
            for (const auto& name : names->second)
                checkDrink(draft, category, info->name, product, name, messages);
        }
    }
}

void checkBrands(const Draft& draft, std::optional<BrochureType> kind, Messages& messages) {
    const auto* type = kind ? catalogue().brochureType(*kind) : nullptr;
    if (!type)
        return;
    checkBrandCount(draft, *type, messages);
    checkFormatCounts(draft, *type, messages);
    if (printsDrinks(*kind))
        checkDrinks(draft, messages);
}

void checkLogos(const Draft& draft, const Brochures::Style& style, Messages& messages) {
    const auto& offered = style.logotypeIdentifiers;
    if (offered.empty())
        return;
    const auto logos = draft.currentLogos();
    if (!logos) {
        messages.add(Place::logos, "El estilo seleccionado requiere de logotipos.");
        return;
    }
    const auto& [first, second, third, firstPosition, secondPosition, thirdPosition] = *logos;
    const auto isOffered = [&offered](Int id) { return std::ranges::find(offered, id) != offered.end(); };
    if (!isOffered(first) || !isOffered(second) || !isOffered(third))
        messages.add(Place::logos,
                     "Alguno de los logos para el estilo son incorrectos. Selecciónelos de nuevo.");
    else if (first == second || second == third || first == third)
        messages.add(Place::logos,
                     "Los logotipos que aparecen en el diseño de la portada deben mostrar tres referencias "
                     "diferentes. (Ver pantalla de “Estilo”).");
}

// Whether paper or online is wanted is asked of the shared draft, not of the one under test.
void checkPrintedStyle(const Draft& draft, std::optional<BrochureType> kind, Messages& messages) {
    if (!Draft::temporalBrochure()->includePaperBrochure && !parametersOf(draft).allowDigitalPdf)
        return;
    const auto* style = draft.currentStyle();
    if (!style) {
        messages.add(Place::printedStyle, "No hay ningún estilo seleccionado.");
        return;
    }
    if (kind && style->typeId != static_cast<Int>(*kind))
        messages.add(Place::printedStyle,
                     "El estilo seleccionado no es válido para el tipo de carta que estás generando.");
    checkLogos(draft, *style, messages);
}

void checkOnlineStyle(const Draft& draft, Messages& messages) {
    if (!Draft::temporalBrochure()->includeDigitalBrochure)
        return;
    if (!draft.selectedStyleDigitalIdentifier)
        messages.add(Place::onlineStyle, "No hay ningún estilo online seleccionado.");
    else if (!draft.currentStyleDigital())
        messages.add(
            Place::onlineStyle,
            "El estilo no está seleccionado correctamente. Vuelva a estilos y selecciónelo de nuevo.");
}

void checkChalkboard(const Draft& draft, std::optional<BrochureType> kind, Messages& messages) {
    if (kind != BrochureType::chalkboard)
        return;
    if (!draft.selectedFormatIdentifier)
        messages.add(Place::blackboardFormat, "No se ha seleccionado ninguna orientación para pizarra.");
    if (!draft.selectedBlackboardTypeIdentifier)
        messages.add(Place::blackboardType, "No se ha seleccionado tipo de pizarra a imprimir.");
}

constexpr const char* unknownBrand = "No se ha conseguido validar una marca.";
constexpr const char* unknownFormat = "No se ha conseguido validar un formato de una marca.";

void checkMinimalPrices(const Draft& draft, Messages& messages) {
    for (const auto& [brand, formats] : draft.filteredSelection().brandPrices) {
        const auto* product = catalogue().product(brand);
        if (!product) {
            messages.add(Place::brands, unknownBrand);
            return;
        }
        for (const auto& [format, prices] : formats) {
            const auto* record = catalogue().format(brand, format);
            if (!record) {
                messages.add(Place::brands, unknownFormat);
                return;
            }
            if (draft.withoutPriceBeer)
                continue;
            for (const auto& [type, value] : prices) {
                if (value < record->minimalPrice)
                    messages.add(Place::prices, "El formato " + record->icon + " para la marca " +
                                                    product->name + " tiene un precio inferior al mínimo (" +
                                                    number(record->minimalPrice) + ") en el tipo de precio " +
                                                    nameOfPrice(type));
            }
        }
    }
}

} // namespace

std::vector<std::string> BrochureIntermediateData::validationErrors() const {
    std::vector<std::string> sentences;
    for (ValidationMessage& message : validationMessages())
        sentences.push_back(std::move(message.sentence));
    return sentences;
}

std::vector<ValidationMessage> BrochureIntermediateData::validationMessages() const {
    const auto kind = engine::sectionKind();
    Messages messages;
    if (!includePaperBrochure && !includeDigitalBrochure)
        messages.add(Place::outputFormat,
                     "Ha de seleccionar un formato de generación de la Carta (Impresa, Vídeo, Online)");
    if (!currentLanguages())
        messages.add(Place::languages, "Faltan por seleccionar los idiomas");
    checkNumberOfBrochures(*this, kind, messages);
    checkCustomer(customerInformation, messages);
    checkBrands(*this, kind, messages);
    checkPrintedStyle(*this, kind, messages);
    checkOnlineStyle(*this, messages);
    checkChalkboard(*this, kind, messages);
    checkMinimalPrices(*this, messages);
    return messages.take();
}

std::vector<std::string> BrochureIntermediateData::priceWarnings() const {
    std::vector<std::string> lines;
    // The shared draft is the one that is asked about.
    for (const auto& [brand, formats] : temporalBrochure()->filteredSelection().brandPrices) {
        const auto* product = catalogue().product(brand);
        if (!product)
            return {unknownBrand};
        for (const auto& [format, prices] : formats) {
            const auto* record = catalogue().format(brand, format);
            if (!record) {
                lines.emplace_back(unknownFormat);
                return lines;
            }
            for (const auto& [type, value] : prices) {
                if (record->priceMaximumAvise < value)
                    lines.push_back(product->name + " / " + record->icon + " / " + nameOfPrice(type) + " : " +
                                    number(value) + "€");
            }
        }
    }
    return lines;
}

} // namespace kavor

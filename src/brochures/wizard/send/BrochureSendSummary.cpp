#include "brochures/wizard/send/BrochureSendSummary.h"

#include "base/AppFormatter.h"
#include "brochures/engine/BrochureIntermediateData.h"
#include "brochures/wizard/StepSupport.h"
#include "catalogue/Catalogue.h"

#include <array>

namespace kavor {

namespace {

using Parameters = Brochures::Type::Parameters;

// One side of the summary: what is set, and what is missing.
struct Side {
    std::string& set;
    std::string& missing;

    void line(const std::string& text) { set += text + "\n"; }
    void warning(const std::string& text) { missing += text + "\n"; }
    void lineUnlessEmpty(const std::optional<std::string>& text) {
        if (text && !text->empty())
            line(*text);
    }
    void lineOr(const std::optional<std::string>& text, const std::string& otherwise) {
        if (text && !text->empty())
            line(*text);
        else
            warning(otherwise);
    }
};

std::string count(Int value) {
    return AppFormatter::shared().integerFormatter(value);
}

void addCustomer(Side side, const Customer& customer, const Parameters& parameters) {
    if (customer.name.empty())
        side.warning("Nombre del local no especificado");
    for (const auto& text :
         {customer.localPhone, customer.url, customer.facebook, customer.twitter, customer.instagram})
        side.lineUnlessEmpty(text);
    const std::array freeTexts{customer.freeText1, customer.freeText2, customer.freeText3};
    for (Int place = 0; place < Int(freeTexts.size()) && place < parameters.freeTextNumberOfFields; ++place)
        side.lineUnlessEmpty(freeTexts[std::size_t(place)]);
}

void addExtras(Side side, const BrochureIntermediateData& draft, const Parameters& parameters) {
    if (parameters.allowOrderSheet) {
        if (const auto* sheet = draft.currentOrderSheet())
            side.line("Comandero: " + sheet->name + " (" + sheet->reference + ")");
        else
            side.warning("Comandero: no seleccionado");
    }
    if (parameters.withPennantBrand) {
        if (const auto* pennant = draft.currentPennantBrand())
            side.set += "Banderín de marca: " + pennant->name + " \n"; // the blank before the end is meant
        else
            side.warning("Banderín de marca: no seleccionado");
    }
}

void addContact(Side side, const Customer& customer) {
    side.lineOr(customer.contact, "Nombre del cliente sin especificar");
    side.lineOr(customer.email, "Email del cliente sin especificar");
    side.lineOr(customer.telephone, "Teléfono de contacto del cliente sin especificar");
}

void addLanguages(Side side, const BrochureIntermediateData& draft, const Catalogue& catalogue) {
    const auto chosen = draft.currentLanguages();
    const auto* main = chosen ? catalogue.language(chosen->main) : nullptr;
    const auto* secondary = chosen && chosen->secondary ? catalogue.language(*chosen->secondary) : nullptr;
    side.lineOr(main ? std::optional(main->name) : std::nullopt, "Idioma principal sin especificar");
    if (secondary)
        side.line(secondary->name);
}

void addPaper(Side side, const BrochureIntermediateData& draft, const Catalogue& catalogue,
              const Parameters& parameters) {
    const auto& number = draft.selectedNumberOfBrochures;
    if (!draft.selectedLanguageIdentifiers || !number)
        side.warning("Nº de cartas sin especificar");
    else
        side.line("Nº de cartas: " + count(number->main));
    const auto second = draft.currentSecondPrice();
    if (!parameters.printSecondPrice || !second)
        return;
    const auto* price = catalogue.price(*second);
    const std::string caption = "Nº de cartas de " + (price ? price->name : std::string());
    if (number && number->secondary)
        side.line(caption + ": " + count(*number->secondary));
    else
        side.warning(caption + " sin especificar");
}

void addQrMaterial(Side side, const BrochureIntermediateData& draft) {
    if (!draft.printDigitalBrochure)
        return;
    if (draft.brandQrTypeSelected != 0) {
        side.line("Nº tacos de madera: " + count(draft.selectedQuantityQrTaco.value_or(0)));
        return;
    }
    side.line("Nº vinilos mesa: " + count(draft.selectedQuantityQr.value_or(0)));
    side.line("Nº vinilos puerta: " + count(draft.selectedQuantityQrCircular.value_or(0)));
}

void addQuantities(Side side, const BrochureIntermediateData& draft, const Catalogue& catalogue,
                   const Parameters& parameters) {
    if (!draft.includePaperBrochure && !draft.includeDigitalBrochure) {
        side.warning("Nº de unidades sin especificar");
        return;
    }
    if (draft.includePaperBrochure)
        addPaper(side, draft, catalogue, parameters);
    addQrMaterial(side, draft);
}

} // namespace

BrochureSendSummary BrochureSendSummary::of(const BrochureIntermediateData& draft,
                                            const Catalogue& catalogue) {
    BrochureSendSummary summary;
    const auto* known = sectionParameters(catalogue);
    const Parameters parameters = known ? *known : Parameters{};
    const Customer customer = draft.customerInformation.value_or(Customer{});

    const Side left{summary.orderDataInfoLeft, summary.orderDataInfoLeftWarning};
    addCustomer(left, customer, parameters);
    addExtras(left, draft, parameters);

    const Side right{summary.orderDataInfoRight, summary.orderDataInfoRightWarning};
    addContact(right, customer);
    addLanguages(right, draft, catalogue);
    addQuantities(right, draft, catalogue, parameters);
    if (parameters.withPennants && draft.withPennant)
        summary.orderDataInfoRight += "Pedido con banderines";
    return summary;
}

} // namespace kavor

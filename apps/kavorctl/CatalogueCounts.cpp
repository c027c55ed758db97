#include "CatalogueCounts.h"

#include <optional>

namespace kavor::ctl {

namespace {

// The records of a list or, with members, those of the lists that its records hold, any number of steps down.
template <class Record>
std::size_t count(const std::vector<Record>& list) {
    return list.size();
}
template <class List, class... Members>
std::size_t count(const std::optional<List>& list, Members... members) {
    return list ? count(*list, members...) : 0;
}
template <class Record, class Member, class... Deeper>
std::size_t count(const std::vector<Record>& list, Member member, Deeper... deeper) {
    std::size_t total = 0;
    for (const Record& record : list)
        total += count(record.*member, deeper...);
    return total;
}

void countPosters(CatalogueCounts& counts, const std::string& prefix, const Posters& posters) {
    using Promotion = Posters::Promotion;
    const auto& promotions = posters.promotions;
    counts.emplace_back(prefix + ".support_types", count(posters.supportTypes));
    counts.emplace_back(prefix + ".clasificaciones", count(posters.classifications));
    counts.emplace_back(prefix + ".promociones", count(promotions));
    counts.emplace_back(prefix + ".promociones.languages", count(promotions, &Promotion::languages));
    counts.emplace_back(prefix + ".promociones.supports", count(promotions, &Promotion::supports));
    counts.emplace_back(prefix + ".promociones.attributes", count(promotions, &Promotion::attributes));
    counts.emplace_back(prefix + ".promociones.attributes.values",
                        count(promotions, &Promotion::attributes, &Attribute::values));
}

void countBrands(CatalogueCounts& counts, const Brochures& brochures) {
    counts.emplace_back("cartas.product_types", count(brochures.productTypes));
    counts.emplace_back("cartas.product_types.image_tastes",
                        count(brochures.productTypes, &Brochures::ProductType::imageTastes));
    counts.emplace_back("cartas.brand_properties", count(brochures.brandProperties));
    counts.emplace_back("cartas.brand_typologies", count(brochures.brandTypologies));
    counts.emplace_back("cartas.brand_tastes", count(brochures.brandTastes));
    counts.emplace_back("cartas.brand_sub_typologies", count(brochures.brandSubTypologies));
    counts.emplace_back("cartas.brand_segments", count(brochures.brandSegments));
    counts.emplace_back("cartas.brand_ages", count(brochures.brandAges));
}

void countBrochures(CatalogueCounts& counts, const Brochures& brochures) {
    using Style = Brochures::Style;
    countBrands(counts, brochures);
    counts.emplace_back("cartas.menu_format_visualize", count(brochures.menuFormatVisualize));
    counts.emplace_back("cartas.menu_wine_format_visualize", count(brochures.menuWineFormatVisualize));
    counts.emplace_back("cartas.other_formats", count(brochures.otherFormats));
    counts.emplace_back("cartas.estilos", count(brochures.styles));
    counts.emplace_back("cartas.estilos.attributes", count(brochures.styles, &Style::attributesList));
    counts.emplace_back("cartas.estilos.attributes.values",
                        count(brochures.styles, &Style::attributesList, &Attribute::values));
    counts.emplace_back("cartas.pizarra_formato", count(brochures.blackboardFormats));
    counts.emplace_back("cartas.blackboard_type", count(brochures.blackboardTypes));
    counts.emplace_back("cartas.cartatipos", count(brochures.types));
    counts.emplace_back("cartas.comanderos", count(brochures.orderSheets));
    counts.emplace_back("cartas.pennant_brands", count(brochures.pennantBrands));
    counts.emplace_back("cartas.precios", count(brochures.prices));
    counts.emplace_back("cartas.languages", count(brochures.languages));
    counts.emplace_back("cartas.languages.ordertypes",
                        count(brochures.languages, &Brochures::Language::orderTypes));
    counts.emplace_back("cartas.bebidas", count(brochures.drinks));
    counts.emplace_back("cartas.bebidas.products", count(brochures.drinks, &Brochures::Drink::products));
    counts.emplace_back("cartas.logos", count(brochures.logos));
    counts.emplace_back("cartas.brandqrs", count(brochures.brandQrs));
    countPosters(counts, "cartas.carteleria", brochures.promotions);
}

void countActivations(CatalogueCounts& counts, const ActivationsInformation& activations) {
    using Definition = ActivationsInformation::Definition;
    const auto& brands = activations.definitionsList;
    const auto ofEach = [&](auto... members) {
        return count(brands, &Definition::activationsList, members...);
    };
    const std::string prefix = "activaciones.definiciones.activaciones";
    counts.emplace_back("activaciones.definiciones", count(brands));
    counts.emplace_back(prefix, ofEach());
    counts.emplace_back(prefix + ".atributos", ofEach(&ActivationInformation::attributesList));
    counts.emplace_back(prefix + ".items", ofEach(&ActivationInformation::itemsList));
    counts.emplace_back(prefix + ".items.images",
                        ofEach(&ActivationInformation::itemsList, &ActivationInformation::Item::imagesList));
    counts.emplace_back(prefix + ".image", ofEach(&ActivationInformation::imagesList));
}

void countTextile(CatalogueCounts& counts, const Textile& textile) {
    counts.emplace_back("textil.textil_type", count(textile.types));
    counts.emplace_back("textil.textil_model", count(textile.genders));
    counts.emplace_back("textil.textil_color", count(textile.colors));
    counts.emplace_back("textil.textil_size", count(textile.sizes));
    counts.emplace_back("textil.textil_typography", count(textile.typographies));
    counts.emplace_back("textil.textil", count(textile.items));
}

} // namespace

CatalogueCounts countsOf(const ApplicationInformation& catalogue) {
    CatalogueCounts counts;
    counts.emplace_back("maridaje", count(catalogue.pairings));
    counts.emplace_back("suggestion_mailbox_categories", count(catalogue.suggestionCategories));
    counts.emplace_back("productos", count(catalogue.products));
    counts.emplace_back("productos.productlist", count(catalogue.products, &Product::productList));
    counts.emplace_back("attribute_types", count(catalogue.attributesTypes));
    counts.emplace_back("images", count(catalogue.images));
    counts.emplace_back("manuales", count(catalogue.manuals));
    if (catalogue.brochures)
        countBrochures(counts, *catalogue.brochures);
    if (catalogue.promotion)
        countPosters(counts, "carteleria", *catalogue.promotion);
    if (catalogue.sellingSheet)
        counts.emplace_back("hoja_vendedora.estilos", count(catalogue.sellingSheet->styles));
    if (catalogue.activations)
        countActivations(counts, *catalogue.activations);
    if (catalogue.textile)
        countTextile(counts, *catalogue.textile);
    return counts;
}

} // namespace kavor::ctl

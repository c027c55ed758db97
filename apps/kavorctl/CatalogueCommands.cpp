#include "Commands.h"
#include "catalogue/ApplicationInformation.h"

#include <CLI/CLI.hpp>
#include <memory>
#include <utility>
#include <vector>

namespace kavor::ctl {

namespace {

using Counts = std::vector<std::pair<std::string, std::size_t>>;

template <class List, class Members>
std::size_t sum(const List& list, Members members) {
    std::size_t total = 0;
    for (const auto& record : list)
        total += members(record).size();
    return total;
}

void countPosters(Counts& counts, const std::string& prefix, const Posters& posters) {
    counts.emplace_back(prefix + ".support_types", posters.supportTypes.size());
    counts.emplace_back(prefix + ".clasificaciones", posters.classifications.size());
    counts.emplace_back(prefix + ".promociones", posters.promotions.size());
}

void countBrochures(Counts& counts, const Brochures& brochures) {
    counts.emplace_back("cartas.product_types", brochures.productTypes.size());
    counts.emplace_back("cartas.brand_properties", brochures.brandProperties.size());
    counts.emplace_back("cartas.brand_typologies", brochures.brandTypologies.size());
    counts.emplace_back("cartas.brand_tastes", brochures.brandTastes.size());
    counts.emplace_back("cartas.brand_sub_typologies", brochures.brandSubTypologies.size());
    counts.emplace_back("cartas.brand_segments", brochures.brandSegments.size());
    counts.emplace_back("cartas.brand_ages", brochures.brandAges.size());
    counts.emplace_back("cartas.menu_format_visualize", brochures.menuFormatVisualize.size());
    counts.emplace_back("cartas.menu_wine_format_visualize", brochures.menuWineFormatVisualize.size());
    counts.emplace_back("cartas.other_formats", brochures.otherFormats.size());
    counts.emplace_back("cartas.estilos", brochures.styles.size());
    counts.emplace_back("cartas.pizarra_formato", brochures.blackboardFormats.size());
    counts.emplace_back("cartas.blackboard_type", brochures.blackboardTypes.size());
    counts.emplace_back("cartas.cartatipos", brochures.types.size());
    counts.emplace_back("cartas.comanderos", brochures.orderSheets.size());
    counts.emplace_back("cartas.pennant_brands", brochures.pennantBrands.size());
    counts.emplace_back("cartas.precios", brochures.prices.size());
    counts.emplace_back("cartas.languages", brochures.languages.size());
    counts.emplace_back("cartas.bebidas", brochures.drinks.size());
    counts.emplace_back(
        "cartas.bebidas.products",
        sum(
            brochures.drinks, [](const auto& drink) -> const auto& { return drink.products; }));
    counts.emplace_back("cartas.logos", brochures.logos.size());
    counts.emplace_back("cartas.brandqrs", brochures.brandQrs.size());
    countPosters(counts, "cartas.carteleria", brochures.promotions);
}

void countTextile(Counts& counts, const Textile& textile) {
    counts.emplace_back("textil.textil_type", textile.types.size());
    counts.emplace_back("textil.textil_model", textile.genders.size());
    counts.emplace_back("textil.textil_color", textile.colors.size());
    counts.emplace_back("textil.textil_size", textile.sizes.size());
    counts.emplace_back("textil.textil_typography", textile.typographies.size());
    counts.emplace_back("textil.textil", textile.items.size());
}

Counts countsOf(const ApplicationInformation& catalogue) {
    Counts counts;
    counts.emplace_back("maridaje", catalogue.pairings.size());
    counts.emplace_back("suggestion_mailbox_categories", catalogue.suggestionCategories.size());
    counts.emplace_back("productos", catalogue.products.size());
    counts.emplace_back(
        "productos.productlist",
        sum(
            catalogue.products, [](const auto& brand) -> const auto& { return brand.productList; }));
    counts.emplace_back("attribute_types", catalogue.attributesTypes.size());
    counts.emplace_back("images", catalogue.images.size());
    counts.emplace_back("manuales", catalogue.manuals.size());
    if (catalogue.brochures)
        countBrochures(counts, *catalogue.brochures);
    if (catalogue.promotion)
        countPosters(counts, "carteleria", *catalogue.promotion);
    if (catalogue.sellingSheet)
        counts.emplace_back("hoja_vendedora.estilos", catalogue.sellingSheet->styles.size());
    if (catalogue.activations) {
        const auto& definitions = catalogue.activations->definitionsList;
        counts.emplace_back("activaciones.definiciones", definitions.size());
        counts.emplace_back(
            "activaciones.definiciones.activaciones",
            sum(
                definitions, [](const auto& brand) -> const auto& { return brand.activationsList; }));
    }
    if (catalogue.textile)
        countTextile(counts, *catalogue.textile);
    return counts;
}

void check(CommandContext& context, const std::string& file) {
    const Counts counts = countsOf(readRecord<ApplicationInformation>(file));
    if (!context.json) {
        for (const auto& [kind, count] : counts)
            context.out << kind << ' ' << count << '\n';
        return;
    }
    context.out << "{\n";
    for (std::size_t i = 0; i < counts.size(); ++i)
        context.out << "  \"" << counts[i].first << "\": " << counts[i].second
                    << (i + 1 < counts.size() ? ",\n" : "\n");
    context.out << "}\n";
}

void encode(CommandContext& context, const std::string& file) {
    const auto text = json::encode(readRecord<ApplicationInformation>(file));
    if (!text)
        throw CommandFailure(unreadableInput, file + ": " + text.error().text());
    context.out << *text << '\n';
}

} // namespace

void addCatalogueCommands(CLI::App& program, CommandContext& context) {
    CLI::App* group = program.add_subcommand("catalogue", "the catalogue document")->require_subcommand(1);
    const auto file = std::make_shared<std::string>();
    CLI::App* checking = group->add_subcommand("check", "decodes strictly and counts each kind of record");
    checking->add_option("FILE", *file, "a catalogue document")->required();
    checking->callback([&context, file] { check(context, *file); });
    CLI::App* encoding = group->add_subcommand("encode", "decodes and writes the document again");
    encoding->add_option("FILE", *file, "a catalogue document")->required();
    encoding->callback([&context, file] { encode(context, *file); });
}

} // namespace kavor::ctl

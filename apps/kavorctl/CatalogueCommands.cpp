#include "CatalogueCounts.h"
#include "Commands.h"
#include "OptionValues.h"

#include <CLI/CLI.hpp>
#include <memory>

namespace kavor::ctl {

namespace {

void check(CommandContext& context, const std::string& file) {
    const CatalogueCounts counts = countsOf(readRecord<ApplicationInformation>(file));
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
    withValue(checking->add_option("FILE", *file, "a catalogue document"))->required();
    checking->callback([&context, file] { check(context, *file); });
    CLI::App* encoding = group->add_subcommand("encode", "decodes and writes the document again");
    withValue(encoding->add_option("FILE", *file, "a catalogue document"))->required();
    encoding->callback([&context, file] { encode(context, *file); });
    addCatalogueFetch(*group, context);
}

} // namespace kavor::ctl

#include "Commands.h"
#include "FileSend.h"
#include "OrderInputs.h"
#include "session/AppSingleton.h"
#include "textile/TextileIntermediateData.h"

#include <CLI/CLI.hpp>
#include <memory>
#include <sstream>

namespace kavor::ctl {

namespace {

using Inputs = std::shared_ptr<OrderInputs>;

// The session of a command that needs the clothes of the catalogue; the process stops without them.
void openClothes(const OrderInputs& inputs) {
    openSession(inputs);
    static_cast<void>(TextileArticles::current().textile());
}

// A draft filled from the order file, in the section that the order names.
TextileIntermediateData textileDraft(const OrderInputs& inputs) {
    openClothes(inputs);
    const auto order = readRecord<SaveTextileOrder>(inputs.order);
    AppSingleton::shared().actualApplicationType = order.orderInformation.applicationType;
    TextileIntermediateData draft;
    draft.loadOrder(order);
    return draft;
}

template <class Record>
std::string nameOf(const Record* record) {
    return record != nullptr ? record->name : "(fuera de catálogo)";
}

void line(std::ostream& out, const std::string& caption, const std::optional<std::string>& value) {
    if (value && !value->empty())
        out << caption << ": " << *value << '\n';
}

void writeCustomer(std::ostream& out, const SaveTextileOrder::Customer& customer) {
    line(out, "Local", customer.name);
    line(out, "Código cliente", customer.tevo);
    line(out, "Contacto", customer.contactName);
    line(out, "Email", customer.email);
    line(out, "Teléfono", customer.telephone);
    const std::string code = customer.placePostalCode.value_or("");
    const std::string place = customer.placeLocality.value_or("");
    line(out, "Población", code.empty() || place.empty() ? code + place : code + " " + place);
    line(out, "Provincia", customer.placeProvinceName);
}

void writeGarments(std::ostream& out, const TextileIntermediateData& draft) {
    const TextileArticles& articles = TextileArticles::current();
    for (const auto& [item, sizes] : draft.order) {
        out << "- " << nameOf(articles.catalogue().product(item.brandIdentifier)) << ", "
            << nameOf(articles.type(item.formatIdentifier)) << ", "
            << nameOf(articles.gender(item.genderIdentifier)) << ", "
            << nameOf(articles.color(item.colorIdentifier)) << '\n';
        for (const auto& [size, quantity] : sizes) {
            const Textile::Size* known = articles.size(size);
            out << "    " << (known != nullptr ? known->code : "(fuera de catálogo)") << ": " << quantity
                << '\n';
        }
    }
}

// A summary for a reader, in Spanish: bar, text and typography, garments with their sizes.
std::string summaryOf(const SaveTextileOrder& order) {
    TextileIntermediateData draft;
    draft.loadOrder(order);
    std::ostringstream out;
    out << label(order.orderInformation.applicationType)
        << (order.filename ? " \"" + *order.filename + "\"" : "") << '\n';
    if (order.orderIdentifier)
        out << "Pedido: " << *order.orderIdentifier << '\n';
    if (order.customer)
        writeCustomer(out, *order.customer);
    line(out, "Texto", order.orderInformation.message);
    if (order.orderInformation.typographyId) {
        const auto* typography = draft.selectedTypography();
        line(out, "Tipografía", typography != nullptr ? typography->mimetype : "(fuera de catálogo)");
    }
    line(out, "Comentario", order.orderInformation.orderComment);
    writeGarments(out, draft);
    std::size_t gone = order.orderInformation.orderLines.size();
    for (const auto& each : draft.order)
        gone -= each.sizes.size();
    if (gone > 0)
        out << "Fuera de catálogo: " << gone << '\n';
    out << "Unidades: " << draft.totalUnits() << '\n';
    return out.str();
}

} // namespace

void addTextileCommands(CLI::App& program, CommandContext& context) {
    CLI::App& group = *program.add_subcommand("textile", "one order of clothing")->require_subcommand(1);
    const auto inputs = std::make_shared<OrderInputs>();
    const auto add = [&](const std::string& name, const std::string& help) {
        CLI::App* command = group.add_subcommand(name, help);
        withValue(command->add_option("FILE", inputs->order, "a textile order document"))->required();
        return command;
    };
    const auto needCatalogue = [&](CLI::App* command) {
        withValue(command->add_option("--catalogue", inputs->catalogue, "a catalogue document"))->required();
    };
    const auto needLogin = [&](CLI::App* command) {
        withValue(command->add_option("--login", inputs->login, "a login answer"))->required();
    };

    add("decode", "the order as the reader took it, written again")->callback([&context, inputs] {
        context.out << prettyText(readRecord<SaveTextileOrder>(inputs->order));
    });

    CLI::App* check = add("check", "what keeps the order from being sent, one a line");
    needCatalogue(check);
    needLogin(check);
    check->callback([&context, inputs] { printMessages(context, textileDraft(*inputs).validate()); });

    CLI::App* rebuild = add("rebuild", "fills a draft and prints its order without validation");
    needCatalogue(rebuild);
    needLogin(rebuild);
    addSaveOption(*rebuild, inputs->save);
    rebuild->callback([&context, inputs] {
        context.out << prettyText(textileDraft(*inputs).makeOrder(requestType(inputs->save), false));
    });

    CLI::App* convert = add("from-answer", "the order document of the server's answer for one order");
    needCatalogue(convert);
    convert->callback([&context, inputs] {
        openClothes(*inputs);
        context.out << prettyText(savedOrder(readRecord<RetrieveTextileOrderResponse>(inputs->order)));
    });

    CLI::App* show = add("show", "a summary to read");
    needCatalogue(show);
    show->callback([&context, inputs] {
        openClothes(*inputs);
        context.out << summaryOf(readRecord<SaveTextileOrder>(inputs->order));
    });

    const auto sending = std::make_shared<FileSendInputs>();
    CLI::App* send = group.add_subcommand("send", "sends an order; prints the server's answer");
    addFileSendOptions(*send, *sending);
    send->callback([&context, sending] {
        sendFile<KeptTextileOrder, SaveTextileOrderResponse>(
            context, *sending,
            [](NetworkManager& network, const auto& order, const auto& done, const auto& key) {
                network.createTextileOrder(order, done, key);
            });
    });
}

} // namespace kavor::ctl

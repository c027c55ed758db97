#include "Commands.h"
#include "OnlineSession.h"
#include "OptionValues.h"
#include "SheetRows.h"
#include "documents/Answers.h"
#include "network/FailureMapping.h"
#include "orders/services/SendIntent.h"
#include "sellingsheets/SheetRules.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <memory>

namespace kavor::ctl {

namespace {

struct SheetInputs {
    std::string sheet;
    std::string catalogue;
    std::string save;
    std::string intent;
    Int id = 0;
};

// The text as it stands; each message brings its own line feed.
void check(CommandContext& context, const SheetInputs& inputs) {
    const auto sheet = readRecord<SellingSheetOrder>(inputs.sheet);
    const Catalogue catalogue(readRecord<ApplicationInformation>(inputs.catalogue));
    const std::string text = validationText(sheet, catalogue);
    context.out << text;
    context.status = text.empty() ? fine : orderHasMessages;
}

void show(const CommandContext& context, const SheetInputs& inputs) {
    const auto sheet = readRecord<SellingSheetOrder>(inputs.sheet);
    std::optional<Catalogue> catalogue;
    if (!inputs.catalogue.empty())
        catalogue.emplace(readRecord<ApplicationInformation>(inputs.catalogue));
    context.out << summaryOf(sheet, catalogue ? &*catalogue : nullptr);
}

std::vector<SellingSheetOrder> fetchSheets(OnlineSession& online) {
    return online
        .await<SellingSheetOrderListResponse>(
            {QStringLiteral("Cargando las hojas"), QStringLiteral("Error en la carga de datos")},
            [&](const Completion<SellingSheetOrderListResponse>& done) {
                online.network.sellingSheetOrderList(done);
            })
        .orders;
}

void list(CommandContext& context) {
    OnlineSession online(context);
    online.requireNetwork();
    online.requireLogin();
    printRows(context, fetchSheets(online));
}

void send(const CommandContext& context, const SheetInputs& inputs) {
    auto sheet = readRecord<SellingSheetOrder>(inputs.sheet);
    const OrderRequestType type = requestType(inputs.save);
    const bool prints = type == OrderRequestType::sendToPrint;
    sheet.save = prints;
    OnlineSession online(context);
    online.requireNetwork();
    online.requireLogin();
    const QString failed = prints ? QStringLiteral("El pedido no se puede realizar")
                                  : QStringLiteral("El pedido no se puede previsualizar");
    const QByteArray key = inputs.intent.empty() ? QByteArray() : send_intent::keyOfName(inputs.intent, type);
    const auto answer = online.await<GenericOrderResponse>(
        {QStringLiteral("Enviando la hoja"), failed}, [&](const Completion<GenericOrderResponse>& done) {
            online.network.sellingSheetOrderSend(sheet, done, key);
        });
    context.out << prettyText(answer);
    if (refusalIn(answer))
        throw CommandFailure(requestFailed, failed.toStdString());
}

// The server asks for the token of the sheet, which its list tells.
void remove(const CommandContext& context, const SheetInputs& inputs) {
    OnlineSession online(context);
    online.requireNetwork();
    online.requireLogin();
    const auto sheets = fetchSheets(online);
    const auto sheet = std::ranges::find(sheets, inputs.id, &SellingSheetOrder::identifier);
    if (sheet == sheets.end())
        throw CommandFailure(unreadableInput, "no sheet of the number " + std::to_string(inputs.id));
    online.await<SimpleResponse>({QStringLiteral("Borrando la hoja"),
                                  QStringLiteral("No se ha podido cancelar el pedido en servidor.")},
                                 [&](const Completion<SimpleResponse>& done) {
                                     online.network.sellingSheetOrderDelete(
                                         sheet->identifier, QString::fromStdString(sheet->orderToken), done);
                                 });
    context.out << "Pedido cancelado correctamente\n";
}

} // namespace

void addSheetCommands(CLI::App& program, CommandContext& context) {
    CLI::App& group = *program.add_subcommand("sheet", "selling sheets")->require_subcommand(1);
    const auto inputs = std::make_shared<SheetInputs>();
    const auto add = [&](const std::string& name, const std::string& help) {
        return group.add_subcommand(name, help);
    };
    const auto needSheet = [&](CLI::App* command) {
        withValue(command->add_option("FILE", inputs->sheet, "a selling sheet document"))->required();
    };
    const auto takeCatalogue = [&](CLI::App* command) {
        return withValue(command->add_option("--catalogue", inputs->catalogue, "a catalogue document"));
    };

    CLI::App* checking = add("check", "what keeps the sheet from being stored and sent, one a line");
    needSheet(checking);
    takeCatalogue(checking)->required();
    checking->callback([&context, inputs] { check(context, *inputs); });

    CLI::App* decoding = add("decode", "the sheet as the reader took it, written again");
    needSheet(decoding);
    decoding->callback(
        [&context, inputs] { context.out << prettyText(readRecord<SellingSheetOrder>(inputs->sheet)); });

    CLI::App* showing = add("show", "a summary of the sheet, in Spanish");
    needSheet(showing);
    takeCatalogue(showing);
    showing->callback([&context, inputs] { show(context, *inputs); });

    add("list", "the sheets that the server has")->callback([&context] { list(context); });

    CLI::App* sending = add("send", "sends a sheet; prints the server's answer");
    needSheet(sending);
    sending->add_option("--save", inputs->save, "what the server is to do with the sheet")
        ->required()
        ->check(CLI::IsMember({"print", "preview"}));
    withValue(sending->add_option("--intent", inputs->intent,
                                  "a name for what is meant: repeated under it, the sheet is ordered once"));
    sending->callback([&context, inputs] { send(context, *inputs); });

    CLI::App* deleting = add("delete", "deletes a sheet that the server has");
    deleting->add_option("ID", inputs->id, "the sheet's number")->required();
    deleting->callback([&context, inputs] { remove(context, *inputs); });
}

} // namespace kavor::ctl

#include "Commands.h"
#include "OnlineSession.h"
#include "OptionValues.h"
#include "PromotionRows.h"
#include "documents/Answers.h"
#include "orders/services/SendIntent.h"
#include "promotions/PromotionDraft.h"
#include "promotions/PromotionGallery.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <memory>

namespace kavor::ctl {

namespace {

struct PromotionInputs {
    std::string order;
    std::string catalogue;
    std::string login;
    std::string save;
    std::string intent;
    bool menu = false;
    std::optional<Int> brand;
    std::optional<Int> classification;
};

std::shared_ptr<const Catalogue> readCatalogue(const PromotionInputs& inputs) {
    return std::make_shared<const Catalogue>(readRecord<ApplicationInformation>(inputs.catalogue));
}

std::optional<std::string> nameOf(const PromotionGallery& gallery, std::optional<Int> classification) {
    const auto& all = gallery.classifications();
    const auto found = std::ranges::find_if(
        all, [&](const Posters::Classification* each) { return each->identifier == classification; });
    return found == all.end() ? std::nullopt : std::optional((*found)->name);
}

PromotionRow rowOf(const PromotionGallery& gallery, const PromotionTuple& promotion) {
    return {promotion.identifier, promotion.language ? std::optional(promotion.language->id) : std::nullopt,
            std::string(promotion.promotionName), std::string(promotion.brandName),
            nameOf(gallery, promotion.classificationIdentifier)};
}

void list(CommandContext& context, const PromotionInputs& inputs) {
    const auto catalogue = readCatalogue(inputs);
    const auto gallery =
        inputs.menu ? PromotionGallery::ofMenu(catalogue, {}) : PromotionGallery::ofSection(catalogue);
    std::vector<PromotionRow> rows;
    for (const std::size_t place : gallery.visiblePromotions(inputs.classification, inputs.brand))
        rows.push_back(rowOf(gallery, gallery.unfilteredPromotions()[place]));
    printRows(context, rows);
}

// The attributes of the order's promotion, in whichever of the two lists it stands.
std::vector<Attribute> attributesOf(const PromotionInputs& inputs, const Catalogue& catalogue,
                                    Int promotion) {
    const auto& information = catalogue.information();
    std::vector<const Posters*> lists;
    if (information.promotion)
        lists.push_back(&*information.promotion);
    if (information.brochures)
        lists.push_back(&information.brochures->promotions);
    for (const Posters* each : lists) {
        const auto found = std::ranges::find(each->promotions, promotion, &Posters::Promotion::id);
        if (found != each->promotions.end())
            return found->attributes;
    }
    throw CommandFailure(unreadableInput, inputs.order + ": promotion_id: the catalogue has no promotion " +
                                              std::to_string(promotion));
}

void check(CommandContext& context, const PromotionInputs& inputs) {
    const auto order = readRecord<PromotionOrder>(inputs.order);
    const auto catalogue = readCatalogue(inputs);
    const auto login = readRecord<LoginResult>(inputs.login);
    const auto attributes = attributesOf(inputs, *catalogue, order.promotionId);
    printMessages(context, promotionErrors(order, attributes, login.customerCodeRequired.value_or(false)));
}

void send(CommandContext& context, const PromotionInputs& inputs) {
    auto order = readRecord<PromotionOrder>(inputs.order);
    const OrderRequestType type = requestType(inputs.save);
    const bool prints = type == OrderRequestType::sendToPrint;
    order.save = prints;
    OnlineSession online(context);
    online.requireNetwork();
    online.requireLogin();
    const QString failed = prints ? QStringLiteral("El pedido no se puede generar")
                                  : QStringLiteral("El pedido no se puede previsualizar");
    const QByteArray key = inputs.intent.empty() ? QByteArray() : send_intent::keyOfName(inputs.intent, type);
    const auto answer = online.await<GenericOrderResponse>(
        {QStringLiteral("Enviando el pedido"), failed}, [&](const Completion<GenericOrderResponse>& done) {
            online.network.promotionOrderSend(order, done, key);
        });
    context.out << prettyText(answer);
    if (answer.errors && !answer.errors->empty()) // said with a status that means success
        throw CommandFailure(requestFailed, failed.toStdString());
}

} // namespace

void addPromotionCommands(CLI::App& program, CommandContext& context) {
    CLI::App& group =
        *program.add_subcommand("promotion", "promotions and their orders")->require_subcommand(1);
    const auto inputs = std::make_shared<PromotionInputs>();
    const auto add = [&](const std::string& name, const std::string& help) {
        return group.add_subcommand(name, help);
    };
    const auto needOrder = [&](CLI::App* command) {
        withValue(command->add_option("FILE", inputs->order, "a promotion order document"))->required();
    };
    const auto needCatalogue = [&](CLI::App* command) {
        withValue(command->add_option("--catalogue", inputs->catalogue, "a catalogue document"))->required();
    };

    CLI::App* listing = add("list", "the promotions on offer, one for each of their languages");
    needCatalogue(listing);
    listing->add_flag("--menu", inputs->menu, "those that a menu may take along, each once");
    listing->add_option("--brand", inputs->brand, "only those of the brand of this number");
    listing->add_option("--classification", inputs->classification,
                        "only those of the classification of this number");
    listing->callback([&context, inputs] { list(context, *inputs); });

    CLI::App* checking = add("check", "what keeps the order from being sent, one a line");
    needOrder(checking);
    needCatalogue(checking);
    withValue(checking->add_option("--login", inputs->login, "a login answer"))->required();
    checking->callback([&context, inputs] { check(context, *inputs); });

    CLI::App* decoding = add("decode", "the order as the reader took it, written again");
    needOrder(decoding);
    decoding->callback(
        [&context, inputs] { context.out << prettyText(readRecord<PromotionOrder>(inputs->order)); });

    CLI::App* sending = add("send", "sends an order; prints the server's answer");
    needOrder(sending);
    sending->add_option("--save", inputs->save, "what the server is to do with the order")
        ->required()
        ->check(CLI::IsMember({"print", "preview"}));
    withValue(sending->add_option("--intent", inputs->intent,
                                  "a name for what is meant: repeated under it, the order is placed once"));
    sending->callback([&context, inputs] { send(context, *inputs); });
}

} // namespace kavor::ctl

#include "Commands.h"
#include "OnlineSession.h"
#include "OptionValues.h"
#include "documents/Answers.h"
#include "interaction/QtText.h"

#include <CLI/CLI.hpp>
#include <memory>

namespace kavor::ctl {

namespace {

void claim(const CommandContext& context, Int order, const std::string& text) {
    OnlineSession online(context);
    online.requireNetwork();
    online.requireLogin();
    const auto answer = online.await<MessageResponse>(
        {QStringLiteral("Enviando la reclamación"), QStringLiteral("Incidencia")},
        [&](const Completion<MessageResponse>& done) {
            online.network.claimOrder(order, fromUtf8(text), done);
        });
    context.out << answer.msg << '\n';
}

} // namespace

void addOrderClaim(CLI::App& group, CommandContext& context) {
    const auto order = std::make_shared<Int>();
    const auto text = std::make_shared<std::string>();
    CLI::App* claiming = group.add_subcommand("claim", "files a claim about a sent order");
    claiming->add_option("ID", *order, "the order's number at the server")->required();
    withText(claiming->add_option("TEXT", *text, "the claim"))->required();
    claiming->callback([&context, order, text] { claim(context, *order, *text); });
}

} // namespace kavor::ctl

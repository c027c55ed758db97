#include "Commands.h"
#include "OnlineSession.h"
#include "OptionValues.h"
#include "account/UserProfile.h"
#include "documents/Answers.h"
#include "interaction/QtText.h"

#include <CLI/CLI.hpp>
#include <memory>
#include <optional>

namespace kavor::ctl {

namespace {

using User = UserProfile::User;

struct Line {
    const char* label;
    std::optional<std::string> User::*text;
};

constexpr Line lines[] = {{"Nombre", &User::name},
                          {"Perfil", &User::profile},
                          {"Tipo", &User::type},
                          {"Delegación", &User::delegation},
                          {"Zona", &User::zone},
                          {"Correo", &User::email},
                          {"Teléfono", &User::phoneNumber},
                          {"Dirección", &User::firstDirection},
                          {"Dirección (continuación)", &User::secondDirection},
                          {"Código postal", &User::postalCode},
                          {"Municipio", &User::municipality},
                          {"Provincia", &User::province},
                          {"Editar", &User::editUrl}};

void printBudget(std::ostream& out, const char* title, const std::string& initial,
                 const std::string& available, const std::string& orders) {
    out << title << ": " << available << " de " << initial << ", " << orders
        << (orders == "1" ? " pedido\n" : " pedidos\n");
}

void printProfile(const CommandContext& context, const UserProfile& profile) {
    if (context.json) {
        context.out << prettyText(profile);
        return;
    }
    const User& user = profile.user;
    for (const Line& line : lines) {
        if (const auto& text = user.*line.text; text && !text->empty())
            context.out << line.label << ": " << *text << '\n';
    }
    printBudget(context.out, "Cartas", user.brochuresInitialBudget, user.brochuresAvailableBudget,
                user.brochureOrdersDone);
    printBudget(context.out, "Textil", user.textileInitialBudget, user.textileAvailableBudget,
                user.textileOrdersDone);
}

void profile(const CommandContext& context) {
    OnlineSession online(context);
    online.requireNetwork();
    online.requireLogin();
    printProfile(context,
                 online.await<UserProfile>(
                     {QStringLiteral("Consultando el perfil"), QStringLiteral("Incidencia")},
                     [&](const Completion<UserProfile>& done) { online.network.profileInformation(done); }));
}

void suggest(const CommandContext& context, Int category, const std::string& text) {
    OnlineSession online(context);
    online.requireNetwork();
    online.requireLogin();
    const auto answer = online.await<MessageResponse>(
        {QStringLiteral("Enviando la sugerencia"), QStringLiteral("Incidencia")},
        [&](const Completion<MessageResponse>& done) {
            online.network.suggestionMailboxAdd(category, fromUtf8(text), done);
        });
    context.out << answer.msg << '\n';
}

} // namespace

void addAccountCommands(CLI::App& program, CommandContext& context) {
    program.add_subcommand("profile", "who the server says that the user is, and the budgets")
        ->callback([&context] { profile(context); });
    const auto category = std::make_shared<Int>();
    const auto text = std::make_shared<std::string>();
    CLI::App* suggesting = program.add_subcommand("suggest", "sends a suggestion to the programme");
    suggesting->add_option("--category", *category, "the number of a category of the catalogue")->required();
    withText(suggesting->add_option("TEXT", *text, "the suggestion"))->required();
    suggesting->callback([&context, category, text] { suggest(context, *category, *text); });
}

} // namespace kavor::ctl

#include "Commands.h"
#include "OnlineSession.h"
#include "OptionValues.h"

#include <CLI/CLI.hpp>

namespace kavor::ctl {

namespace {

void logIn(const CommandContext& context, const std::string& account) {
    OnlineSession online(context);
    online.requireNetwork();
    online.logIn(account);
    context.out << "Sesión iniciada: " << account << '\n';
}

void logOut(const CommandContext& context) {
    OnlineSession online(context);
    online.auth.deleteCredentials();
    if (online.auth.readCredentials())
        throw CommandFailure(requestFailed, "kavorctl: the credential could not be removed");
    context.out << "Sesión cerrada.\n";
}

} // namespace

void addSessionCommands(CLI::App& program, CommandContext& context) {
    const auto account = std::make_shared<std::string>();
    CLI::App* login =
        program.add_subcommand("login", "logs in; the password comes from the terminal or standard input");
    withValue(login->add_option("ACCOUNT", *account, "the login name"))->required();
    login->callback([&context, account] { logIn(context, *account); });
    program.add_subcommand("logout", "forgets the credential")->callback([&context] { logOut(context); });
}

} // namespace kavor::ctl

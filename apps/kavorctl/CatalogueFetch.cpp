#include "Commands.h"
#include "OnlineSession.h"
#include "OptionValues.h"
#include "base/NotificationCenter.h"
#include "catalogue/Catalogue.h"
#include "shell/StateFile.h"

#include <CLI/CLI.hpp>

namespace kavor::ctl {

namespace {

// The update of the client's dashboard, to its end. Without a catalogue on the disk the pictures are not
// waited for; answers whether it stands there.
bool update(OnlineSession& online, std::ostream& err) {
    bool stored = false;
    QEventLoop loop;
    Progress progress(err, QLatin1String(CatalogueUpdate::updatingText));
    QObject::connect(&online.catalogue, &CatalogueUpdate::progressChanged, &loop,
                     [&](double, const QString& text) { progress.show(text); });
    QObject::connect(&online.catalogue, &CatalogueUpdate::failed, &loop, &QEventLoop::quit);
    // Queued: the catalogue goes into the session and to the disk after this signal.
    QObject::connect(
        &online.catalogue, &CatalogueUpdate::catalogueArrived, &loop,
        [&] {
            online.sessions.flush();
            stored =
                online.isStored(state_file::applicationInformation, online.session.catalogue().information());
            if (!stored)
                loop.quit();
        },
        Qt::QueuedConnection);
    const auto end = NotificationCenter::shared().observe(notification::updatingResourcesDidEnd,
                                                          [&](const NotificationInfo&) { loop.quit(); });
    online.catalogue.start();
    loop.exec();
    return stored;
}

void fetch(const CommandContext& context, const std::string& account) {
    OnlineSession online(context);
    online.requireNetwork();
    if (account.empty())
        online.requireLogin();
    else
        online.logIn(account);
    const bool stored = update(online, context.err);
    if (const auto& failure = online.network.catalogueFailure)
        throw requestFailure(QStringLiteral("Error de conexión con el servidor"), *failure);
    if (!stored)
        throw CommandFailure(requestFailed, "kavorctl: the catalogue could not be stored");
    context.out << "Catálogo actualizado: " << online.session.catalogue().information().products.size()
                << " marcas\n";
}

} // namespace

void addCatalogueFetch(CLI::App& group, CommandContext& context) {
    const auto account = std::make_shared<std::string>();
    CLI::App* command =
        group.add_subcommand("fetch", "fetches and stores the catalogue, its pictures and fonts");
    withValue(command->add_option("--account", *account, "log in first with this name"));
    command->callback([&context, account] { fetch(context, *account); });
}

} // namespace kavor::ctl

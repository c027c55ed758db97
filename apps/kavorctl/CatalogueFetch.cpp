#include "Commands.h"
#include "OnlineSession.h"
#include "OptionValues.h"
#include "base/AtomicFile.h"
#include "base/NotificationCenter.h"
#include "catalogue/Catalogue.h"
#include "session/StateFile.h"

#include <CLI/CLI.hpp>

namespace kavor::ctl {

namespace {

// The update of the client's dashboard to its end, and that of what it leaves in the background.
class Fetch {
public:
    Fetch(OnlineSession& online, std::ostream& err)
        : online_(online)
        , progress_(err, QLatin1String(CatalogueUpdate::updatingText))
        , err_(err) {
        QObject::connect(&online.catalogue, &CatalogueUpdate::progressChanged, &loop_,
                         [this](double, const QString& text) { progress_.show(text); });
        QObject::connect(&online.catalogue, &CatalogueUpdate::failed, &loop_,
                         [this](const RequestFailure& failure) {
                             failure_ = failure;
                             loop_.quit();
                         });
        // Queued: the catalogue goes into the session and to the disk after this signal.
        QObject::connect(
            &online.catalogue, &CatalogueUpdate::catalogueArrived, &loop_, [this] { store(); },
            Qt::QueuedConnection);
        QObject::connect(&online.images, &ImageCache::fetchFailed, &loop_,
                         [this](const QUrl& url, const QString& reason) {
                             tell(url.toString().toStdString() + ": " + reason.toStdString());
                         });
        QObject::connect(&online.resources, &ResourceUpdateRun::picturesEnded, &loop_, [this] { endOne(); });
    }

    void run() {
        const auto end = NotificationCenter::shared().observe(notification::updatingResourcesDidEnd,
                                                              [this](const NotificationInfo&) { endOne(); });
        online_.catalogue.start();
        loop_.exec();
    }

    // Why the catalogue did not come.
    [[nodiscard]] const std::optional<RequestFailure>& failure() const { return failure_; }
    // Whether the catalogue stands on the disk.
    [[nodiscard]] bool isStored() const { return stored_; }
    // How many resources were not to be had; each has been told.
    [[nodiscard]] int failures() const { return failures_; }

private:
    // Without a catalogue on the disk the pictures are not waited for.
    void store() {
        online_.sessions->flush();
        stored_ =
            online_.isStored(state_file::applicationInformation, online_.session.catalogue().information());
        if (!stored_)
            loop_.quit();
    }

    // The pictures and the fonts end by themselves.
    void endOne() {
        if (--unfinished_ > 0) {
            progress_.show(QStringLiteral("Descargando los demás recursos"));
            return;
        }
        tellMissingFonts();
        loop_.quit();
    }

    void tellMissingFonts() {
        const auto& textile = online_.session.catalogue().information().textile;
        if (!textile)
            return;
        for (const auto& typography : textile->typographies) {
            const auto file = atomic_file::child(online_.fontUpdater.folder(), typography.filename);
            std::error_code error;
            if (!file || !std::filesystem::exists(*file, error))
                tell(typography.fontURL.text + ": " + typography.mimetype);
        }
    }

    void tell(const std::string& line) {
        ++failures_;
        progress_.around([&] { err_ << line << std::endl; });
    }

    OnlineSession& online_;
    QEventLoop loop_;
    Progress progress_;
    std::ostream& err_;
    std::optional<RequestFailure> failure_;
    bool stored_ = false;
    int failures_ = 0;
    int unfinished_ = 2;
};

void fetch(CommandContext& context, const std::string& account) {
    OnlineSession online(context);
    online.requireNetwork();
    if (account.empty())
        online.requireLogin();
    else
        online.logIn(account);
    std::optional<Fetch> run(std::in_place, online, context.err);
    run->run();
    const bool stored = run->isStored();
    const int failures = run->failures();
    const auto failure = run->failure();
    run.reset();
    if (failure)
        throw requestFailure(QStringLiteral("Error de conexión con el servidor"), *failure);
    if (!stored)
        throw CommandFailure(requestFailed, "kavorctl: the catalogue could not be stored");
    context.out << "Catálogo actualizado: " << online.session.catalogue().information().products.size()
                << " marcas\n";
    if (failures == 0)
        return;
    context.status = requestFailed;
    context.err << "kavorctl: resources that could not be had: " << failures << '\n';
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

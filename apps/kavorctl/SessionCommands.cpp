#include "Commands.h"
#include "OnlineSession.h"
#include "OrderInputs.h"
#include "OrderRowOutput.h"
#include "base/NotificationCenter.h"
#include "brochures/engine/SaveBrochuresOrder.h"
#include "device/BackgroundTasks.h"
#include "device/LocalNotifications.h"
#include "orders/DraftOrderRows.h"
#include "orders/services/OrderSyncManager.h"
#include "shell/AppSingleton.h"

#include <unistd.h>

#include <CLI/CLI.hpp>
#include <iostream>

namespace kavor::ctl {

namespace {

// Local notifications as lines of text.
class PrintedNotifications : public LocalNotifications {
public:
    explicit PrintedNotifications(std::ostream& out)
        : out_(out) {}
    void requestAuthorization(std::function<void(bool)> callback) override { callback(true); }
    [[nodiscard]] bool isAuthorized() const override { return true; }
    void post(const LocalNotification& notification) override {
        out_ << notification.title.toStdString() << ": " << notification.body.toStdString() << '\n';
    }
    void registerCategory(const QString&, const QList<NotificationAction>&) override {}

private:
    std::ostream& out_;
};

// The operating system's own scheduler plans the runs of kavorctl.
class NoBackgroundTasks : public BackgroundTasks {
public:
    void registerHandler(const QString&, Handler) override {}
    std::optional<QString> submit(const BackgroundRequest&) override { return std::nullopt; }
    void cancel(const QString&) override {}
    void cancelAll() override {}
};

void logIn(const CommandContext& context, const std::string& account) {
    OnlineSession online(context);
    online.logIn(QString::fromStdString(account), QString::fromStdString(readPassword(context.err)));
    context.out << "Sesión iniciada: " << account << '\n';
}

void logOut(const CommandContext& context) {
    OnlineSession online(context);
    online.auth.deleteCredentials();
    context.out << "Sesión cerrada.\n";
}

// Shows the steps of a longer run, in place where a person looks on.
class Progress {
public:
    explicit Progress(std::ostream& out)
        : out_(out) {}
    void show(const QString& text) {
        if (!terminal_ || text.isEmpty())
            return;
        out_ << '\r' << text.toStdString() << "\x1b[K" << std::flush;
        shown_ = true;
    }
    ~Progress() {
        if (shown_)
            out_ << '\n';
    }

private:
    std::ostream& out_;
    bool terminal_ = ::isatty(STDERR_FILENO) != 0;
    bool shown_ = false;
};

void fetchCatalogue(const CommandContext& context, const std::string& account) {
    OnlineSession online(context);
    if (account.empty())
        online.requireLogin();
    else
        online.logIn(QString::fromStdString(account), QString::fromStdString(readPassword(context.err)));
    QEventLoop loop;
    std::optional<QStringList> failure;
    Progress progress(context.err);
    QObject::connect(&online.catalogue, &CatalogueUpdate::progressChanged, &loop,
                     [&](double, const QString& text) { progress.show(text); });
    QObject::connect(&online.catalogue, &CatalogueUpdate::failed, &loop, [&](const QStringList& messages) {
        failure = messages;
        loop.quit();
    });
    const auto end = NotificationCenter::shared().observe(notification::updatingResourcesDidEnd,
                                                          [&](const NotificationInfo&) { loop.quit(); });
    progress.show(QLatin1String(CatalogueUpdate::updatingText));
    online.catalogue.start();
    loop.exec();
    online.sessions.flush();
    if (failure)
        throw CommandFailure(1, "Error de conexión con el servidor.: " +
                                    failure->join(QLatin1Char('\n')).toStdString());
    context.out << "Catálogo actualizado: " << online.session.catalogue().information().products.size()
                << " marcas\n";
}

void sendOrder(const CommandContext& context, const OrderInputs& inputs) {
    auto order = readRecord<SaveBrochuresOrder>(inputs.order);
    order.save = requestType(inputs.save);
    OnlineSession online(context);
    online.requireLogin();
    const QString title =
        order.save == OrderRequestType::sendToPrint   ? QStringLiteral("El pedido no se puede realizar")
        : order.save == OrderRequestType::sendPreview ? QStringLiteral("El pedido no se puede previsualizar")
                                                      : QStringLiteral("El pedido no se puede sincronizar");
    const auto answer = online.await<SaveBrochuresOrderResponse>(
        title,
        [&](const Completion<SaveBrochuresOrderResponse>& done) { online.network.saveOrder(order, done); });
    context.out << prettyText(answer);
}

void listOrders(CommandContext& context) {
    OnlineSession online(context);
    DraftOrderRows rows;
    rows.rebuildLocalRows(online.orders);
    if (!online.network.isReachable()) {
        context.err << "Sólo se muestran pedidos guardados localmente.\n";
    } else {
        online.requireLogin();
        const OrderListFilter filter{{}, {}, {}, 0, 0, 0, true};
        rows.applyAnswer(
            online.await<OrderList>(QStringLiteral("Incidencia"), [&](const Completion<OrderList>& done) {
                online.network.retrieveBrochureOrderList(filter, done);
            }));
        rows.sortSentOrders();
    }
    printRows(context, rows);
}

void synchronise(const CommandContext& context) {
    OnlineSession online(context);
    online.requireLogin();
    PrintedNotifications notifications(context.out);
    NoBackgroundTasks tasks;
    OrderSyncManager manager({online.network, online.orders, notifications, NotificationCenter::shared(),
                              tasks, online.clock, [] {}, [] {}, [] {}});
    QEventLoop loop;
    // A notification follows its answer by a second.
    QObject::connect(&manager, &OrderSyncManager::runAnswered, &loop, [&] {
        online.clock.after(std::chrono::milliseconds(1100), &loop, [&] { loop.quit(); });
    });
    const auto task =
        std::make_shared<BackgroundTask>(QLatin1String(OrderSyncManager::taskIdentifier), [](bool) {});
    manager.handleBrochureSync(task);
    loop.exec();
    task->expire();
}

} // namespace

void addSessionCommands(CLI::App& program, CommandContext& context) {
    const auto account = std::make_shared<std::string>();
    CLI::App* login =
        program.add_subcommand("login", "logs in; the password comes from the terminal or standard input");
    login->add_option("ACCOUNT", *account, "the login name")->required();
    login->callback([&context, account] { logIn(context, *account); });
    program.add_subcommand("logout", "forgets the credential")->callback([&context] { logOut(context); });
    program.add_subcommand("sync", "one background run: up to two drafts that never reached the server")
        ->callback([&context] { synchronise(context); });

    CLI::App* fetch =
        program.get_subcommand("catalogue")
            ->add_subcommand("fetch", "fetches and stores the catalogue, its pictures and fonts");
    fetch->add_option("--account", *account, "log in first with this name");
    fetch->callback([&context, account] { fetchCatalogue(context, *account); });

    const auto inputs = std::make_shared<OrderInputs>();
    CLI::App* send =
        program.get_subcommand("order")->add_subcommand("send", "sends an order; prints the server's answer");
    send->add_option("FILE", inputs->order, "an order document")->required();
    send->add_option("--save", inputs->save, "what the server is to do with the order")
        ->required()
        ->check(CLI::IsMember({"print", "preview", "cloud"}));
    send->callback([&context, inputs] { sendOrder(context, *inputs); });

    program.get_subcommand("orders")
        ->add_subcommand("list", "the device's files and the server's orders, merged")
        ->callback([&context] { listOrders(context); });
}

} // namespace kavor::ctl

#include "orders/screens/OrderRowActions.h"

#include "brochures/engine/OrderToEdit.h"
#include "catalogue/Catalogue.h"
#include "device/Clock.h"
#include "device/UrlOpener.h"
#include "interaction/QtText.h"
#include "interaction/Questions.h"
#include "network/ShowRequestFailure.h"
#include "orders/DraftsWithChanges.h"
#include "orders/services/FiledOrderRoad.h"
#include "session/AppSingleton.h"
#include "shell/WelcomeOptions.h"
#include "textile/UnfinishedTextile.h"

#include <QPointer>

#include <algorithm>
#include <utility>

namespace kavor {

namespace {

using Result = OrderActions::Sending::Result;
using Version = OrderActions::Version;

bool isSent(const OrderActions::Sending& sending) {
    return sending.result == Result::Sent || sending.result == Result::FileStays;
}

} // namespace

OrderRowActions::OrderRowActions(const OrderListServices& services, OrderListBoard& board)
    : services_(services)
    , board_(board) {}

OrderRowActions::~OrderRowActions() {
    if (undo_)
        services_.actions.forget(*undo_);
}

// ---- Edit

void OrderRowActions::askToEdit(const QString& key) {
    const DraftOrderRow* row = board_.rows().find(key.toStdString());
    if (!row)
        return;
    const QString question = QStringLiteral("¿Deseas editar el pedido \"") + fromUtf8(row->filename) +
                             QStringLiteral("\"? (Si en estos momentos estás tramitado otro pedido es "
                                            "importante “Guardar” ya que sus datos se perderían al editar "
                                            "éste.)");
    ask(services_.alerts, this, QStringLiteral("Atención"), question,
        {no(), yes([this, key = key.toStdString()] { edit(key); })});
}

void OrderRowActions::edit(const std::string& key) {
    const DraftOrderRow* row = board_.rows().find(key);
    if (!row || !canOpen(*row))
        return;
    const bool isOnDevice =
        row->syncState == OrderSyncState::savedLocally || row->syncState == OrderSyncState::pendingToSend;
    if (isOnDevice)
        return fetchToEdit(*row, Version::Device);
    const auto file = row->file();
    if (row->syncState == OrderSyncState::synced && file &&
        DraftsWithChanges::shared().names().contains(nameOfChanged(file->kind, file->plainName)))
        return askForVersion(*row);
    fetchToEdit(*row, Version::Server);
}

// Whether its section can show the row at all; otherwise the user hears why not.
bool OrderRowActions::canOpen(const DraftOrderRow& row) {
    const auto tell = [this](const char* text) {
        services_.alerts.inform(QStringLiteral("Atención"), QString::fromUtf8(text), this);
        return false;
    };
    const auto file = row.file();
    if (file && services_.actions.isBeingSent(*file))
        return tell("El pedido se está enviando.");
    if (!board_.hasSession()) {
        board_.tellOldCatalogue();
        return false;
    }
    return isInCatalogue(row.sectionIdentifier) || tell("Este tipo de pedido ya no está en el catálogo.");
}

bool OrderRowActions::isInCatalogue(const SectionIdentifier& section) const {
    const Catalogue& catalogue = services_.session.catalogue();
    const auto kind = section.brochureType();
    if (!kind)
        return catalogue.information().textile.has_value();
    const auto* type = catalogue.brochureType(*kind);
    return type && type->parameters;
}

void OrderRowActions::askForVersion(const DraftOrderRow& row) {
    const auto choose = [this, key = row.key()](Version version) {
        return [this, key, version] {
            if (const DraftOrderRow* found = board_.rows().find(key))
                fetchToEdit(*found, version);
        };
    };
    ask(services_.alerts, this, QStringLiteral("Atención"), QStringLiteral("¿Qué versión quieres abrir?"),
        {{QStringLiteral("Cancelar"), AlertButton::Role::Cancel, {}},
         {QStringLiteral("La del dispositivo"), AlertButton::Role::Normal, choose(Version::Device)},
         {QStringLiteral("La de la nube"), AlertButton::Role::Normal, choose(Version::Server)}});
}

void OrderRowActions::fetchToEdit(const DraftOrderRow& row, Version version) {
    if (version == Version::Server && board_.isOffline())
        return services_.alerts.inform(QStringLiteral("Sin conexión a internet"),
                                       QStringLiteral("Se necesita conexión para descargar el pedido."),
                                       this);
    const QPointer<QObject> run = board_.beginWait(QStringLiteral("Abriendo el pedido…"));
    const auto take = [this, run, row](const auto& answer) {
        if (run) // else nobody waits for it any more
            fetched(row, answer);
    };
    if (row.sectionIdentifier.brochureType())
        services_.actions.fetchToEdit(row, version, take);
    else
        services_.actions.fetchTextileToEdit(row, version, take);
}

template <class ToEdit>
void OrderRowActions::fetched(const DraftOrderRow& row, const OrderActions::Fetched<ToEdit>& fetched) {
    board_.endWait();
    if (fetched.value)
        return open(row, *fetched.value);
    if (!fetched.failure || !fetched.failure->error.updateNeeded)
        return services_.alerts.inform(QStringLiteral("Incidencia"),
                                       QStringLiteral("El pedido no se puede cargar de servidor"), this);
    board_.tellFailure(*fetched.failure, {}, {});
}

void OrderRowActions::open(const DraftOrderRow& row, const OrderToEdit& toEdit) {
    if (!canOpen(row))
        return;
    enterSection(row);
    openOrder(toEdit);
    board_.cover(ways_.wizard);
}

void OrderRowActions::open(const DraftOrderRow& row, const TextileOrderToEdit& toEdit) {
    if (!canOpen(row))
        return;
    enterSection(row);
    UnfinishedTextile::shared().open(toEdit);
    board_.cover(ways_.textile);
    const auto isGone = [this](const auto& line) {
        return !services_.session.catalogue().textileItem(line.textileId);
    };
    if (std::ranges::any_of(toEdit.order.orderInformation.orderLines, isGone))
        services_.alerts.inform(QStringLiteral("Atención"),
                                QStringLiteral("Algunos artículos del pedido ya no están en el catálogo y se "
                                               "han quitado."));
}

// Section and application type stand before anything is loaded: the draft's rules look at them.
void OrderRowActions::enterSection(const DraftOrderRow& row) {
    services_.session.actualSection = row.sectionIdentifier;
    services_.session.actualApplicationType = applicationTypeOf(row.sectionIdentifier);
}

// ---- Send

void OrderRowActions::send(const QString& key) {
    const DraftOrderRow* row = board_.rows().find(key.toStdString());
    const auto file = row ? row->file() : std::nullopt;
    if (!file)
        return;
    if (board_.isOffline())
        return services_.alerts.inform(QStringLiteral("No se ha podido enviar el pedido"),
                                       QStringLiteral("Sin conexión a internet"), this);
    if (!board_.hasSession())
        return board_.tellOldCatalogue();
    const QPointer<QObject> run = board_.beginWait(QStringLiteral("Enviando el pedido…"));
    services_.actions.send(*file, [self = QPointer(this), &alerts = services_.alerts, run,
                                   key = key.toStdString()](const OrderActions::Sending& sending) {
        if (isSent(sending)) // whoever is there: the order left the device
            tellSent(alerts, sending);
        if (self)
            self->sent(key, sending, !run.isNull());
    });
}

void OrderRowActions::tellSent(AlertPresenter& alerts, const OrderActions::Sending& sending) {
    alerts.inform(QStringLiteral("Enviado"),
                  sending.result == Result::Sent
                      ? QStringLiteral("Pedido realizado correctamente.")
                      : QStringLiteral("El pedido se ha enviado correctamente pero no se ha podido borrar "
                                       "del dispositivo."));
}

void OrderRowActions::sent(const std::string& key, const OrderActions::Sending& sending, bool isAwaited) {
    if (isAwaited)
        board_.endWait();
    if (board_.isCovered() || !isAwaited) // the row says what became of it
        return;
    if (isSent(sending) || sending.result == Result::Gone)
        return board_.load();
    if (sending.result != Result::Failed)
        return;
    board_.tellFailure(
        *sending.failure, QStringLiteral("El pedido no se puede realizar"),
        {{QStringLiteral("Editar pedido"), AlertButton::Role::Normal, [this, key] { edit(key); }},
         {QStringLiteral("Cancelar"), AlertButton::Role::Cancel, {}}});
}

void OrderRowActions::sendAll() {
    const auto files = board_.waitingFiles();
    if (files.empty())
        return;
    if (board_.isOffline())
        return services_.alerts.inform(QStringLiteral("No se ha podido enviar el pedido"),
                                       QStringLiteral("Sin conexión a internet"), this);
    if (!board_.hasSession())
        return board_.tellOldCatalogue();
    const int count = int(files.size());
    const QPointer<QObject> run = board_.beginWait(QStringLiteral("Enviando los pedidos…"));
    services_.actions.sendAll(
        files,
        [this, run, count](int number) {
            if (run)
                board_.veil().setText(
                    QStringLiteral("Enviando los pedidos: %1 de %2").arg(number).arg(count));
        },
        [self = QPointer(this), run, count](const OrderActions::SentAll& all) {
            if (self)
                self->sentAll(all, count, !run.isNull());
        });
}

void OrderRowActions::sentAll(const OrderActions::SentAll& all, int count, bool isAwaited) {
    if (isAwaited)
        board_.endWait();
    if (board_.isCovered())
        return;
    if (all.updateNeeded)
        board_.tellFailure(*all.updateNeeded, {}, {});
    else if (all.failed == 0)
        services_.alerts.inform(QStringLiteral("Enviado"),
                                count == 1 ? QStringLiteral("Pedido realizado correctamente.")
                                           : QStringLiteral("Pedidos realizados correctamente."),
                                this);
    else
        services_.alerts.inform(QStringLiteral("Incidencia"),
                                QStringLiteral("Se han enviado %1 de %2 pedidos. Debajo de cada uno de los "
                                               "demás está el motivo.")
                                    .arg(all.sent)
                                    .arg(count),
                                this);
    board_.load();
}

// ---- Delete

void OrderRowActions::askToDelete(const QString& key) {
    if (!board_.rows().find(key.toStdString()))
        return;
    ask(services_.alerts, this, QStringLiteral("Atención"),
        QStringLiteral("¿Desea eliminar el pedido en borrador?"),
        {{QStringLiteral("Cancelar"), AlertButton::Role::Cancel, {}},
         {QStringLiteral("Borrar"), AlertButton::Role::Destructive,
          [this, key = key.toStdString()] { confirmedDelete(key); }}});
}

// Neither of the two deletes waits for the other.
void OrderRowActions::confirmedDelete(const std::string& key) {
    const DraftOrderRow* found = board_.rows().find(key);
    if (!found)
        return;
    const DraftOrderRow row = *found;
    if (const auto file = row.file(); file && services_.actions.isBeingSent(*file))
        return services_.alerts.inform(QStringLiteral("Atención"),
                                       QStringLiteral("El pedido se está enviando."), this);
    if (row.serverId())
        deleteInCloud(row);
    if (row.state)
        removeFile(row);
}

void OrderRowActions::removeFile(const DraftOrderRow& row) {
    const OrderFile file = *row.file();
    const bool canBeUndone = !row.serverId();
    endUndo();
    const auto removed = [this, self = QPointer(this), &alerts = services_.alerts, file, canBeUndone,
                          state = row.syncState](bool gone) {
        if (!gone)
            return alerts.inform(QStringLiteral("Error"),
                                 QStringLiteral("No se ha podido borrar el pedido ") +
                                     fromUtf8(label(state)));
        if (self && canBeUndone)
            offerUndo(file);
    };
    if (canBeUndone)
        services_.actions.setAside(file, removed);
    else
        services_.actions.remove(file, removed);
}

void OrderRowActions::offerUndo(const OrderFile& file) {
    endUndo();
    undo_ = file;
    undoTimer_ = services_.clock.after(undoTime, this, [this] { endUndo(); });
    emit undoChanged();
}

void OrderRowActions::endUndo() {
    if (!undo_)
        return;
    services_.clock.cancel(undoTimer_);
    services_.actions.forget(*std::exchange(undo_, std::nullopt));
    emit undoChanged();
}

void OrderRowActions::undoDelete() {
    if (!undo_)
        return;
    services_.clock.cancel(undoTimer_);
    const OrderFile file = *std::exchange(undo_, std::nullopt);
    emit undoChanged();
    services_.actions.bringBack(file, [&alerts = services_.alerts](bool isBack) {
        if (!isBack)
            alerts.inform(QStringLiteral("Error"), QStringLiteral("No se ha podido recuperar el pedido."));
    });
}

QString OrderRowActions::undoText() const {
    return undo_ ? QStringLiteral("Se ha borrado «%1»").arg(fromUtf8(undo_->plainName)) : QString();
}

void OrderRowActions::deleteInCloud(const DraftOrderRow& row) {
    if (board_.isOffline())
        return informOffline(services_.alerts);
    const auto type = applicationTypeOf(row.sectionIdentifier);
    if (!type) // the server knows no such order in its cloud
        return deletedInCloud(row, RequestFailure());
    const QPointer<QObject> run = board_.beginWait(QStringLiteral("Borrando el pedido de la nube…"));
    services_.actions.deleteInCloud(*row.serverId(), *type,
                                    [self = QPointer(this), run, row](const OrderActions::Answer& failure) {
                                        if (self && run)
                                            self->deletedInCloud(row, failure);
                                    });
}

void OrderRowActions::deletedInCloud(const DraftOrderRow& row, const OrderActions::Answer& failure) {
    if (failure) {
        board_.endWait();
        return board_.tellFailure(*failure, QStringLiteral("Error"),
                                  {{QStringLiteral("Trabajar en local"), AlertButton::Role::Cancel, {}},
                                   {QStringLiteral("Intentar de nuevo"), AlertButton::Role::Normal,
                                    [this, row] { deleteInCloud(row); }}});
    }
    services_.alerts.inform(QStringLiteral("Atención"),
                            QStringLiteral("El borrador se ha eliminado en cloud."), this);
    board_.endWait();
    board_.forgetServerOrder(row);
    board_.load();
}

// ---- Copy

void OrderRowActions::copy(qlonglong id) {
    const OrderList::Order* order = board_.rows().findSent(id);
    if (!order)
        return;
    if (board_.isOffline())
        return informOffline(services_.alerts);
    const QString proposal = fromUtf8(order->filename.value_or(order->pdv.value_or("")));
    askForText(services_.alerts, this, QStringLiteral("Guardar como"), QStringLiteral("Nombre:"), proposal,
               QStringLiteral("Guardar"), [this, id](const QString& name) {
                   const std::string plainName = name.trimmed().toStdString();
                   if (plainName.empty())
                       return;
                   if (OrderDiskManager::refusalOf(plainName))
                       return tellCopy(QStringLiteral("No se ha podido copiar el pedido en local."));
                   fetchCopy(id, plainName);
               });
}

void OrderRowActions::tellCopy(const QString& text) {
    services_.alerts.inform(QStringLiteral("Copiar pedido."), text);
}

void OrderRowActions::fetchCopy(Int id, const std::string& name) {
    const QPointer<QObject> run = board_.beginWait(QStringLiteral("Copiando el pedido…"));
    services_.actions.fetchCopy(
        id, [this, run, name](const OrderActions::Fetched<SaveBrochuresOrder>& fetched) {
            if (!run)
                return;
            board_.endWait();
            if (!fetched.value)
                return copyFailed(fetched.failure.value_or(RequestFailure()));
            if (!services_.actions.draftExists(name))
                return storeCopy(*fetched.value, name, false);
            askToOverwrite(services_.alerts, this,
                           [this, copy = *fetched.value, name] { storeCopy(copy, name, true); });
        });
}

void OrderRowActions::copyFailed(const RequestFailure& failure) {
    if (failure.error.updateNeeded)
        return board_.tellFailure(failure, {}, {});
    services_.alerts.inform(QStringLiteral("Incidencia"), QStringLiteral("El pedido no se puede replicar"),
                            this);
}

void OrderRowActions::storeCopy(const SaveBrochuresOrder& copy, const std::string& name, bool overwrite) {
    QString lacks;
    if (board_.hasSession())
        lacks = fromUtf8(fellOutText(fellOut(copy, services_.session.catalogue())));
    services_.actions.storeCopy(
        copy, name, overwrite, [&alerts = services_.alerts, lacks, overwrite](bool stored) {
            const QString title = QStringLiteral("Copiar pedido.");
            if (!stored)
                return alerts.inform(
                    title, overwrite ? QStringLiteral("No se ha podido sobrescribir el pedido en local.")
                                     : QStringLiteral("No se ha podido copiar el pedido en local."));
            const QString done = QStringLiteral("Su pedido ha sido copiado en local.");
            alerts.inform(title, lacks.isEmpty() ? done : done + QLatin1Char('\n') + lacks);
        });
}

} // namespace kavor

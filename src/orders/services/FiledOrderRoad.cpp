#include "orders/services/FiledOrderRoad.h"

#include "interaction/Questions.h"

namespace kavor {

QString textOf(const QueuedOrder& queued, const OrderTexts& texts) {
    switch (queued.result) {
    case QueuedOrder::Result::Written:
        return texts.queued.arg(fromUtf8(queued.name));
    case QueuedOrder::Result::WaitsAlready:
        return texts.waitsAlready.arg(fromUtf8(queued.name));
    case QueuedOrder::Result::Failed:
        break;
    }
    return texts.notQueued;
}

QString textOfWaiting(const QString& name, bool isOpenedFromThere) {
    if (name.isEmpty())
        return {};
    const QString where = QStringLiteral("Este pedido espera en la bandeja de salida como «%1». ").arg(name);
    return where + (isOpenedFromThere
                        ? QStringLiteral("Si lo pides ahora, se envía con los cambios y deja de esperar.")
                        : QStringLiteral("Envíalo desde Pedidos cuando haya red. Si lo cambias y lo pides "
                                         "otra vez, serán dos pedidos."));
}

void askForFileName(AlertPresenter& alerts, QObject* context, const QString& proposal,
                    std::function<void(const std::string&)> taken) {
    askForText(alerts, context, QStringLiteral("Guardar como"), QStringLiteral("Nombre:"), proposal,
               QStringLiteral("Guardar"), [&alerts, context, taken = std::move(taken)](const QString& name) {
                   const std::string plainName = name.trimmed().toStdString();
                   const auto refusal = OrderDiskManager::refusalOf(plainName);
                   if (!refusal)
                       return taken(plainName);
                   alerts.inform(
                       QStringLiteral("Atención"), fromUtf8(*refusal), context,
                       [&alerts, context, name, taken] { askForFileName(alerts, context, name, taken); });
               });
}

void askToOverwrite(AlertPresenter& alerts, QObject* context, std::function<void()> taken) {
    ask(alerts, context, QStringLiteral("Atención"),
        QStringLiteral("Ya existe un archivo con ese nombre. ¿desea sobrescribirlo?"),
        {no(), yesDestroy(std::move(taken))});
}

void askForAnotherOrder(AlertPresenter& alerts, QObject* context, const std::function<void(bool)>& answered) {
    ask(alerts, context, QStringLiteral("Atención"),
        QStringLiteral("Este pedido ya se ha realizado. ¿Desea hacer otro a partir de él?"),
        {{QStringLiteral("No"), AlertButton::Role::Cancel, [answered] { answered(false); }},
         yes([answered] { answered(true); })});
}

} // namespace kavor

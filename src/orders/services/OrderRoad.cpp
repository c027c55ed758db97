#include "orders/services/OrderRoad.h"

#include "interaction/OpenLink.h"
#include "interaction/QtText.h"
#include "interaction/Questions.h"
#include "network/ShowRequestFailure.h"

#include <utility>

namespace kavor {

namespace {

QStringList textsOf(const std::vector<std::string>& sentences) {
    QStringList list;
    for (const std::string& sentence : sentences)
        list.append(fromUtf8(sentence));
    return list;
}

} // namespace

OrderRoad::OrderRoad(const OrderRoadServices& services, OrderTexts texts, QObject* parent)
    : QObject(parent)
    , services_(services)
    , texts_(std::move(texts)) {}

OrderRoad::~OrderRoad() = default;

void OrderRoad::sendToPrint() {
    if (const auto order = sentTo())
        return openLink(services_.urls, services_.alerts, order->toString(QUrl::FullyEncoded));
    checkAndSend(OrderRequestType::sendToPrint);
}

void OrderRoad::preview() {
    checkAndSend(OrderRequestType::sendPreview);
}

void OrderRoad::checkAndSend(OrderRequestType type) {
    const QStringList lacks = textsOf(missing());
    emit checked(lacks);
    if (!lacks.isEmpty())
        return tell(texts_.incompleteTitle, lacks.join(QLatin1Char('\n')));
    const QStringList doubts = textsOf(warnings());
    if (doubts.isEmpty())
        return send(type);
    ask(services_.alerts, this, texts_.warningsTitle, doubts.join(QLatin1Char('\n')),
        {{QStringLiteral("Corregir"), AlertButton::Role::Cancel, {}},
         {QStringLiteral("Continuar"), AlertButton::Role::Normal, [this, type] { send(type); }}});
}

void OrderRoad::send(OrderRequestType type) {
    if (services_.network.isReachable())
        return request(type);
    switch (type) {
    case OrderRequestType::sendToPrint:
        return queueOffline();
    case OrderRequestType::sendPreview:
        return informOffline(services_.alerts);
    case OrderRequestType::saveCloud:
        return savedLocallyOnly();
    }
}

void OrderRoad::queueOffline() {
    informOffline(services_.alerts);
}

QObject* OrderRoad::beginWait(OrderRequestType type) {
    return wait_.begin(texts_.waiting.of(type).toUtf8().constData(), [this, type] { left(type); });
}

// The same as a lost answer: the order may have been made, and its key stays for the next send.
void OrderRoad::left(OrderRequestType type) {
    switch (type) {
    case OrderRequestType::sendToPrint:
        return tell(QStringLiteral("Atención"), texts_.left);
    case OrderRequestType::sendPreview:
        return;
    case OrderRequestType::saveCloud:
        return savedLocallyOnly();
    }
}

void OrderRoad::savedLocallyOnly() {
    tell(texts_.savedLocallyTitle, texts_.savedLocally);
    planSync();
}

void OrderRoad::tellFailure(OrderRequestType type, const RequestFailure& failure) {
    showRequestFailure({services_.alerts, services_.urls}, {}, failure, true, texts_.failedTitle.of(type));
    if (type == OrderRequestType::saveCloud)
        planSync();
}

void OrderRoad::tell(const QString& title, const QString& text) {
    services_.alerts.inform(title, text);
}

} // namespace kavor

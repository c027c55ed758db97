#include "brochures/wizard/prices/recommendation/PriceRecommendationRoad.h"

#include "activations/ActivationOrder.h"
#include "brochures/engine/BrochureIntermediateData.h"
#include "device/Clock.h"
#include "interaction/QtText.h"
#include "interaction/Questions.h"
#include "network/ShowRequestFailure.h"
#include "session/AppSingleton.h"

#include <QStringList>

#include <utility>

namespace kavor {

namespace {

const QString cancel = QStringLiteral("Cancelar");

QString joinedPlace(const QString& postalCode, const QString& locality) {
    QStringList parts{postalCode, locality};
    parts.removeAll(QString());
    return parts.join(QStringLiteral(", "));
}

RecommendationPlace placeOf(const KeptRecommendation& kept) {
    return {fromUtf8(kept.postalCode), fromUtf8(kept.locality)};
}

LocalDateTime momentOf(const QDateTime& now) {
    return LocalDateTime::fromTime(std::time_t(now.toSecsSinceEpoch()));
}

} // namespace

QString RecommendationPlace::text() const {
    return joinedPlace(postalCode, locality);
}

PriceRecommendationRoad::PriceRecommendationRoad(const WizardStepContext& context, QObject* parent)
    : QObject(parent)
    , context_(context)
    , alerts_(context.services.alerts)
    , network_(context.services.network)
    , finder_(context.services.location, context.services.alerts, wait_)
    , kept_(AppSingleton::shared().cachesFolder()) {}

void PriceRecommendationRoad::ask(Int product) {
    selectedProductIdentifier_ = product;
    if (remembered_)
        request(*remembered_);
    else
        findPlace();
}

void PriceRecommendationRoad::askElsewhere(Int product) {
    remembered_.reset();
    ask(product);
}

void PriceRecommendationRoad::findPlace() {
    finder_.find([this](const Placemark& found) { confirm(found); }, [this] { askForAddress(); });
}

void PriceRecommendationRoad::confirm(const Placemark& found) {
    const RecommendationPlace place{found.postalCode.value_or(QString()), found.locality.value_or(QString())};
    if (place.text().isEmpty()) {
        finder_.retry([this](const Placemark& again) { confirm(again); }, [this] { askForAddress(); });
        return;
    }
    kavor::ask(alerts_, this, QStringLiteral("¿Desea utilizar la siguiente ubicación?"), place.text(),
               {yes([this, place] { request(place); }),
                {QStringLiteral("Especificar"), AlertButton::Role::Normal, [this] { askForAddress(); }},
                no()});
}

QString PriceRecommendationRoad::addressOfBar() const {
    const auto& customer = context_.draft->customerInformation;
    if (!customer)
        return {};
    return joinedPlace(fromUtf8(customer->placePostalCode.value_or("")),
                       fromUtf8(customer->placeLocality.value_or("")));
}

void PriceRecommendationRoad::askForAddress() {
    AlertRequest request;
    request.text = QStringLiteral("Indique la dirección completa (incluyendo número)");
    request.textField = AlertTextField{QStringLiteral("Dirección"), addressOfBar(), 0};
    request.buttons = {{QStringLiteral("Usar"), AlertButton::Role::Normal},
                       {cancel, AlertButton::Role::Cancel}};
    alerts_.present(std::move(request), this, [this](const AlertAnswer& answer) {
        if (const QString direction = answer.text.trimmed(); answer.button == 0 && !direction.isEmpty())
            searchAddress(direction);
    });
}

void PriceRecommendationRoad::searchAddress(const QString& direction) {
    if (!network_.isReachable())
        return offline(std::nullopt);
    network_.searchMaps(
        direction, {wait_.begin("Buscando la dirección…"),
                    [this](const SearchMapsResponse& found) {
                        wait_.end();
                        chooseAddress(found);
                    },
                    [this](const RequestFailure& failure) {
                        // Two blanks, meant so.
                        tellFailure(failure, QStringLiteral("No se puede obtener una lista de  ubicaciones "
                                                            "a partir de la dirección."));
                    }});
}

void PriceRecommendationRoad::chooseAddress(const SearchMapsResponse& found) {
    AlertRequest request;
    request.title = QStringLiteral("Seleccione la opción más aproximada");
    for (const auto& address : found.addresses)
        request.choices.append(fromUtf8(address.fullAddress));
    if (found.addresses.empty())
        request.text = QStringLiteral("No se ha encontrado ninguna dirección.");
    request.buttons = {{cancel, AlertButton::Role::Cancel}};
    alerts_.present(std::move(request), this, [this, addresses = found.addresses](const AlertAnswer& answer) {
        if (answer.choice < 0)
            return;
        const auto& chosen = addresses[std::size_t(answer.choice)];
        if (chosen.zip.value_or("").empty() || chosen.city.value_or("").empty())
            return; // silently, meant so
        this->request({fromUtf8(*chosen.zip), fromUtf8(*chosen.city)});
    });
}

void PriceRecommendationRoad::request(const RecommendationPlace& place) {
    if (!selectedProductIdentifier_)
        return;
    if (!network_.isReachable())
        return offline(place);
    network_.priceRecommendation(*selectedProductIdentifier_, place.postalCode, place.locality,
                                 {wait_.begin("Consultando los precios…"),
                                  [this, place](const PriceRecommendationResponse& response) {
                                      wait_.end();
                                      answer(place, response);
                                  },
                                  [this](const RequestFailure& failure) {
                                      // The server knows nothing of the place: the next question is about
                                      // another one.
                                      if (failure.error.kind == RequestError::Kind::Status)
                                          remembered_.reset();
                                      tellFailure(failure,
                                                  QStringLiteral("No se han podido obtener respuesta "
                                                                 "del servicio orientaprecios."));
                                  }});
}

void PriceRecommendationRoad::tellFailure(const RequestFailure& failure, const QString& title) {
    wait_.end();
    showRequestFailure({alerts_, context_.services.urls}, {}, failure, true, title);
}

void PriceRecommendationRoad::answer(const RecommendationPlace& place,
                                     const PriceRecommendationResponse& response) {
    const Int product = *selectedProductIdentifier_;
    remembered_ = place;
    emit answered({product, place, response, std::nullopt});
    kept_.keep({product, place.postalCode.toStdString(), place.locality.toStdString(),
                momentOf(context_.services.clock.now()), response});
}

// Without the network: what was kept of the place, else a choice of what was kept of the format.
void PriceRecommendationRoad::offline(const std::optional<RecommendationPlace>& place) {
    const Int product = selectedProductIdentifier_.value_or(0);
    if (place) {
        if (const auto kept =
                kept_.find(product, place->postalCode.toStdString(), place->locality.toStdString()))
            return show(*kept);
    }
    const auto others = kept_.of(product);
    if (others.empty())
        return informOffline(alerts_);
    AlertRequest request;
    request.title = QStringLiteral("No hay conexión a internet.");
    request.text = QStringLiteral("Estas son las últimas respuestas guardadas de este formato:");
    for (const KeptRecommendation& each : others)
        request.choices.append(placeOf(each).text() + QStringLiteral(" · ") +
                               fromUtf8(each.date.text()).left(10));
    request.buttons = {{cancel, AlertButton::Role::Cancel}};
    alerts_.present(std::move(request), this, [this, others](const AlertAnswer& answer) {
        if (answer.choice >= 0)
            show(others[std::size_t(answer.choice)]);
    });
}

void PriceRecommendationRoad::show(const KeptRecommendation& kept) {
    remembered_ = placeOf(kept);
    emit answered({kept.productIdentifier, *remembered_, kept.answer, kept.date});
}

} // namespace kavor

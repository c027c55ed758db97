#pragma once

#include "brochures/wizard/WizardStepContext.h"
#include "brochures/wizard/prices/recommendation/KeptRecommendations.h"
#include "interaction/VeiledRun.h"
#include "pointofsale/services/LocationFinder.h"

#include <QObject>
#include <QString>

#include <optional>

namespace kavor {

struct RequestFailure;
struct SearchMapsResponse;

// The place that the recommendation service is asked about. At least one of both is set.
struct RecommendationPlace {
    QString postalCode;
    QString locality;

    // "28013, Madrid", or what there is of it.
    [[nodiscard]] QString text() const;
};

// What the recommendation service says of a format near a place.
struct Recommendation {
    Int productIdentifier = 0; // of the format
    RecommendationPlace place;
    PriceRecommendationResponse answer;
    std::optional<LocalDateTime> kept; // when it was answered, of one that was kept for offline
};

// The way from a format to what others charge for it: the place where the device is, or an address that the
// user types and the server looks up, and the question to the service. A place that led to an answer is
// remembered for the questions that follow.
class PriceRecommendationRoad : public QObject {
    Q_OBJECT
public:
    explicit PriceRecommendationRoad(const WizardStepContext& context, QObject* parent = nullptr);

    // Asks about a format at the place remembered, or at one that it finds with the user.
    void ask(Int product);
    // The same at another place than the one remembered.
    void askElsewhere(Int product);

signals:
    void answered(const kavor::Recommendation& recommendation);

private:
    void findPlace();
    void confirm(const Placemark& found);
    void askForAddress();
    void searchAddress(const QString& direction);
    void chooseAddress(const SearchMapsResponse& found);
    void request(const RecommendationPlace& place);
    void answer(const RecommendationPlace& place, const PriceRecommendationResponse& response);
    void offline(const std::optional<RecommendationPlace>& place);
    void show(const KeptRecommendation& kept);
    [[nodiscard]] QString addressOfBar() const;
    void tellFailure(const RequestFailure& failure, const QString& title);

    const WizardStepContext context_;
    AlertPresenter& alerts_;
    ServiceOperations& network_;
    VeiledRun wait_;
    LocationFinder finder_;
    KeptRecommendations kept_;
    std::optional<Int> selectedProductIdentifier_; // the format that is being asked about
    std::optional<RecommendationPlace> remembered_;
};

} // namespace kavor

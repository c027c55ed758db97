#pragma once

#include "brochures/wizard/prices/recommendation/PriceRecommendationRoad.h"
#include "screens/ScreenController.h"

#include <QStringList>
#include <QVariantList>

#include <vector>

namespace kavor {

// What others charge for a format near a place, area by area. It only informs: nothing goes into the draft.
class BrochurePriceAssistantViewController : public kavor::ScreenController {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the prices step")
    Q_PROPERTY(QString title READ title CONSTANT)
    Q_PROPERTY(QString brandLabel READ brandLabel NOTIFY changed)
    Q_PROPERTY(QString formatLabel READ formatLabel NOTIFY changed)
    Q_PROPERTY(QString ownPriceLabel READ ownPriceLabel NOTIFY changed)
    Q_PROPERTY(QString placeLabel READ placeLabel NOTIFY changed)
    Q_PROPERTY(QString placeNote READ placeNote CONSTANT)
    // When the answer was given, of one that was kept; empty for a fresh one.
    Q_PROPERTY(QString keptLabel READ keptLabel NOTIFY changed)
    // Entries {caption, menus, prices, range, least, usual, greatest, own}: prices are entries {caption,
    // text}, the last four places on the range from 0 to 1, or -1 where nothing is known; range says them in
    // words.
    Q_PROPERTY(QVariantList areas READ areas NOTIFY changed)

public:
    static constexpr std::size_t numberOfAreas = 5;

    // The rep's own price of the format; 0 where there is none.
    BrochurePriceAssistantViewController(Recommendation recommendation, double ownPrice,
                                         QObject* parent = nullptr);

    void viewWillAppear() override;

    // Asks for another place for this format and those that follow.
    Q_INVOKABLE void changePlaceAction();
    Q_INVOKABLE void closeSceneAction() { emit closed(); }

    [[nodiscard]] const PriceRecommendationResponse& data() const { return recommendation_.answer; }
    [[nodiscard]] static QString title() { return QStringLiteral("Precio recomendado"); }
    [[nodiscard]] QString brandLabel() const;
    [[nodiscard]] QString formatLabel() const;
    [[nodiscard]] QString ownPriceLabel() const;
    [[nodiscard]] QString placeLabel() const { return recommendation_.place.text(); }
    [[nodiscard]] static QString placeNote();
    [[nodiscard]] QString keptLabel() const;
    [[nodiscard]] QVariantList areas() const { return areas_; }
    // The labels, group by group: the captions of an area's prices, the areas, their prices, and the number
    // of menus that each comes from.
    [[nodiscard]] QStringList rows() const;
    [[nodiscard]] QStringList columns() const;
    [[nodiscard]] QStringList prices(std::size_t area) const;
    [[nodiscard]] QStringList brochureNumbers() const;

signals:
    void changed();
    void placeChangeRequested(kavor::Int product);

private:
    // The prices of an area as numbers; none for what is no price.
    struct Range {
        std::optional<double> least;
        std::optional<double> usual;
        std::optional<double> greatest;
    };

    [[nodiscard]] std::size_t shownAreas() const;
    [[nodiscard]] Range rangeOf(std::size_t area) const;
    [[nodiscard]] QString rangeText(const Range& range) const;
    [[nodiscard]] QVariantList pricesOf(std::size_t area) const;
    void fillAreas();

    Recommendation recommendation_;
    double ownPrice_;
    QVariantList areas_;
};

} // namespace kavor

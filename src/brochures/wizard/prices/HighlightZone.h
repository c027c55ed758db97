#pragma once

#include "brochures/wizard/prices/PriceRow.h"
#include "screens/RowListModel.h"

#include <memory>
#include <span>
#include <utility>
#include <vector>

namespace kavor {

class BrochureIntermediateData;
class Catalogue;

// The zone of the prices step in which one format is highlighted, by a carousel. As a list it holds the
// carousel's entries: entry 0 is "no highlight", entry i + 1 the highlightable row i.
class HighlightZone : public kavor::RowListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the prices step")
    Q_PROPERTY(bool zoneVisible READ isZoneVisible NOTIFY changed)
    Q_PROPERTY(bool carouselVisible READ isCarouselVisible NOTIFY changed)
    // Whether the carousel takes touches; if not, it is drawn with alpha 0.25.
    Q_PROPERTY(bool carouselEnabled READ isCarouselEnabled NOTIFY changed)
    // Something is highlighted that the carousel, which takes no touches, can't take back.
    Q_PROPERTY(bool removeHighlightVisible READ isRemoveHighlightVisible NOTIFY changed)
    Q_PROPERTY(bool withoutHighlightedProductsVisible READ isWithoutHighlightedProductsVisible NOTIFY changed)
    // firstLabelInformation and roundedRelView.
    Q_PROPERTY(bool firstInformationVisible READ isFirstInformationVisible NOTIFY changed)
    Q_PROPERTY(QString informationCarouselLabel READ informationCarouselLabel NOTIFY changed)
    Q_PROPERTY(QString brandAndProductHighlightedLabel READ brandAndProductHighlightedLabel NOTIFY changed)
    Q_PROPERTY(int currentIndex READ currentIndex NOTIFY changed)

public:
    enum Role { TextRole = Qt::UserRole + 1, DetailRole, ImageRole };

    using RowListModel::RowListModel;

    // Whether the kind highlights at all, the places that a highlight takes and the most brands that fit.
    void configure(bool isHighlightable, Int numberOfSelectionSpacesOnHighlight, Int maximumNumberOfProducts);
    // Takes the rows, finds or proposes the highlight and answers the message for the user.
    QString setUp(const std::shared_ptr<BrochureIntermediateData>& draft, const Catalogue& catalogue,
                  const std::vector<PriceRow>& rows);
    // Clears the highlight and moves to entry 0.
    void scrollToNothing();

    // The user moved the carousel.
    Q_INVOKABLE void carouselCurrentItemIndexDidChange(int index);
    // Takes the highlight back; the default is not proposed again.
    Q_INVOKABLE void removeHighlight();

    [[nodiscard]] bool isZoneVisible() const { return isHighlightable_; }
    [[nodiscard]] bool isCarouselVisible() const {
        return isHighlightable_ && !highlightableProducts().empty();
    }
    [[nodiscard]] bool isCarouselEnabled() const { return missingSpaces_ <= 0; }
    [[nodiscard]] bool isRemoveHighlightVisible() const;
    [[nodiscard]] bool isWithoutHighlightedProductsVisible() const {
        return isHighlightable_ && highlightableProducts().empty();
    }
    [[nodiscard]] bool isFirstInformationVisible() const { return isHighlightable_ && missingSpaces_ > 0; }
    [[nodiscard]] QString informationCarouselLabel() const;
    [[nodiscard]] QString brandAndProductHighlightedLabel() const { return highlightedLabel_; }
    [[nodiscard]] int currentIndex() const { return currentIndex_; }

    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

signals:
    void changed();
    // The carousel goes to an entry by itself.
    void scrolled(int index, bool animated);
    // The highlight of the draft may have changed.
    void highlightDidChange();

private:
    struct Key {
        std::pair<Int, Int> operator()(const PriceRow& row) const {
            return {row.brandIdentifier, row.productIdentifier};
        }
    };

    [[nodiscard]] std::span<const PriceRow> highlightableProducts() const {
        return std::span(entries_.all()).subspan(entries_.all().empty() ? 0 : 1);
    }
    void setRows(const std::vector<PriceRow>& rows);
    void runSpacesTest();
    void findHighlight(QString& message);
    void scrollTo(int index, bool animated);
    void applyCurrentEntry();
    [[nodiscard]] bool isHighlighted(const PriceRow& row) const;

    std::shared_ptr<BrochureIntermediateData> draft_;
    const Catalogue* catalogue_ = nullptr;  // the step's, as long as it is on show
    RowList<PriceRow, Key> entries_{*this}; // the first one is no row's
    bool isHighlightable_ = false;
    Int numberOfSelectionSpacesOnHighlight_ = 0;
    Int maximumNumberOfProducts_ = 0;
    Int missingSpaces_ = 0;
    int currentIndex_ = 0;
    QString highlightedLabel_;
};

} // namespace kavor

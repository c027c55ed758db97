#include "brochures/wizard/prices/HighlightZone.h"

#include "base/AppFormatter.h"
#include "brochures/engine/BrochureIntermediateData.h"
#include "brochures/wizard/StepSupport.h"
#include "catalogue/Catalogue.h"
#include "screens/ResourceImages.h"

#include <algorithm>

namespace kavor {

namespace {

const QString withoutHighlight = QStringLiteral("Sin producto destacado");

QString nameOf(const PriceRow& row) {
    return fromUtf8(row.brandName + " - " + row.productName);
}

} // namespace

void HighlightZone::configure(bool isHighlightable, Int numberOfSelectionSpacesOnHighlight,
                              Int maximumNumberOfProducts) {
    isHighlightable_ = isHighlightable;
    numberOfSelectionSpacesOnHighlight_ = numberOfSelectionSpacesOnHighlight;
    maximumNumberOfProducts_ = maximumNumberOfProducts;
    emit changed();
}

QString HighlightZone::setUp(const std::shared_ptr<BrochureIntermediateData>& draft,
                             const Catalogue& catalogue, const std::vector<PriceRow>& rows) {
    draft_ = draft;
    catalogue_ = &catalogue;
    QString message =
        QStringLiteral("Recuerda que has de marcar las referencias que sean nuevas para este cliente.");
    if (isHighlightable_) {
        setRows(rows);
        runSpacesTest();
        findHighlight(message);
    }
    emit changed();
    return message;
}

void HighlightZone::setRows(const std::vector<PriceRow>& rows) {
    std::vector<PriceRow> wanted(1);
    std::ranges::copy_if(rows, std::back_inserter(wanted), &PriceRow::isHighlightable);
    entries_.show(std::move(wanted));
}

void HighlightZone::runSpacesTest() {
    // A brand counts one however many of its formats are selected; each highlighted format adds its
    // surcharge.
    Int spaces = 0;
    for (const auto& [brand, formats] : draft_->selectedBrands) {
        const Product* product = catalogue_->product(brand);
        if (!product || formats.empty())
            continue;
        ++spaces;
        for (const Int format : formats) {
            if (draft_->isFormatHighlighted(format, brand) == SelectionState::selected)
                spaces += numberOfSelectionSpacesOnHighlight_;
        }
    }
    missingSpaces_ = spaces - (maximumNumberOfProducts_ - numberOfSelectionSpacesOnHighlight_);
}

bool HighlightZone::isHighlighted(const PriceRow& row) const {
    return draft_->isFormatHighlighted(row.productIdentifier, row.brandIdentifier) ==
           SelectionState::selected;
}

void HighlightZone::findHighlight(QString& message) {
    const auto rows = highlightableProducts();
    const auto highlighted =
        std::ranges::find_if(rows, [this](const PriceRow& row) { return isHighlighted(row); });
    if (highlighted != rows.end()) {
        // The last row with the same format wins, meant so.
        const auto last = std::find_if(rows.rbegin(), rows.rend(), [&](const PriceRow& row) {
            return row.productIdentifier == highlighted->productIdentifier;
        });
        scrollTo(int(rows.rend() - last), false);
        return;
    }
    // Without room for it there is no proposal, nor has it been made then.
    if (!draft_->defaultHighlightedElementVisited && isCarouselEnabled()) {
        const PriceRow* proposed = nullptr;
        for (const PriceRow& row : rows) {
            if (row.highlightablePosition != 0 &&
                (!proposed || row.highlightablePosition < proposed->highlightablePosition))
                proposed = &row;
        }
        if (proposed) {
            draft_->defaultHighlightedElementVisited = true;
            message +=
                QStringLiteral("\nSe ha seleccionado ") + nameOf(*proposed) + QStringLiteral(" por defecto.");
            scrollTo(int(proposed - rows.data()) + 1, true);
            return;
        }
    }
    scrollTo(0, false);
    highlightedLabel_ = withoutHighlight;
}

void HighlightZone::scrollToNothing() {
    scrollTo(0, true);
}

bool HighlightZone::isRemoveHighlightVisible() const {
    return isHighlightable_ && draft_ && !draft_->highlightedBrands.empty() &&
           (!isCarouselVisible() || !isCarouselEnabled());
}

void HighlightZone::removeHighlight() {
    draft_->highlightedBrands.clear(); // also one whose format has left the catalogue
    draft_->defaultHighlightedElementVisited = true;
    runSpacesTest();
    scrollTo(0, true);
    emit changed();
    emit highlightDidChange();
}

void HighlightZone::scrollTo(int index, bool animated) {
    const bool moved = std::exchange(currentIndex_, index) != index;
    emit scrolled(index, animated);
    if (moved)
        applyCurrentEntry();
}

void HighlightZone::carouselCurrentItemIndexDidChange(int index) {
    if (index < 0 || index > int(highlightableProducts().size()) || !isCarouselEnabled())
        return;
    if (std::exchange(currentIndex_, index) != index)
        applyCurrentEntry();
}

void HighlightZone::applyCurrentEntry() {
    if (currentIndex_ == 0) {
        highlightedLabel_ = withoutHighlight;
        for (const PriceRow& row : highlightableProducts())
            draft_->setFormatHighlighted(false, row.productIdentifier, row.brandIdentifier);
    } else {
        const PriceRow& row = *entries_.at(currentIndex_);
        highlightedLabel_ = nameOf(row);
        draft_->setFormatHighlighted(true, row.productIdentifier, row.brandIdentifier);
    }
    emit changed();
    emit highlightDidChange();
}

QString HighlightZone::informationCarouselLabel() const {
    if (!isCarouselVisible())
        return {};
    if (missingSpaces_ > 0)
        return QStringLiteral("Deseleccione al menos ") +
               fromUtf8(AppFormatter::shared().integerFormatter(missingSpaces_)) +
               QStringLiteral(" marcas para poder destacar uno");
    return QStringLiteral("Seleccione el producto que desee destacar");
}

QVariant HighlightZone::data(const QModelIndex& index, int role) const {
    const PriceRow* row = entries_.at(index);
    if (!row)
        return {};
    if (index.row() == 0)
        return role == TextRole ? QVariant(QStringLiteral("Sin destacado")) : QVariant(QString());
    switch (role) {
    case TextRole:
        return fromUtf8(row->brandName);
    case DetailRole:
        return fromUtf8(row->productName);
    case ImageRole:
        return resourceImageUrl(row->productImage);
    default:
        return {};
    }
}

QHash<int, QByteArray> HighlightZone::roleNames() const {
    return {{TextRole, "entryText"}, {DetailRole, "entryDetail"}, {ImageRole, "entryImage"}};
}

} // namespace kavor

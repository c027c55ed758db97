#include "brochures/engine/TemporalBrochure.h"

#include "brochures/engine/BrochureIntermediateData.h"
#include "brochures/engine/DraftContent.h"
#include "brochures/engine/EngineSession.h"
#include "brochures/engine/OrderToEdit.h"

#include <algorithm>

namespace kavor {

namespace {

std::string kindName(BrochureType kind) {
    return "type" + std::to_string(static_cast<Int>(kind));
}

} // namespace

TemporalBrochure& TemporalBrochure::shared() {
    static TemporalBrochure instance;
    return instance;
}

std::shared_ptr<const BrochureIntermediateData> TemporalBrochure::current() const {
    return BrochureIntermediateData::temporalBrochure();
}

std::optional<KeptOrder> TemporalBrochure::recordOf(const BrochureIntermediateData& draft) const {
    if (draft.sent)
        return std::nullopt;
    return draft.keptOrder(OrderRequestType::saveCloud, false);
}

std::string TemporalBrochure::kindOf(const KeptOrder& order) const {
    return kindName(order.menu.orderType);
}

// A brand without its number, or a format without its own, would stop the loading.
std::string TemporalBrochure::faultOf(const KeptOrder& order) const {
    const bool numbered = std::ranges::all_of(order.menu.beerBrands, [](const auto& brand) {
        return brand.brand &&
               std::ranges::all_of(brand.beers, [](const auto& beer) { return beer.id.has_value(); });
    });
    return numbered ? "" : "a brand or format without its number";
}

std::optional<KeptOrder> TemporalBrochure::takeForOpening(BrochureType kind, bool fromAside) {
    return take(kindName(kind), fromAside);
}

bool TemporalBrochure::restoreDraft() {
    const auto kind = engine::sectionKind();
    if (!kind)
        return false;
    // A draft of this kind that came into memory without a copy is newer than what was set aside.
    const auto inMemory = BrochureIntermediateData::temporalBrochure()->openedAs;
    const auto load = [](const KeptOrder& order) {
        const auto& draft = BrochureIntermediateData::replaceTemporalBrochure();
        loadToGoOn(*draft, order);
        draft->fileName = order.filename; // the copy has no file of its own to be named after
        draft->unansweredSends = order.unansweredSends.value_or(UnansweredSends());
        draft->outboxFile = order.outboxFile;
        draft->supportComment = order.supportComment;
        return holdsWork(*draft);
    };
    const bool cameBack = bringBack(kindName(*kind), load, inMemory != kind);
    if (!cameBack && inMemory && inMemory != kind)
        BrochureIntermediateData::replaceTemporalBrochure();
    BrochureIntermediateData::temporalBrochure()->openedAs = kind;
    return cameBack;
}

void TemporalBrochure::removeForLoading(BrochureType kind) {
    UnfinishedWork::removeForLoading(kindName(kind));
}

void TemporalBrochure::number(BrochureType kind, Int orderIdentifier,
                              const std::function<bool(const SaveBrochuresOrder&)>& isThatOrder) {
    amend(kindName(kind), [&](KeptOrder& order) {
        if (order.orderIdentifier || !isThatOrder(order))
            return false;
        order.orderIdentifier = orderIdentifier;
        return true;
    });
}

} // namespace kavor

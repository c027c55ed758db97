#include "brochures/engine/SentOrder.h"

#include "base/StopProcess.h"
#include "brochures/engine/BrochureIntermediateData.h"
#include "brochures/engine/OrderToEdit.h"

namespace kavor {

namespace {

SaveBrochuresOrder contentOf(const BrochureIntermediateData& draft) {
    auto order = draft.makeOrder(OrderRequestType::saveCloud, false);
    order.printedMyself = false;
    return order;
}

} // namespace

void markSent(BrochureIntermediateData& draft, std::string url) {
    draft.sent = SentOrder{std::move(url), contentOf(draft)};
    draft.unansweredSends.clear();
}

bool isChangedSinceSent(const BrochureIntermediateData& draft) {
    return draft.sent && contentOf(draft) != draft.sent->order;
}

void takeAsSent(BrochureIntermediateData& draft) {
    if (draft.sent)
        draft.sent->order = contentOf(draft);
}

void beginAnotherOrder(BrochureIntermediateData& draft) {
    draft.sent.reset();
    draft.orderIdentifier.reset();
    draft.fileName.reset();
    draft.outboxFile.reset();
}

const std::shared_ptr<BrochureIntermediateData>& restoreSentOrder() {
    const auto changed = BrochureIntermediateData::temporalBrochure();
    if (!changed->sent)
        stopProcess("a draft that was sent");
    const auto& draft = BrochureIntermediateData::replaceTemporalBrochure();
    loadToGoOn(*draft, changed->sent->order);
    draft->fileName = changed->sent->order.filename;
    draft->sent = changed->sent;
    // What the order has no place for.
    draft->supportComment = changed->supportComment;
    draft->brochureTypeParameters = changed->brochureTypeParameters;
    draft->defaultHighlightedElementVisited = changed->defaultHighlightedElementVisited;
    takeAsSent(*draft);
    return draft;
}

} // namespace kavor

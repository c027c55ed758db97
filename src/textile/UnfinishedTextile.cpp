#include "textile/UnfinishedTextile.h"

#include <algorithm>
#include <utility>

namespace kavor {

namespace {

using Draft = TextileIntermediateData;

bool isTyped(const Draft::Sizes& sizes) {
    return std::ranges::any_of(sizes, [](const auto& size) { return size.second > 0; });
}

// Whether the draft holds what somebody would miss, a brand that was only looked at is not.
bool holdsWork(const Draft& draft) {
    return !draft.order.empty() || isTyped(draft.selectedSizes) || draft.customer ||
           !draft.customizedText.value_or("").empty() || draft.typographyIdentifier || draft.orderComment;
}

// Whether there is anything to keep at all.
bool isTouched(const Draft& draft) {
    return holdsWork(draft) || draft.selectedBrandIdentifier || !draft.unansweredSends.empty() ||
           draft.filename || draft.orderIdentifier;
}

} // namespace

UnfinishedTextile::UnfinishedTextile()
    : UnfinishedWork(state_file::textileDraft) {}

UnfinishedTextile& UnfinishedTextile::shared() {
    static UnfinishedTextile instance;
    return instance;
}

std::optional<TextileDraftRecord> UnfinishedTextile::recordOf(const Draft& draft) const {
    return draft.orderURL ? std::nullopt : std::optional(kavor::recordOf(draft));
}

void UnfinishedTextile::open() {
    if (Draft::shared()->orderURL)
        Draft::setShared(std::make_shared<Draft>());
    bringBack(onlyKind, [](const TextileDraftRecord& kept) {
        Draft::setShared(std::make_shared<Draft>(draftOf(kept)));
        return holdsWork(*Draft::shared());
    });
}

void UnfinishedTextile::open(const TextileOrderToEdit& toEdit) {
    auto draft = std::make_shared<Draft>();
    draft->loadOrder(toEdit.order);
    draft->filename = toEdit.filename;
    draft->outboxFile = toEdit.outboxFile;
    draft->section = toEdit.order.orderInformation.applicationType;
    draft->unansweredSends = toEdit.unansweredSends;
    for (const UnansweredSend& former : Draft::shared()->unansweredSends) {
        if (!std::ranges::count(draft->unansweredSends, former.content, &UnansweredSend::content))
            draft->unansweredSends.push_back(former);
    }
    Draft::setShared(std::move(draft));
    removeForLoading(onlyKind);
    keep();
}

void UnfinishedTextile::keep() {
    const auto& draft = Draft::shared();
    if (isTouched(*draft))
        write(*draft);
    else
        removeAll();
}

void UnfinishedTextile::beginAnew() {
    Draft::setShared(std::make_shared<Draft>());
    removeAll();
}

} // namespace kavor

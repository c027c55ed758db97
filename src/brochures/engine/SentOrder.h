#pragma once

#include "brochures/engine/SaveBrochuresOrder.h"

#include <memory>
#include <string>

namespace kavor {

class BrochureIntermediateData;

// What a draft knows once the server has taken it to print. In memory only: it stays with the draft whatever
// step is on show, until another draft takes its place, and no temporary copy is written meanwhile.
struct SentOrder {
    std::string url; // where the order can be seen
    SaveBrochuresOrder order;
};

// The draft is sent as it stands; what waited for an answer no longer does.
void markSent(BrochureIntermediateData& draft, std::string url);
// Whether the draft was sent and is another one by now. Who prints does not count.
bool isChangedSinceSent(const BrochureIntermediateData& draft);
// What a step wrote by itself on coming on show is no change: the draft counts as sent as it stands.
void takeAsSent(BrochureIntermediateData& draft);
// The draft goes on as another order: without the server's number, and without the name of the file, which
// stays that of the order sent.
void beginAnotherOrder(BrochureIntermediateData& draft);
// Puts a draft as it was sent in the place of the shared one, whose changes are dropped, and answers it.
const std::shared_ptr<BrochureIntermediateData>& restoreSentOrder();

} // namespace kavor

#include "RoundTrip.h"
#include "session/AppSingleton.h"
#include "support/CatalogueBuilder.h"
#include "textile/TextileDraftRecord.h"
#include "textile/TextileFixture.h"

namespace kavor::fuzz {

namespace {

// The session in the section that the order names, with clothes.
void enterSectionOf(const SaveTextileOrder& order) {
    static const auto catalogue = [] {
        CatalogueBuilder builder;
        addTextile(builder);
        return builder.take();
    }();
    auto& session = AppSingleton::shared();
    session.applicationInformation = catalogue;
    session.actualApplicationType = order.orderInformation.applicationType;
}

SaveTextileOrder rebuilt(const SaveTextileOrder& order) {
    TextileIntermediateData draft;
    draft.loadOrder(order);
    static_cast<void>(draft.validate()); // the rules must stand any draft
    static_cast<void>(draft.cartArticles());
    return draft.makeOrder(order.save, false);
}

std::string textOf(const auto& record) {
    return json::encodePretty(record).value_or("nothing");
}

} // namespace

bool textileOrder(std::string_view document) {
    static_cast<void>(roundTrip<KeptTextileOrder>(document));
    const auto order = roundTrip<SaveTextileOrder>(document);
    if (!order)
        return false;
    enterSectionOf(*order);
    const auto first = rebuilt(*order);
    if (textOf(rebuilt(first)) != textOf(first))
        fail("an order that was made is loaded and made again the same:\n" + textOf(first));
    return true;
}

bool textileAnswer(std::string_view document) {
    const auto answer = roundTrip<RetrieveTextileOrderResponse>(document);
    if (!answer)
        return false;
    const auto order = savedOrder(*answer);
    const auto read = json::decode<SaveTextileOrder>(textOf(order));
    if (!read || textOf(*read) != textOf(order))
        fail("a converted answer is written and read the same");
    return true;
}

bool textileDraft(std::string_view document) {
    const auto record = roundTrip<TextileDraftRecord>(document);
    if (!record)
        return false;
    enterSectionOf({});
    auto draft = draftOf(*record);
    static_cast<void>(draft.validate());
    static_cast<void>(draft.sizes(false));
    static_cast<void>(draft.removeGoneArticles());
    const auto kept = textOf(recordOf(draft));
    if (textOf(recordOf(draftOf(recordOf(draft)))) != kept)
        fail("a draft that was kept is kept again the same:\n" + kept);
    return true;
}

} // namespace kavor::fuzz

#include "brochures/engine/OrderToEdit.h"

#include "brochures/engine/BrochureIntermediateData.h"
#include "catalogue/Catalogue.h"

#include <algorithm>

namespace kavor {

namespace {

void add(UnansweredSends& known, const UnansweredSends& more) {
    for (const UnansweredSend& send : more) {
        if (std::ranges::find(known, send.content, &UnansweredSend::content) == known.end())
            known.push_back(send);
    }
}

} // namespace

void loadToGoOn(BrochureIntermediateData& draft, const SaveBrochuresOrder& order) {
    draft.loadOrder(order);
    auto& printed = draft.selectedNumberOfBrochures;
    if (printed && printed->secondary == 0)
        printed->secondary.reset();
}

void openOrder(const OrderToEdit& toEdit) {
    const auto former = BrochureIntermediateData::temporalBrochure();
    const auto& draft = BrochureIntermediateData::replaceTemporalBrochure();
    loadToGoOn(*draft, toEdit.order);
    draft->fileName = toEdit.filename;
    draft->outboxFile = toEdit.outboxFile;
    draft->supportComment = toEdit.supportComment;
    draft->unansweredSends = toEdit.unansweredSends;
    add(draft->unansweredSends, former->unansweredSends);
}

std::vector<std::string> fellOut(const SaveBrochuresOrder& order, const Catalogue& catalogue) {
    std::vector<std::string> names;
    for (const auto& brand : order.menu.beerBrands) {
        const Int id = brand.brand.value_or(0);
        if (id < 0)
            continue;
        const std::string name = brand.name.value_or("");
        if (!catalogue.product(id)) {
            names.push_back(name);
            continue;
        }
        const auto isGone = [&](const auto& beer) { return !catalogue.format(id, beer.id.value_or(0)); };
        names.insert(names.end(), std::size_t(std::ranges::count_if(brand.beers, isGone)), name);
    }
    return names;
}

} // namespace kavor

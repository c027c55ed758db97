#include "RoundTrip.h"
#include "catalogue/Catalogue.h"
#include "orders/list/DraftOrderRows.h"
#include "sellingsheets/SheetModules.h"
#include "sellingsheets/SheetRules.h"
#include "sellingsheets/UnfinishedSheet.h"
#include "session/LoginResult.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>

namespace kavor::fuzz {

namespace {

constexpr std::array all{Target{"catalogue", catalogue},
                         Target{"login", login},
                         Target{"brochureOrder", brochureOrder},
                         Target{"textileOrder", textileOrder},
                         Target{"textileAnswer", textileAnswer},
                         Target{"textileDraft", textileDraft},
                         Target{"sellingSheetOrder", sellingSheetOrder},
                         Target{"orderList", orderList},
                         Target{"retrieveAnswer", retrieveAnswer},
                         Target{"propertyList", propertyList},
                         Target{"urlParser", urlParser}};

// A cloud order without a name stops the client on purpose.
template <class Order>
bool isNamelessInCloud(const Order& order) {
    return order.stateId == OrderState::cloud && !order.filename;
}

} // namespace

std::span<const Target> targets() {
    return all;
}

void fail(std::string_view promise) {
    std::fprintf(stderr, "broken promise: %.*s\n", static_cast<int>(promise.size()), promise.data());
    std::abort();
}

bool catalogue(std::string_view document) {
    auto record = roundTrip<ApplicationInformation>(document);
    if (!record)
        return false;
    const Catalogue indexed(std::move(*record));
    for (const auto& product : indexed.information().products) {
        const auto* found = indexed.product(product.id);
        if (!found || found->id != product.id || indexed.productsOfFamily(product.applicationFather).empty())
            fail("every product is found by its id");
        for (const auto& format : found->productList) {
            if (!indexed.format(product.id, format.id))
                fail("every format is found by its id");
        }
    }
    return true;
}

bool login(std::string_view document) {
    return roundTrip<LoginResult>(document).has_value();
}

// A sheet, or one in work with the name of its draft.
bool sellingSheetOrder(std::string_view document) {
    if (roundTrip<SheetInWork>(document))
        return true;
    const auto sheet = roundTrip<SellingSheetOrder>(document);
    if (!sheet)
        return false;
    static const Catalogue catalogue = [] {
        ApplicationInformation information;
        information.sellingSheet = SellingSheet();
        return Catalogue(std::move(information));
    }();
    const std::string messages = validationText(*sheet, catalogue);
    if (!messages.empty() && messages.back() != '\n')
        fail("each message ends with a line feed");
    if (validationText(copyOf(*sheet), catalogue).size() > messages.size())
        fail("a copy lacks no more than its sheet");
    const Int next = nextModuleIdentifier(sheet->items);
    if (std::ranges::find(sheet->items, next, &SellingSheetOrder::Item::identifier) != sheet->items.end())
        fail("a new module has a number of its own");
    return true;
}

bool orderList(std::string_view document) {
    const auto list = roundTrip<OrderList>(document);
    if (!list)
        return false;
    const auto orders = list->orders.value_or(std::vector<OrderList::Order>());
    const auto textiles = list->textileOrders.value_or(std::vector<OrderList::OrderTextile>());
    if (std::ranges::any_of(orders, isNamelessInCloud<OrderList::Order>) ||
        std::ranges::any_of(textiles, isNamelessInCloud<OrderList::OrderTextile>))
        return true;
    DraftOrderRows rows;
    rows.applyAnswer(*list);
    rows.applyAnswer(*list);
    rows.sortSentOrders();
    const auto shown =
        rows.draftsOrderList().size() + rows.sentBrochureOrders().size() + rows.sentTextileOrders().size();
    if (shown != orders.size() + textiles.size())
        fail("every order of the answer is shown once");
    if (!std::ranges::is_sorted(rows.draftsOrderList(), std::greater(), &DraftOrderRow::moment) ||
        !std::ranges::is_sorted(rows.sentBrochureOrders(), std::greater(), &OrderList::Order::date) ||
        !std::ranges::is_sorted(rows.sentTextileOrders(), std::greater(), &OrderList::OrderTextile::date))
        fail("the newest order comes first");
    return true;
}

} // namespace kavor::fuzz

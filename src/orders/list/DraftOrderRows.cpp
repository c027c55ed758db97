#include "orders/list/DraftOrderRows.h"

#include "base/StopProcess.h"
#include "brochures/engine/SaveBrochuresOrder.h"
#include "textile/SaveTextileOrder.h"

#include <algorithm>
#include <functional>
#include <set>
#include <unordered_map>

namespace kavor {

namespace {

using DirectoryName = OrderDiskManager::DirectoryName;

template <class Record>
void sortNewestFirst(std::vector<Record>& records) {
    std::stable_sort(records.begin(), records.end(),
                     [](const Record& a, const Record& b) { return a.date > b.date; });
}

SectionIdentifier sectionOf(const SaveBrochuresOrder& order) {
    return SectionIdentifier::brochure(order.menu.orderType);
}
SectionIdentifier sectionOf(const SaveTextileOrder& order) {
    return SectionIdentifier::textile(order.orderInformation.applicationType);
}

DraftOrderRow::LocalOrder localOrderOf(const SaveBrochuresOrder& order) {
    return {order.orderIdentifier, order.menu.customer.name};
}
DraftOrderRow::LocalOrder localOrderOf(const SaveTextileOrder& order) {
    return {order.orderIdentifier, order.customer ? order.customer->name.value_or("") : std::string()};
}

template <class Order>
void appendFiles(std::vector<DraftOrderRow>& rows, const OrderDiskManager& orders, DirectoryName directory) {
    for (const auto& file : orders.list<Order>(directory)) {
        auto order = orders.retrieve<Order>(file.fileName, directory);
        if (!order && !orders.moment<Order>(file.fileName, directory))
            continue; // it vanished since it was listed
        if (!order)
            stopProcess("order file " + file.fileName + " that can be read");
        DraftOrderRow row;
        row.sectionIdentifier = sectionOf(*order);
        row.localOrder = localOrderOf(*order);
        row.filename = OrderDiskManager::plainName(file.fileName);
        row.state = directory;
        row.date = file.modificationDate;
        row.moment = file.modificationMoment;
        row.syncState =
            directory == DirectoryName::draft ? OrderSyncState::savedLocally : OrderSyncState::pendingToSend;
        rows.push_back(std::move(row));
    }
}

template <class Order>
DraftOrderRow cloudRow(const Order& order, SectionIdentifier section) {
    if (!order.filename)
        stopProcess("name of the cloud order " + std::to_string(order.id));
    DraftOrderRow row;
    row.filename = *order.filename;
    row.date = order.date;
    row.moment = {order.date.toTime(), 0};
    row.syncState = OrderSyncState::cloud;
    row.sectionIdentifier = section;
    return row;
}

// The first order of each id.
template <class Order>
std::unordered_map<Int, const Order*> byId(const std::optional<std::vector<Order>>& orders) {
    std::unordered_map<Int, const Order*> index;
    if (orders) {
        for (const Order& order : *orders)
            index.try_emplace(order.id, &order);
    }
    return index;
}

// A row's state stands in the server's orders too, for whoever holds only those.
void placeStates(std::vector<DraftOrderRow>& rows) {
    for (DraftOrderRow& row : rows) {
        if (row.brochureServerOrder)
            row.brochureServerOrder->syncState = row.syncState;
        if (row.textileServerOrder)
            row.textileServerOrder->syncState = row.syncState;
    }
}

// Of a section that has rows: a kind of brochure, or one of textile.
Int numberOf(const SectionIdentifier& section) {
    const auto brochure = section.brochureType();
    return brochure ? static_cast<Int>(*brochure)
                    : static_cast<Int>(std::get<ApplicationType>(section.value));
}

std::string keyOf(const SectionIdentifier& section, Int serverId) {
    return (section.brochureType() ? "brochure " : "textile ") + std::to_string(numberOf(section)) + " #" +
           std::to_string(serverId);
}

} // namespace

std::optional<Int> DraftOrderRow::serverId() const {
    if (brochureServerOrder)
        return brochureServerOrder->id;
    if (textileServerOrder)
        return textileServerOrder->id;
    return std::nullopt;
}

std::optional<OrderFile> DraftOrderRow::file() const {
    if (!state)
        return std::nullopt;
    const auto kind = sectionIdentifier.brochureType() ? OrderFile::Kind::Brochure : OrderFile::Kind::Textile;
    return OrderFile{kind, *state, filename};
}

std::string DraftOrderRow::key() const {
    if (!state)
        return keyOf(sectionIdentifier, serverId().value_or(0));
    return std::string(sectionIdentifier.brochureType() ? "brochure" : "textile") +
           (*state == DirectoryName::draft ? "/draft/" : "/outbox/") + filename;
}

std::string DraftOrderRow::pointOfSale() const {
    if (localOrder && !localOrder->pointOfSale.empty())
        return localOrder->pointOfSale;
    if (brochureServerOrder)
        return brochureServerOrder->pdv.value_or("");
    return textileServerOrder ? textileServerOrder->pdv.value_or("") : std::string();
}

void DraftOrderRows::rebuildLocalRows(const OrderDiskManager& orders) {
    draftsOrderList_.clear();
    appendFiles<SaveBrochuresOrder>(draftsOrderList_, orders, DirectoryName::draft);
    appendFiles<SaveBrochuresOrder>(draftsOrderList_, orders, DirectoryName::outbox);
    appendFiles<SaveTextileOrder>(draftsOrderList_, orders, DirectoryName::draft);
    appendFiles<SaveTextileOrder>(draftsOrderList_, orders, DirectoryName::outbox);
    sortRows();
}

void DraftOrderRows::applyAnswer(const OrderList& answer) {
    clearSentOrders();
    forgetFormerAnswer();
    const auto isSent = [](const auto& order) { return order.stateId != OrderState::cloud; };
    if (answer.orders)
        std::copy_if(answer.orders->begin(), answer.orders->end(), std::back_inserter(sentBrochureOrders_),
                     isSent);
    if (answer.textileOrders)
        std::copy_if(answer.textileOrders->begin(), answer.textileOrders->end(),
                     std::back_inserter(sentTextileOrders_), isSent);
    summary_ = answer.summary;
    appendCloudRows(answer);
    mergeLocalRows(answer);
    dropDuplicates();
    placeStates(draftsOrderList_);
    sortRows();
}

void DraftOrderRows::applyQuickFilter(const OrderList& answer) {
    sentBrochureOrders_ = answer.orders.value_or(std::vector<OrderList::Order>());
    sortNewestFirst(sentBrochureOrders_);
}

// A search asks again without new local rows: what the last answer brought must not show twice.
void DraftOrderRows::forgetFormerAnswer() {
    std::erase_if(draftsOrderList_,
                  [](const DraftOrderRow& row) { return row.syncState == OrderSyncState::cloud; });
    for (DraftOrderRow& row : draftsOrderList_) {
        row.brochureServerOrder.reset();
        row.textileServerOrder.reset();
        if (row.syncState == OrderSyncState::synced)
            row.syncState = OrderSyncState::savedLocally;
    }
}

void DraftOrderRows::appendCloudRows(const OrderList& answer) {
    for (const auto& order : answer.orders.value_or(std::vector<OrderList::Order>())) {
        if (order.stateId != OrderState::cloud)
            continue;
        draftsOrderList_.push_back(cloudRow(order, SectionIdentifier::brochure(order.typeId)));
        draftsOrderList_.back().brochureServerOrder = order;
    }
    for (const auto& order : answer.textileOrders.value_or(std::vector<OrderList::OrderTextile>())) {
        if (order.stateId != OrderState::cloud)
            continue;
        draftsOrderList_.push_back(cloudRow(order, SectionIdentifier::textile(order.applicationType)));
        draftsOrderList_.back().textileServerOrder = order;
    }
}

void DraftOrderRows::mergeLocalRows(const OrderList& answer) {
    const auto brochures = byId(answer.orders);
    const auto textiles = byId(answer.textileOrders);
    for (DraftOrderRow& row : draftsOrderList_) {
        if (row.syncState != OrderSyncState::savedLocally)
            continue;
        const auto id = row.localOrder->orderIdentifier;
        if (!id)
            continue;
        if (row.sectionIdentifier.brochureType()) {
            const auto found = brochures.find(*id);
            if (found == brochures.end())
                continue;
            row.brochureServerOrder = *found->second;
        } else {
            const auto found = textiles.find(*id);
            if (found == textiles.end())
                continue;
            row.textileServerOrder = *found->second;
        }
        row.syncState = OrderSyncState::synced;
    }
}

void DraftOrderRows::dropDuplicates() {
    std::set<std::string> synced;
    for (const DraftOrderRow& row : draftsOrderList_) {
        if (row.syncState == OrderSyncState::synced)
            synced.insert(keyOf(row.sectionIdentifier, *row.serverId()));
    }
    std::erase_if(draftsOrderList_, [&](const DraftOrderRow& row) {
        return row.syncState == OrderSyncState::cloud && synced.contains(row.key());
    });
}

const DraftOrderRow* DraftOrderRows::find(const std::string& key) const {
    const auto found = std::ranges::find(draftsOrderList_, key, &DraftOrderRow::key);
    return found == draftsOrderList_.end() ? nullptr : &*found;
}

const OrderList::Order* DraftOrderRows::findSent(Int id) const {
    const auto found = std::ranges::find(sentBrochureOrders_, id, &OrderList::Order::id);
    return found == sentBrochureOrders_.end() ? nullptr : &*found;
}

void DraftOrderRows::changeSent(Int id, std::optional<bool> canDemandQr, std::optional<OrderState> state,
                                const std::optional<std::string>& stateName) {
    const auto found = std::ranges::find(sentBrochureOrders_, id, &OrderList::Order::id);
    if (found == sentBrochureOrders_.end())
        return;
    found->canDemandQr = canDemandQr.value_or(found->canDemandQr);
    found->stateId = state.value_or(found->stateId);
    found->state = stateName.value_or(found->state);
}

void DraftOrderRows::clearSentOrders() {
    sentBrochureOrders_.clear();
    sentTextileOrders_.clear();
}

void DraftOrderRows::sortSentOrders() {
    sortNewestFirst(sentBrochureOrders_);
    sortNewestFirst(sentTextileOrders_);
}

void DraftOrderRows::sortRows() {
    std::ranges::stable_sort(draftsOrderList_, std::ranges::greater(), &DraftOrderRow::moment);
}

} // namespace kavor

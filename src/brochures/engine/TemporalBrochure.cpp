#include "brochures/engine/TemporalBrochure.h"

#include "base/AtomicFile.h"
#include "base/BackgroundFileWriter.h"
#include "base/Log.h"
#include "brochures/engine/BrochureIntermediateData.h"
#include "brochures/engine/EngineSession.h"

#include <algorithm>
#include <utility>

namespace kavor {

namespace {

const std::string copyName(state_file::temporalBrochure);
const std::string recoveryName = copyName + ".recovery";
const std::string unreadableName = copyName + ".unreadable";

const std::filesystem::path& folder() {
    return engine::documentsFolder();
}

bool exists(const std::string& name) {
    std::error_code error;
    return std::filesystem::exists(std::filesystem::symlink_status(folder() / name, error));
}

bool move(const std::string& from, const std::string& to) {
    const auto moved = atomic_file::move(folder() / from, folder() / to);
    if (!moved)
        logLine(moved.error().text());
    return moved.has_value();
}

std::string setAsideName(BrochureType kind) {
    return copyName + ".type" + std::to_string(static_cast<Int>(kind));
}

std::string numbered(const std::string& name, int number) {
    return number == 1 ? name : name + "-" + std::to_string(number);
}

// How many of this name lie there without a gap.
int countOf(const std::string& name) {
    int count = 0;
    while (exists(numbered(name, count + 1)))
        ++count;
    return count;
}

// A brand without its number, or a format without its own, would stop the loading.
bool canBeLoaded(const SaveBrochuresOrder& order) {
    return std::ranges::all_of(order.menu.beerBrands, [](const auto& brand) {
        return brand.brand &&
               std::ranges::all_of(brand.beers, [](const auto& beer) { return beer.id.has_value(); });
    });
}

} // namespace

TemporalBrochure& TemporalBrochure::shared() {
    static TemporalBrochure instance;
    return instance;
}

TemporalBrochure::Found TemporalBrochure::look(const std::string& name) {
    if (!exists(name))
        return {};
    auto order = state_file::read<KeptOrder>(folder(), name);
    if (order && !canBeLoaded(*order)) {
        logLine(name + ": a brand or format without its number");
        order.reset();
    }
    const bool unreadable = !order.has_value();
    return {std::move(order), unreadable};
}

bool TemporalBrochure::setAside(const std::string& name, const Found& found) {
    const std::string to = found.order ? setAsideName(found.order->menu.orderType) : unreadableName;
    return move(name, numbered(to, countOf(to) + 1));
}

// Sets aside what is of another kind or can't be read, and answers the rest: the copy, or the recovery copy
// when there is none. A recovery copy beside a copy of its kind is an older state of the same draft.
std::optional<KeptOrder> TemporalBrochure::clearPlaces(BrochureType kind) {
    flush();
    Found copy = look(copyName);
    Found recovery = look(recoveryName);
    if (recovery.order && copy.isOf(recovery.order->menu.orderType)) {
        state_file::remove(folder(), recoveryName);
        recovery = {};
    }
    const bool recoveryStays = !recovery.isForeignTo(kind) || setAside(recoveryName, recovery);
    const bool copyStays = !copy.isForeignTo(kind) || setAside(copyName, copy);
    occupied_ = !recoveryStays || !copyStays;
    if (!copy.isOf(kind))
        return recovery.isOf(kind) ? std::move(recovery.order) : std::nullopt;
    if (!occupied_)
        move(copyName, recoveryName);
    return std::move(copy.order);
}

std::optional<KeptOrder> TemporalBrochure::takeSetAside(BrochureType kind) {
    const std::string name = setAsideName(kind);
    for (int last = countOf(name); last > 0; --last) {
        const std::string file = numbered(name, last);
        Found found = look(file);
        if (!found.isOf(kind)) {
            setAside(file, found);
            continue;
        }
        occupied_ = occupied_ || !move(file, recoveryName);
        return std::move(found.order);
    }
    return std::nullopt;
}

std::optional<KeptOrder> TemporalBrochure::takeForOpening(BrochureType kind, bool fromAside) {
    if (folder().empty())
        return std::nullopt;
    auto order = clearPlaces(kind);
    if (!order && fromAside)
        order = takeSetAside(kind);
    taken_ = order.has_value();
    return order;
}

bool TemporalBrochure::restoreDraft() {
    const auto kind = engine::sectionKind();
    if (!kind)
        return false;
    // A draft of this kind that came into memory without a copy is newer than what was set aside.
    const auto inMemory = BrochureIntermediateData::temporalBrochure()->openedAs;
    const auto order = takeForOpening(*kind, inMemory != kind);
    if (order || (inMemory && inMemory != kind))
        BrochureIntermediateData::replaceTemporalBrochure();
    const auto& draft = BrochureIntermediateData::temporalBrochure();
    if (order) {
        draft->loadOrder(*order);
        draft->fileName = order->filename; // the copy has no file of its own to be named after
        draft->unansweredSends = order->unansweredSends.value_or(UnansweredSends());
    }
    draft->openedAs = kind;
    return order.has_value();
}

void TemporalBrochure::write(const BrochureIntermediateData& draft) {
    if (folder().empty() || draft.sent)
        return;
    const auto order = draft.keptOrder(OrderRequestType::saveCloud, false);
    const auto text = json::encode(order);
    if (!text) {
        logLine(copyName + ": " + text.error().text());
        return;
    }
    if (occupied_)
        clearPlaces(order.menu.orderType);
    if (occupied_)
        return; // better an unsaved change than a menu that is overwritten
    taken_ = false;
    BackgroundFileWriter::shared().write(folder() / copyName, *text, {folder() / recoveryName});
}

void TemporalBrochure::removeAll() {
    taken_ = false;
    if (folder().empty())
        return;
    if (occupied_) { // nothing of this draft was written
        logLine(copyName + ": a menu could not be moved, so nothing is removed");
        return;
    }
    for (const auto& name : {copyName, recoveryName})
        BackgroundFileWriter::shared().remove(folder() / name);
}

void TemporalBrochure::removeForLoading(BrochureType kind) {
    if (folder().empty())
        return;
    if (!std::exchange(taken_, false) && clearPlaces(kind))
        removeAll();
}

void TemporalBrochure::number(BrochureType kind, Int orderIdentifier,
                              const std::function<bool(const SaveBrochuresOrder&)>& isThatOrder) {
    if (folder().empty())
        return;
    flush();
    std::vector<std::string> names{copyName, recoveryName};
    const std::string aside = setAsideName(kind);
    for (int i = 1, count = countOf(aside); i <= count; ++i)
        names.push_back(numbered(aside, i));
    for (const std::string& name : names) {
        Found found = look(name);
        if (!found.isOf(kind) || found.order->orderIdentifier || !isThatOrder(*found.order))
            continue;
        found.order->orderIdentifier = orderIdentifier;
        if (const auto text = json::encode(*found.order))
            BackgroundFileWriter::shared().write(folder() / name, *text);
    }
}

void TemporalBrochure::flush() {
    BackgroundFileWriter::shared().flush();
}

} // namespace kavor

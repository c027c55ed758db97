#include "brochures/engine/TemporalBrochure.h"

#include "base/AtomicFile.h"
#include "base/BackgroundFileWriter.h"
#include "base/Log.h"
#include "brochures/engine/BrochureIntermediateData.h"
#include "shell/AppSingleton.h"
#include "shell/StateFile.h"

namespace kavor {

namespace {

constexpr std::string_view recoveryName = "temporalBrochure.recovery";

std::optional<std::filesystem::path> inDocuments(std::string_view name) {
    const auto& folder = AppSingleton::shared().documentsFolder();
    return folder.empty() ? std::nullopt : std::optional(folder / name);
}

} // namespace

TemporalBrochure& TemporalBrochure::shared() {
    static TemporalBrochure instance;
    return instance;
}

std::optional<std::filesystem::path> TemporalBrochure::copy() const {
    return inDocuments(state_file::temporalBrochure);
}

std::optional<std::filesystem::path> TemporalBrochure::recoveryCopy() const {
    return inDocuments(recoveryName);
}

std::optional<KeptOrder> TemporalBrochure::takeForOpening() {
    const auto file = copy();
    if (!file)
        return std::nullopt;
    flush();
    const auto& folder = AppSingleton::shared().documentsFolder();
    auto order = state_file::read<KeptOrder>(folder, state_file::temporalBrochure);
    if (order) {
        if (const auto moved = atomic_file::move(*file, *recoveryCopy()); !moved)
            logLine(moved.error().text());
    } else {
        order = state_file::read<KeptOrder>(folder, recoveryName);
    }
    taken_ = order.has_value();
    return order;
}

bool TemporalBrochure::restoreDraft() {
    const auto order = takeForOpening();
    if (!order)
        return false;
    const auto& draft = BrochureIntermediateData::replaceTemporalBrochure();
    draft->loadOrder(*order);
    draft->fileName = order->filename; // the copy has no file of its own to be named after
    draft->unansweredSends = order->unansweredSends.value_or(UnansweredSends());
    return true;
}

void TemporalBrochure::write(const BrochureIntermediateData& draft) {
    const auto file = copy();
    if (!file || draft.sent)
        return;
    const auto text = json::encode(draft.keptOrder(OrderRequestType::saveCloud, false));
    if (!text) {
        logLine(std::string(state_file::temporalBrochure) + ": " + text.error().text());
        return;
    }
    taken_ = false;
    BackgroundFileWriter::shared().write(*file, *text, {*recoveryCopy()});
}

void TemporalBrochure::removeAll() {
    taken_ = false;
    for (const auto& file : {copy(), recoveryCopy()}) {
        if (file)
            BackgroundFileWriter::shared().remove(*file);
    }
}

void TemporalBrochure::removeForLoading() {
    if (!taken_) {
        removeAll();
        return;
    }
    taken_ = false;
    if (const auto file = copy())
        BackgroundFileWriter::shared().remove(*file);
}

void TemporalBrochure::flush() {
    BackgroundFileWriter::shared().flush();
}

} // namespace kavor

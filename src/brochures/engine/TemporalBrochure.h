#pragma once

#include "brochures/engine/SaveBrochuresOrder.h"

#include <filesystem>
#include <optional>

namespace kavor {

class BrochureIntermediateData;

// The temporary copy of the draft in work, the state file "temporalBrochure" of the documents folder. Writing
// and removing happen in the background in their order; reading waits for them. Opening the wizard takes the
// copy away until the next write; so that a process that dies in between loses nothing, the copy lives on
// beside it as a recovery copy until the next write stands on disk, or the draft is reset or sent. Without a
// documents folder nothing is read or written. Main thread only.
class TemporalBrochure {
public:
    static TemporalBrochure& shared();

    // The copy, or the recovery copy when there is none, to fill a new draft; afterwards there is no copy.
    std::optional<KeptOrder> takeForOpening();
    // Takes the copy and, when there is one, replaces the shared draft by a new one filled from it, its file
    // name and the sends without an answer included. Answers whether there was one.
    bool restoreDraft();
    // Writes the copy of the draft (as keptOrder gives it for the cloud, without validation). Returns at
    // once. A draft that was sent has no copy.
    void write(const BrochureIntermediateData& draft);
    // Removes the copy and the recovery copy: the draft was reset or sent.
    void removeAll();
    // Removes the copy of whatever draft was in work because another order is loaded. The recovery copy stays
    // when it is the one being loaded.
    void removeForLoading();
    // Waits until what was asked for stands on disk.
    void flush();

private:
    TemporalBrochure() = default;
    [[nodiscard]] std::optional<std::filesystem::path> copy() const;
    [[nodiscard]] std::optional<std::filesystem::path> recoveryCopy() const;

    bool taken_ = false;
};

} // namespace kavor

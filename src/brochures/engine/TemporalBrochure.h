#pragma once

#include "brochures/engine/SaveBrochuresOrder.h"

#include <filesystem>
#include <functional>
#include <optional>
#include <string>

namespace kavor {

class BrochureIntermediateData;

// The temporary copy of the draft in work, the state file "temporalBrochure" of the documents folder. Writing
// and removing happen in the background in their order; reading waits for them. Opening the wizard takes the
// copy away until the next write; so that a process that dies in between loses nothing, the copy lives on
// beside it as a recovery copy until the next write stands on disk, or the draft is reset or sent.
//
// A copy of another kind than the one opened is set aside, as "temporalBrochure.type1" (the number of its
// kind), and comes back when its own kind is opened: each kind has an unfinished menu of its own. Where one
// of that kind lies aside already, the further one is "temporalBrochure.type1-2" and comes back first. What
// can't be read is set aside as "temporalBrochure.unreadable" and stays. Setting aside renames, so a copy is
// in one place at any moment. Without a documents folder nothing is read or written. Main thread only.
class TemporalBrochure {
public:
    static TemporalBrochure& shared();

    // The unfinished menu of this kind: the copy, or the recovery copy when there is none, or what was set
    // aside last (where that is wanted). Afterwards there is no copy.
    std::optional<KeptOrder> takeForOpening(BrochureType kind, bool fromAside = true);
    // For a wizard that opens in the section of the session: takes the unfinished menu of its kind and, when
    // there is one, replaces the shared draft by a new one filled from it, its file name and the sends
    // without an answer included. A shared draft of another kind gives way to a new one. Answers whether
    // there was a menu to restore. Outside a brochure section nothing happens.
    bool restoreDraft();
    // Writes the copy of the draft (as keptOrder gives it for the cloud, without validation). Returns at
    // once. A draft that was sent has no copy.
    void write(const BrochureIntermediateData& draft);
    // Removes the copy and the recovery copy: the draft was reset or sent. What was set aside stays.
    void removeAll();
    // Removes the copy of whatever draft of this kind was in work because another order is loaded; a copy of
    // another kind is set aside. The recovery copy stays when it is the one being loaded.
    void removeForLoading(BrochureType kind);
    // The server has an order under a number: the copies of it that have none take the number, wherever they
    // lie, so that the menu is still that order when it comes back.
    void number(BrochureType kind, Int orderIdentifier,
                const std::function<bool(const SaveBrochuresOrder&)>& isThatOrder);
    // Waits until what was asked for stands on disk.
    void flush();

private:
    // What a place holds.
    struct Found {
        std::optional<KeptOrder> order;
        bool unreadable = false;
        [[nodiscard]] bool isOf(BrochureType kind) const { return order && order->menu.orderType == kind; }
        [[nodiscard]] bool isForeignTo(BrochureType kind) const {
            return unreadable || (order && order->menu.orderType != kind);
        }
    };

    TemporalBrochure() = default;
    [[nodiscard]] static Found look(const std::string& name);
    std::optional<KeptOrder> clearPlaces(BrochureType kind);
    static bool setAside(const std::string& name, const Found& found);
    std::optional<KeptOrder> takeSetAside(BrochureType kind);

    bool taken_ = false;    // the recovery copy is the one that was opened
    bool occupied_ = false; // a menu that could not be moved is in the way
};

} // namespace kavor

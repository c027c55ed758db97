#pragma once

#include "brochures/engine/EngineSession.h"
#include "brochures/engine/SaveBrochuresOrder.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace kavor {

class BrochureIntermediateData;

// The unfinished menus, the state file "temporalBrochure": each kind of brochure has one of its own, set
// aside as "temporalBrochure.type1" (the number of its kind) while another kind is in work. The copy is the
// draft as keptOrder gives it for the cloud, without validation.
class TemporalBrochure : public UnfinishedWork<KeptOrder, BrochureIntermediateData> {
public:
    static TemporalBrochure& shared();

    // The unfinished menu of this kind; afterwards there is no copy.
    std::optional<KeptOrder> takeForOpening(BrochureType kind, bool fromAside = true);
    // For a wizard that opens in the section of the session: takes the unfinished menu of its kind and, when
    // there is one, replaces the shared draft by a new one filled from it, its file name and the sends
    // without an answer included. A shared draft of another kind gives way to a new one. Answers whether
    // there was a menu to restore. Outside a brochure section nothing happens.
    bool restoreDraft();
    // Another order of this kind is loaded into the draft.
    void removeForLoading(BrochureType kind);
    // The server has an order under a number: the copies of it that have none take the number, wherever they
    // lie, so that the menu is still that order when it comes back.
    void number(BrochureType kind, Int orderIdentifier,
                const std::function<bool(const SaveBrochuresOrder&)>& isThatOrder);

protected:
    [[nodiscard]] std::shared_ptr<const BrochureIntermediateData> current() const override;
    [[nodiscard]] std::optional<KeptOrder> recordOf(const BrochureIntermediateData& draft) const override;
    [[nodiscard]] std::string kindOf(const KeptOrder& order) const override;
    [[nodiscard]] std::string faultOf(const KeptOrder& order) const override;
    [[nodiscard]] std::string broughtBack() const override { return "Se ha recuperado la carta en curso"; }

private:
    TemporalBrochure()
        : UnfinishedWork(state_file::temporalBrochure) {}
};

} // namespace kavor

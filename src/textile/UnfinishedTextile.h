#pragma once

#include "session/UnfinishedWork.h"
#include "textile/TextileDraftRecord.h"
#include "textile/TextileOrderToEdit.h"

#include <memory>
#include <optional>
#include <string>

namespace kavor {

// The unfinished textile order, the state file "textileDraft": both textile sections work on one.
class UnfinishedTextile : public UnfinishedWork<TextileDraftRecord, TextileIntermediateData> {
public:
    static UnfinishedTextile& shared();

    // Puts the unfinished order in the place of the shared draft. Without one that stays as it is; one that
    // was sent makes room for an empty one.
    void open();
    // Puts an order to edit there, which knows the sends that nobody answered of the draft before it: what
    // may be at the server already is not ordered twice.
    void open(const TextileOrderToEdit& toEdit);
    // The shared draft has changed: keeps it, or removes its copy where it holds nothing.
    void keep();
    // An empty draft begins in the place of the shared one.
    void beginAnew();

protected:
    [[nodiscard]] std::shared_ptr<const TextileIntermediateData> current() const override {
        return TextileIntermediateData::shared();
    }
    [[nodiscard]] std::optional<TextileDraftRecord>
    recordOf(const TextileIntermediateData& draft) const override;
    [[nodiscard]] std::string broughtBack() const override {
        return "Se ha recuperado el pedido de textil en curso";
    }

private:
    UnfinishedTextile();
};

} // namespace kavor

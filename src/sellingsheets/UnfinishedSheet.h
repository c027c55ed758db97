#pragma once

#include "sellingsheets/StyleSingleton.h"
#include "session/UnfinishedWork.h"

#include <memory>
#include <string_view>

namespace kavor {

// What is kept of a sheet in work: the sheet as it stands, and the plain name of its draft.
struct SheetInWork {
    SellingSheetOrder order;
    std::optional<std::string> filename;
};

// The selling sheet in work, the state file "sellingSheetDraft": what was changed and is neither stored as a
// draft nor sent.
class UnfinishedSheet : public UnfinishedWork<SheetInWork, StyleSingleton> {
public:
    static constexpr std::string_view stateFile = "sellingSheetDraft";

    static UnfinishedSheet& shared();

    // Brings unfinished work back into StyleSingleton; answers whether there was any.
    bool open();
    // The sheet in work has changed.
    void keep() { write(StyleSingleton::shared()); }

protected:
    [[nodiscard]] std::shared_ptr<const StyleSingleton> current() const override;
    [[nodiscard]] std::optional<SheetInWork> recordOf(const StyleSingleton& work) const override;
    [[nodiscard]] std::string broughtBack() const override { return "Se ha recuperado la hoja en curso"; }

private:
    UnfinishedSheet();
};

} // namespace kavor

#pragma once

#include "base/Int.h"

namespace kavor {

// The three answers to "is this one chosen?"; unknown when the catalogue has no such thing.
enum class SelectionState { unknown, notSelected, selected };

// What the selection views need of the draft.
class SelectHighlightCheckerDelegate {
public:
    virtual ~SelectHighlightCheckerDelegate() = default;
    virtual bool setFormatSelected(bool on, Int format, Int brand) = 0;
    [[nodiscard]] virtual SelectionState isFormatSelected(Int format, Int brand) const = 0;
};

} // namespace kavor

#pragma once

#include "device/Background.h"
#include "session/AppSingleton.h"

#include <memory>

namespace kavor {

// A copy of the session's catalogue for a change of it, made in the background while the user is still asked:
// copying a large catalogue would hold up the window.
class CatalogueCopy {
public:
    // Begins to copy the catalogue in place.
    void prepare() {
        base_ = AppSingleton::shared().applicationInformation;
        copy_ = Copy([base = base_] { return std::make_shared<Catalogue>(*base); });
    }
    // Waits for the copy and gives it away; null when another catalogue has come into place meanwhile.
    std::shared_ptr<Catalogue> take() {
        const bool current = base_ && base_ == AppSingleton::shared().applicationInformation;
        base_.reset();
        return current ? copy_.take() : nullptr;
    }

private:
    using Copy = BegunWork<std::shared_ptr<Catalogue>>;

    std::shared_ptr<const Catalogue> base_;
    Copy copy_;
};

} // namespace kavor

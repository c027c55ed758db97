#include "brochures/wizard/StyleCover.h"

#include "interaction/QtText.h"
#include "screens/ResourceImages.h"

namespace kavor {

Cover coverOf(const Brochures::Style& style, bool isPreferred) {
    return {style.id,
            fromUtf8(style.name),
            resourceImageUrl(style.firstImage),
            resourceImageUrl(style.secondImage),
            resourceImageUrl(style.thumbImage),
            isPreferred};
}

} // namespace kavor

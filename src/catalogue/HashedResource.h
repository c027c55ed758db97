#pragma once

#include "base/Int.h"
#include "base/Url.h"

#include <string>

namespace kavor {

// An image, video or document that the catalogue refers to.
struct HashedResource {
    std::string cacheKey; // the content's hash, the key in the image cache
    Url downloadURL;
    Int downloadType = 0; // 1 prefetched with progress, 2 in the background, others on first show

    bool operator==(const HashedResource&) const = default;
};

} // namespace kavor

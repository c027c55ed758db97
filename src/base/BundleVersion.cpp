#include "base/BundleVersion.h"

namespace kavor {

std::string bundleVersion() {
    return KAVOR_VERSION;
}

std::string bundleCompilation() {
    return KAVOR_COMPILATION;
}

} // namespace kavor

#pragma once

#include <string>

namespace kavor {

// The version of the programs, for example "1.0.0", and the number of their build. Each request carries them
// as "version" and "compilation".
std::string bundleVersion();
std::string bundleCompilation();

} // namespace kavor

#include "Targets.h"

#include <cstddef>
#include <cstdint>

// One fuzzer for each target; KAVOR_FUZZ_TARGET names it.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    kavor::fuzz::KAVOR_FUZZ_TARGET({reinterpret_cast<const char*>(data), size});
    return 0;
}

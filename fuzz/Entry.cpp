#include "Targets.h"
#include "base/StopProcess.h"

#include <cstddef>
#include <cstdint>

// In the place of the client's, which would end the process without the fuzzer keeping the document.
void kavor::stopProcess(std::string_view whatWasMissing) {
    fuzz::fail(whatWasMissing);
}

// One fuzzer for each target; KAVOR_FUZZ_TARGET names it.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    kavor::fuzz::KAVOR_FUZZ_TARGET({reinterpret_cast<const char*>(data), size});
    return 0;
}

#include "base/StopProcess.h"

#include "base/Log.h"

#include <unistd.h>

#include <string>

namespace kavor {

void stopProcess(std::string_view whatWasMissing) {
    const std::string line = "kavor: stopped: " + std::string(whatWasMissing);
    if (!logLastWords(line)) {
        const std::string plain = line + "\n";
        [[maybe_unused]] const auto written = ::write(STDERR_FILENO, plain.data(), plain.size());
    }
    ::_exit(stoppedExitStatus);
}

} // namespace kavor

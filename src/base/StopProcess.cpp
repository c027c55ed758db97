#include "base/StopProcess.h"

#include <unistd.h>

#include <string>

namespace kavor {

void stopProcess(std::string_view whatWasMissing) {
    const std::string line = "kavor: stopped: " + std::string(whatWasMissing) + "\n";
    [[maybe_unused]] const auto written = ::write(STDERR_FILENO, line.data(), line.size());
    ::_exit(stoppedExitStatus);
}

} // namespace kavor

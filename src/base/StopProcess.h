#pragma once

#include <string_view>

namespace kavor {

// The exit status of a process that a programmer's fault has stopped.
inline constexpr int stoppedExitStatus = 70;

// Ends the process because something that must be there was absent: prints the text on stderr and exits with
// stoppedExitStatus, without a core dump and without running destructors.
[[noreturn]] void stopProcess(std::string_view whatWasMissing);

} // namespace kavor

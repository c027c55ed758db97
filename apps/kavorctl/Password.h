#pragma once

#include <ostream>
#include <string>

namespace kavor::ctl {

// A password without an echo from the terminal, or the first line of standard input; a CommandFailure when it
// is empty. A signal at the prompt ends the process with the terminal as it was.
std::string readPassword(std::ostream& prompt);

} // namespace kavor::ctl

#include "Password.h"

#include "CommandContext.h"

#include <signal.h>
#include <termios.h>
#include <unistd.h>

#include <array>
#include <iostream>

namespace kavor::ctl {

namespace {

constexpr std::array endingSignals{SIGINT, SIGTERM, SIGHUP, SIGQUIT};

termios formerTerminal; // read by the signal handler

// Only what a signal handler may call.
void restoreAndEnd(int signal) {
    ::tcsetattr(STDIN_FILENO, TCSANOW, &formerTerminal);
    [[maybe_unused]] const auto written = ::write(STDERR_FILENO, "\n", 1);
    ::signal(signal, SIG_DFL);
    ::raise(signal); // takes effect when the handler returns
}

// The terminal of standard input without its echo, while this lives.
class SilentTerminal {
public:
    SilentTerminal() {
        ::tcgetattr(STDIN_FILENO, &formerTerminal);
        struct sigaction action {};
        action.sa_handler = restoreAndEnd;
        for (std::size_t i = 0; i < endingSignals.size(); ++i) {
            ::sigaction(endingSignals[i], nullptr, &formerActions_[i]);
            if (formerActions_[i].sa_handler != SIG_IGN)
                ::sigaction(endingSignals[i], &action, nullptr);
        }
        termios silent = formerTerminal;
        silent.c_lflag &= ~static_cast<tcflag_t>(ECHO);
        ::tcsetattr(STDIN_FILENO, TCSANOW, &silent);
    }
    SilentTerminal(const SilentTerminal&) = delete;
    SilentTerminal& operator=(const SilentTerminal&) = delete;
    ~SilentTerminal() {
        ::tcsetattr(STDIN_FILENO, TCSANOW, &formerTerminal);
        for (std::size_t i = 0; i < endingSignals.size(); ++i)
            ::sigaction(endingSignals[i], &formerActions_[i], nullptr);
    }

private:
    std::array<struct sigaction, endingSignals.size()> formerActions_{};
};

std::string readLine(std::ostream& prompt) {
    std::string line;
    if (::isatty(STDIN_FILENO) == 0) {
        std::getline(std::cin, line);
        return line;
    }
    {
        const SilentTerminal silence;
        prompt << "Contraseña: " << std::flush;
        std::getline(std::cin, line);
    }
    prompt << '\n';
    return line;
}

} // namespace

std::string readPassword(std::ostream& prompt) {
    std::string password = readLine(prompt);
    if (password.ends_with('\r'))
        password.pop_back();
    if (password.empty())
        throw CommandFailure(wrongUsage, "kavorctl: the password is empty");
    return password;
}

} // namespace kavor::ctl

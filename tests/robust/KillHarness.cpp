#include "robust/KillHarness.h"

#include "device/keychain/FileKeychain.h"
#include "orders/OrderDiskManager.h"
#include "robust/StampedFiles.h"

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <map>
#include <mutex>
#include <random>
#include <set>
#include <sstream>
#include <thread>

namespace kavor::robust {

namespace {

using Moment = std::chrono::steady_clock::time_point;

// A running child and the pipe on which it tells what it does.
class ChildProcess {
public:
    explicit ChildProcess(std::vector<std::string> arguments) {
        int ends[2];
        if (::pipe2(ends, O_CLOEXEC) != 0)
            return;
        pipe_ = ends[0];
        posix_spawn_file_actions_t actions;
        posix_spawn_file_actions_init(&actions);
        posix_spawn_file_actions_adddup2(&actions, ends[1], STDOUT_FILENO);
        arguments.insert(arguments.begin(), KAVOR_KILL_CHILD);
        std::vector<char*> argv;
        for (auto& argument : arguments)
            argv.push_back(argument.data());
        argv.push_back(nullptr);
        if (::posix_spawn(&process_, KAVOR_KILL_CHILD, &actions, nullptr, argv.data(), environ) != 0)
            process_ = -1;
        posix_spawn_file_actions_destroy(&actions);
        ::close(ends[1]);
    }
    ChildProcess(const ChildProcess&) = delete;
    ChildProcess& operator=(const ChildProcess&) = delete;
    ~ChildProcess() {
        if (pipe_ >= 0)
            ::close(pipe_);
    }

    // Takes what is told until the moment, or, without one, until the child has ended. False at the end.
    bool listen(std::optional<Moment> until) {
        while (true) {
            int wait = -1;
            if (until) {
                const auto left = *until - std::chrono::steady_clock::now();
                wait = static_cast<int>(std::chrono::ceil<std::chrono::milliseconds>(left).count());
                if (wait <= 0)
                    return true;
            }
            pollfd descriptor{pipe_, POLLIN, 0};
            if (::poll(&descriptor, 1, wait) == 0)
                continue;
            char buffer[4096];
            const auto count = ::read(pipe_, buffer, sizeof buffer);
            if (count <= 0)
                return false;
            told_.append(buffer, static_cast<std::size_t>(count));
        }
    }
    [[nodiscard]] bool hasTold() const { return !told_.empty(); }
    [[nodiscard]] const std::string& told() const { return told_; }
    void kill() const {
        if (process_ > 0)
            ::kill(process_, SIGKILL);
    }
    // The status as waitpid gives it.
    int reap() {
        int status = -1;
        if (process_ > 0)
            ::waitpid(process_, &status, 0);
        process_ = -1;
        return status;
    }

private:
    int pipe_ = -1;
    pid_t process_ = -1;
    std::string told_;
};

// What each file may hold: first what it held for sure, then what was about to be written.
using Expectation = std::map<std::string, std::vector<Int>>;

// One documents folder with one child after the other.
class Place {
public:
    Place(std::filesystem::path documents, const KillOptions& options, unsigned seed)
        : documents_(std::move(documents))
        , options_(options)
        , random_(seed) {
        std::filesystem::create_directory(documents_);
    }

    void round() {
        std::vector<std::string> arguments{documents_.string(), std::to_string(random_()),
                                           std::to_string(stamp_), "0"};
        if (options_.fileSizeLimit)
            arguments.push_back(std::to_string(*options_.fileSizeLimit));
        ChildProcess child(arguments);
        const auto now = [] { return std::chrono::steady_clock::now(); };
        bool alive = true;
        while (alive && !child.hasTold())
            alive = child.listen(now() + std::chrono::milliseconds(20));
        if (alive)
            alive = child.listen(now() + std::chrono::microseconds(random_() % 60'000));
        child.kill();
        child.listen(std::nullopt);
        if (!alive)
            report.faults.push_back("a child ended by itself, status " + std::to_string(child.reap()));
        else
            child.reap();
        ++report.kills;
        follow(child.told());
        lookAtFiles();
        startAgain();
    }

    KillReport report;

private:
    void follow(const std::string& told) {
        std::set<std::string> begun;
        std::istringstream lines(told);
        for (std::string line; std::getline(lines, line);) {
            const char sign = line.at(0);
            const auto last = line.rfind(' ');
            const bool numbered = sign == '>' || sign == '=';
            const std::string key = line.substr(2, numbered ? last - 2 : std::string::npos);
            auto& values = expected_.try_emplace(key, std::vector<Int>{0}).first->second;
            if (sign == '>')
                begun.insert(key);
            else
                begun.erase(key);
            const Int stamp = numbered ? std::stoll(line.substr(last + 1)) : 0;
            if (sign == '>')
                values.push_back(stamp);
            else if (sign == '=')
                values = {stamp};
            else if (sign == '!' && values.size() > 1)
                values.pop_back();
            report.operations += sign == '=' ? 1 : 0;
            report.failedWrites += sign == '!' || sign == '?' ? 1 : 0;
            stamp_ = std::max(stamp_, stamp + 1);
        }
        report.duringAWrite += begun.empty() ? 0 : 1;
    }

    void fault(const std::string& text) {
        report.faults.push_back(documents_.filename().string() + ": " + text);
    }

    // The other place of the same key.
    [[nodiscard]] bool isRecoveryOfKey(const std::string& name) const {
        return name.ends_with(recoveryEnding) &&
               expected_.contains(name.substr(0, name.size() - recoveryEnding.size()));
    }

    void lookAtFiles() {
        for (const auto& entry : std::filesystem::recursive_directory_iterator(documents_)) {
            const auto name = entry.path().filename().string();
            const auto key = std::filesystem::relative(entry.path(), documents_).string();
            if (isForTheNextStart(name))
                ++report.temporaries;
            else if (entry.is_regular_file() && key != recoveryCopyName && key != temporaryCopyName &&
                     !isRecoveryOfKey(key) && !expected_.contains(key))
                fault(key + " is a file that nobody wrote");
        }
        for (auto& [key, values] : expected_) {
            const auto found = stampIn(documents_, key);
            if (!found)
                fault(key + " is torn");
            else if (std::ranges::find(values, *found) == values.end())
                fault(key + " holds " + std::to_string(*found) + ", must hold " + textOf(values));
            values = {found.value_or(0)};
        }
    }

    // What a dead writer left, and what was deleted and could still be brought back.
    static bool isForTheNextStart(const std::string& name) {
        return name.starts_with(".tmp-") || name.ends_with(".del");
    }

    static std::string textOf(const std::vector<Int>& values) {
        std::string text;
        for (const Int value : values)
            text += (text.empty() ? "" : " or ") + std::to_string(value);
        return text;
    }

    void startAgain() {
        const OrderDiskManager orders(documents_);
        const FileKeychain keychain(documents_ / keychainKey);
        for (const auto& entry : std::filesystem::recursive_directory_iterator(documents_)) {
            if (isForTheNextStart(entry.path().filename().string()))
                fault(entry.path().string() + " is left after the next start");
        }
    }

    std::filesystem::path documents_;
    const KillOptions& options_;
    std::mt19937 random_;
    Int stamp_ = 1;
    Expectation expected_;
};

} // namespace

std::string KillReport::line() const {
    return std::to_string(kills) + " kills (" + std::to_string(duringAWrite) + " during a write), " +
           std::to_string(operations) + " operations done, " + std::to_string(failedWrites) + " refused, " +
           std::to_string(temporaries) + " temporaries swept, " + std::to_string(faults.size()) + " faults";
}

KillReport killChildren(const KillOptions& options) {
    KillReport total;
    std::mutex mutex;
    const auto work = [&](int number, int kills) {
        Place place(options.folder / ("child-" + std::to_string(number)), options,
                    options.seed * 100 + number);
        for (int i = 0; i < kills && place.report.faults.empty(); ++i)
            place.round();
        const std::lock_guard lock(mutex);
        total.kills += place.report.kills;
        total.duringAWrite += place.report.duringAWrite;
        total.temporaries += place.report.temporaries;
        total.operations += place.report.operations;
        total.failedWrites += place.report.failedWrites;
        total.faults.insert(total.faults.end(), place.report.faults.begin(), place.report.faults.end());
    };
    std::vector<std::thread> threads;
    for (int i = 0; i < options.children; ++i)
        threads.emplace_back(
            work, i, options.kills / options.children + (i < options.kills % options.children ? 1 : 0));
    for (auto& thread : threads)
        thread.join();
    return total;
}

ChildOutcome runChild(const std::filesystem::path& documents, unsigned seed, int firstStamp, int operations) {
    ChildProcess child(
        {documents.string(), std::to_string(seed), std::to_string(firstStamp), std::to_string(operations)});
    child.listen(std::nullopt);
    ChildOutcome outcome;
    const int status = child.reap();
    outcome.status = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    std::istringstream lines(child.told());
    for (std::string line; std::getline(lines, line);) {
        outcome.succeeded += line.starts_with('=') ? 1 : 0;
        outcome.failed += line.starts_with('!') || line.starts_with('?') ? 1 : 0;
    }
    return outcome;
}

} // namespace kavor::robust

#include "robust/OwnMounts.h"

#include <sched.h>
#include <sys/mount.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <fstream>
#include <string>

namespace kavor::robust {

namespace {

constexpr int refused = 77;

bool writeLine(const char* file, const std::string& line) {
    std::ofstream stream(file);
    stream << line;
    return bool(stream.flush());
}

} // namespace

bool takeOwnMounts() {
    const auto user = ::geteuid();
    const auto group = ::getegid();
    if (::unshare(CLONE_NEWNS) != 0) {
        if (::unshare(CLONE_NEWUSER | CLONE_NEWNS) != 0)
            return false;
        writeLine("/proc/self/setgroups", "deny");
        if (!writeLine("/proc/self/uid_map", "0 " + std::to_string(user) + " 1") ||
            !writeLine("/proc/self/gid_map", "0 " + std::to_string(group) + " 1"))
            return false;
    }
    return ::mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0;
}

std::optional<int> runWithOwnMounts(const std::function<int()>& work) {
    std::fflush(nullptr);
    const pid_t child = ::fork();
    if (child < 0)
        return std::nullopt;
    if (child == 0) {
        const int status = takeOwnMounts() ? work() : refused;
        std::fflush(nullptr);
        ::_exit(status);
    }
    int status = 0;
    if (::waitpid(child, &status, 0) != child || !WIFEXITED(status))
        return -1;
    return WEXITSTATUS(status) == refused ? std::nullopt : std::optional(WEXITSTATUS(status));
}

bool mountSmallDisk(const std::filesystem::path& folder, long kilobytes) {
    const std::string options = "size=" + std::to_string(kilobytes) + "k,mode=700";
    return ::mount("tmpfs", folder.c_str(), "tmpfs", MS_NODEV | MS_NOSUID, options.c_str()) == 0;
}

bool makeReadOnly(const std::filesystem::path& folder) {
    return ::mount(folder.c_str(), folder.c_str(), nullptr, MS_BIND, nullptr) == 0 &&
           ::mount(nullptr, folder.c_str(), nullptr, MS_REMOUNT | MS_BIND | MS_RDONLY, nullptr) == 0;
}

} // namespace kavor::robust

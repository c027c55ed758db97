#include "base/AtomicFile.h"

#include <fcntl.h>
#include <signal.h>
#include <sys/stat.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <charconv>
#include <cstring>

namespace kavor::atomic_file {

namespace {

constexpr std::string_view temporaryPrefix = ".tmp-";

Failure failure(const std::filesystem::path& path, int error) {
    return {path, std::strerror(error), error == ENOENT};
}

// A file descriptor that closes itself.
class Descriptor {
public:
    explicit Descriptor(int number)
        : number_(number) {}
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    ~Descriptor() { close(); }

    [[nodiscard]] int number() const { return number_; }
    int close() {
        const int result = number_ < 0 ? 0 : ::close(number_);
        number_ = -1;
        return result;
    }

private:
    int number_;
};

int writeAll(int descriptor, std::string_view content) {
    while (!content.empty()) {
        const auto written = ::write(descriptor, content.data(), content.size());
        if (written < 0 && errno == EINTR)
            continue;
        if (written < 0)
            return errno;
        content.remove_prefix(static_cast<std::size_t>(written));
    }
    return 0;
}

// As well as the file system can: some know no flush of a folder.
void flushFolder(const std::filesystem::path& folder) {
    const Descriptor descriptor(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (descriptor.number() >= 0)
        ::fsync(descriptor.number());
}

std::filesystem::path folderOf(const std::filesystem::path& path) {
    return path.has_parent_path() ? path.parent_path() : std::filesystem::path(".");
}

// The name carries the process, so that a sweep tells the living from the dead.
std::filesystem::path temporarySibling(const std::filesystem::path& path) {
    static std::atomic<unsigned> counter = 0;
    return folderOf(path) / (std::string(temporaryPrefix) + std::to_string(::getpid()) + "-" +
                             std::to_string(counter.fetch_add(1)));
}

// The process that a temporary's name carries; nothing for any other name.
std::optional<pid_t> writerOf(std::string_view name) {
    if (!name.starts_with(temporaryPrefix))
        return std::nullopt;
    const char* const end = name.data() + name.size();
    pid_t owner = 0;
    const auto [dash, error] = std::from_chars(name.data() + temporaryPrefix.size(), end, owner);
    if (error != std::errc() || owner <= 0 || dash == end || *dash != '-')
        return std::nullopt;
    unsigned number = 0;
    const auto [read, fault] = std::from_chars(dash + 1, end, number);
    return fault == std::errc() && read == end ? std::optional(owner) : std::nullopt;
}

tl::expected<std::filesystem::path, Failure> writeTemporary(const std::filesystem::path& path,
                                                            std::string_view content) {
    const auto temporary = temporarySibling(path);
    ::unlink(temporary.c_str());
    Descriptor descriptor(::open(temporary.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600));
    if (descriptor.number() < 0)
        return tl::unexpected(failure(path, errno));
    int error = writeAll(descriptor.number(), content);
    if (error == 0 && ::fsync(descriptor.number()) != 0)
        error = errno;
    if (descriptor.close() != 0 && error == 0)
        error = errno;
    if (error != 0) {
        ::unlink(temporary.c_str());
        return tl::unexpected(failure(path, error));
    }
    return temporary;
}

} // namespace

void survivePassingTheSizeLimit() {
    ::signal(SIGXFSZ, SIG_IGN);
}

std::string Failure::text() const {
    return path.string() + ": " + reason;
}

Done write(const std::filesystem::path& path, std::string_view content) {
    const auto temporary = writeTemporary(path, content);
    if (!temporary)
        return tl::unexpected(temporary.error());
    if (::rename(temporary->c_str(), path.c_str()) != 0) {
        const int error = errno;
        ::unlink(temporary->c_str());
        return tl::unexpected(failure(path, error));
    }
    flushFolder(folderOf(path));
    return {};
}

Done create(const std::filesystem::path& path, std::string_view content) {
    const auto temporary = writeTemporary(path, content);
    if (!temporary)
        return tl::unexpected(temporary.error());
    // A hard link fails when the name is taken, which a rename would not.
    const int error = ::link(temporary->c_str(), path.c_str()) == 0 ? 0 : errno;
    ::unlink(temporary->c_str());
    if (error != 0)
        return tl::unexpected(failure(path, error));
    flushFolder(folderOf(path));
    return {};
}

tl::expected<std::string, Failure> read(const std::filesystem::path& path) {
    // Without O_NONBLOCK a pipe in the file's place would block until somebody writes to it.
    const Descriptor descriptor(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    struct stat status {};
    if (descriptor.number() < 0 || ::fstat(descriptor.number(), &status) != 0)
        return tl::unexpected(failure(path, errno));
    if (!S_ISREG(status.st_mode))
        return tl::unexpected(Failure{path, "not a regular file"});
    std::string content;
    content.reserve(static_cast<std::size_t>(status.st_size) + roomBehind);
    content.resize(static_cast<std::size_t>(status.st_size));
    std::size_t filled = 0;
    while (filled < content.size()) {
        const auto count = ::read(descriptor.number(), content.data() + filled, content.size() - filled);
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            return tl::unexpected(failure(path, errno));
        if (count == 0)
            break;
        filled += static_cast<std::size_t>(count);
    }
    content.resize(filled);
    return content;
}

Done remove(const std::filesystem::path& path) {
    if (::unlink(path.c_str()) != 0) {
        if (errno == ENOENT)
            return {};
        return tl::unexpected(failure(path, errno));
    }
    flushFolder(folderOf(path));
    return {};
}

Done move(const std::filesystem::path& from, const std::filesystem::path& to) {
    if (::rename(from.c_str(), to.c_str()) != 0)
        return tl::unexpected(failure(from, errno));
    flushFolder(folderOf(to));
    return {};
}

Done makeFolder(const std::filesystem::path& folder) {
    std::error_code error;
    if (std::filesystem::is_directory(folder, error))
        return {};
    if (folder.has_parent_path() && folder.parent_path() != folder) {
        if (auto parent = makeFolder(folder.parent_path()); !parent)
            return parent;
    }
    if (::mkdir(folder.c_str(), 0700) != 0 && errno != EEXIST)
        return tl::unexpected(failure(folder, errno));
    flushFolder(folderOf(folder));
    if (!std::filesystem::is_directory(folder, error))
        return tl::unexpected(Failure{folder, "not a folder"});
    return {};
}

void sweepTemporaries(const std::filesystem::path& folder) {
    std::error_code error;
    for (const auto& entry : std::filesystem::directory_iterator(folder, error)) {
        const auto owner = writerOf(entry.path().filename().string());
        if (!owner)
            continue;
        const bool alive = *owner != ::getpid() && (::kill(*owner, 0) == 0 || errno == EPERM);
        if (!alive)
            ::unlink(entry.path().c_str());
    }
}

std::optional<std::filesystem::path> child(const std::filesystem::path& folder, std::string_view name) {
    if (name.empty() || name == "." || name == ".." || name.size() > 255 || name.starts_with(temporaryPrefix))
        return std::nullopt;
    if (name.find('/') != std::string_view::npos || name.find('\0') != std::string_view::npos)
        return std::nullopt;
    return folder / std::filesystem::path(std::string(name));
}

} // namespace kavor::atomic_file

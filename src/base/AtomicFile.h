#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <tl/expected.hpp>

// Whole files that are replaced in one step, so that a process or a device that dies leaves the old or the
// new content and never a torn file. Files have the mode 0600, folders 0700.
namespace kavor::atomic_file {

// Why a file operation failed; text() names the file and the reason.
struct Failure {
    std::filesystem::path path;
    std::string reason;
    bool isMissing = false; // there is no such file
    [[nodiscard]] std::string text() const;
};

using Done = tl::expected<void, Failure>;

// Lets a write beyond the limit on the size of files fail, instead of ending the process. For the start of a
// program.
void survivePassingTheSizeLimit();

// Writes to a temporary sibling, flushes it to disk, renames it over the path and flushes the folder.
Done write(const std::filesystem::path& path, std::string_view content);

// Like write, but fails without touching anything when the path exists.
Done create(const std::filesystem::path& path, std::string_view content);

// How much room a content that was read has behind it, for parsers that read a little too far.
inline constexpr std::size_t roomBehind = 64;

// The whole content of a regular file.
tl::expected<std::string, Failure> read(const std::filesystem::path& path);

// Removes a file and flushes its folder. A file that is not there is no failure.
Done remove(const std::filesystem::path& path);

// Moves a file within its folder, over a file of the new name if there is one, and flushes the folder.
Done move(const std::filesystem::path& from, const std::filesystem::path& to);

// Makes a folder with its parents; one that exists is no failure.
Done makeFolder(const std::filesystem::path& folder);

// Removes the temporaries that writers which are no longer alive left in the folder.
void sweepTemporaries(const std::filesystem::path& folder);

// The path of a direct child of the folder, or nothing when the name is empty, "." or "..", holds a separator
// or a null, begins like a temporary, or is too long for a file name.
std::optional<std::filesystem::path> child(const std::filesystem::path& folder, std::string_view name);

} // namespace kavor::atomic_file

#pragma once

#include <filesystem>
#include <functional>
#include <optional>

namespace kavor::robust {

// Runs something in a process that has its own view of the mounted file systems, so that it may mount without
// anybody noticing. Answers its exit status, or nothing where the system does not allow it.
std::optional<int> runWithOwnMounts(const std::function<int()>& work);

// Gives this process such a view, before it has threads. As root directly, as another user inside a user
// namespace in which this process is root. False where the system does not allow it.
bool takeOwnMounts();

// For use in there; false when the system refuses.
bool mountSmallDisk(const std::filesystem::path& folder, long kilobytes);
bool makeReadOnly(const std::filesystem::path& folder);

} // namespace kavor::robust

#pragma once

#include <chrono>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace kavor::robust {

struct KillOptions {
    std::filesystem::path folder; // empty; the documents of each child are folders in it
    int kills = 100;
    int children = 2; // at the same time
    std::optional<long> fileSizeLimit = std::nullopt;
    unsigned seed = 1;
};

struct KillReport {
    int kills = 0;
    int duringAWrite = 0;  // kills that met an operation which had begun and had not ended
    int temporaries = 0;   // that the killed processes left and the next start swept
    long operations = 0;   // that ended well
    long failedWrites = 0; // that the children were told of
    std::vector<std::string> faults;

    // "1000 kills (912 during a write), ...".
    [[nodiscard]] std::string line() const;
};

// Starts children, kills each with SIGKILL at a random moment and looks at every file: it must hold what was
// last told to be there or what was about to be, and be whole; after a start no temporary is left. Random
// moments follow from the seed.
KillReport killChildren(const KillOptions& options);

// Runs one child for so many operations over a folder; answers its exit status and what it told.
struct ChildOutcome {
    int status = -1;
    long succeeded = 0;
    long failed = 0;
};
ChildOutcome runChild(const std::filesystem::path& documents, unsigned seed, int firstStamp, int operations);

} // namespace kavor::robust

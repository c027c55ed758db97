#pragma once

#include "orders/OrderFile.h"

#include <filesystem>
#include <set>
#include <string>

namespace kavor {

// What a draft goes by among those with changes: a brochure by its plain name, clothing by that with its
// folder.
std::string nameOfChanged(OrderFile::Kind kind, const std::string& plainName);

// The names of the drafts that the server has in an older version, because the last save could only
// be made on the device: the state file "draftsWithChanges". Kept without waiting for the disk. Main thread
// only.
class DraftsWithChanges {
public:
    static DraftsWithChanges& shared();

    [[nodiscard]] const std::set<std::string>& names();
    // The file of this plain name holds what the server does not have.
    void add(const std::string& plainName);
    // The server has it, or the file is gone.
    void remove(const std::string& plainName);

private:
    DraftsWithChanges() = default;
    void write();

    std::filesystem::path folder_; // that the names were read from
    std::set<std::string> names_;
};

} // namespace kavor

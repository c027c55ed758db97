#include "orders/DraftsWithChanges.h"

#include "base/BackgroundFileWriter.h"
#include "base/json/Table.h"
#include "session/AppSingleton.h"
#include "session/StateFile.h"

#include <vector>

namespace kavor {

// The state file.
struct NamesOfDrafts {
    std::vector<std::string> names;
};

} // namespace kavor

namespace kavor::json {

template <>
struct Table<NamesOfDrafts> {
    static constexpr auto fields = std::tuple{required("names", &NamesOfDrafts::names)};
};

} // namespace kavor::json

KAVOR_JSON_DOCUMENT(kavor::NamesOfDrafts)

namespace kavor {

std::string nameOfChanged(OrderFile::Kind kind, const std::string& plainName) {
    return kind == OrderFile::Kind::Brochure ? plainName : "SaveTextileOrder/" + plainName;
}

DraftsWithChanges& DraftsWithChanges::shared() {
    static DraftsWithChanges instance;
    return instance;
}

const std::set<std::string>& DraftsWithChanges::names() {
    const auto& folder = AppSingleton::shared().documentsFolder();
    if (folder_ == folder)
        return names_;
    folder_ = folder;
    names_.clear();
    if (const auto stored = state_file::read<NamesOfDrafts>(folder, state_file::draftsWithChanges))
        names_.insert(stored->names.begin(), stored->names.end());
    return names_;
}

void DraftsWithChanges::add(const std::string& plainName) {
    if (names().contains(plainName))
        return;
    names_.insert(plainName);
    write();
}

void DraftsWithChanges::remove(const std::string& plainName) {
    if (!names().contains(plainName))
        return;
    names_.erase(plainName);
    write();
}

void DraftsWithChanges::write() {
    if (folder_.empty())
        return;
    const auto path = folder_ / std::string(state_file::draftsWithChanges);
    if (names_.empty())
        return BackgroundFileWriter::shared().remove(path);
    const auto text = json::encode(NamesOfDrafts{{names_.begin(), names_.end()}});
    if (text)
        BackgroundFileWriter::shared().write(path, *text);
    else
        logLine(std::string(state_file::draftsWithChanges) + ": " + text.error().text());
}

} // namespace kavor

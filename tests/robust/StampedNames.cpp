#include "robust/StampedNames.h"

#include "base/AtomicFile.h"
#include "base/json/Json.h"
#include "base/json/Table.h"

#include <algorithm>
#include <cstdlib>
#include <vector>

namespace kavor {

// As the state file has them.
struct StampedNames {
    std::vector<std::string> names;
};

} // namespace kavor

template <>
struct kavor::json::Table<kavor::StampedNames> {
    static constexpr auto fields = std::tuple{required("names", &StampedNames::names)};
};

KAVOR_JSON_DOCUMENT(kavor::StampedNames)

namespace kavor::robust {

std::string stampedName(Int stamp) {
    const std::string number = std::to_string(stamp);
    return number + std::string(3000, ' ') + number;
}

std::optional<Int> stampOfNames(const std::filesystem::path& file) {
    const auto text = atomic_file::read(file);
    const auto record = json::decode<StampedNames>(text.value_or(""));
    if (!record || json::encode(*record).value_or("") != *text)
        return std::nullopt;
    Int highest = 0;
    for (const auto& name : record->names) {
        const Int stamp = std::atoll(name.c_str());
        if (name != stampedName(stamp))
            return std::nullopt;
        highest = std::max(highest, stamp);
    }
    return highest > 0 ? std::optional(highest) : std::nullopt; // without names there is no file
}

} // namespace kavor::robust

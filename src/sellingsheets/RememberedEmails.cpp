#include "sellingsheets/RememberedEmails.h"

#include "base/BackgroundFileWriter.h"
#include "base/json/Table.h"
#include "session/AppSingleton.h"
#include "session/StateFile.h"

#include <algorithm>

namespace kavor {

namespace {

constexpr std::string_view stateFile = "sellingSheetEmails";

struct Remembered {
    std::vector<std::string> addresses;
};

} // namespace

namespace json {

template <>
struct Table<Remembered> {
    static constexpr auto fields = std::tuple{required("addresses", &Remembered::addresses)};
};

} // namespace json

namespace remembered_emails {

std::vector<std::string> all() {
    const auto& folder = AppSingleton::shared().documentsFolder();
    if (folder.empty())
        return {};
    BackgroundFileWriter::shared().flush();
    auto kept = state_file::read<Remembered>(folder, stateFile);
    return kept ? std::move(kept->addresses) : std::vector<std::string>();
}

void remember(const std::vector<std::string>& addresses) {
    const auto& folder = AppSingleton::shared().documentsFolder();
    if (folder.empty())
        return;
    const auto before = all();
    std::vector<std::string> now;
    for (const auto* list : {&addresses, &before}) {
        for (const std::string& each : *list) {
            if (!each.empty() && now.size() < most && std::ranges::find(now, each) == now.end())
                now.push_back(each);
        }
    }
    if (const auto text = json::encode(Remembered{now}); text && now != before)
        BackgroundFileWriter::shared().write(folder / std::string(stateFile), *text);
}

} // namespace remembered_emails

} // namespace kavor

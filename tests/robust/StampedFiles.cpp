#include "robust/StampedFiles.h"

#include "base/AtomicFile.h"
#include "base/json/Json.h"
#include "device/UserDefaults.h"
#include "device/keychain/FileKeychain.h"
#include "robust/StampedNames.h"
#include "sellingsheets/UnfinishedSheet.h"
#include "session/StateFile.h"

#include <sys/stat.h>

#include <cstdio>
#include <cstdlib>
#include <type_traits>

namespace kavor::robust {

namespace {

using NetPrices = BrochureIntermediateData::NetPrices;

constexpr Int brandsOfLargeCatalogue = 6000;

template <class Record>
Record exampleOf(const std::string& name) {
    const auto text = atomic_file::read(std::filesystem::path(KAVOR_TEST_DATA) / name);
    auto record = json::decode<Record>(text.value_or(""));
    if (!record) {
        std::fprintf(stderr, "%s: %s\n", name.c_str(), record.error().text().c_str());
        std::abort();
    }
    return std::move(*record);
}

ApplicationInformation catalogueOf(std::size_t brands) {
    auto catalogue = exampleOf<ApplicationInformation>("catalogue.json");
    const Product pattern = catalogue.products.front();
    while (catalogue.products.size() < brands) {
        catalogue.products.push_back(pattern);
        catalogue.products.back().id = 1000 + static_cast<Int>(catalogue.products.size());
    }
    return catalogue;
}

std::optional<Int> stampOf(const ApplicationInformation& record) {
    const Int stamp = record.validations.customerFreeText;
    return !record.manuals.empty() && record.manuals.back().position == stamp ? std::optional(stamp)
                                                                              : std::nullopt;
}
std::optional<Int> stampOf(const LoginResult& record) {
    const bool whole = record.userIdentifier && record.notifications &&
                       record.notifications->back().title == std::to_string(*record.userIdentifier);
    return whole ? record.userIdentifier : std::nullopt;
}
std::optional<Int> stampOf(const SaveBrochuresOrder& record) {
    return record.sourceIdentifier == record.orderIdentifier ? record.orderIdentifier : std::nullopt;
}
std::optional<Int> stampOf(const SaveTextileOrder& record) {
    const bool whole =
        record.orderIdentifier && record.orderInformation.message == std::to_string(*record.orderIdentifier);
    return whole ? record.orderIdentifier : std::nullopt;
}
std::optional<Int> stampOf(const SellingSheetOrder& record) {
    return record.title == std::to_string(record.identifier) ? std::optional(record.identifier)
                                                             : std::nullopt;
}
std::optional<Int> stampOf(const PromotionDraft& record) {
    return record.name == record.comment ? std::optional<Int>(std::atoll(record.name.c_str())) : std::nullopt;
}
std::optional<Int> stampOf(const TextileDraftRecord& record) {
    const bool whole = record.orderIdentifier && record.filename == std::to_string(*record.orderIdentifier);
    return whole ? record.orderIdentifier : std::nullopt;
}
std::optional<Int> stampOf(const SheetInWork& record) {
    const bool whole = record.filename == std::to_string(record.order.identifier);
    return whole ? stampOf(record.order) : std::nullopt;
}
std::optional<Int> stampOf(const NetPrices& record) {
    if (record.empty() || record.begin()->second != record.rbegin()->second)
        return std::nullopt;
    return static_cast<Int>(record.begin()->second.at(1));
}

template <class Record>
std::optional<Int> stampOfFile(const std::filesystem::path& file, bool pretty) {
    const auto text = atomic_file::read(file);
    const auto record = json::decode<Record>(text.value_or(""));
    if (!record)
        return std::nullopt;
    const auto written = pretty ? json::encodePretty(*record) : json::encode(*record);
    return written.value_or("") == *text ? stampOf(*record) : std::nullopt;
}

// Of the unfinished menu of a kind, in the first place that has one.
std::optional<Int> stampOfMenu(const std::filesystem::path& documents, BrochureType kind) {
    for (const auto& name : {temporaryCopyName, recoveryCopyName, menuKey(kind)}) {
        const auto file = documents / name;
        struct stat status {};
        if (::stat(file.c_str(), &status) != 0)
            continue;
        const auto order = json::decode<SaveBrochuresOrder>(atomic_file::read(file).value_or(""));
        if (!order || (status.st_mode & 077) != 0)
            return std::nullopt;
        if (order->menu.orderType == kind)
            return stampOfFile<SaveBrochuresOrder>(file, false);
    }
    return 0;
}

std::optional<Int> stampOfNetPrices(const std::filesystem::path& file) {
    const auto record = json::decode<NetPrices>(atomic_file::read(file).value_or(""));
    return record ? stampOf(*record) : std::nullopt;
}

std::optional<Int> stampOfSecrets(const std::filesystem::path& file) {
    const auto item = FileKeychain(file).readOne(stampedSecret(0).key);
    return item && item->account == item->value ? std::optional(std::stoll(item->value)) : std::nullopt;
}

std::optional<Int> stampOfDefaults(const std::filesystem::path& file) {
    const auto value = FileUserDefaults(file).integer(QStringLiteral("stamp"));
    return value ? std::optional<Int>(*value) : std::nullopt;
}

} // namespace

template <>
ApplicationInformation stamped(Int stamp) {
    static const auto small = catalogueOf(3);
    static const auto large = catalogueOf(brandsOfLargeCatalogue);
    auto record = stamp % 4 == 0 ? large : small;
    record.validations.customerFreeText = stamp;
    record.manuals.back().position = stamp;
    return record;
}

template <>
LoginResult stamped(Int stamp) {
    LoginResult record;
    record.msg = "ok";
    record.userIdentifier = stamp;
    record.notifications = {{"Aviso", std::string(2000, 'x'), {}}, {std::to_string(stamp), {}, {}}};
    return record;
}

template <>
SaveBrochuresOrder stamped(Int stamp) {
    static const auto pattern = exampleOf<SaveBrochuresOrder>("beer_order.json");
    auto record = pattern;
    record.sourceIdentifier = record.orderIdentifier = stamp;
    return record;
}

template <>
SaveTextileOrder stamped(Int stamp) {
    SaveTextileOrder record;
    record.orderIdentifier = stamp;
    record.orderInformation.message = std::to_string(stamp);
    record.orderInformation.orderLines.assign(200, {1, 2});
    return record;
}

template <>
SellingSheetOrder stamped(Int stamp) {
    SellingSheetOrder record;
    record.identifier = stamp;
    record.title = std::to_string(stamp);
    record.items.resize(100);
    return record;
}

template <>
NetPrices stamped(Int stamp) {
    NetPrices record;
    for (Int brand = 1; brand <= 300; ++brand)
        record[brand][1] = static_cast<double>(stamp);
    return record;
}

template <>
PromotionDraft stamped(Int stamp) {
    PromotionDraft record;
    record.promotionId = 1;
    record.name = std::to_string(stamp);
    record.comment = record.name;
    record.emails.assign(100, "bar@bar.example");
    return record;
}

template <>
TextileDraftRecord stamped(Int stamp) {
    TextileDraftRecord record;
    record.orderIdentifier = stamp;
    record.filename = std::to_string(stamp);
    record.lines.assign(200, {1, 1, 1, 1, {{1, 2}}});
    return record;
}

KeychainItem stampedSecret(Int stamp) {
    const std::string text = std::to_string(stamp);
    return {{.server = "server.example"}, text, text};
}

std::string menuKey(BrochureType kind) {
    return temporaryCopyName + ".type" + std::to_string(static_cast<Int>(kind));
}

std::optional<Int> stampIn(const std::filesystem::path& documents, const std::string& key) {
    for (const auto kind : menuKinds) {
        if (key == menuKey(kind))
            return stampOfMenu(documents, kind);
    }
    auto file = documents / key;
    struct stat status {};
    const bool isRecoverable = key == state_file::promotionDraft || key == state_file::textileDraft ||
                               key == UnfinishedSheet::stateFile;
    if (::stat(file.c_str(), &status) != 0) {
        file = documents / (key + recoveryEnding);
        if (!isRecoverable || ::stat(file.c_str(), &status) != 0)
            return 0;
    }
    if ((status.st_mode & 077) != 0)
        return std::nullopt;
    if (key == state_file::promotionDraft)
        return stampOfFile<PromotionDraft>(file, false);
    if (key == state_file::textileDraft)
        return stampOfFile<TextileDraftRecord>(file, false);
    if (key == UnfinishedSheet::stateFile)
        return stampOfFile<SheetInWork>(file, false);
    if (key == state_file::applicationInformation)
        return stampOfFile<ApplicationInformation>(file, false);
    if (key == state_file::loginResult)
        return stampOfFile<LoginResult>(file, false);
    if (key == state_file::netPrices)
        return stampOfNetPrices(file);
    if (key == state_file::draftsWithChanges)
        return stampOfNames(file);
    if (key == defaultsKey)
        return stampOfDefaults(file);
    if (key == keychainKey)
        return stampOfSecrets(file);
    const auto folder = file.parent_path().filename();
    if (folder == SaveTextileOrder::folderName)
        return stampOfFile<SaveTextileOrder>(file, true);
    if (folder == SellingSheetOrder::folderName)
        return stampOfFile<SellingSheetOrder>(file, true);
    return stampOfFile<KeptOrder>(file, true);
}

} // namespace kavor::robust

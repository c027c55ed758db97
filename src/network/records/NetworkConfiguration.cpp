#include "network/records/NetworkConfiguration.h"

#include "base/AtomicFile.h"

#include <plist/plist.h>

#include <cstdint>
#include <cstdlib>
#include <memory>
#include <string_view>
#include <utility>

namespace kavor {

namespace {

using URLs = NetworkConfiguration::ServerURLs;

constexpr std::size_t largestFile = std::size_t{64} * 1024;

constexpr std::pair<const char*, std::string URLs::*> fields[] = {
    {"baseURLDev", &URLs::baseURLDev},
    {"baseURLPro", &URLs::baseURLPro},
    {"firstTimeUserURL", &URLs::firstTimeUserURL},
    {"forgotPasswordURL", &URLs::forgotPasswordURL},
    {"loginURL", &URLs::loginURL},
    {"getCustomerDataFromTevoCodeURL", &URLs::getCustomerDataFromTevoCodeURL},
    {"appInformationURL", &URLs::appInformationURL},
    {"priceRecommendationURL", &URLs::priceRecommendationURL},
    {"searchMapsURL", &URLs::searchMapsURL},
    {"profileInformationURL", &URLs::profileInformationURL},
    {"sellingSheetOrderListURL", &URLs::sellingSheetOrderListURL},
    {"sellingSheetOrderSendURL", &URLs::sellingSheetOrderSendURL},
    {"sellingSheetOrderDeleteURL", &URLs::sellingSheetOrderDeleteURL},
    {"promotionOrderSendURL", &URLs::promotionOrderSendURL},
    {"saveOrderURL", &URLs::saveOrderURL},
    {"retrieveBrochureOrderListURL", &URLs::retrieveBrochureOrderListURL},
    {"retrieveBrochureOrderURL", &URLs::retrieveBrochureOrderURL},
    {"activationOrderURL", &URLs::activationOrderURL},
    {"activationUserQuota", &URLs::activationUserQuota},
    {"sendRawOrder", &URLs::sendRawOrder},
    {"createTextileOrder", &URLs::createTextileOrder},
    {"retrieveTextileOrder", &URLs::retrieveTextileOrder},
    {"deleteOrder", &URLs::deleteOrder},
    {"userInformation", &URLs::userInformation},
    {"menuMantelOnline", &URLs::menuMantelOnline},
    {"claimOrder", &URLs::claimOrder},
    {"demandBrandQr", &URLs::demandBrandQr},
    {"suggestionMailboxAdd", &URLs::suggestionMailboxAdd},
};

std::string_view typeName(plist_t node) {
    switch (plist_get_node_type(node)) {
    case PLIST_BOOLEAN:
        return "boolean";
    case PLIST_UINT:
        return "integer";
    case PLIST_REAL:
        return "real";
    case PLIST_STRING:
        return "string";
    case PLIST_ARRAY:
        return "array";
    case PLIST_DICT:
        return "dictionary";
    case PLIST_DATE:
        return "date";
    case PLIST_DATA:
        return "data";
    default:
        return "something else";
    }
}

// Not plist_get_string_val: that ends the process over a string with a zero byte.
std::string text(plist_t node) {
    std::uint64_t length = 0;
    const char* value = plist_get_string_ptr(node, &length);
    return value != nullptr ? std::string(value, length) : std::string();
}

} // namespace

tl::expected<NetworkConfiguration, std::string>
NetworkConfiguration::load(const std::filesystem::path& file) {
    std::error_code error;
    if (!std::filesystem::is_regular_file(file, error))
        return tl::unexpected(file.string() + ": no such file");
    const auto size = std::filesystem::file_size(file, error);
    if (!error && size > largestFile)
        return tl::unexpected(file.string() + ": too large for a property list of addresses");
    const auto content = atomic_file::read(file);
    if (!content)
        return tl::unexpected(file.string() + ": " + content.error().reason);
    return decode(*content, file.string());
}

tl::expected<NetworkConfiguration, std::string> NetworkConfiguration::decode(const std::string& bytes,
                                                                             const std::string& name) {
    const auto fault = [&name](const std::string& key, std::string_view reason) {
        return tl::unexpected(name + ": key \"" + key + "\": " + std::string(reason));
    };
    if (bytes.size() > largestFile)
        return tl::unexpected(name + ": too large for a property list of addresses");
    plist_t parsed = nullptr;
    plist_from_memory(bytes.data(), static_cast<std::uint32_t>(bytes.size()), &parsed);
    const std::unique_ptr<void, decltype(&plist_free)> root(parsed, &plist_free);
    if (parsed == nullptr)
        return tl::unexpected(name + ": not a property list");
    if (plist_get_node_type(parsed) != PLIST_DICT)
        return tl::unexpected(name + ": expected dictionary, found " + std::string(typeName(parsed)));
    plist_t urls = plist_dict_get_item(parsed, "urls");
    if (urls == nullptr)
        return fault("urls", "missing");
    if (plist_get_node_type(urls) != PLIST_DICT)
        return fault("urls", "expected dictionary, found " + std::string(typeName(urls)));
    NetworkConfiguration configuration;
    for (const auto& [key, member] : fields) {
        plist_t node = plist_dict_get_item(urls, key);
        if (node == nullptr)
            return fault(std::string("urls.") + key, "missing");
        if (plist_get_node_type(node) != PLIST_STRING)
            return fault(std::string("urls.") + key, "expected string, found " + std::string(typeName(node)));
        configuration.urls.*member = text(node);
        if ((configuration.urls.*member).find('\0') != std::string::npos)
            return fault(std::string("urls.") + key, "expected text, found a zero byte in it");
    }
    return configuration;
}

} // namespace kavor

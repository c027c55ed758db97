#include "network/records/NetworkConfiguration.h"

#include "NetworkFixture.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>
#include <plist/plist.h>

#include <cstdlib>

namespace kavor {
namespace {

// A whole property list, with one key left out or with another value for it.
std::string list(const std::string& key = {}, const std::string& value = {}) {
    return configurationDocument([&](const std::string& each) {
        return each == key ? value : "<string>/v1/" + each + "?a=1&amp;b=ñ</string>";
    });
}

std::string binaryForm(const std::string& xml) {
    plist_t node = nullptr;
    plist_from_xml(xml.data(), std::uint32_t(xml.size()), &node);
    char* bytes = nullptr;
    std::uint32_t size = 0;
    plist_to_bin(node, &bytes, &size);
    std::string binary(bytes, size);
    std::free(bytes);
    plist_free(node);
    return binary;
}

TEST(NetworkConfiguration, ReadsTheXmlAndTheBinaryForm) {
    TemporaryFolder folder;
    const auto file = folder / "NetworkConfiguration.plist";
    for (const std::string& content : {list(), binaryForm(list())}) {
        put(file, content);
        const auto read = NetworkConfiguration::load(file);
        ASSERT_TRUE(read) << read.error();
        EXPECT_EQ(read->urls.baseURLPro, "/v1/baseURLPro?a=1&b=ñ");
        EXPECT_EQ(read->urls.deleteOrder, "/v1/deleteOrder?a=1&b=ñ");
        EXPECT_EQ(read->urls.suggestionMailboxAdd, "/v1/suggestionMailboxAdd?a=1&b=ñ");
    }
}

TEST(NetworkConfiguration, NamesFileAndKeyOfEveryFault) {
    for (const std::string& key : configurationKeys()) {
        const std::string place = "F: key \"urls." + key + "\": ";
        EXPECT_EQ(NetworkConfiguration::decode(list(key), "F").error(), place + "missing");
        EXPECT_EQ(NetworkConfiguration::decode(list(key, "<integer>3</integer>"), "F").error(),
                  place + "expected string, found integer");
    }
    const std::pair<std::string, std::string> table[] = {
        {"", "F: not a property list"},
        {"{\"urls\": {}}", "F: not a property list"},
        {list().substr(0, 300), "F: not a property list"},
        {binaryForm(list()).substr(0, 200), "F: not a property list"},
        {"<plist version=\"1.0\"><array/></plist>", "F: expected dictionary, found array"},
        {"<plist version=\"1.0\"><dict/></plist>", "F: key \"urls\": missing"},
        {"<plist version=\"1.0\"><dict><key>urls</key><true/></dict></plist>",
         "F: key \"urls\": expected dictionary, found boolean"},
        {std::string(100'000, ' '), "F: too large for a property list of addresses"},
    };
    for (const auto& [text, error] : table) {
        const auto read = NetworkConfiguration::decode(text, "F");
        ASSERT_FALSE(read) << text;
        EXPECT_EQ(read.error(), error);
    }
    TemporaryFolder folder;
    EXPECT_EQ(NetworkConfiguration::load(folder / "none.plist").error(),
              (folder / "none.plist").string() + ": no such file");
    EXPECT_FALSE(NetworkConfiguration::load(folder.path()));
}

} // namespace
} // namespace kavor

#include "device/UserDefaults.h"
#include "device/keychain/FileKeychain.h"
#include "support/LogCapture.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

namespace kavor {
namespace {

const KeychainKey key{"internetPassword", "https://bar.example/"};

int modeOf(const std::filesystem::path& path) {
    struct stat status {};
    return ::stat(path.c_str(), &status) == 0 ? int(status.st_mode & 0777) : -1;
}

TEST(FileKeychain, KeepsItemsUnderTheUsersEyesOnly) {
    const TemporaryFolder folder;
    const auto path = folder / "keychain/items";
    FileKeychain(path).add({key, "ana", "x"});
    EXPECT_EQ(modeOf(path), 0600);
    EXPECT_EQ(modeOf(path.parent_path()), 0700);
}

TEST(FileKeychain, ReadsABrokenFileAsEmptyAndReplacesIt) {
    const TemporaryFolder folder;
    for (const char* broken : {"", "{\"items\": [{\"server\": 3}, 4, null]}", "{\"items\": [", "[]"}) {
        put(folder / "items", broken);
        FileKeychain store(folder / "items");
        EXPECT_EQ(store.readOne(key), std::nullopt) << broken;
        EXPECT_EQ(store.add({key, "ana", "x"}), KeychainStatus::Success) << broken;
        EXPECT_TRUE(store.readOne(key).has_value()) << broken;
    }
}

TEST(FileKeychain, AnswersThatItCannotStore) {
    const TemporaryFolder folder;
    put(folder / "keychain", "a file where the folder should be");
    LogCapture log;
    FileKeychain store(folder / "keychain/items");
    EXPECT_EQ(store.add({key, "ana", "pa55word"}), KeychainStatus::Unavailable);
    ASSERT_EQ(log.lines().size(), 1U);
    EXPECT_EQ(log.lines().front().find("pa55word"), std::string::npos);
}

// What is there and cannot be read must still be there afterwards.
TEST(FileStores, WriteOverNothingThatTheyCannotRead) {
    const TemporaryFolder folder;
    std::filesystem::create_directory_symlink("loop", folder / "loop");
    LogCapture log;
    FileKeychain store(folder / "loop");
    EXPECT_EQ(store.add({key, "ana", "x"}), KeychainStatus::Unavailable);
    FileUserDefaults defaults(folder / "loop");
    defaults.setBoolean("flag", true);
    EXPECT_TRUE(std::filesystem::is_symlink(folder / "loop"));
}

TEST(FileUserDefaults, LivesOnInMemoryWhenNothingCanBeReadOrWritten) {
    const TemporaryFolder folder;
    put(folder / "defaults.json", "{\"flag\": tru");
    EXPECT_FALSE(FileUserDefaults(folder / "defaults.json").boolean("flag"));
    put(folder / "file", "");
    LogCapture log;
    FileUserDefaults defaults(folder / "file/defaults.json");
    defaults.setBoolean("flag", true);
    EXPECT_TRUE(defaults.boolean("flag"));
    EXPECT_EQ(log.startingWith("Could not read the settings"), 1);
}

} // namespace
} // namespace kavor

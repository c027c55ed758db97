#include "device/UserDefaults.h"
#include "device/keychain/FileKeychain.h"
#include "support/DeviceFakes.h"
#include "support/LogCapture.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

namespace kavor {
namespace {

const KeychainKey key{"internetPassword", "https://bar.example/"};
const std::string bytes("\0\xff{\"password\"", 13);

int modeOf(const std::filesystem::path& path) {
    struct stat status {};
    return ::stat(path.c_str(), &status) == 0 ? int(status.st_mode & 0777) : -1;
}

void expectOneItemPerServer(KeychainStore& store) {
    const KeychainKey other{"internetPassword", "https://other.example/"};
    EXPECT_EQ(store.readOne(key), std::nullopt);
    EXPECT_EQ(store.update({key, "ana", "x"}), KeychainStatus::NotFound);
    EXPECT_EQ(store.remove(key), KeychainStatus::NotFound);
    EXPECT_EQ(store.add({key, "ana", bytes}), KeychainStatus::Success);
    EXPECT_EQ(store.add({key, "eva", "y"}), KeychainStatus::Duplicate);
    EXPECT_EQ(store.add({other, std::nullopt, ""}), KeychainStatus::Success);
    EXPECT_EQ(store.readOne(key), (KeychainItem{key, "ana", bytes}));
    EXPECT_EQ(store.readOne(other), (KeychainItem{other, std::nullopt, ""}));
    EXPECT_EQ(store.update({key, "eva", "z"}), KeychainStatus::Success);
    EXPECT_EQ(store.readOne(key), (KeychainItem{key, "eva", "z"}));
    EXPECT_EQ(store.remove(key), KeychainStatus::Success);
    EXPECT_EQ(store.readOne(key), std::nullopt);
    EXPECT_TRUE(store.readOne(other).has_value());
}

TEST(KeychainStore, HoldsOneItemPerServerInMemoryAndInAFile) {
    MemoryKeychain memory;
    expectOneItemPerServer(memory);
    const TemporaryFolder folder;
    FileKeychain file(folder / "keychain/items");
    expectOneItemPerServer(file);
}

TEST(FileKeychain, KeepsItemsForTheNextProcessUnderTheUsersEyesOnly) {
    const TemporaryFolder folder;
    const auto path = folder / "keychain/items";
    FileKeychain(path).add({key, "ana", bytes});
    EXPECT_EQ(FileKeychain(path).readOne(key), (KeychainItem{key, "ana", bytes}));
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

TEST(MakeKeychain, TakesTheFileWhenAskedTo) {
    const TemporaryFolder folder;
    qputenv("KAVOR_KEYCHAIN", "file");
    const auto store = makeKeychain(folder.path());
    qunsetenv("KAVOR_KEYCHAIN");
    EXPECT_EQ(store->add({key, "ana", "x"}), KeychainStatus::Success);
    EXPECT_FALSE(contentOf(folder / ".keychain/items").empty());
}

TEST(FileUserDefaults, KeepsValuesOfThreeTypesForTheNextProcess) {
    const TemporaryFolder folder;
    const QString flag = default_key::loadIntoInitialViewController;
    {
        FileUserDefaults defaults(folder / "sub/defaults.json");
        EXPECT_FALSE(defaults.boolean(flag));
        defaults.setBoolean(flag, true);
        defaults.setInteger("width", 1024);
        defaults.setString("name", "Peña");
        defaults.setString("gone", "x");
        defaults.remove("gone");
    }
    FileUserDefaults defaults(folder / "sub/defaults.json");
    EXPECT_TRUE(defaults.boolean(flag));
    EXPECT_EQ(defaults.integer("width"), 1024);
    EXPECT_EQ(defaults.string("name"), "Peña");
    EXPECT_EQ(defaults.string("gone"), std::nullopt);
    EXPECT_EQ(defaults.string("width"), std::nullopt);
    EXPECT_EQ(defaults.integer("name"), std::nullopt);
    EXPECT_FALSE(defaults.boolean("name"));
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

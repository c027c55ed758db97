#include "session/services/AuthManager.h"

#include "support/DeviceFakes.h"

#include <gtest/gtest.h>

namespace kavor {
namespace {

struct Store {
    MemoryKeychain keychain;
    MemoryUserDefaults defaults;
    AuthManager auth{keychain, defaults, "https://server"};
    const KeychainKey key{.server = "https://server"};

    Store() { defaults.setBoolean("loadIntoInitialViewController", true); }
    [[nodiscard]] bool automatic() const { return defaults.boolean("loadIntoInitialViewController"); }
};

TEST(AuthManager, KeepsOneCredentialForTheServer) {
    Store store;
    EXPECT_FALSE(store.auth.readCredentials());
    store.auth.updateCredentials("ana", "p", "t");
    EXPECT_FALSE(store.auth.readCredentials()) << "there is nothing to update";
    store.auth.addCredentials("ana", "p \"ñ\"", "t");
    EXPECT_EQ(store.keychain.readOne(store.key)->value,
              "{\n  \"password\": \"p \\\"ñ\\\"\",\n  \"token\": \"t\"\n}");
    store.auth.addCredentials("luis", "q", "u");
    EXPECT_EQ(store.auth.readCredentials(), (StoredCredentials{"ana", "p \"ñ\"", "t"}))
        << "a second item is refused";
    store.auth.updateCredentials("luis", "q", "u");
    EXPECT_EQ(store.auth.readCredentials(), (StoredCredentials{"luis", "q", "u"}));
    EXPECT_TRUE(store.automatic());
    store.auth.deleteCredentials();
    EXPECT_FALSE(store.auth.readCredentials());
    EXPECT_FALSE(store.automatic());
}

TEST(AuthManager, EndsTheAutomaticLoginAtLogoutAndStillPreFillsTheForm) {
    Store store;
    store.auth.addCredentials("ana", "p", "t");
    store.auth.blankCredentials("ana");
    EXPECT_FALSE(store.automatic());
    EXPECT_EQ(store.auth.readCredentials(), (StoredCredentials{"ana", "p", "t"}));
}

TEST(AuthManager, ReadsNothingFromAnItemThatIsNoCredential) {
    const std::pair<std::optional<std::string>, std::string> table[] = {
        {std::nullopt, R"({"password": "p", "token": "t"})"},
        {"ana", R"({"password": "p"})"},
        {"ana", R"({"password": 1, "token": "t"})"},
        {"ana", "not json"},
        {"ana", ""},
    };
    for (const auto& [account, value] : table) {
        Store store;
        store.keychain.add({store.key, account, value});
        EXPECT_FALSE(store.auth.readCredentials()) << value;
    }
}

} // namespace
} // namespace kavor

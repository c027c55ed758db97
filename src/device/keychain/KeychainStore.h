#pragma once

#include <filesystem>
#include <memory>
#include <optional>
#include <string>

namespace kavor {

enum class KeychainStatus { Success, NotFound, Duplicate, Unavailable };

// What names an item.
struct KeychainKey {
    std::string itemClass = "internetPassword";
    std::string server;
    bool operator==(const KeychainKey&) const = default;
};

// A stored secret: the login name, absent in an item without one, and a value that the store never looks
// into.
struct KeychainItem {
    KeychainKey key;
    std::optional<std::string> account;
    std::string value;
    bool operator==(const KeychainItem&) const = default;
};

// Secrets by class and server, one item at most for each.
class KeychainStore {
public:
    virtual ~KeychainStore() = default;
    // Duplicate when the key is taken.
    virtual KeychainStatus add(const KeychainItem& item) = 0;
    // NotFound when the key is not there.
    virtual KeychainStatus update(const KeychainItem& item) = 0;
    virtual KeychainStatus remove(const KeychainKey& key) = 0;
    [[nodiscard]] virtual std::optional<KeychainItem> readOne(const KeychainKey& key) const = 0;
};

// The secret service of the desktop where one answers, else a file under the documents folder.
// KAVOR_KEYCHAIN=file in the environment asks for the file.
std::unique_ptr<KeychainStore> makeKeychain(const std::filesystem::path& documentsFolder);

} // namespace kavor

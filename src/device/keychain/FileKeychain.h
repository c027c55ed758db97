#pragma once

#include "device/keychain/KeychainStore.h"

namespace kavor {

// Secrets in one file, mode 0600, in a folder of its own, mode 0700; written whole at each change. Each
// operation reads the file again, so that two processes of the same user see each other's items.
class FileKeychain : public KeychainStore {
public:
    explicit FileKeychain(std::filesystem::path file);
    KeychainStatus add(const KeychainItem& item) override;
    KeychainStatus update(const KeychainItem& item) override;
    KeychainStatus remove(const KeychainKey& key) override;
    [[nodiscard]] std::optional<KeychainItem> readOne(const KeychainKey& key) const override;

private:
    template <typename Change>
    KeychainStatus change(Change change);

    std::filesystem::path file_;
};

} // namespace kavor

#pragma once

#include "device/keychain/KeychainStore.h"

#include <string_view>
#include <vector>

namespace kavor {

// The items of a keychain in memory, and their form as one JSON document. The stores keep that document
// whole.
class KeychainItems {
public:
    KeychainStatus add(const KeychainItem& item);
    KeychainStatus update(const KeychainItem& item);
    KeychainStatus remove(const KeychainKey& key);
    [[nodiscard]] std::optional<KeychainItem> readOne(const KeychainKey& key) const;

    [[nodiscard]] std::string encode() const;
    // Items that do not read are left out; a broken document reads as empty.
    static KeychainItems decode(std::string_view document);

private:
    std::vector<KeychainItem> items_;
};

} // namespace kavor

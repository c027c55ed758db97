#include "device/keychain/FileKeychain.h"

#include "base/AtomicFile.h"
#include "base/Log.h"
#include "device/keychain/KeychainItems.h"

#include <utility>

namespace kavor {

namespace {

KeychainItems itemsOf(const tl::expected<std::string, atomic_file::Failure>& content) {
    return content ? KeychainItems::decode(*content) : KeychainItems();
}

} // namespace

FileKeychain::FileKeychain(std::filesystem::path file)
    : file_(std::move(file)) {
    atomic_file::sweepTemporaries(file_.parent_path());
}

template <typename Change>
KeychainStatus FileKeychain::change(Change change) {
    // What cannot be read must not be written over.
    const auto content = atomic_file::read(file_);
    if (!content && !content.error().isMissing) {
        logLine("Could not read the secrets: " + content.error().text());
        return KeychainStatus::Unavailable;
    }
    KeychainItems items = itemsOf(content);
    const KeychainStatus status = change(items);
    if (status != KeychainStatus::Success)
        return status;
    auto done = atomic_file::makeFolder(file_.parent_path());
    if (done)
        done = atomic_file::write(file_, items.encode());
    if (!done)
        logLine("Could not store a secret: " + done.error().text());
    return done ? KeychainStatus::Success : KeychainStatus::Unavailable;
}

KeychainStatus FileKeychain::add(const KeychainItem& item) {
    return change([&](KeychainItems& items) { return items.add(item); });
}

KeychainStatus FileKeychain::update(const KeychainItem& item) {
    return change([&](KeychainItems& items) { return items.update(item); });
}

KeychainStatus FileKeychain::remove(const KeychainKey& key) {
    return change([&](KeychainItems& items) { return items.remove(key); });
}

std::optional<KeychainItem> FileKeychain::readOne(const KeychainKey& key) const {
    return itemsOf(atomic_file::read(file_)).readOne(key);
}

} // namespace kavor

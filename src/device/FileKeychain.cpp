#include "device/FileKeychain.h"

#include "base/AtomicFile.h"
#include "base/Log.h"
#include "device/KeychainItems.h"

#include <utility>

namespace kavor {

namespace {

KeychainItems itemsIn(const std::filesystem::path& file) {
    const auto content = atomic_file::read(file);
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
    if (const auto content = atomic_file::read(file_); !content && !content.error().isMissing) {
        logLine("Could not read the secrets: " + content.error().text());
        return KeychainStatus::Unavailable;
    }
    KeychainItems items = itemsIn(file_);
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
    return itemsIn(file_).readOne(key);
}

} // namespace kavor

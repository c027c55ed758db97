#pragma once

#include "device/keychain/KeychainItems.h"
#include "device/keychain/KeychainStore.h"

#include <QObject>
#include <QString>

#include <chrono>

namespace kavor {

// Secrets in the desktop's secret service, as one entry of it. The entry is read once, on opening; afterwards
// the items in memory answer at once and changes are written behind, in order.
class SystemKeychain : public QObject, public KeychainStore {
    Q_OBJECT
public:
    // Nothing when no service answers within the time limit. Runs a local event loop meanwhile, so it belongs
    // before the first screen. The profile keeps several documents folders apart.
    static std::unique_ptr<SystemKeychain> open(const QString& profile, std::chrono::milliseconds limit);
    // Waits a bounded time for changes that are still being written.
    ~SystemKeychain() override;

    KeychainStatus add(const KeychainItem& item) override;
    KeychainStatus update(const KeychainItem& item) override;
    KeychainStatus remove(const KeychainKey& key) override;
    [[nodiscard]] std::optional<KeychainItem> readOne(const KeychainKey& key) const override;

private:
    SystemKeychain(QString profile, KeychainItems items);
    KeychainStatus written(KeychainStatus status);
    void writeBehind();

    QString profile_;
    KeychainItems items_;
    bool writing_ = false;
    bool changed_ = false;

signals:
    void idle();
};

} // namespace kavor

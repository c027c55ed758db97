#pragma once

#include <QByteArray>
#include <QDBusConnection>
#include <QHash>
#include <QObject>
#include <QString>

#include <memory>

namespace kavor {

// The wallet of a desktop on the session bus, in this process. It keeps its entries until the process ends.
class FakeWallet : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.KWallet")
public:
    // Puts it on the bus, once. False where there is no bus, or another wallet on it.
    static bool isThere() {
        static FakeWallet wallet;
        return wallet.isThere_;
    }

public slots:
    QString networkWallet() { return QStringLiteral("wallet"); }
    int open(const QString&, qlonglong, const QString&) { return 1; }
    int entryType(int, const QString& folder, const QString& key, const QString&) {
        constexpr int unknown = 0;
        constexpr int stream = 2;
        return entries_.contains(folder + key) ? stream : unknown;
    }
    QByteArray readEntry(int, const QString& folder, const QString& key, const QString&) {
        return entries_.value(folder + key);
    }
    int writeEntry(int, const QString& folder, const QString& key, const QByteArray& value, const QString&) {
        entries_[folder + key] = value;
        return 0;
    }

private:
    FakeWallet() {
        qputenv("XDG_CURRENT_DESKTOP", "KDE");
        qputenv("KDE_FULL_SESSION", "true");
        qputenv("KDE_SESSION_VERSION", "5");
        auto bus = QDBusConnection::connectToBus(QDBusConnection::SessionBus, QStringLiteral("the wallet"));
        isThere_ =
            bus.isConnected() &&
            bus.registerObject(QStringLiteral("/modules/kwalletd5"), this, QDBusConnection::ExportAllSlots) &&
            bus.registerService(QStringLiteral("org.kde.kwalletd5"));
    }

    bool isThere_ = false;
    QHash<QString, QByteArray> entries_;
};

} // namespace kavor

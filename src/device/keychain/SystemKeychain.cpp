#include "device/keychain/SystemKeychain.h"

#include "base/Log.h"
#include "device/keychain/FileKeychain.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusReply>
#include <QEventLoop>
#include <QTimer>
#include <qt6keychain/keychain.h>

#include <functional>
#include <utility>

namespace kavor {

namespace {

constexpr std::chrono::milliseconds openLimit{4000};
constexpr std::chrono::milliseconds flushLimit{3000};
constexpr int busLimit = 1000;
const QString serviceName = QStringLiteral("Kavor");

// Whether the session bus knows a secret service, running or ready to be started. Never waits for the
// service.
bool secretServiceIsThere() {
    const QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return false;
    for (const QString& list : {QStringLiteral("ListNames"), QStringLiteral("ListActivatableNames")}) {
        const auto call = QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.DBus"),
                                                         QStringLiteral("/org/freedesktop/DBus"),
                                                         QStringLiteral("org.freedesktop.DBus"), list);
        const QDBusReply<QStringList> names = bus.call(call, QDBus::Block, busLimit);
        if (names.isValid() && (names.value().contains(QStringLiteral("org.freedesktop.secrets")) ||
                                names.value().contains(QStringLiteral("org.kde.kwalletd5"))))
            return true;
    }
    return false;
}

// How a job ended, or nothing when it has not within the limit. Jobs delete themselves once finished.
std::optional<QKeychain::Error> finishWithin(QKeychain::Job* job, std::chrono::milliseconds limit,
                                             const std::function<void()>& succeeded) {
    QEventLoop loop;
    std::optional<QKeychain::Error> error;
    QObject::connect(job, &QKeychain::Job::finished, &loop, [&](QKeychain::Job* done) {
        error = done->error();
        if (error == QKeychain::NoError)
            succeeded();
        loop.quit();
    });
    QTimer::singleShot(limit, &loop, &QEventLoop::quit);
    job->start();
    loop.exec(QEventLoop::ExcludeUserInputEvents);
    return error;
}

} // namespace

std::unique_ptr<SystemKeychain> SystemKeychain::open(const QString& profile,
                                                     std::chrono::milliseconds limit) {
    if (!secretServiceIsThere())
        return nullptr;
    auto* read = new QKeychain::ReadPasswordJob(serviceName);
    read->setKey(profile);
    KeychainItems items;
    auto error =
        finishWithin(read, limit, [&] { items = KeychainItems::decode(read->binaryData().toStdString()); });
    if (error == QKeychain::EntryNotFound) {
        // A service without an open collection finds nothing and stores nothing: only a write tells.
        auto* write = new QKeychain::WritePasswordJob(serviceName);
        write->setKey(profile);
        write->setBinaryData(QByteArray::fromStdString(items.encode()));
        error = finishWithin(write, limit, [] {});
    }
    if (error != QKeychain::NoError)
        return nullptr;
    return std::unique_ptr<SystemKeychain>(new SystemKeychain(profile, std::move(items)));
}

SystemKeychain::SystemKeychain(QString profile, KeychainItems items)
    : profile_(std::move(profile))
    , items_(std::move(items)) {}

SystemKeychain::~SystemKeychain() {
    if (!writing_)
        return;
    QEventLoop loop;
    connect(this, &SystemKeychain::idle, &loop, &QEventLoop::quit);
    QTimer::singleShot(flushLimit, &loop, &QEventLoop::quit);
    loop.exec(QEventLoop::ExcludeUserInputEvents);
}

KeychainStatus SystemKeychain::add(const KeychainItem& item) {
    return written(items_.add(item));
}
KeychainStatus SystemKeychain::update(const KeychainItem& item) {
    return written(items_.update(item));
}
KeychainStatus SystemKeychain::remove(const KeychainKey& key) {
    return written(items_.remove(key));
}

std::optional<KeychainItem> SystemKeychain::readOne(const KeychainKey& key) const {
    return items_.readOne(key);
}

KeychainStatus SystemKeychain::written(KeychainStatus status) {
    if (status == KeychainStatus::Success) {
        changed_ = true;
        if (!writing_)
            writeBehind();
    }
    return status;
}

void SystemKeychain::writeBehind() {
    writing_ = true;
    changed_ = false;
    auto* job = new QKeychain::WritePasswordJob(serviceName);
    job->setKey(profile_);
    job->setBinaryData(QByteArray::fromStdString(items_.encode()));
    connect(job, &QKeychain::Job::finished, this, [this](QKeychain::Job* done) {
        if (done->error() != QKeychain::NoError)
            logLine("Could not store a secret: " + done->errorString().toStdString());
        writing_ = false;
        if (changed_)
            writeBehind();
        else
            emit idle();
    });
    job->start();
}

std::unique_ptr<KeychainStore> makeKeychain(const std::filesystem::path& documentsFolder) {
    if (qEnvironmentVariable("KAVOR_KEYCHAIN") != QLatin1String("file")) {
        const auto profile = QString::fromStdString(std::filesystem::absolute(documentsFolder).string());
        if (auto system = SystemKeychain::open(profile, openLimit))
            return system;
    }
    return std::make_unique<FileKeychain>(documentsFolder / ".keychain" / "items");
}

} // namespace kavor

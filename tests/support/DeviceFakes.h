#pragma once

#include "device/BackgroundTasks.h"
#include "device/FilmPlayer.h"
#include "device/LocalNotifications.h"
#include "device/LocationService.h"
#include "device/PhotoPicker.h"
#include "device/Reachability.h"
#include "device/ReverseLocationManager.h"
#include "device/UrlOpener.h"
#include "device/UserDefaults.h"
#include "device/keychain/KeychainItems.h"

#include <QJsonObject>
#include <QStringList>

#include <map>
#include <utility>
#include <vector>

// Device services in memory, for tests of what is built on them.
namespace kavor {

class MemoryKeychain : public KeychainStore {
public:
    int writes = 0;

    KeychainStatus add(const KeychainItem& item) override { return ++writes, items_.add(item); }
    KeychainStatus update(const KeychainItem& item) override { return ++writes, items_.update(item); }
    KeychainStatus remove(const KeychainKey& key) override { return ++writes, items_.remove(key); }
    [[nodiscard]] std::optional<KeychainItem> readOne(const KeychainKey& key) const override {
        return items_.readOne(key);
    }

private:
    KeychainItems items_;
};

class MemoryUserDefaults : public UserDefaults {
public:
    QJsonObject values;

    [[nodiscard]] bool boolean(const QString& key) const override { return values[key].toBool(); }
    [[nodiscard]] std::optional<qint64> integer(const QString& key) const override {
        return values[key].isDouble() ? std::optional(values[key].toInteger()) : std::nullopt;
    }
    [[nodiscard]] std::optional<QString> string(const QString& key) const override {
        return values[key].isString() ? std::optional(values[key].toString()) : std::nullopt;
    }
    void setBoolean(const QString& key, bool value) override { values[key] = value; }
    void setInteger(const QString& key, qint64 value) override { values[key] = value; }
    void setString(const QString& key, const QString& value) override { values[key] = value; }
    void remove(const QString& key) override { values.remove(key); }
};

class FakeReachability : public Reachability {
public:
    explicit FakeReachability(bool reachable = true)
        : reachable_(reachable) {}
    [[nodiscard]] bool isReachable() const override { return reachable_; }
    void set(bool reachable) {
        if (std::exchange(reachable_, reachable) != reachable)
            emit changed();
    }

private:
    bool reachable_;
};

class RecordingUrlOpener : public UrlOpener {
public:
    QStringList opened;
    bool opens = true; // false: nothing on the device opens an address
    bool openExternally(const QString& url) override { return opened.append(url), opens; }
};

// A film as a test plays it.
class FakeFilmPlayer : public FilmPlayer {
public:
    std::vector<QUrl> opened;
    FilmStatus now;

    void open(const QUrl& film) override {
        opened.push_back(film);
        become({FilmStatus::State::Loading, 0, 0, false});
    }
    void play() override { become({FilmStatus::State::Playing, now.position, now.duration, now.seekable}); }
    void pause() override { become({FilmStatus::State::Paused, now.position, now.duration, now.seekable}); }
    void seek(qint64 position) override { become({now.state, position, now.duration, now.seekable}); }
    void close() override { become({}); }
    [[nodiscard]] FilmStatus status() const override { return now; }
    [[nodiscard]] QImage frame() const override { return {}; }

    void become(const FilmStatus& status) {
        now = status;
        emit statusChanged();
    }
};

class RecordingNotifications : public LocalNotifications {
public:
    bool authorized = true;
    std::vector<LocalNotification> posted;
    std::map<QString, QList<NotificationAction>> categories;

    void requestAuthorization(std::function<void(bool)> callback) override { callback(authorized); }
    [[nodiscard]] bool isAuthorized() const override { return authorized; }
    void post(const LocalNotification& notification) override { posted.push_back(notification); }
    void registerCategory(const QString& category, const QList<NotificationAction>& actions) override {
        categories[category] = actions;
    }
};

// Keeps requests until a test runs them.
class ManualBackgroundTasks : public BackgroundTasks {
public:
    std::map<QString, Handler> handlers;
    std::map<QString, BackgroundRequest> pending;
    std::optional<QString> refusal; // what submit answers

    void registerHandler(const QString& identifier, Handler handler) override {
        handlers[identifier] = handler;
    }
    std::optional<QString> submit(const BackgroundRequest& request) override {
        if (!refusal)
            pending[request.identifier] = request;
        return refusal;
    }
    void cancel(const QString& identifier) override { pending.erase(identifier); }
    void cancelAll() override { pending.clear(); }

    // Starts the pending run of an identifier; `completed` gets its outcome.
    std::shared_ptr<BackgroundTask> run(const QString& identifier, std::function<void(bool)> completed) {
        pending.erase(identifier);
        auto task = std::make_shared<BackgroundTask>(identifier, std::move(completed));
        handlers.at(identifier)(task);
        return task;
    }
};

class FakePhotoPicker : public PhotoPicker {
public:
    bool available = true;
    std::optional<QImage> photo;
    bool pick(QObject*, Callback callback) override {
        if (available)
            callback(photo);
        return available;
    }
};

class FakeLocationService : public LocationService {
public:
    bool available = true;
    LocationAnswer answer{Coordinate{40.4, -3.7}, std::nullopt};
    [[nodiscard]] bool isAvailable() const override { return available; }
    void requestLocation(QObject*, Callback callback) override { callback(answer); }
};

class FakeReverseGeocoder : public ReverseGeocoder {
public:
    std::optional<Placemark> placemark;
    std::optional<QString> error;
    std::vector<Coordinate> asked;
    void reverse(const Coordinate& coordinate, Callback callback) override {
        asked.push_back(coordinate);
        callback(placemark, error);
    }
};

} // namespace kavor

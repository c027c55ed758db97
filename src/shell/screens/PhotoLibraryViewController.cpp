#include "shell/screens/PhotoLibraryViewController.h"

#include "device/Background.h"
#include "device/Clock.h"
#include "device/UserDefaults.h"
#include "interaction/AlertPresenter.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

#include <utility>

namespace kavor {

namespace {

constexpr std::chrono::milliseconds doubleClick(400);

bool isUsable(const QString& folder) {
    const QFileInfo info(folder);
    return !folder.isEmpty() && info.isDir() && info.isReadable() && info.isExecutable();
}

struct Place {
    QString text;
    QString icon;
    QString folder;
};

// Sticks and cards that the desktop has put into the tree.
void appendMedia(QList<Place>& places) {
    const QString user = QDir::home().dirName();
    for (const char* parent : {"/media/", "/run/media/"}) {
        const QDir media(QLatin1String(parent) + user);
        for (const QString& name : media.entryList(QDir::Dirs | QDir::NoDotAndDotDot | QDir::Readable))
            places.append({name, QStringLiteral("save"), media.filePath(name)});
    }
}

QList<Place> usualPlaces() {
    using Paths = QStandardPaths;
    const auto at = [](Paths::StandardLocation location) { return Paths::writableLocation(location); };
    QList<Place> places;
    for (const Place& place :
         {Place{QStringLiteral("Imágenes"), QStringLiteral("camera"), at(Paths::PicturesLocation)},
          Place{QStringLiteral("Descargas"), QStringLiteral("download"), at(Paths::DownloadLocation)},
          Place{QStringLiteral("Escritorio"), QStringLiteral("layers"), at(Paths::DesktopLocation)},
          Place{QStringLiteral("Carpeta personal"), QStringLiteral("user"), QDir::homePath()}}) {
        const bool known = std::any_of(places.cbegin(), places.cend(),
                                       [&](const Place& other) { return other.folder == place.folder; });
        // Where a desktop has no such folder, the home folder stands for it.
        const bool standsForHome = place.folder == QDir::homePath() && place.icon != QLatin1String("user");
        if (!known && !standsForHome && isUsable(place.folder))
            places.append(place);
    }
    appendMedia(places);
    return places;
}

} // namespace

PhotoLibraryViewController::PhotoLibraryViewController(AlertPresenter& alerts, UserDefaults& defaults,
                                                       Clock& clock, QObject* parent)
    : PhotoPicker(parent)
    , alerts_(alerts)
    , defaults_(defaults)
    , clock_(clock) {}

bool PhotoLibraryViewController::pick(QObject* context, Callback callback) {
    if (visible_)
        return true; // a second tap: the library is open already
    const QString last = defaults_.string(QLatin1String(folderKey)).value_or(QString());
    const auto places = usualPlaces();
    const QString first = isUsable(last) ? last : places.isEmpty() ? QDir::rootPath() : places.front().folder;
    context_ = context;
    bound_ = context != nullptr;
    if (context)
        contextGone_ = connect(context, &QObject::destroyed, this, [this] { finish(std::nullopt); });
    callback_ = std::move(callback);
    openFolder(first);
    letSettle();
    visible_ = true;
    emit visibleChanged();
    return true;
}

void PhotoLibraryViewController::open(const QUrl& entry) {
    const QString path = entry.toLocalFile();
    if (!visible_ || !settled_ || reading_ || path.isEmpty())
        return;
    if (QFileInfo(path).isDir())
        openFolder(path);
    else
        read(path);
}

void PhotoLibraryViewController::goUp() {
    QDir parent(folder_);
    if (!reading_ && parent.cdUp())
        openFolder(parent.absolutePath());
}

void PhotoLibraryViewController::openFolder(const QString& folder) {
    if (!isUsable(folder)) {
        alerts_.inform(QStringLiteral("Atención"),
                       QStringLiteral("No se puede abrir la carpeta \"%1\".").arg(QDir(folder).dirName()));
        return;
    }
    if (std::exchange(folder_, QDir::cleanPath(folder)) == folder_)
        return;
    letSettle();
    emit folderChanged();
}

void PhotoLibraryViewController::letSettle() {
    settled_ = false;
    clock_.after(doubleClick, this, [this, change = ++changes_] {
        if (change == changes_)
            settled_ = true;
    });
}

void PhotoLibraryViewController::read(const QString& path) {
    setReading(true);
    runInBackground(
        this, [path] { return readPhoto(path); },
        [this, path, pick = picks_](const tl::expected<QImage, PhotoFault>& photo) {
            if (pick != picks_)
                return; // cancelled meanwhile
            setReading(false);
            if (photo)
                return finish(*photo);
            const QString sentence = photo.error() == PhotoFault::tooLarge
                                         ? QStringLiteral("La imagen \"%1\" es demasiado grande.")
                                         : QStringLiteral("No se puede leer la imagen \"%1\".");
            alerts_.inform(QStringLiteral("Atención"), sentence.arg(QFileInfo(path).fileName()));
        });
}

void PhotoLibraryViewController::cancel() {
    if (visible_)
        finish(std::nullopt);
}

void PhotoLibraryViewController::finish(const std::optional<QImage>& photo) {
    ++picks_;
    setReading(false);
    visible_ = false;
    disconnect(contextGone_);
    defaults_.setString(QLatin1String(folderKey), folder_);
    emit visibleChanged();
    const auto callback = std::exchange(callback_, {});
    const bool contextIsGone = std::exchange(bound_, false) && !context_;
    if (callback && !contextIsGone)
        callback(photo);
}

void PhotoLibraryViewController::setReading(bool reading) {
    if (std::exchange(reading_, reading) != reading)
        emit readingChanged();
}

QString PhotoLibraryViewController::folderText() const {
    const QString home = QDir::homePath();
    if (folder_ == home)
        return QStringLiteral("Carpeta personal");
    return folder_.startsWith(home + QLatin1Char('/')) ? folder_.mid(home.size() + 1) : folder_;
}

bool PhotoLibraryViewController::isUpPossible() const {
    return !QDir(folder_).isRoot();
}

QVariantList PhotoLibraryViewController::places() const {
    QVariantList entries;
    for (const Place& place : usualPlaces())
        entries.append(QVariantMap{{QStringLiteral("text"), place.text},
                                   {QStringLiteral("icon"), place.icon},
                                   {QStringLiteral("folder"), QUrl::fromLocalFile(place.folder)},
                                   {QStringLiteral("current"), place.folder == folder_}});
    return entries;
}

} // namespace kavor

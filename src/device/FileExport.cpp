#include "device/FileExport.h"

#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QSaveFile>
#include <QStandardPaths>
#include <QUrl>

namespace kavor {

namespace {

QString freePlace(const QDir& folder, const QString& name) {
    const QFileInfo wanted(name);
    QString place = folder.filePath(name);
    for (int number = 1; QFileInfo::exists(place); ++number)
        place = folder.filePath(
            QStringLiteral("%1 (%2).%3").arg(wanted.completeBaseName()).arg(number).arg(wanted.suffix()));
    return place;
}

} // namespace

std::optional<QString> DownloadsExport::saveAndOpen(const QString& name, const QByteArray& content) {
    const QDir folder(folder_.isEmpty() ? QStandardPaths::writableLocation(QStandardPaths::DownloadLocation)
                                        : folder_);
    if (!folder.mkpath(QStringLiteral(".")))
        return std::nullopt;
    const QString place = freePlace(folder, name);
    QSaveFile file(place);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size() || !file.commit())
        return std::nullopt;
    QDesktopServices::openUrl(
        QUrl::fromLocalFile(place)); // where nothing opens it, it stands there all the same
    return place;
}

} // namespace kavor

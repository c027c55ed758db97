#pragma once

#include <QByteArray>
#include <QString>

#include <optional>
#include <utility>

namespace kavor {

// Hands a file to the user, outside of the client's own folders.
class FileExport {
public:
    virtual ~FileExport() = default;
    // Stores the content under the name, or a free one made of it, and opens it with what the device has for
    // such files. Answers where it stands; nothing when it could not be stored.
    virtual std::optional<QString> saveAndOpen(const QString& name, const QByteArray& content) = 0;
};

// A folder where the user finds it; without a word that of downloads.
class DownloadsExport : public FileExport {
public:
    explicit DownloadsExport(QString folder = {})
        : folder_(std::move(folder)) {}
    std::optional<QString> saveAndOpen(const QString& name, const QByteArray& content) override;

private:
    QString folder_;
};

} // namespace kavor

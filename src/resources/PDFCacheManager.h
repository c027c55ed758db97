#pragma once

#include <QString>
#include <QUrl>

#include <filesystem>
#include <optional>
#include <string>

namespace kavor {

class PlainDownloader;

// Keeps a copy of each PDF of the server in a folder with a size limit. All state is on disk, so a manager is
// made for each use; its downloads go on when it is gone. Main thread only.
class PDFCacheManager {
public:
    static constexpr auto folderName = "PDFCache";
    static constexpr int limitSizeInMegaBytes = 1024;
    static constexpr qint64 limitSizeInBytes = qint64(limitSizeInMegaBytes) * 1024 * 1024;

    // Makes the folder under the caches folder when it is not there. An empty caches folder means that the
    // device has none. The downloader outlives the downloads.
    PDFCacheManager(const std::filesystem::path& cachesFolder, PlainDownloader& downloader,
                    const std::string& cacheFolder = folderName, qint64 limitBytes = limitSizeInBytes);

    // The URL to show: the stored file, or the remote one while its download runs beside it. Nothing when the
    // folder is missing or the text is no web address. The key of the cache is the last path component alone:
    // a newer document under the same name is not fetched while the old file stays. Each call removes at most
    // one file when the folder is above its limit, the one that was read longest ago.
    [[nodiscard]] std::optional<QUrl> localOrRemoteURL(const std::string& text) const;

private:
    [[nodiscard]] std::optional<std::filesystem::path> folder() const;
    void evict(const std::filesystem::path& folder) const;
    void download(const QUrl& url, const std::filesystem::path& file) const;

    std::filesystem::path folder_;
    PlainDownloader& downloader_;
    qint64 limitBytes_;
};

} // namespace kavor

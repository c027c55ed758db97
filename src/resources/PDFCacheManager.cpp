#include "resources/PDFCacheManager.h"

#include "base/AtomicFile.h"
#include "base/Log.h"
#include "base/Url.h"
#include "device/Background.h"
#include "resources/PlainDownloader.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <algorithm>
#include <tuple>
#include <vector>

namespace kavor {

namespace {

struct StoredFile {
    std::filesystem::path path;
    qint64 size = 0;
    timespec lastAccess{};

    bool operator<(const StoredFile& other) const {
        return std::tie(lastAccess.tv_sec, lastAccess.tv_nsec, path) <
               std::tie(other.lastAccess.tv_sec, other.lastAccess.tv_nsec, other.path);
    }
};

std::vector<StoredFile> filesIn(const std::filesystem::path& folder) {
    std::vector<StoredFile> files;
    std::error_code error;
    for (std::filesystem::directory_iterator it(folder, error), end; !error && it != end;
         it.increment(error)) {
        struct stat status {};
        if (::lstat(it->path().c_str(), &status) == 0 && S_ISREG(status.st_mode))
            files.push_back({it->path(), status.st_size, status.st_atim});
    }
    return files;
}

// File systems seldom note each reading, so the access is stamped here.
void stampAccess(const std::filesystem::path& file) {
    const timespec times[2] = {{0, UTIME_NOW}, {0, UTIME_OMIT}};
    ::utimensat(AT_FDCWD, file.c_str(), times, 0);
}

std::optional<QUrl> webAddress(const std::string& text) {
    if (!Url::isValid(text))
        return std::nullopt;
    const QUrl url(QString::fromStdString(text));
    const bool leavesTheWeb = !url.scheme().isEmpty() && url.scheme() != QLatin1String("http") &&
                              url.scheme() != QLatin1String("https");
    return url.isValid() && !leavesTheWeb ? std::optional(url) : std::nullopt;
}

std::string lastPathComponent(const QUrl& url) {
    const QString path = url.adjusted(QUrl::StripTrailingSlash).path(QUrl::FullyEncoded);
    const QString name = path.mid(path.lastIndexOf(QLatin1Char('/')) + 1);
    return QByteArray::fromPercentEncoding(name.toUtf8()).toStdString();
}

// A body whose length was not announced may have been cut short; a document that is whole says so at its end.
bool mayBeWhole(const DownloadResult& result) {
    constexpr qsizetype endOfDocument = 1024;
    return !result.body.isEmpty() &&
           (result.lengthIsVerified ||
            result.body.last(std::min(endOfDocument, result.body.size())).contains("%%EOF"));
}

} // namespace

PDFCacheManager::PDFCacheManager(const std::filesystem::path& cachesFolder, PlainDownloader& downloader,
                                 const std::string& cacheFolder, qint64 limitBytes)
    : folder_(cachesFolder.empty() ? cachesFolder : cachesFolder / cacheFolder)
    , downloader_(downloader)
    , limitBytes_(limitBytes) {
    if (folder_.empty())
        return;
    if (const auto made = atomic_file::makeFolder(folder_); !made)
        logLine("Could not make the document folder: " + made.error().text());
}

std::optional<std::filesystem::path> PDFCacheManager::folder() const {
    std::error_code error;
    return std::filesystem::is_directory(folder_, error) ? std::optional(folder_) : std::nullopt;
}

std::optional<QUrl> PDFCacheManager::localOrRemoteURL(const std::string& text) const {
    const auto cache = folder();
    auto url = webAddress(text);
    if (!cache || !url)
        return std::nullopt;
    evict(*cache);
    const auto file = atomic_file::child(*cache, lastPathComponent(*url));
    if (!file) {
        logLine("Refused the file name of the document " + text);
        return url;
    }
    if (std::error_code error; std::filesystem::is_regular_file(*file, error)) {
        stampAccess(*file);
        return QUrl::fromLocalFile(QString::fromStdString(file->string()));
    }
    if (!downloader_.isFetching(*url))
        download(*url, *file);
    return url;
}

// One file goes at most, however far the folder is over the limit: it shrinks by one for each document
// requested.
void PDFCacheManager::evict(const std::filesystem::path& folder) const {
    const std::vector<StoredFile> files = filesIn(folder);
    qint64 sum = 0;
    for (const StoredFile& file : files)
        sum += file.size;
    if (sum <= limitBytes_)
        return;
    std::error_code dropped;
    std::filesystem::remove(std::ranges::min(files, std::less()).path, dropped);
}

void PDFCacheManager::download(const QUrl& url, const std::filesystem::path& file) const {
    PlainDownloader* downloader = &downloader_; // this manager may be gone when the answer comes
    const std::string tail = file.filename().string() + " from url: " + url.toString().toStdString();
    downloader_.get(url, downloader, [downloader, file, tail](const DownloadResult& result) {
        if (!result.isComplete()) {
            const std::string reason = result.transportError
                                           ? result.transportError->toStdString()
                                           : "status code " + std::to_string(result.status.value_or(0));
            logLine("Failure on downloading file " + tail + " with error: " + reason + ".");
            return;
        }
        if (!mayBeWhole(result)) {
            logLine("Failure on downloading file " + tail + " with error: the document has no end.");
            return;
        }
        runInBackground(
            downloader,
            [file, body = result.body] {
                return atomic_file::write(file, {body.constData(), std::size_t(body.size())});
            },
            [tail](const atomic_file::Done& done) {
                if (!done)
                    logLine("Failure on storing file: " + tail + " with error: " + done.error().text() + ".");
            });
    });
}

} // namespace kavor

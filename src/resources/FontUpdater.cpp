#include "resources/FontUpdater.h"

#include "base/AtomicFile.h"
#include "base/Log.h"
#include "base/StopProcess.h"
#include "device/Background.h"
#include "resources/FontRegistry.h"
#include "resources/PlainDownloader.h"

#include <QMetaObject>
#include <QUrl>

#include <string>
#include <utility>

namespace kavor {

namespace {

constexpr qint64 largestFont = 16LL * 1024 * 1024;

std::string bracketed(const FontUpdater::Typographies& typographies) {
    std::string list;
    for (const auto& typography : typographies)
        list += (list.empty() ? "" : ", ") + typography.mimetype;
    return "[" + list + "]";
}

} // namespace

struct FontUpdater::Run {
    Typographies typographies;
    std::function<void()> finished;
    int pending = 0;
    std::size_t next = 0; // the first typography that is not registered yet
};

FontUpdater::FontUpdater(std::filesystem::path cachesFolder, PlainDownloader& downloader,
                         FontRegistry& registry, QObject* parent)
    : QObject(parent)
    , cachesFolder_(std::move(cachesFolder))
    , downloader_(downloader)
    , registry_(registry) {
    if (!cachesFolder_.empty())
        atomic_file::sweepTemporaries(folder());
}

std::filesystem::path FontUpdater::folder() const {
    return cachesFolder_ / "ApplicationFonts";
}

void FontUpdater::update(Typographies typographies, std::function<void()> finished) {
    if (cachesFolder_.empty())
        return;
    if (const auto made = atomic_file::makeFolder(folder()); !made)
        stopProcess("the fonts' folder: " + made.error().text());
    Typographies fresh;
    std::vector<std::filesystem::path> files;
    for (const auto& typography : typographies) {
        const auto file = atomic_file::child(folder(), typography.filename);
        if (!file) {
            logLine("Refused the file name of the font " + typography.mimetype + ": " + typography.filename);
        } else if (std::error_code error; !std::filesystem::exists(*file, error)) {
            fresh.push_back(typography);
            files.push_back(*file);
        }
    }
    logLine("New fonts to download: " + bracketed(fresh) + ".", LogLevel::Note);
    auto run =
        std::make_shared<Run>(Run{std::move(typographies), std::move(finished), int(fresh.size()) + 1});
    for (std::size_t i = 0; i < fresh.size(); ++i)
        download(run, fresh[i], files[i]);
    leave(run);
}

void FontUpdater::registerStored(Typographies typographies) {
    if (cachesFolder_.empty())
        return;
    std::erase_if(typographies, [this](const Textile::Typography& typography) {
        const auto file = atomic_file::child(folder(), typography.filename);
        std::error_code error;
        return !file || !std::filesystem::exists(*file, error);
    });
    registerNext(std::make_shared<Run>(Run{std::move(typographies), {}, 0}));
}

void FontUpdater::download(const std::shared_ptr<Run>& run, const Textile::Typography& typography,
                           const std::filesystem::path& file) {
    const std::string mime = typography.mimetype;
    const std::string url = typography.fontURL.text;
    const auto received = [this, run, mime, url, file](const DownloadResult& result) {
        if (result.transportError) {
            logLine("Failure parsing download font " + mime + " from url: " + url +
                    " with error: " + result.transportError->toStdString() + ".");
            leave(run);
            return;
        }
        if (result.status && *result.status != 200) {
            logLine("Failure on the download of the font " + mime + " from url: " + url +
                    " with status code: " + std::to_string(*result.status) + ".");
            leave(run);
            return;
        }
        runInBackground(
            this,
            [file, body = result.body] {
                return atomic_file::write(file, {body.constData(), std::size_t(body.size())});
            },
            [this, run, mime](const atomic_file::Done& done) {
                if (!done)
                    logLine("Failure on storing font: " + mime + " with error: " + done.error().text() + ".");
                leave(run);
            });
    };
    downloader_.get(QUrl(QString::fromStdString(url)), this, received, largestFont);
}

void FontUpdater::leave(const std::shared_ptr<Run>& run) {
    if (--run->pending == 0)
        QMetaObject::invokeMethod(
            this, [this, run] { registerNext(run); }, Qt::QueuedConnection);
}

// One font after the other; the files are read beside the window's thread.
void FontUpdater::registerNext(const std::shared_ptr<Run>& run) {
    if (run->next == run->typographies.size()) {
        if (run->finished)
            run->finished();
        return;
    }
    const Textile::Typography& typography = run->typographies[run->next++];
    const auto file = atomic_file::child(folder(), typography.filename);
    runInBackground(
        this,
        [file] {
            if (!file)
                return QByteArray();
            const auto content = atomic_file::read(*file);
            return content ? QByteArray::fromStdString(*content) : QByteArray();
        },
        [this, run, mime = typography.mimetype](const QByteArray& data) {
            if (data.isEmpty() || !registry_.registerFont(QString::fromStdString(mime), data))
                logLine("Error registering font " + mime);
            registerNext(run);
        });
}

} // namespace kavor

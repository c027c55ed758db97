#include "screens/WebPreviewViewController.h"

#include "device/Clock.h"
#include "resources/PDFCacheManager.h"
#include "resources/PlainDownloader.h"
#include "session/AppSingleton.h"

#include <chrono>
#include <utility>

namespace kavor {

WebPreviewViewController::WebPreviewViewController(const QUrl& previewUrl, QString title,
                                                   PlainDownloader& downloader, Clock& clock, QObject* parent)
    : QObject(parent)
    , previewUrl_(previewUrl)
    , title_(std::move(title))
    , downloader_(downloader)
    , clock_(clock) {
    load();
}

void WebPreviewViewController::load() {
    ++attempt_;
    source_.clear();
    bytes_.clear();
    const PDFCacheManager cache(AppSingleton::shared().cachesFolder(), downloader_);
    // Without a folder for copies the document is still shown from the network.
    const QUrl url =
        cache.localOrRemoteURL(previewUrl_.toString(QUrl::FullyEncoded).toStdString()).value_or(previewUrl_);
    if (url.isLocalFile()) {
        source_ = url;
        finish(State::Shown);
        return;
    }
    finish(State::Loading);
    fetch(url);
}

void WebPreviewViewController::fetch(const QUrl& remote) {
    clock_.cancel(timeOut_);
    timeOut_ = clock_.after(std::chrono::seconds(timeOutSeconds), this, [this, attempt = attempt_] {
        if (attempt != attempt_)
            return;
        ++attempt_; // a later answer is too late
        finish(State::Failed);
    });
    downloader_.get(remote, this, [this, attempt = attempt_](const DownloadResult& result) {
        if (attempt != attempt_)
            return;
        clock_.cancel(timeOut_);
        if (result.isComplete())
            bytes_ = result.body;
        finish(result.isComplete() ? State::Shown : State::Failed);
    });
}

void WebPreviewViewController::finish(State state) {
    state_ = state;
    emit changed();
}

} // namespace kavor

#include "resources/Prefetcher.h"

#include <QElapsedTimer>
#include <QMetaObject>

#include <utility>

namespace kavor {

namespace {

// Thousands of resources that are on the device already must not hold the main thread in one go.
constexpr qint64 sliceMilliseconds = 6;

} // namespace

Prefetcher::Prefetcher(ImageCache& cache, Resources resources, Progress progress, Completion completion,
                       QObject* parent)
    : QObject(parent)
    , cache_(cache)
    , resources_(std::move(resources))
    , progress_(std::move(progress))
    , completion_(std::move(completion)) {}

void Prefetcher::start() {
    if (!std::exchange(started_, true))
        later();
}

void Prefetcher::later() {
    QMetaObject::invokeMethod(this, &Prefetcher::pump, Qt::QueuedConnection);
}

void Prefetcher::pump() {
    QElapsedTimer slice;
    slice.start();
    while (next_ < resources_.size() && running_ < limit_) {
        if (slice.elapsed() >= sliceMilliseconds) {
            later();
            return;
        }
        const CachedResource& resource = resources_[next_++];
        if (cache_.isCached(resource.key)) {
            report(skipped_, resource);
            continue;
        }
        ++running_;
        const auto fetched = [this, resource](const std::optional<QString>& path) {
            --running_;
            report(path ? completed_ : failed_, resource);
            pump();
        };
        cache_.fetch(resource, this, fetched, lane_);
    }
    if (next_ == resources_.size() && running_ == 0 && !std::exchange(finished_, true)) {
        if (completion_)
            completion_(skipped_, failed_, completed_);
        emit finished();
    }
}

void Prefetcher::report(Resources& list, const CachedResource& resource) {
    list.push_back(resource);
    if (progress_)
        progress_(skipped_, failed_, completed_);
}

} // namespace kavor

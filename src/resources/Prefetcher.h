#pragma once

#include "resources/ImageCache.h"

#include <QObject>

#include <functional>
#include <vector>

namespace kavor {

// Fetches a list of resources into the image cache ahead of need.
class Prefetcher : public QObject {
    Q_OBJECT
public:
    using Resources = std::vector<CachedResource>;
    // What has been dealt with so far: on the device already, not to be had, stored. Called after each
    // resource.
    using Progress =
        std::function<void(const Resources& skipped, const Resources& failed, const Resources& completed)>;
    // The same three lists at the end; called once, also for an empty list and whatever failed.
    using Completion = Progress;

    // The cache outlives the prefetcher. Both callbacks may be empty.
    Prefetcher(ImageCache& cache, Resources resources, Progress progress, Completion completion,
               QObject* parent = nullptr);
    // Whom the downloads share their connections with.
    void setLane(PlainDownloader::Lane lane) { lane_ = lane; }

    void setMaxConcurrentDownloads(int limit) { limit_ = limit; }
    // Begins; callbacks run later. Starting twice is no fault.
    void start();
    [[nodiscard]] bool isFinished() const { return finished_; }

signals:
    void finished();

private:
    void pump();
    void later();
    void report(Resources& list, const CachedResource& resource);

    ImageCache& cache_;
    Resources resources_;
    Progress progress_;
    Completion completion_;
    Resources skipped_;
    Resources failed_;
    Resources completed_;
    std::size_t next_ = 0;
    int running_ = 0;
    int limit_ = 5;
    PlainDownloader::Lane lane_ = PlainDownloader::Lane::Ahead;
    bool started_ = false;
    bool finished_ = false;
};

} // namespace kavor

#include "base/BackgroundFileWriter.h"

#include "base/AtomicFile.h"
#include "base/Log.h"

#include <utility>

namespace kavor {

namespace {

void logFailure(const BackgroundFileWriter::Failure& failure) {
    logLine(std::string("Error occurred when ") + (failure.removing ? "deleting" : "serializing") +
            " file \"" + failure.path.string() + "\" " + failure.reason);
}

} // namespace

BackgroundFileWriter::BackgroundFileWriter(FailureHandler onFailure)
    : onFailure_(onFailure ? std::move(onFailure) : logFailure)
    , thread_([this] { run(); }) {}

BackgroundFileWriter::~BackgroundFileWriter() {
    {
        const std::lock_guard lock(mutex_);
        ending_ = true;
    }
    changed_.notify_all();
    thread_.join();
}

BackgroundFileWriter& BackgroundFileWriter::shared() {
    static BackgroundFileWriter instance;
    return instance;
}

void BackgroundFileWriter::write(std::filesystem::path path, std::string content,
                                 std::vector<std::filesystem::path> removeAfterwards) {
    ask(std::move(path), {false, std::move(content), std::move(removeAfterwards)});
}

void BackgroundFileWriter::remove(std::filesystem::path path) {
    ask(std::move(path), {true, {}, {}});
}

void BackgroundFileWriter::flush() {
    std::unique_lock lock(mutex_);
    changed_.wait(lock, [this] { return queue_.empty() && current_.empty(); });
}

void BackgroundFileWriter::flush(const std::filesystem::path& path) {
    std::unique_lock lock(mutex_);
    changed_.wait(lock, [&] { return !wishes_.contains(path) && current_ != path; });
}

void BackgroundFileWriter::ask(std::filesystem::path path, Wish wish) {
    {
        const std::lock_guard lock(mutex_);
        const auto [place, added] = wishes_.insert_or_assign(path, std::move(wish));
        if (added)
            queue_.push_back(std::move(path));
    }
    changed_.notify_all();
}

void BackgroundFileWriter::run() {
    std::unique_lock lock(mutex_);
    while (true) {
        changed_.wait(lock, [this] { return ending_ || !queue_.empty(); });
        if (queue_.empty())
            return;
        const auto path = std::move(queue_.front());
        queue_.pop_front();
        const auto wish = wishes_.extract(path);
        current_ = path;
        lock.unlock();
        fulfil(path, wish.mapped());
        lock.lock();
        current_.clear();
        changed_.notify_all();
    }
}

void BackgroundFileWriter::fulfil(const std::filesystem::path& path, const Wish& wish) {
    if (wish.removing) {
        removeNow(path);
        return;
    }
    if (const auto written = atomic_file::write(path, wish.content); !written) {
        onFailure_({path, false, written.error().reason});
        return;
    }
    for (const auto& each : wish.removeAfterwards)
        removeNow(each);
}

void BackgroundFileWriter::removeNow(const std::filesystem::path& path) {
    std::error_code error;
    if (!std::filesystem::exists(std::filesystem::symlink_status(path, error)))
        return;
    if (const auto removed = atomic_file::remove(path); !removed)
        onFailure_({path, true, removed.error().reason});
}

} // namespace kavor

#pragma once

#include <condition_variable>
#include <deque>
#include <filesystem>
#include <functional>
#include <map>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

namespace kavor {

// Writes and removes small files on a thread of its own, so that saving never blocks a screen. For each path
// the latest wish wins; paths take their turn in the order in which they were first asked for. Safe from any
// thread.
class BackgroundFileWriter {
public:
    // What could not be done; called on the writer's thread.
    struct Failure {
        std::filesystem::path path;
        bool removing = false;
        std::string reason;
    };
    using FailureHandler = std::function<void(const Failure&)>;

    // Without a handler failures are logged.
    explicit BackgroundFileWriter(FailureHandler onFailure = {});
    BackgroundFileWriter(const BackgroundFileWriter&) = delete;
    BackgroundFileWriter& operator=(const BackgroundFileWriter&) = delete;
    // Does what is still to be done.
    ~BackgroundFileWriter();

    // The application's writer, made on first use.
    static BackgroundFileWriter& shared();

    // Writes the whole file in one step; once it stands on disk, removes the files named after it.
    void write(std::filesystem::path path, std::string content,
               std::vector<std::filesystem::path> removeAfterwards = {});
    void remove(std::filesystem::path path);
    // Waits until everything that was asked for is done (or has failed).
    void flush();
    // Waits until everything that was asked for this path is done.
    void flush(const std::filesystem::path& path);

private:
    struct Wish {
        bool removing = false;
        std::string content;
        std::vector<std::filesystem::path> removeAfterwards;
    };

    void ask(std::filesystem::path path, Wish wish);
    void run();
    void fulfil(const std::filesystem::path& path, const Wish& wish);
    void removeNow(const std::filesystem::path& path);

    FailureHandler onFailure_;
    std::mutex mutex_;
    std::condition_variable changed_;
    std::deque<std::filesystem::path> queue_;
    std::map<std::filesystem::path, Wish> wishes_;
    std::filesystem::path current_; // what the thread works on, else empty
    bool ending_ = false;
    std::thread thread_;
};

} // namespace kavor

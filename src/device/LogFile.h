#pragma once

#include "base/Log.h"

#include <QString>
#include <QThreadPool>

#include <deque>
#include <filesystem>
#include <functional>
#include <mutex>
#include <string>

namespace kavor {

// The log on stderr and, for support, in a file: a line for each entry, with time, level and category. Takes
// the place of the plain log, and of Qt's own messages, while it lives; one at a time. Writing the file never
// holds anybody up, and a disk that is full or may only be read costs nothing but the file's lines.
class LogFile {
public:
    using Blanking = std::function<QString(const QString&)>;
    static constexpr char folderName[] = "Logs"; // in the caches folder
    static constexpr char fileName[] = "kavor.log";
    static constexpr char formerFileName[] = "kavor.former.log"; // what stood there before it was full
    static constexpr qint64 defaultLimit = 1024LL * 1024;

    // The limit is that of each file, in bytes.
    explicit LogFile(qint64 limit = defaultLimit);
    LogFile(const LogFile&) = delete;
    LogFile& operator=(const LogFile&) = delete;
    // Writes what is still to be written, and restores the plain log.
    ~LogFile();

    // Writes to this folder from now on, also what was logged before. Makes the folder. Once.
    void open(const std::filesystem::path& folder);
    // What every text goes through from now on, in any thread, to lose its secrets.
    void setBlanking(Blanking blanking);
    // Waits a bounded time until what was logged stands in the file.
    void flush();

private:
    void take(const LogEntry& entry);
    void writeWaiting();
    void append(const std::string& line);
    void openFile();
    void closeFile();

    const qint64 limit_;
    std::mutex mutex_; // of the next four
    std::filesystem::path folder_;
    std::deque<std::string> waiting_;
    Blanking blanking_;
    bool isWriting_ = false;
    // These are the worker's.
    int file_ = -1;
    qint64 size_ = 0;
    QThreadPool worker_;
};

} // namespace kavor

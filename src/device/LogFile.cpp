#include "device/LogFile.h"

#include "base/AtomicFile.h"
#include "device/Background.h"

#include <QDateTime>
#include <QMessageLogContext>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <utility>

namespace kavor {

namespace {

constexpr std::size_t mostWaiting = 10'000; // lines
constexpr qsizetype longestText = 8'000;
constexpr int flushLimit = 2'000; // milliseconds

std::atomic<LogFile*> current = nullptr;

LogLevel levelOf(QtMsgType type) {
    if (type == QtFatalMsg)
        return LogLevel::Fault;
    return type == QtDebugMsg || type == QtInfoMsg ? LogLevel::Note : LogLevel::Warning;
}

void takeQtMessage(QtMsgType type, const QMessageLogContext& context, const QString& text) {
    const std::string_view category = context.category != nullptr ? context.category : "default";
    logEntry({levelOf(type), category == "default" ? "qt" : category, text.toStdString()});
    LogFile* log = current;
    if (type == QtFatalMsg && log != nullptr) // Qt ends the process now
        log->flush();
}

QString word(LogLevel level) {
    switch (level) {
    case LogLevel::Note:
        return QStringLiteral("note");
    case LogLevel::Warning:
        return QStringLiteral("warning");
    case LogLevel::Fault:
        break;
    }
    return QStringLiteral("fault");
}

// An entry is one line, whatever its text holds.
QString oneLine(QString text) {
    text.truncate(longestText);
    std::ranges::replace_if(
        text, [](QChar c) { return c < u' '; }, u' ');
    return text;
}

} // namespace

LogFile::LogFile(qint64 limit)
    : limit_(limit) {
    worker_.setMaxThreadCount(1);
    current = this;
    setLogSink([this](const LogEntry& entry) { take(entry); }, [this] { flush(); });
    qInstallMessageHandler(takeQtMessage);
}

LogFile::~LogFile() {
    qInstallMessageHandler(nullptr);
    setLogSink({});
    current = nullptr;
    worker_.waitForDone();
    closeFile();
}

void LogFile::open(const std::filesystem::path& folder) {
    const std::lock_guard lock(mutex_);
    folder_ = folder;
    if (!std::exchange(isWriting_, true))
        startInPool(worker_, [this] { writeWaiting(); });
}

void LogFile::setBlanking(Blanking blanking) {
    const std::lock_guard lock(mutex_);
    blanking_ = std::move(blanking);
}

void LogFile::flush() {
    worker_.waitForDone(flushLimit);
}

void LogFile::take(const LogEntry& entry) {
    const std::lock_guard lock(mutex_);
    QString text = QString::fromUtf8(entry.text.data(), qsizetype(entry.text.size()));
    if (blanking_)
        text = blanking_(text);
    const QString now = QDateTime::currentDateTime().toString(Qt::ISODateWithMs);
    const auto category = QLatin1String(entry.category.data(), qsizetype(entry.category.size()));
    const QString line =
        now + u' ' + word(entry.level) + u' ' + category + QStringLiteral(": ") + oneLine(text);
    std::string bytes = line.toStdString() + "\n";
    [[maybe_unused]] const auto shown = ::write(STDERR_FILENO, bytes.data(), bytes.size());
    if (waiting_.size() >= mostWaiting)
        return;
    waiting_.push_back(std::move(bytes));
    if (!folder_.empty() && !std::exchange(isWriting_, true))
        startInPool(worker_, [this] { writeWaiting(); });
}

void LogFile::writeWaiting() {
    while (true) {
        std::deque<std::string> lines;
        {
            const std::lock_guard lock(mutex_);
            isWriting_ = !waiting_.empty();
            if (!isWriting_)
                return;
            lines.swap(waiting_);
        }
        std::ranges::for_each(lines, [this](const std::string& line) { append(line); });
    }
}

void LogFile::append(const std::string& line) {
    if (file_ < 0)
        openFile();
    if (file_ >= 0 && size_ > 0 && size_ + qint64(line.size()) > limit_) {
        closeFile();
        std::error_code error;
        std::filesystem::rename(folder_ / fileName, folder_ / formerFileName, error);
        if (!error)
            openFile();
    }
    if (file_ < 0)
        return;
    const auto written = ::write(file_, line.data(), line.size());
    if (written > 0)
        size_ += written;
}

void LogFile::openFile() {
    if (!atomic_file::makeFolder(folder_))
        return;
    file_ = ::open((folder_ / fileName).c_str(), O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC | O_NOFOLLOW,
                   S_IRUSR | S_IWUSR);
    struct stat status {};
    if (file_ >= 0 && ::fstat(file_, &status) == 0)
        size_ = status.st_size;
}

void LogFile::closeFile() {
    if (file_ >= 0)
        ::close(std::exchange(file_, -1));
}

} // namespace kavor

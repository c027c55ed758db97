#include "Progress.h"

#include "base/Log.h"

#include <unistd.h>

#include <chrono>

namespace kavor::ctl {

namespace {

constexpr auto quietTime = std::chrono::seconds(1);

} // namespace

Progress::Progress(std::ostream& err, const QString& text)
    : err_(err)
    , terminal_(::isatty(STDERR_FILENO) != 0)
    , text_(text.toStdString()) {
    if (!terminal_)
        return;
    setLogSink([this](const LogEntry& entry) { around([&] { err_ << entry.text << std::endl; }); });
    QObject::connect(&delay_, &QTimer::timeout, &delay_, [this] {
        const std::lock_guard lock(mutex_);
        visible_ = true;
        draw();
    });
    delay_.setSingleShot(true);
    delay_.start(quietTime);
}

Progress::~Progress() {
    if (!terminal_)
        return;
    setLogSink({});
    erase();
}

void Progress::show(const QString& text) {
    if (text.isEmpty())
        return;
    const std::lock_guard lock(mutex_);
    text_ = text.toStdString();
    draw();
}

void Progress::around(const std::function<void()>& print) {
    const std::lock_guard lock(mutex_);
    erase();
    print();
    draw();
}

void Progress::draw() {
    if (visible_)
        err_ << '\r' << text_ << "\x1b[K" << std::flush;
}

void Progress::erase() {
    if (visible_)
        err_ << "\r\x1b[K" << std::flush;
}

} // namespace kavor::ctl

#pragma once

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QThread>
#include <QTimer>

#include <functional>

namespace kavor {

// Runs the event loop until the condition holds; false when it still does not after the given time.
inline bool waitFor(const std::function<bool()>& condition, int milliseconds = 10000) {
    QDeadlineTimer deadline(milliseconds);
    QTimer wakeUp; // a condition may be met by another thread that posts no event
    wakeUp.start(5);
    while (!condition()) {
        if (deadline.hasExpired())
            return false;
        QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    return true;
}

} // namespace kavor

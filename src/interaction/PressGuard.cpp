#include "interaction/PressGuard.h"

#include "device/Clock.h"

#include <QEvent>
#include <QKeyEvent>

#include <utility>

namespace kavor {

namespace {

bool actsAsPress(int key) {
    return key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Space;
}

} // namespace

PressGuard::PressGuard(Clock& clock, QObject* parent)
    : QObject(parent)
    , clock_(clock) {}

PressGuard::~PressGuard() {
    clock_.cancel(timer_);
}

void PressGuard::watch(QObject* window) {
    if (window_)
        window_->removeEventFilter(this);
    window_ = window;
    if (window_)
        window_->installEventFilter(this);
}

void PressGuard::screenChanged() {
    muted_ = held_;
    if (interval_.count() <= 0)
        return;
    changedAt_ = lastPointer_;
    setShut(true);
    clock_.cancel(timer_);
    timer_ = clock_.after(interval_, this, [this] { setShut(false); });
}

void PressGuard::setShut(bool shut) {
    shut_ = shut;
    if (window_)
        window_->setProperty(takesPresses, !shut);
}

bool PressGuard::eventFilter(QObject*, QEvent* event) {
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::TouchBegin:
        return swallowsPress(*static_cast<QInputEvent*>(event));
    case QEvent::MouseMove:
    case QEvent::TouchUpdate:
        return swallowing_;
    case QEvent::MouseButtonRelease:
    case QEvent::TouchEnd:
    case QEvent::TouchCancel:
        lastPointer_ = static_cast<QInputEvent*>(event)->timestamp();
        return swallowsRelease();
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
        return swallowsKey(*static_cast<QKeyEvent*>(event));
    default:
        return false;
    }
}

// A window that was long in building its screen gets the second press after the guard's own time, so the
// platform's time of the presses counts too.
bool PressGuard::swallowsPress(const QInputEvent& press) {
    const quint64 at = press.timestamp();
    const bool second = changedAt_ > 0 && at >= changedAt_ && at - changedAt_ < quint64(interval_.count());
    swallowing_ = shut_ || second;
    lastPointer_ = at;
    return swallowing_;
}

bool PressGuard::swallowsRelease() {
    return std::exchange(swallowing_, false);
}

bool PressGuard::swallowsKey(const QKeyEvent& event) {
    if (!actsAsPress(event.key()))
        return false;
    if (event.isAutoRepeat())
        return event.key() == muted_;
    held_ = event.type() == QEvent::KeyPress ? event.key() : 0;
    muted_ = 0;
    return false;
}

} // namespace kavor

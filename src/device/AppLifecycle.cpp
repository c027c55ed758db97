#include "device/AppLifecycle.h"

#include <QGuiApplication>
#include <QSocketNotifier>

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <utility>

namespace kavor {

namespace {

// A signal handler may do little more than write a byte; the event loop reads it at the other end of the
// pipe.
std::array<int, 2> signalPipe{-1, -1};

void onSignal(int) {
    const int error = errno;
    const char byte = 1;
    [[maybe_unused]] const auto written = ::write(signalPipe[1], &byte, 1);
    errno = error;
}

void setHandler(void (*handler)(int)) {
    struct sigaction action {};
    action.sa_handler = handler;
    action.sa_flags = SA_RESTART;
    ::sigaction(SIGTERM, &action, nullptr);
    ::sigaction(SIGINT, &action, nullptr);
}

} // namespace

QtAppLifecycle::QtAppLifecycle(QObject* parent)
    : AppLifecycle(parent) {
    connect(qGuiApp, &QGuiApplication::applicationStateChanged, this,
            &QtAppLifecycle::applicationStateChanged);
    connect(qGuiApp, &QCoreApplication::aboutToQuit, this, &QtAppLifecycle::terminate);
    watchSignals();
}

QtAppLifecycle::~QtAppLifecycle() {
    if (!signalNotifier_)
        return;
    setHandler(SIG_DFL);
    signalNotifier_.reset();
    for (int& end : signalPipe)
        ::close(std::exchange(end, -1));
}

void QtAppLifecycle::watchSignals() {
    if (signalPipe[0] >= 0 || ::pipe2(signalPipe.data(), O_CLOEXEC | O_NONBLOCK) != 0)
        return;
    signalNotifier_ = std::make_unique<QSocketNotifier>(signalPipe[0], QSocketNotifier::Read);
    connect(signalNotifier_.get(), &QSocketNotifier::activated, this, [this] {
        char byte = 0;
        [[maybe_unused]] const auto count = ::read(signalPipe[0], &byte, 1);
        terminate();
        QCoreApplication::quit();
    });
    setHandler(onSignal);
}

void QtAppLifecycle::applicationStateChanged(Qt::ApplicationState state) {
    if (state == Qt::ApplicationSuspended && !std::exchange(suspended_, true))
        emit enteredBackground();
    else if (state != Qt::ApplicationSuspended && std::exchange(suspended_, false))
        emit enteringForeground();
}

void QtAppLifecycle::terminate() {
    if (!std::exchange(terminated_, true))
        emit willTerminate();
}

} // namespace kavor

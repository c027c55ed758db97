#pragma once

#include <QObject>

#include <memory>

class QSocketNotifier;

namespace kavor {

// The moments of the application's life that Kavor reacts to.
class AppLifecycle : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;

signals:
    void enteredBackground();
    void enteringForeground();
    // At most once: what must not be lost is written now.
    void willTerminate();
};

// Background is the platform's suspended state, as phones and tablets have it; losing the focus is not.
// SIGTERM, SIGINT and the end of the application are the termination. One at a time, after the application
// object.
class QtAppLifecycle : public AppLifecycle {
    Q_OBJECT
public:
    explicit QtAppLifecycle(QObject* parent = nullptr);
    ~QtAppLifecycle() override;

    // The window tells that it is being closed.
    Q_INVOKABLE void reportWindowClosed() { terminate(); }

private:
    void applicationStateChanged(Qt::ApplicationState state);
    void terminate();
    void watchSignals();

    std::unique_ptr<QSocketNotifier> signalNotifier_;
    bool suspended_ = false;
    bool terminated_ = false;
};

} // namespace kavor

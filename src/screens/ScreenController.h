#pragma once

#include <QObject>
#include <QQmlEngine>

namespace kavor {

// The controller of a screen on the stack. Screens name it with its namespace, or the tools of QML lose sight
// of what they derive from.
class ScreenController : public QObject {
    Q_OBJECT
    QML_ANONYMOUS
public:
    using QObject::QObject;

    // Called each time the screen comes on show: when it was opened, and when the one above it closes.
    virtual void viewWillAppear() {}

signals:
    // The user leaves the screen.
    void closed();
};

} // namespace kavor

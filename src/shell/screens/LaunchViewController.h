#pragma once

#include "shell/services/AppDelegate.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace kavor {

// The screen of the automatic login, which can be left.
class LaunchViewController : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")

public:
    // The application outlives the screen.
    explicit LaunchViewController(AppDelegate& application, QObject* parent = nullptr)
        : QObject(parent)
        , application_(application) {}

    Q_INVOKABLE void cancelAction() { application_.leaveAutomaticLogin(); }

private:
    AppDelegate& application_;
};

} // namespace kavor

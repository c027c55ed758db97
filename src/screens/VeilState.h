#pragma once

#include "base/NotificationCenter.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace kavor {

// The veil of a screen, as ScreenVeil.qml shows it: the screen sets it, or lets it follow what runs post
// (VeiledRun, showVeil).
class VeilState : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the screen")
    Q_PROPERTY(bool visible READ isVisible NOTIFY changed)
    // Whether the user may leave what the veil waits for.
    Q_PROPERTY(bool leavable READ isLeavable NOTIFY changed)
    // What the veil waits for; may be empty. A veil that goes keeps its words until it is gone.
    Q_PROPERTY(QString text READ text NOTIFY textChanged)
    // How far it is, from 0 to 1; below 0 it is unknown.
    Q_PROPERTY(double progress READ progress NOTIFY progressChanged)

public:
    using QObject::QObject;

    // From now on the veil stands as runs say, and leaving it leaves them. For a screen while it is the one
    // on show.
    void follow();
    void unfollow();

    void setVisible(bool visible, bool leavable);
    void setText(const QString& text);
    void setProgress(double progress);
    // The user waits no longer for what the veil stands for; only where that is possible.
    Q_INVOKABLE void leave();

    [[nodiscard]] bool isVisible() const { return visible_; }
    [[nodiscard]] bool isLeavable() const { return leavable_; }
    [[nodiscard]] QString text() const { return text_; }
    [[nodiscard]] double progress() const { return progress_; }

signals:
    void changed();
    void textChanged();
    void progressChanged();
    // The user has left; hiding a veil that the screen set is up to the screen.
    void left();

private:
    NotificationCenter::Subscription posted_;
    bool following_ = false;
    bool visible_ = false;
    bool leavable_ = false;
    QString text_;
    double progress_ = -1;
};

} // namespace kavor

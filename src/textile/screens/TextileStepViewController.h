#pragma once

#include <QObject>
#include <QQmlEngine>
#include <QUrl>

namespace kavor {

// One of the three steps of the section. A step is made anew each time it is shown; its view binds to it as
// "controller".
class TextileStepViewController : public QObject {
    Q_OBJECT
    QML_ANONYMOUS
    // The QML view of the step.
    Q_PROPERTY(QUrl view READ view CONSTANT)
public:
    using QObject::QObject;
    [[nodiscard]] virtual QUrl view() const = 0;

signals:
    // Asks the frame for another step, by its place in the menu.
    void stepRequested(int button);
    void previewRequested(const QUrl& document);
};

} // namespace kavor

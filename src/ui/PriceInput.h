#pragma once

#include <QObject>
#include <QQmlEngine>
#include <QString>

namespace kavor {

// What price fields ask while a user types.
class PriceInput : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    using QObject::QObject;

    // What the field holds after a change of `before` into `text`, with the cursor behind what was typed. A
    // signed one may begin with a minus.
    [[nodiscard]] Q_INVOKABLE QString typed(const QString& before, const QString& text, int cursor,
                                            bool isSigned = false) const;
};

} // namespace kavor

#pragma once

#include <QObject>
#include <QQmlEngine>
#include <QString>

namespace kavor {

// What text fields ask while a user types against a limit. A character is what the user sees as one: a flag
// or a letter with its accents counts once.
class TextLimit : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    using QObject::QObject;

    [[nodiscard]] Q_INVOKABLE int length(const QString& text) const;
    // What the field holds after a change of `before` into `text`, with the cursor behind what was typed:
    // what was typed beyond the limit is dropped. A text that was too long already may only become shorter.
    [[nodiscard]] Q_INVOKABLE QString typed(const QString& before, const QString& text, int cursor,
                                            int maximum) const;
};

} // namespace kavor

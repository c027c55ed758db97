#pragma once

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include <optional>
#include <string>

namespace kavor {

// The hours of a party: two buttons, and the sheet in which one of the two is chosen.
class PartyHours : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the form of an activation")
    Q_PROPERTY(QString startTimeButton READ startTimeButton NOTIFY changed) // "-" while none is chosen
    Q_PROPERTY(QString endTimeButton READ endTimeButton NOTIFY changed)
    Q_PROPERTY(bool open READ isOpen NOTIFY changed)
    Q_PROPERTY(QString title READ title NOTIFY changed) // of the sheet: "HORA DE INICIO"
    Q_PROPERTY(int hour READ hour NOTIFY changed)       // picked in the sheet
    Q_PROPERTY(int minute READ minute NOTIFY changed)
    // "3 h 30 min"; empty while one is missing or they stand the wrong way round.
    Q_PROPERTY(QString durationText READ durationText NOTIFY changed)

public:
    using QObject::QObject;

    void fill(const std::optional<std::string>& from, const std::optional<std::string>& to);
    [[nodiscard]] const std::optional<std::string>& from() const { return from_; }
    [[nodiscard]] const std::optional<std::string>& to() const { return to_; }

    Q_INVOKABLE void openStart() { openFor(Which::Start); }
    Q_INVOKABLE void openEnd() { openFor(Which::End); }
    Q_INVOKABLE void pickHour(int hour);
    Q_INVOKABLE void pickMinute(int minute);
    Q_INVOKABLE void select(); // "Seleccionar"
    Q_INVOKABLE void cancel(); // "Cancelar"

    [[nodiscard]] QString startTimeButton() const;
    [[nodiscard]] QString endTimeButton() const;
    [[nodiscard]] bool isOpen() const { return open_ != Which::None; }
    [[nodiscard]] QString title() const;
    [[nodiscard]] int hour() const { return hour_; }
    [[nodiscard]] int minute() const { return minute_; }
    [[nodiscard]] QString durationText() const;

signals:
    void changed();
    // The user chose one of the two.
    void selected();

private:
    enum class Which { None, Start, End };

    void openFor(Which which);

    std::optional<std::string> from_;
    std::optional<std::string> to_;
    Which open_ = Which::None;
    Which shown_ = Which::Start; // a sheet that goes keeps its title
    int hour_ = 0;
    int minute_ = 0;
};

} // namespace kavor

#pragma once

#ifndef Q_MOC_RUN // its parser stops at concepts
#include <compare>
#endif
#include <ctime>
#include <optional>
#include <string>
#include <string_view>

namespace kavor {

// A moment on the wall clock of the device, without a zone.
struct LocalDateTime {
    int year = 1970;
    int month = 1;
    int day = 1;
    int hour = 0;
    int minute = 0;
    int second = 0;

    auto operator<=>(const LocalDateTime&) const = default;

    // Reads "dd-MM-yyyy HH:mm:ss": two digits each, four for the year, a day that the calendar has, nothing
    // else.
    static std::optional<LocalDateTime> parse(std::string_view text);
    static LocalDateTime fromTime(std::time_t time);
    static LocalDateTime now();

    [[nodiscard]] std::time_t toTime() const;
    // "dd-MM-yyyy HH:mm:ss", the form of every date in documents.
    [[nodiscard]] std::string text() const;
    // "yyyy-MM-dd-HH-mm-ss", the form in file names.
    [[nodiscard]] std::string fileNameText() const;
};

} // namespace kavor

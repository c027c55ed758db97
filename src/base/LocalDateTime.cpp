#include "base/LocalDateTime.h"

#include <chrono>
#include <cstdio>

namespace kavor {

std::optional<LocalDateTime> LocalDateTime::parse(std::string_view text) {
    constexpr std::string_view form = "00-00-0000 00:00:00";
    if (text.size() != form.size())
        return std::nullopt;
    for (std::size_t i = 0; i < form.size(); ++i) {
        const bool digit = text[i] >= '0' && text[i] <= '9';
        if (form[i] == '0' ? !digit : text[i] != form[i])
            return std::nullopt;
    }
    const auto number = [text](std::size_t from, std::size_t count) {
        int value = 0;
        for (std::size_t i = from; i < from + count; ++i)
            value = value * 10 + (text[i] - '0');
        return value;
    };
    const LocalDateTime result{number(6, 4),  number(3, 2),  number(0, 2),
                               number(11, 2), number(14, 2), number(17, 2)};
    const std::chrono::year_month_day date(std::chrono::year(result.year),
                                           std::chrono::month(unsigned(result.month)),
                                           std::chrono::day(unsigned(result.day)));
    const bool real =
        result.year >= 1 && date.ok() && result.hour < 24 && result.minute < 60 && result.second < 60;
    return real ? std::optional(result) : std::nullopt;
}

LocalDateTime LocalDateTime::fromTime(std::time_t time) {
    std::tm parts{};
    localtime_r(&time, &parts);
    return {parts.tm_year + 1900, parts.tm_mon + 1, parts.tm_mday, parts.tm_hour, parts.tm_min, parts.tm_sec};
}

LocalDateTime LocalDateTime::now() {
    return fromTime(std::time(nullptr));
}

std::time_t LocalDateTime::toTime() const {
    std::tm parts{};
    parts.tm_year = year - 1900;
    parts.tm_mon = month - 1;
    parts.tm_mday = day;
    parts.tm_hour = hour;
    parts.tm_min = minute;
    parts.tm_sec = second;
    parts.tm_isdst = -1;
    return std::mktime(&parts);
}

std::string LocalDateTime::text() const {
    char buffer[80];
    std::snprintf(buffer, sizeof buffer, "%02d-%02d-%04d %02d:%02d:%02d", day, month, year, hour, minute,
                  second);
    return buffer;
}

std::string LocalDateTime::fileNameText() const {
    char buffer[80];
    std::snprintf(buffer, sizeof buffer, "%04d-%02d-%02d-%02d-%02d-%02d", year, month, day, hour, minute,
                  second);
    return buffer;
}

} // namespace kavor

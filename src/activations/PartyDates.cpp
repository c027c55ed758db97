#include "activations/PartyDates.h"

#include "base/AppFormatter.h"

#include <algorithm>
#include <chrono>

namespace kavor {

namespace {

Int dayNumber(const LocalDateTime& moment) {
    const std::chrono::year_month_day date{std::chrono::year(moment.year),
                                           std::chrono::month(unsigned(moment.month)),
                                           std::chrono::day(unsigned(moment.day))};
    return std::chrono::sys_days(date).time_since_epoch().count();
}

} // namespace

std::optional<LocalDateTime> partyDay(std::string_view text) {
    return LocalDateTime::parse(std::string(text) + " 00:00:00");
}

std::string partyDayText(const LocalDateTime& day) {
    constexpr std::size_t dateLength = 10;
    return day.text().substr(0, dateLength);
}

std::optional<std::string> dayRefusal(const LocalDateTime& day, const LocalDateTime& now, Int previousDays) {
    const Int ahead = dayNumber(day) - dayNumber(now);
    if (ahead <= 0) // today too, whatever the hour
        return "No es posible seleccionar una fecha anterior a la actual";
    if (ahead < previousDays)
        return "Los días previos para solicitar una fiesta son " +
               AppFormatter::shared().integerFormatter(previousDays);
    return std::nullopt;
}

Int daysToFirstDay(Int previousDays) {
    return std::max<Int>(previousDays, 1);
}

bool endsBeforeItStarts(const std::optional<std::string>& from, const std::optional<std::string>& to) {
    return from && to && *from >= *to;
}

} // namespace kavor

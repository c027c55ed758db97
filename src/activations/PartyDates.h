#pragma once

#include "base/Int.h"
#include "base/LocalDateTime.h"

#include <optional>
#include <string>
#include <string_view>

namespace kavor {

// The day of a text "dd-MM-yyyy", none for any other text; and the text of a day.
std::optional<LocalDateTime> partyDay(std::string_view text);
std::string partyDayText(const LocalDateTime& day);

// Why a party can't be on a day, with so many days of notice; nothing when it can. Only the days of the two
// moments count: today is too early, today and the notice is not.
std::optional<std::string> dayRefusal(const LocalDateTime& day, const LocalDateTime& now, Int previousDays);

// How many days from today the first possible one is.
Int daysToFirstDay(Int previousDays);

// Whether two hours "HH:mm" are both chosen and the end is not behind the start.
bool endsBeforeItStarts(const std::optional<std::string>& from, const std::optional<std::string>& to);

} // namespace kavor

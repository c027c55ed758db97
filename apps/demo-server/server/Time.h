#pragma once

#include <cstdint>
#include <string>

namespace kavor::demo {

/// Seconds since 1970.
std::int64_t now();
/// "dd-MM-yyyy HH:mm:ss" in local time.
std::string wireDate(std::int64_t seconds);
int yearOf(std::int64_t seconds);
/// Midnight, in local time, of the day in which a moment lies.
std::int64_t startOfDay(std::int64_t seconds);

/// Random hexadecimal digits that nobody can guess.
std::string randomHex(int digits);

} // namespace kavor::demo

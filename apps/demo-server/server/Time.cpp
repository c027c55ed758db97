#include "server/Time.h"

#include <array>
#include <chrono>
#include <ctime>
#include <random>

namespace kavor::demo {

std::int64_t now() {
    using namespace std::chrono;
    return duration_cast<seconds>(system_clock::now().time_since_epoch()).count();
}

std::string wireDate(std::int64_t seconds) {
    const std::time_t time = std::time_t(seconds);
    std::tm local{};
    localtime_r(&time, &local);
    std::array<char, 32> text{};
    std::strftime(text.data(), text.size(), "%d-%m-%Y %H:%M:%S", &local);
    return text.data();
}

int yearOf(std::int64_t seconds) {
    const std::time_t time = std::time_t(seconds);
    std::tm local{};
    localtime_r(&time, &local);
    return local.tm_year + 1900;
}

std::int64_t startOfDay(std::int64_t seconds) {
    const std::time_t time = std::time_t(seconds);
    std::tm local{};
    localtime_r(&time, &local);
    local.tm_hour = local.tm_min = local.tm_sec = 0;
    local.tm_isdst = -1;
    return std::mktime(&local);
}

std::string randomHex(int digits) {
    static constexpr std::string_view alphabet = "0123456789abcdef";
    std::random_device device;
    std::string text;
    unsigned bits = 0; // 32 of them at a time: asking for more is slow
    for (int i = 0; i < digits; ++i) {
        bits = i % 8 == 0 ? device() : bits >> 4u;
        text += alphabet[bits & 15u];
    }
    return text;
}

} // namespace kavor::demo

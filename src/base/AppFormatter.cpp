#include "base/AppFormatter.h"

#include "base/StopProcess.h"

#include <unicode/numberformatter.h>
#include <unicode/unistr.h>

#include <algorithm>
#include <charconv>
#include <cmath>

namespace kavor {

namespace {

using icu::number::LocalizedNumberFormatter;
using icu::number::NumberFormatter;
using icu::number::Precision;

const icu::Locale& spanish() {
    static const icu::Locale locale("es", "ES");
    return locale;
}

template <class Value>
std::string formatted(const LocalizedNumberFormatter& formatter, Value value) {
    UErrorCode status = U_ZERO_ERROR;
    std::string result;
    if constexpr (std::is_same_v<Value, double>)
        formatter
            .formatDouble(std::isnan(value) ? std::abs(value) : value, status) // no number, no sign
            .toString(status)
            .toUTF8String(result);
    else if constexpr (std::is_same_v<Value, std::int64_t>)
        formatter.formatInt(value, status).toString(status).toUTF8String(result);
    else
        formatter.formatDecimal(std::to_string(value), status).toString(status).toUTF8String(result);
    if (U_FAILURE(status))
        stopProcess("number forms of the text library");
    return result;
}

std::string_view trimmed(std::string_view text) {
    constexpr std::string_view blanks[] = {" ", "\t", "\u00a0", "\u202f"};
    bool again = true;
    while (again) {
        again = false;
        for (const std::string_view blank : blanks) {
            if (text.starts_with(blank)) {
                text.remove_prefix(blank.size());
                again = true;
            }
            if (text.ends_with(blank)) {
                text.remove_suffix(blank.size());
                again = true;
            }
        }
    }
    return text;
}

} // namespace

const AppFormatter& AppFormatter::shared() {
    static const AppFormatter instance;
    return instance;
}

std::string AppFormatter::numberFormatter(double value) const {
    static const auto formatter = NumberFormatter::withLocale(spanish())
                                      .precision(Precision::maxFraction(3))
                                      .grouping(UNUM_GROUPING_OFF);
    return formatted(formatter, value);
}

std::string AppFormatter::integerFormatter(std::int64_t value) const {
    static const auto formatter = NumberFormatter::withLocale(spanish()).precision(Precision::integer());
    return formatted(formatter, value);
}

std::string AppFormatter::unsignedIntegerFormatter(std::uint64_t value) const {
    static const auto formatter = NumberFormatter::withLocale(spanish()).precision(Precision::integer());
    return formatted(formatter, value);
}

std::string AppFormatter::currencyFormatter(double value) const {
    static const auto formatter = [] {
        UErrorCode status = U_ZERO_ERROR;
        const icu::CurrencyUnit euro(u"EUR", status);
        if (U_FAILURE(status))
            stopProcess("the euro of the text library");
        return NumberFormatter::withLocale(spanish()).unit(euro);
    }();
    return formatted(formatter, value);
}

std::string AppFormatter::negativeFormatter(double value) const {
    static const auto formatter =
        NumberFormatter::withLocale(spanish()).precision(Precision::fixedFraction(2));
    return formatted(formatter, value);
}

std::string AppFormatter::machineNumberFormatter(double value) const {
    char buffer[400];
    const double size = std::fabs(value);
    // Most numbers are prices: a decimal of at most fifteen digits that reads as the value is its shortest
    // form.
    const double hundredths = std::round(size * 100);
    if (hundredths < 1e15 && hundredths / 100 == size && !(size == 0 && std::signbit(value))) {
        const auto whole = static_cast<std::uint64_t>(hundredths);
        char* at = buffer;
        if (value < 0)
            *at++ = '-';
        at = std::to_chars(at, buffer + sizeof buffer, whole / 100).ptr;
        *at++ = '.';
        *at++ = static_cast<char>('0' + whole / 10 % 10);
        if (whole % 10 != 0)
            *at++ = static_cast<char>('0' + whole % 10);
        return {buffer, at};
    }
    const bool plain = size == 0 || (size >= 1e-5 && size < 1e16);
    const auto end = plain
                         ? std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::fixed).ptr
                         : std::to_chars(buffer, buffer + sizeof buffer, value).ptr;
    std::string result(buffer, end);
    if (result.find_first_not_of("-0123456789") == std::string::npos)
        result += ".0";
    return result;
}

std::string AppFormatter::genericDateFormatter(const LocalDateTime& date) const {
    return date.text();
}

std::optional<double> AppFormatter::parseNumber(std::string_view text) const {
    text = trimmed(text);
    const auto decimal = text.find_last_of(",.");
    const bool mixed = text.find(',') != std::string_view::npos && text.find('.') != std::string_view::npos;
    if (decimal != std::string_view::npos) {
        const char sign = text[decimal];
        // "1.234.567" groups; "1,5,2" is nothing.
        const bool repeated = std::count(text.begin(), text.end(), sign) > 1;
        if (repeated && (mixed || sign == ','))
            return std::nullopt;
        if (repeated) {
            std::string digits(text);
            std::erase(digits, '.');
            return parseNumber(digits);
        }
    }
    std::string machine;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (i == decimal)
            machine += '.';
        else if (text[i] >= '0' && text[i] <= '9')
            machine += text[i];
        else if ((text[i] == '-' || text[i] == '+') && i == 0)
            machine += text[i] == '-' ? "-" : "";
        else if (!(mixed && (text[i] == '.' || text[i] == ',')))
            return std::nullopt;
    }
    if (machine.find_first_of("0123456789") == std::string::npos)
        return std::nullopt;
    double value = 0;
    const auto [end, error] = std::from_chars(machine.data(), machine.data() + machine.size(), value);
    if (error != std::errc() || end != machine.data() + machine.size() || !std::isfinite(value))
        return std::nullopt;
    return value;
}

std::string AppFormatter::typedPrice(std::string_view before, std::string_view text, std::size_t at) const {
    constexpr std::size_t decimals = 2;
    const auto isSign = [](char c) { return c == ',' || c == '.'; };
    const bool typed = text.size() == before.size() + 1 && at > 0 && at <= text.size();
    if (typed && isSign(text[at - 1]) && before.find(',') != std::string_view::npos)
        return std::string(before);
    const auto lastSign = text.find_last_of(",.");
    std::string price;
    for (const char c : text.substr(0, lastSign)) {
        if (c >= '0' && c <= '9')
            price += c;
    }
    if (lastSign == std::string_view::npos)
        return price;
    price += ',';
    const std::size_t whole = price.size();
    for (const char c : text.substr(lastSign + 1)) {
        if (c >= '0' && c <= '9' && price.size() < whole + decimals)
            price += c;
    }
    return price;
}

std::optional<double> AppFormatter::parseCurrency(std::string_view text) const {
    text = trimmed(text);
    constexpr std::string_view euro = "€";
    if (text.ends_with(euro))
        text.remove_suffix(euro.size());
    return parseNumber(text);
}

} // namespace kavor

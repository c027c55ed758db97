#pragma once

#include "base/LocalDateTime.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace kavor {

// The one place where numbers, money and dates take the form that a Spanish reader knows (locale es_ES).
// All texts are UTF-8. Safe from any thread.
class AppFormatter {
public:
    static const AppFormatter& shared();

    // "1234,5": up to three decimals, no grouping; the form in which a number is edited.
    [[nodiscard]] std::string numberFormatter(double value) const;
    // "12.345": a whole number with grouping.
    [[nodiscard]] std::string integerFormatter(std::int64_t value) const;
    [[nodiscard]] std::string unsignedIntegerFormatter(std::uint64_t value) const;
    // "3,50 €": the form in which a price is shown.
    [[nodiscard]] std::string currencyFormatter(double value) const;
    // "-3,50": a number that always has two decimals and may be negative.
    [[nodiscard]] std::string negativeFormatter(double value) const;
    // "4.5", "12.0": the shortest text with a point that reads back the same, with at least one decimal.
    [[nodiscard]] std::string machineNumberFormatter(double value) const;
    // "dd-MM-yyyy HH:mm:ss".
    [[nodiscard]] std::string genericDateFormatter(const LocalDateTime& date) const;

    // Reads what a user typed as a number; the comma and the point are both decimal signs. With both in one
    // text the last of them is the decimal sign and the others group. Nothing for any other text.
    [[nodiscard]] std::optional<double> parseNumber(std::string_view text) const;
    // The same for a text that may end in the currency sign.
    [[nodiscard]] std::optional<double> parseCurrency(std::string_view text) const;

    // What a price field holds after a key or a paste: digits with one decimal comma at most and two decimals
    // behind it. Comma and point both write the comma; of several in a pasted text the last is the decimal
    // sign and the others group. A second decimal sign typed behind `at` bytes of a text that has one is
    // refused, and `before` stays.
    [[nodiscard]] std::string typedPrice(std::string_view before, std::string_view text,
                                         std::size_t at) const;

private:
    AppFormatter() = default;
};

} // namespace kavor

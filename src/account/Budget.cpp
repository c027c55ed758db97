#include "account/Budget.h"

#include <cctype>
#include <charconv>

namespace kavor {

namespace {

constexpr std::string_view euro = "\xe2\x82\xac";

std::string_view withoutEnds(std::string_view text) {
    const auto isBlank = [](char c) { return std::isspace(static_cast<unsigned char>(c)) != 0; };
    while (!text.empty() && isBlank(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && isBlank(text.back()))
        text.remove_suffix(1);
    return text;
}

// Groups of three behind the first one, where there are any: "1.000", not "1.00".
bool isGrouped(std::string_view whole) {
    const auto first = whole.find('.');
    if (first == std::string_view::npos)
        return true;
    if (first == 0 || first > 3 || (whole.size() - first) % 4 != 0)
        return false;
    for (std::size_t i = first; i < whole.size(); ++i) {
        if ((whole[i] == '.') != ((i - first) % 4 == 0))
            return false;
    }
    return true;
}

} // namespace

std::optional<double> amountOf(std::string_view text) {
    text = withoutEnds(text);
    if (text.ends_with(euro))
        text = withoutEnds(text.substr(0, text.size() - euro.size()));
    const bool negative = text.starts_with('-');
    if (negative)
        text.remove_prefix(1);
    const auto comma = text.find(',');
    const std::string_view whole = text.substr(0, comma);
    if (!isGrouped(whole))
        return std::nullopt;
    std::string plain;
    for (const char c : whole) {
        if (c != '.')
            plain += c;
    }
    if (plain.empty())
        return std::nullopt;
    if (comma != std::string_view::npos) {
        if (comma + 1 == text.size())
            return std::nullopt;
        (plain += '.') += text.substr(comma + 1);
    }
    if (plain.find_first_not_of("0123456789.") != std::string::npos)
        return std::nullopt;
    double amount = 0;
    const auto [end, error] = std::from_chars(plain.data(), plain.data() + plain.size(), amount);
    if (error != std::errc() || end != plain.data() + plain.size())
        return std::nullopt;
    return negative ? -amount : amount;
}

std::optional<double> shareLeft(std::string_view initial, std::string_view available) {
    const auto whole = amountOf(initial);
    const auto left = amountOf(available);
    if (!whole || !left || *left < 0 || *left > *whole)
        return std::nullopt;
    return *whole == 0 ? 0 : *left / *whole;
}

} // namespace kavor

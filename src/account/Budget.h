#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace kavor {

// An amount as the server words it ("2.400,00 €"), in euros; nothing when the text is no amount.
std::optional<double> amountOf(std::string_view text);

// How much of a budget is left, from 0 to 1; nothing when the two texts are no amounts, or when what is left
// is less than nothing or more than there was.
std::optional<double> shareLeft(std::string_view initial, std::string_view available);

} // namespace kavor

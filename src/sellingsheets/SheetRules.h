#pragma once

#include "base/LocalDateTime.h"
#include "catalogue/Catalogue.h"
#include "sellingsheets/SellingSheetOrder.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kavor {

// What a sheet lacks, as one text with a line feed behind each message; empty for a valid one. The process
// stops without the catalogue's part for selling sheets.
std::string validationText(const SellingSheetOrder& order, const Catalogue& catalogue);

// An empty sheet, in the catalogue's first style.
SellingSheetOrder newSheet(const SellingSheet& catalogue);
// Another sheet with the same contents: a draft of its own, which the server does not know.
SellingSheetOrder copyOf(const SellingSheetOrder& sheet);
// The plain name of a new draft's file: the moment, and "(1)" or higher where that name is taken.
std::string draftName(const LocalDateTime& now, const std::function<bool(const std::string&)>& isTaken);

// The styles as they are offered, by position.
std::vector<SellingSheet::Style> stylesInOrder(const SellingSheet& catalogue);

// Whether a sheet holds on a day "yyyy-MM-dd"; nothing for one that does not say until when.
std::optional<bool> isInForce(const SellingSheetOrder& sheet, std::string_view today);

} // namespace kavor

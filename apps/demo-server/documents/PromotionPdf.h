#pragma once

#include "Json.h"
#include "catalogue/Catalogue.h"
#include "drawing/PosterArt.h"

#include <QByteArray>

#include <optional>
#include <string>

namespace kavor::demo {

/// A promotion's printed work: one page for each format, in its proportions and language, and a last one with
/// everything that was ordered.
QByteArray promotionPdf(const Json& order, const Catalogue& catalogue);

/// What a bar gave for the attributes of a promotion, as its poster shows it.
PosterWords posterWords(const Poster& poster, const Json& attributes, int language);

/// The picture of a text "data:image/...;base64,..."; null when it is none.
QImage pictureOf(const std::string& dataText);

/// A price as a user types it, with comma or point; none when it is no number.
std::optional<double> typedPrice(const std::string& typed);

} // namespace kavor::demo

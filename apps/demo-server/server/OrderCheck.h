#pragma once

#include "Json.h"
#include "catalogue/Catalogue.h"
#include "catalogue/Posters.h"

#include <map>
#include <string>
#include <vector>

namespace kavor::demo {

/// What is wrong with a document, by the member that it is about; empty when nothing is.
using Faults = std::map<std::string, std::vector<std::string>>;

/// The form of each order document: every member of the right type, those that are always written present, no
/// null and no member that the server does not know.
Faults brochureFormFaults(const Json& order, bool raw);
Faults textileFormFaults(const Json& order);
Faults promotionFormFaults(const Json& order);
Faults sellingSheetFormFaults(const Json& order);
Faults activationFormFaults(const Json& order);

/// What keeps a well-formed menu from being printed: no name of the bar, no brand, references that left the
/// catalogue, QR material that its kind does not have.
Faults brochureContentFaults(const Json& order, const Catalogue& catalogue);

/// What keeps a well-formed order of clothing from being printed: articles that left the catalogue, units
/// below 1, fewer units than the least, no text or one that is too long, no typography of the catalogue.
Faults textileContentFaults(const Json& order, const Catalogue& catalogue);

/// What keeps a well-formed promotion order from being printed: a promotion that left the catalogue, formats,
/// languages, attributes or choices that are not its own, a price that is no number, an impossible date, an
/// address that is none.
Faults promotionContentFaults(const Json& order);
/// The same for what is given for a promotion's attributes, in a promotion order or in a menu; `path` is
/// where they stand.
void checkAttributes(const Json& attributes, const Poster& poster, const std::string& path, Faults& faults);

/// What keeps a well-formed selling sheet from being printed: a style or products that left the catalogue or
/// are not on offer, boxes or prices of 0, texts that are too long, impossible dates, addresses that are
/// none.
Faults sellingSheetContentFaults(const Json& order, const Catalogue& catalogue);

/// Whether a text can be an address of mail.
bool isEmail(const std::string& text);

/// QR material as it is asked for: of one brand, stickers (type 1) or wooden blocks (type 2).
struct QrMaterial {
    std::int64_t brand = 0, type = 1;
    std::int64_t tables = 0, doors = 0, blocks = 0;
};
/// What is wrong with it for an order of a kind, by the members in which it travels.
Faults qrFaults(const QrMaterial& material, int kind, const Catalogue& catalogue);

} // namespace kavor::demo

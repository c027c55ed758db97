#pragma once

#include "catalogue/Brochures.h"
#include "interaction/QtText.h"

#include <QString>
#include <QUrl>

#include <memory>
#include <string_view>
#include <vector>

// What the steps that choose style, brands and prices share.
namespace kavor {

class BrochureIntermediateData;
class Catalogue;

// The address of a view of the screens' module by its file name.
QUrl stepView(const QString& fileName);

// The kind of brochure of the section entered; nullptr outside a brochure section.
const Brochures::Type* sectionBrochureType(const Catalogue& catalogue);
// Its switches and limits; nullptr outside a brochure section. The process stops for a kind without any.
const Brochures::Type::Parameters* sectionParameters(const Catalogue& catalogue);

// Writes the temporary copy of a draft, without waiting for the disk. Does nothing for a draft that is no
// longer the shared one, and outside a brochure section. A draft that was sent has no copy: whoever frames
// the steps is told instead, by sentDraftSaved.
void autosave(const std::shared_ptr<BrochureIntermediateData>& draft);

inline constexpr std::string_view sentDraftSaved = "SentDraftSaved";
// Each autosave is told, so that what depends on the draft as a whole is worked out anew.
inline constexpr std::string_view draftSaved = "DraftSaved";

// Says that a quantity of the draft is none of those that its picker offers, which are not empty.
QString notOffered(Int quantity, const std::vector<Int>& offered);

} // namespace kavor

#pragma once

#include "textile/TextileIntermediateData.h"

namespace kavor {

// A textile draft as its state file holds it: whole, with what is only being typed, and without a look into
// the catalogue, which may be another one when it comes back.
struct TextileDraftRecord {
    struct Line {
        Int brandId = 0;
        Int formatId = 0;
        Int genderId = 0;
        Int colorId = 0;
        std::vector<TextileIntermediateData::SizeQuantity> sizes;
    };

    std::optional<ApplicationType> section;
    std::optional<Int> selectedBrand;
    std::optional<Int> selectedFormat;
    std::optional<Int> selectedGender;
    std::optional<Int> selectedColor;
    std::vector<TextileIntermediateData::SizeQuantity> selectedSizes;
    std::vector<Line> lines;
    std::vector<Line> colors; // the last colour of each brand, format and model
    std::optional<std::string> orderComment;
    std::optional<Int> typographyId;
    std::optional<std::string> customizedText;
    std::optional<SaveTextileOrder::Customer> customer;
    std::optional<std::string> filename;
    std::optional<Int> orderIdentifier;
    std::optional<std::string> outboxFile;
    UnansweredSends unansweredSends;
};

TextileDraftRecord recordOf(const TextileIntermediateData& draft);
// The draft of a record.
TextileIntermediateData draftOf(const TextileDraftRecord& record);

} // namespace kavor

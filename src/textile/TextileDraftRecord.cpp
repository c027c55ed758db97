#include "textile/TextileDraftRecord.h"

#include "textile/TextileTables.h"

#include <algorithm>

namespace kavor::json {

template <>
struct Table<TextileIntermediateData::SizeQuantity> {
    using R = TextileIntermediateData::SizeQuantity;
    static constexpr auto fields =
        std::tuple{required("size_id", &R::sizeIdentifier), required("quantity", &R::quantity)};
};

template <>
struct Table<TextileDraftRecord::Line> {
    using R = TextileDraftRecord::Line;
    static constexpr auto fields = std::tuple{
        required("brand_id", &R::brandId), required("type_id", &R::formatId),
        required("model_id", &R::genderId), required("color_id", &R::colorId), required("sizes", &R::sizes)};
};

template <>
struct Table<TextileDraftRecord> {
    using R = TextileDraftRecord;
    static constexpr auto fields = std::tuple{optional("application_type_id", &R::section),
                                              optional("selected_brand", &R::selectedBrand),
                                              optional("selected_type", &R::selectedFormat),
                                              optional("selected_model", &R::selectedGender),
                                              optional("selected_color", &R::selectedColor),
                                              required("selected_sizes", &R::selectedSizes),
                                              required("lines", &R::lines),
                                              required("colors", &R::colors),
                                              optional("orderComment", &R::orderComment),
                                              optional("typography_id", &R::typographyId),
                                              optional("message", &R::customizedText),
                                              optional("customer", &R::customer),
                                              optional("name_archive_tablet", &R::filename),
                                              optional("id", &R::orderIdentifier),
                                              optional("outbox_file", &R::outboxFile),
                                              required("unanswered_sends", &R::unansweredSends)};
};

} // namespace kavor::json

KAVOR_JSON_DOCUMENT(kavor::TextileDraftRecord)

namespace kavor {

TextileDraftRecord recordOf(const TextileIntermediateData& draft) {
    TextileDraftRecord record;
    record.section = draft.section;
    record.selectedBrand = draft.selectedBrandIdentifier;
    if (const auto& format = draft.selectedFormatAndGenderIdentifier) {
        record.selectedFormat = format->formatIdentifier;
        record.selectedGender = format->genderIdentifier;
    }
    record.selectedColor = draft.selectedColorIdentifier;
    for (const auto& [size, quantity] : draft.selectedSizes)
        record.selectedSizes.push_back({size, quantity});
    for (const auto& [item, sizes] : draft.order)
        record.lines.push_back({item.brandIdentifier, item.formatIdentifier, item.genderIdentifier,
                                item.colorIdentifier, sizes});
    for (const auto& [key, color] : draft.selectedColors)
        record.colors.push_back({key.a, key.b, key.c, color, {}});
    std::ranges::sort(record.colors, {}, [](const TextileDraftRecord::Line& line) {
        return TripleTuple{line.brandId, line.formatId, line.genderId};
    });
    record.orderComment = draft.orderComment;
    record.typographyId = draft.typographyIdentifier;
    record.customizedText = draft.customizedText;
    record.customer = draft.customer;
    record.filename = draft.filename;
    record.orderIdentifier = draft.orderIdentifier;
    record.outboxFile = draft.outboxFile;
    record.unansweredSends = draft.unansweredSends;
    return record;
}

TextileIntermediateData draftOf(const TextileDraftRecord& record) {
    TextileIntermediateData draft;
    draft.section = record.section;
    draft.selectedBrandIdentifier = record.selectedBrand;
    if (record.selectedFormat && record.selectedGender)
        draft.selectedFormatAndGenderIdentifier = {*record.selectedFormat, *record.selectedGender};
    draft.selectedColorIdentifier = record.selectedColor;
    for (const auto& [size, quantity] : record.selectedSizes)
        draft.selectedSizes[size] = quantity;
    for (const auto& line : record.lines)
        draft.order.push_back({{line.brandId, line.formatId, line.genderId, line.colorId}, line.sizes});
    for (const auto& color : record.colors)
        draft.selectedColors[{color.brandId, color.formatId, color.genderId}] = color.colorId;
    draft.orderComment = record.orderComment;
    draft.typographyIdentifier = record.typographyId;
    draft.customizedText = record.customizedText;
    draft.customer = record.customer;
    draft.filename = record.filename;
    draft.orderIdentifier = record.orderIdentifier;
    draft.outboxFile = record.outboxFile;
    draft.unansweredSends = record.unansweredSends;
    return draft;
}

} // namespace kavor

#pragma once

#include "catalogue/Posters.h"

#include <optional>
#include <span>
#include <string_view>

namespace kavor {

// A promotion in one of its languages, as the gallery shows it. Whatever it names belongs to the catalogue
// and lives as long as that. The labels are spelt so in the model.
struct PromotionTuple {
    Int identifier = 0;
    std::optional<Int> classificationIdentifier;
    const HashedResource* image = nullptr; // of the language
    Int brandId = 0;
    std::string_view brandName;
    std::string_view promotionName;
    std::string_view typeName;
    std::span<const Posters::Promotion::Language> languajes;
    std::span<const Posters::Promotion::Support> formatos;
    std::span<const Attribute> attributes;
    bool showMenuOnline = false;
    const Posters::Promotion::Language* language = nullptr; // none of a promotion without languages
};

// The promotion in its default language, else in its first one.
PromotionTuple promotionTuple(const Posters::Promotion& promotion);
// In the language of this number where the promotion has it, else as above.
PromotionTuple promotionTuple(const Posters::Promotion& promotion, std::optional<Int> languageId);

} // namespace kavor

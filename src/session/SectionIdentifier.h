#pragma once

#include "catalogue/Enumerations.h"

#include <optional>
#include <string>
#include <variant>

namespace kavor {

// The section that the user entered from the dashboard.
struct SectionIdentifier {
    struct SellingSheet {
        bool operator==(const SellingSheet&) const = default;
    };
    struct Activations {
        bool operator==(const Activations&) const = default;
    };
    struct Rrss {
        bool operator==(const Rrss&) const = default;
    };

    // BrochureType: a brochure; PromotionType: a promotion; ApplicationType: textile.
    std::variant<BrochureType, PromotionType, ApplicationType, SellingSheet, Activations, Rrss> value;

    static SectionIdentifier brochure(BrochureType type) { return {type}; }
    static SectionIdentifier promotion(PromotionType type) { return {type}; }
    static SectionIdentifier textile(ApplicationType type) { return {type}; }

    // The kind of brochure, none for the other sections.
    [[nodiscard]] std::optional<BrochureType> brochureType() const {
        const auto* type = std::get_if<BrochureType>(&value);
        return type ? std::optional(*type) : std::nullopt;
    }

    // "Brochure(beer)", "Textile(textil)", "SellingSheet" ...
    [[nodiscard]] std::string text() const;

    bool operator==(const SectionIdentifier&) const = default;
};

} // namespace kavor

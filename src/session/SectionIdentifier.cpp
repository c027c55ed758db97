#include "session/SectionIdentifier.h"

namespace kavor {

namespace {

std::string text(BrochureType type) {
    return "Brochure(" + std::string(caseName(type)) + ")";
}
std::string text(ApplicationType type) {
    return "Textile(" + std::string(caseName(type)) + ")";
}
std::string text(PromotionType type) {
    return "Promotion(" + std::string(caseName(type)) + ")";
}
std::string text(SectionIdentifier::SellingSheet) {
    return "SellingSheet";
}
std::string text(SectionIdentifier::Activations) {
    return "Activations";
}
std::string text(SectionIdentifier::Rrss) {
    return "rrss";
}

} // namespace

std::string SectionIdentifier::text() const {
    return std::visit([](const auto& kind) { return kavor::text(kind); }, value);
}

} // namespace kavor

#include "brochures/engine/DraftContent.h"

#include "brochures/engine/DraftTest.h"

#include <functional>

namespace kavor {

namespace {

using Draft = BrochureIntermediateData;

class DraftContentTest : public DraftTest {
public:
    // The shared draft as it comes back from its temporary copy.
    static Draft& broughtBack() {
        const auto copy = draft().makeOrder(OrderRequestType::saveCloud, false);
        Draft::replaceTemporalBrochure()->loadOrder(copy);
        return draft();
    }
};

TEST_F(DraftContentTest, WhatTheStepsFillInByThemselvesIsNoWork) {
    auto& lists = catalogue.information.validations;
    lists.lstMenuQrTableQuantity = {10, 20};
    lists.lstMenuQrDoorQuantity = {1};
    catalogue.parameters(BrochureType::beer).rangeOrderQuantity = {25, 50};
    catalogue.brochures().blackboardTypes.front().isDefault = true;
    useCatalogue();
    EXPECT_FALSE(holdsWork(draft()));
    draft().customerInformation = Customer{};
    draft().selectedStyleIdentifier = draft().selectedStyleDigitalIdentifier = 1;
    draft().setLogos(1, 2, 3, 1, 2, 3);
    draft().selectedNumberOfBrochures = Draft::MainAndSecondary{25, 25};
    draft().selectedQuantityQr = 10;
    draft().selectedQuantityQrCircular = 1;
    draft().setBlackboardType(1);
    draft().includeDigitalBrochure = draft().printDigitalBrochure = false; // the kind has none
    draft().netPrices[11][110] = 2;
    EXPECT_FALSE(holdsWork(draft()));
    EXPECT_FALSE(holdsWork(broughtBack()));
}

TEST_F(DraftContentTest, WhateverTheUserEntersIsWork) {
    catalogue.information.validations.lstMenuQrTableQuantity = {10, 20};
    auto& second = catalogue.brochures().styles.emplace_back(catalogue.brochures().styles.front());
    second.id = 500;
    second.position = 7;
    useCatalogue();
    const std::pair<const char*, std::function<void(Draft&)>> entries[] = {
        {"name", [](Draft& d) { d.customerInformation.emplace().name = "Bar"; }},
        {"telephone", [](Draft& d) { d.customerInformation.emplace().telephone = "600"; }},
        {"free text", [](Draft& d) { d.customerInformation.emplace().freeText3 = "menú"; }},
        {"logo", [](Draft& d) { d.customerInformation.emplace().imageLogo = "data:image/png;base64,AA"; }},
        {"language", [](Draft& d) { d.setLanguages(1, std::nullopt); }},
        {"another style", [](Draft& d) { d.selectedStyleIdentifier = 500; }},
        {"other logos",
         [](Draft& d) {
             d.selectedStyleIdentifier = 1;
             d.setLogos(1, 4, 3, 1, 2, 3);
         }},
        {"vinyls", [](Draft& d) { d.selectedQuantityQr = 20; }},
        {"a switch", [](Draft& d) { d.includePaperBrochure = d.includePaperBrochureTmp = false; }},
        {"no prices", [](Draft& d) { d.withoutPriceBeer = true; }},
        {"format", [](Draft& d) { d.setFormatSelected(true, 110, 11); }},
        {"menu format", [](Draft& d) { d.selectedFormatVisualizeId = 2; }},
        {"number", [](Draft& d) { d.orderIdentifier = 4; }},
    };
    draft().setSecondPrice(PriceType::terrace);
    EXPECT_TRUE(holdsWork(draft()));
    for (const auto& [what, enter] : entries) {
        enter(*Draft::replaceTemporalBrochure());
        EXPECT_TRUE(holdsWork(draft())) << what;
        EXPECT_TRUE(holdsWork(broughtBack())) << what;
    }
}

} // namespace
} // namespace kavor

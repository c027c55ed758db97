#pragma once

#include "base/json/Json.h"
#include "brochures/engine/BrochureIntermediateData.h"
#include "brochures/engine/TemporalBrochure.h"
#include "session/AppSingleton.h"
#include "support/CatalogueBuilder.h"
#include "support/JsonData.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace kavor {

// A session with a catalogue, the section of beer menus and an empty documents folder; the shared draft is
// new.
class DraftTest : public testing::Test {
public:
    using Draft = BrochureIntermediateData;

    DraftTest() {
        GTEST_FLAG_SET(death_test_style, "threadsafe"); // the background writer has a thread
        session().setFolders(folder.path(), folder.path());
        session().loginResult.reset();
        enter(BrochureType::beer);
        useCatalogue();
        Draft::replaceTemporalBrochure();
    }
    ~DraftTest() override {
        TemporalBrochure::shared().flush();
        session().setFolders({}, {});
    }

    static AppSingleton& session() { return AppSingleton::shared(); }
    static Draft& draft() { return *Draft::temporalBrochure(); }
    void useCatalogue() { session().applicationInformation = catalogue.take(); }
    static void enter(BrochureType kind) { session().actualSection = SectionIdentifier::brochure(kind); }

    // Fills the shared draft with an order of the section entered that has no messages.
    void complete() {
        const auto kind = *session().brochureType();
        draft().brochureTypeParameters = catalogue.parameters(kind);
        Customer customer;
        customer.name = "Bar La Esquina";
        customer.email = "bar@esquina.example";
        customer.telephone = "600000000";
        customer.contact = "Ana";
        customer.tevo = "T-1";
        draft().customerInformation = customer;
        draft().setLanguages(1, std::nullopt);
        draft().selectedNumberOfBrochures = Draft::MainAndSecondary{10, std::nullopt};
        draft().selectedStyleIdentifier = CatalogueBuilder::styleOf(kind);
        draft().selectedStyleDigitalIdentifier = 100;
        draft().setLogos(1, 2, 3, 1, 2, 3);
        if (CatalogueBuilder::isWine(kind)) {
            draft().setFormatSelected(true, 120, 12);
        } else {
            draft().setFormatSelected(true, 100, 10);
            draft().setFormatSelected(true, 110, 11);
        }
        draft().setBlackboardFormat(1);
        draft().setBlackboardType(1);
    }

    static std::string documentOf(const SaveBrochuresOrder& order) {
        return JsonData::of(json::encodePretty(order).value()).text(true);
    }

    TemporaryFolder folder;
    CatalogueBuilder catalogue;
};

} // namespace kavor

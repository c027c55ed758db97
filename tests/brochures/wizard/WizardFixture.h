#pragma once

#include "base/NotificationCenter.h"
#include "base/json/Json.h"
#include "brochures/engine/BrochureIntermediateData.h"
#include "brochures/engine/TemporalBrochure.h"
#include "brochures/wizard/WizardStep.h"
#include "device/Background.h"
#include "device/Clock.h"
#include "interaction/AlertPresenter.h"
#include "orders/OrderDiskManager.h"
#include "resources/PlainDownloader.h"
#include "session/AppSingleton.h"
#include "session/StateFile.h"
#include "session/services/SessionStore.h"
#include "shell/WelcomeOptions.h"
#include "support/Alerts.h"
#include "support/DeviceFakes.h"
#include "support/FakeServices.h"
#include "support/TemporaryFolder.h"
#include "support/WaitFor.h"

#include <gtest/gtest.h>

#include <functional>

namespace kavor {

class CountingSync : public OrderSync {
public:
    int planned = 0;
    void startOrderSync() override { ++planned; }
};

// The wizard over a small catalogue, with the server and the device played by the test.
class WizardTest : public ::testing::Test {
protected:
    using Parameters = Brochures::Type::Parameters;
    static constexpr Int knownBrand = 11, knownFormat = 110, ownBrand = -1;

    TemporaryFolder folder;
    AppSingleton& session = openSession(folder);
    SessionStore sessions{session};
    FakeServices network;
    CountingSync sync;
    AlertPresenter alerts;
    RecordingUrlOpener urls;
    ManualClock clock;
    PlainDownloader downloader;
    FakePhotoPicker photos;
    FakeReachability reachability;
    FakeLocationService locationService;
    FakeReverseGeocoder geocoder;
    ReverseLocationManager location{locationService, geocoder};
    OrderDiskManager orders{folder.path()};
    BackgroundWorkEnd backgroundWork; // a step that is gone may still write an order
    WizardServices services{network, orders,     sessions, sync,         alerts,   urls,
                            clock,   downloader, photos,   reachability, &location};

    void SetUp() override {
        session.loginResult = LoginResult{};
        session.resettingBrochure = false;
        session.isSectionDigital = false;
        enter(BrochureType::beer);
        BrochureIntermediateData::replaceTemporalBrochure();
    }
    void TearDown() override {
        TemporalBrochure::shared().flush();
        session.actualSection.reset();
    }

    // Enters the section of a kind whose switches are all off but for what the change sets.
    void enter(BrochureType type, const std::function<void(Brochures::Type&)>& change = {},
               const std::function<void(ApplicationInformation&)>& changeCatalogue = {}) {
        ApplicationInformation information;
        information.validations.customerFreeText = 10;
        information.validations.withPrintedMyself = true;
        information.validations.printedMyselfHelptext = "la imprime usted";
        information.validations.printedKavorHelptext = "la imprimimos";
        information.products = {product(knownBrand, 1), product(ownBrand, 4)};
        information.brochures = brochures(type);
        if (change)
            change(information.brochures->types.front());
        if (changeCatalogue)
            changeCatalogue(information);
        session.applicationInformation = std::make_shared<Catalogue>(std::move(information));
        session.actualSection = SectionIdentifier::brochure(type);
        session.actualApplicationType = applicationTypeOf(*session.actualSection);
    }

    static BrochureIntermediateData& draft() { return *BrochureIntermediateData::temporalBrochure(); }
    static const Parameters& parametersOf(BrochureType type) {
        return *AppSingleton::shared().catalogue().brochureType(type)->parameters;
    }

    // A draft of the section that passes every rule.
    void completeDraft() {
        auto& complete = draft();
        complete.brochureTypeParameters =
            *session.catalogue().brochureType(*session.brochureType())->parameters;
        complete.customerInformation = Customer{};
        complete.customerInformation->name = "Bar Olmo";
        complete.customerInformation->email = "olmo@bar.example";
        complete.customerInformation->telephone = "600";
        complete.customerInformation->contact = "Ana";
        complete.setLanguages(1, std::nullopt);
        complete.selectedNumberOfBrochures = {50, std::nullopt};
        complete.selectedStyleIdentifier = 5;
        complete.includeDigitalBrochure = complete.printDigitalBrochure = false;
        complete.setFormatSelected(true, knownFormat, knownBrand);
    }

    // What stands in the temporary copy.
    [[nodiscard]] std::optional<SaveBrochuresOrder> temporaryCopy() const {
        TemporalBrochure::shared().flush();
        return state_file::read<SaveBrochuresOrder>(folder.path(), state_file::temporalBrochure);
    }

    // Answers the alert on show by a button's text.
    bool press(const QString& button, const QString& typed = {}) {
        return kavor::press(alerts, button, typed);
    }
    // The title and the text of the alert on show.
    [[nodiscard]] std::string alert() const { return shown(alerts); }

private:
    static AppSingleton& openSession(const TemporaryFolder& folder) {
        AppSingleton::shared().setFolders(folder.path(), folder / "caches");
        return AppSingleton::shared();
    }
    static Product product(Int id, Int property) {
        Product made;
        made.id = id;
        made.name = "Brava";
        made.category = Product::Category();
        made.category->propertyId = property;
        auto& format = made.productList.emplace_back();
        format.id = id * 10;
        format.icon = "Caña";
        format.isHighlightable = true;
        format.minimalPrice = 1;
        format.priceMaximumAvise = 5;
        format.price = 2;
        return made;
    }
    static HashedResource picture(const char* key) { return {key, Url{"http://server.example/p.png"}, 3}; }
    static Brochures brochures(BrochureType type) {
        Brochures made;
        auto& kind = made.types.emplace_back();
        kind.id = type;
        kind.parameters = Parameters();
        kind.parameters->maximumOrderQuantity = 100;
        auto& style = made.styles.emplace_back();
        style.id = 5;
        style.name = "Lúpulo";
        style.typeId = Int(type);
        style.firstImage = picture("cover");
        made.languages = {{3, "Gallego", "gl", "", 9, {{Int(type)}}},
                          {1, "Castellano", "es", "", 1, {{Int(type)}}},
                          {2, "Catalán", "ca", "", 2, {{Int(type)}, {77}}},
                          {4, "Inglés", "en", "", 3, {{77}}}};
        made.prices = {
            {PriceType::main, "Barra"}, {PriceType::terrace, "Terraza"}, {PriceType::night, "Noche"}};
        made.orderSheets = {{8, 1, "Comanda", "CM-1", picture("sheet"), {}}};
        auto& pennant = made.pennantBrands.emplace_back();
        pennant.id = 9;
        pennant.name = "Brava";
        made.blackboardFormats = {
            {20, 1, "Vertical", "Dos marcas", picture("on"), picture("off"), 1, 1, {2}},
            {21, 2, "Apaisada", "Tres marcas", picture("on"), picture("off"), 1, 1, {3}}};
        made.blackboardTypes = {{30, 1, "Tiza", false, false}, {31, 2, "Imán", true, true}};
        made.menuFormatVisualize = {{1, "Completa", 2}, {2, "Lista", 1}};
        return made;
    }
};

} // namespace kavor

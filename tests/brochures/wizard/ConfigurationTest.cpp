#include "brochures/wizard/WizardFixture.h"
#include "brochures/wizard/configuration/BrochureConfigurationViewController.h"

#include <QBuffer>
#include <QImage>

namespace kavor {
namespace {

class ConfigurationTest : public WizardTest {
protected:
    std::unique_ptr<BrochureConfigurationViewController> step;

    BrochureConfigurationViewController& open() {
        step = std::make_unique<BrochureConfigurationViewController>(services, nullptr);
        step->viewDidLoad();
        step->viewWillAppear();
        return *step;
    }
    static std::string png() {
        QByteArray bytes;
        QBuffer buffer(&bytes);
        buffer.open(QIODevice::WriteOnly);
        QImage picture(2, 2, QImage::Format_RGB32);
        picture.fill(Qt::green);
        picture.save(&buffer, "PNG");
        return "data:image/png;base64," + bytes.toBase64().toStdString();
    }
    [[nodiscard]] std::string field(const char* name) const {
        return step->pointOfSale()->fieldText(name).toStdString();
    }
};

TEST_F(ConfigurationTest, FieldsShowAsTheKindAllows) {
    enter(BrochureType::beer, [](Brochures::Type& type) { type.parameters->freeTextNumberOfFields = 2; });
    open();
    EXPECT_EQ(step->pointOfSale()->freeTextFields()->rowCount(), 2);
    EXPECT_EQ(step->pointOfSale()->onlineFields()->rowCount(), 2);
    enter(BrochureType::beer, [](Brochures::Type& type) {
        type.parameters->isRRSSAvailable = true;
        type.parameters->freeTextNumberOfFields = 7; // there are three
    });
    open();
    EXPECT_EQ(step->pointOfSale()->freeTextFields()->rowCount(), 3);
    EXPECT_EQ(step->pointOfSale()->onlineFields()->rowCount(), 5);
}

TEST_F(ConfigurationTest, ALeftFieldIsInTheDraftAndTheCopyAndAnEmptyOneIsUnset) {
    open();
    step->pointOfSale()->finishText("contactEmailTextField", "olmo@bar.example");
    EXPECT_EQ(temporaryCopy()->menu.customer.email, "olmo@bar.example");
    step->pointOfSale()->finishText("contactEmailTextField", "");
    EXPECT_FALSE(draft().customerInformation->email);
    EXPECT_FALSE(temporaryCopy()->menu.customer.email);
}

TEST_F(ConfigurationTest, ATextBeyondItsLimitIsMarkedInUserPerceivedCharacters) {
    enter(BrochureType::beer, [](Brochures::Type& type) { type.parameters->freeTextNumberOfFields = 1; });
    open();
    auto* fields = step->pointOfSale()->freeTextFields();
    const auto error = [&] {
        return fields->data(fields->index(0, 0), fields->roleNames().key("error")).toString();
    };
    step->pointOfSale()->editText("firstFreeTextField", QStringLiteral("🇪🇸").repeated(10));
    EXPECT_EQ(error(), QString());
    step->pointOfSale()->editText("firstFreeTextField", QStringLiteral("🇪🇸").repeated(11));
    EXPECT_EQ(error(), "11 de 10 caracteres");
}

TEST_F(ConfigurationTest, SwitchesDecideTheDraftAndKeepTheirWorkingValues) {
    enter(BrochureType::beer, [](Brochures::Type& type) {
        type.parameters->allowSelectDigitalBrochure = true;
        type.parameters->allowNotSelectPaperBrouchure = true;
    });
    open();
    step->formats()->switchPaperBrochure(false);
    EXPECT_FALSE(draft().includePaperBrochure);
    EXPECT_FALSE(draft().includePaperBrochureTmp);
    step->formats()->switchDigitalBrochure(false); // takes the QR material with it
    EXPECT_FALSE(draft().includeDigitalBrochure);
    EXPECT_FALSE(draft().printDigitalBrochure);
    EXPECT_TRUE(draft().printDigitalBrochureTmp);
    EXPECT_TRUE(step->formats()->isDemandOn());
    step->formats()->switchDigitalBrochure(true);
    EXPECT_TRUE(draft().printDigitalBrochure);
    step->formats()->switchDigitalBrochureDemand(false);
    EXPECT_FALSE(draft().printDigitalBrochure);
    EXPECT_FALSE(temporaryCopy()->printDigitalBrochure);
    EXPECT_FALSE(alerts.isVisible());
}

TEST_F(ConfigurationTest, PaperTogetherWithPrintedQrIsConfirmedOncePerChange) {
    enter(BrochureType::beer, [](Brochures::Type& type) {
        type.parameters->allowSelectDigitalBrochure = true;
        type.parameters->allowNotSelectPaperBrouchure = true;
    });
    open();
    EXPECT_FALSE(alerts.isVisible());
    step->formats()->switchPaperBrochure(true);
    EXPECT_TRUE(alert().starts_with(
        "Información | Has solicitado carta impresa en papel y carta digital con impresión "
        "de QRs.\nAl pulsar 'Aceptar' confirmas"));
    EXPECT_TRUE(press("Aceptar"));
    EXPECT_FALSE(alerts.isVisible());
    step->formats()->switchDigitalBrochureDemand(true);
    EXPECT_TRUE(press("Aceptar"));
}

TEST_F(ConfigurationTest, WhatCannotBeSeenHasAFixedState) {
    draft().includePaperBrochure = false;
    open();
    EXPECT_FALSE(step->formats()->isPaperVisible());
    EXPECT_TRUE(draft().includePaperBrochure);
    EXPECT_FALSE(step->formats()->isDigitalVisible());
    EXPECT_FALSE(draft().includeDigitalBrochure); // or no such kind could ever be sent
    EXPECT_FALSE(draft().printDigitalBrochure);
    EXPECT_TRUE(draft().includeDigitalBrochureTmp);
}

TEST_F(ConfigurationTest, NoLanguageIsChosenTwice) {
    using Languages = BrochureIntermediateData::MainAndSecondary;
    enter(BrochureType::beer, [](Brochures::Type& type) { type.parameters->multiLanguage = true; });
    open();
    EXPECT_EQ(step->languages()->languages(), (QStringList{"Castellano", "Catalán", "Gallego"}));
    step->languages()->chooseSecondaryLanguage(1); // without a main one there is nothing to be second to
    EXPECT_FALSE(draft().selectedLanguageIdentifiers);
    step->languages()->chooseMainLanguage(1);
    EXPECT_EQ(step->languages()->secondaryLanguages(), (QStringList{"Ninguno", "Castellano", "Gallego"}));
    step->languages()->chooseSecondaryLanguage(2);
    EXPECT_EQ(draft().currentLanguages(), (Languages{2, 3}));
    step->languages()->chooseMainLanguage(2); // the two change places
    EXPECT_EQ(draft().currentLanguages(), (Languages{3, 2}));
    EXPECT_EQ(step->languages()->secondaryLanguages().value(step->languages()->secondaryLanguage()),
              "Catalán");
    step->languages()->chooseMainLanguage(0);
    EXPECT_EQ(draft().currentLanguages(), (Languages{1, 2}));
    draft().setLanguages(1, 1); // an order from elsewhere
    EXPECT_EQ(step->languages()->secondaryLanguage(), 0);
    step->serializeAutoSave();
    EXPECT_EQ(draft().currentLanguages(), (Languages{1, std::nullopt}));
}

TEST_F(ConfigurationTest, ASecondPriceStartsWithTheFirstListAndChoosingItAgainKeepsWhatWasTyped) {
    open();
    draft().setFormatSelected(true, knownFormat, knownBrand);
    EXPECT_EQ(step->secondPrice()->priceTypes(), (QStringList{"Terraza", "Noche"}));
    step->secondPrice()->chooseSecondPrice(true);
    EXPECT_EQ(draft().currentSecondPrice(), PriceType::terrace);
    draft().setPrice(PriceType::terrace, knownFormat, knownBrand, 3.5);
    step->secondPrice()->choosePriceType(0);
    EXPECT_EQ(draft().priceOf(PriceType::terrace, knownFormat, knownBrand), 3.5);
    step->secondPrice()->choosePriceType(1);
    EXPECT_EQ(draft().priceOf(PriceType::night, knownFormat, knownBrand), 2.0);
    step->secondPrice()->chooseSecondPrice(false);
    EXPECT_FALSE(draft().currentSecondPrice());
}

TEST_F(ConfigurationTest, AChalkboardStartsOnTheDefaultTypeAndItsElementsChooseTheFormat) {
    enter(BrochureType::chalkboard);
    open();
    EXPECT_TRUE(step->chalkboard()->isOrientationPaneVisible());
    EXPECT_EQ(draft().selectedBlackboardTypeIdentifier, 31);
    step->chalkboard()->chooseBlackboardType(0);
    EXPECT_EQ(draft().selectedBlackboardTypeIdentifier, 30);
    step->chalkboard()->formatSelected(21);
    EXPECT_EQ(draft().selectedFormatIdentifier, 21);
    EXPECT_EQ(temporaryCopy()->menu.orientation, 21);

    enter(BrochureType::beer);
    BrochureIntermediateData::replaceTemporalBrochure();
    open();
    EXPECT_FALSE(step->chalkboard()->isOrientationPaneVisible());
    EXPECT_FALSE(draft().selectedBlackboardTypeIdentifier);
}

TEST_F(ConfigurationTest, AFoundCustomerOverwritesEveryFieldButTheCode) {
    Customer found;
    found.id = 70;
    found.name = "Bar Pino";
    found.tevo = "OTHER";
    found.imageLogo = png();
    open();
    step->pointOfSale()->editText("tevoTextField", "B0001");
    step->pointOfSale()->editText("contactTelephoneTextField", "600");
    step->pointOfSale()->searchTEVOCodeAction();
    EXPECT_EQ(std::get<0>(network.requests.getCustomerDataFromTevoCode.calls.at(0)), "B0001");
    network.requests.getCustomerDataFromTevoCode.succeed({found});
    EXPECT_EQ(field("establishmentNameTextField"), "Bar Pino");
    EXPECT_EQ(field("tevoTextField"), "B0001");
    EXPECT_EQ(field("contactTelephoneTextField"), "");
    EXPECT_EQ(draft().customerInformation->imageLogo, png());

    found.imageLogo.reset();
    step->pointOfSale()->searchTEVOCodeAction();
    network.requests.getCustomerDataFromTevoCode.succeed({found});
    EXPECT_FALSE(draft().customerInformation->imageLogo);
}

TEST_F(ConfigurationTest, ALogoThatCannotBeReadHereStaysInTheOrderAsItCame) {
    const std::string heic = "data:image/heic;base64,AAAAGGZ0eXBoZWlj";
    draft().customerInformation = Customer{};
    draft().customerInformation->imageLogo = heic;
    open();
    EXPECT_NE(step->pointOfSale()->logo()->unreadableLabel(), "");
    step->pointOfSale()->editText("establishmentNameTextField", "Bar Pino");
    step->serializeAutoSave();
    EXPECT_EQ(draft().customerInformation->name, "Bar Pino");
    EXPECT_EQ(draft().customerInformation->imageLogo, heic);
}

TEST_F(ConfigurationTest, WhatALookupBroughtAlongGoesWithTheCodeOrTheNameAndWhenTheNextFindsNobody) {
    auto& request = network.requests.getCustomerDataFromTevoCode;
    struct Case {
        std::function<void()> action;
        bool stays;
    };
    const Case cases[] = {
        {[&] { step->pointOfSale()->finishText("contactTelephoneTextField", "600"); }, true},
        {[&] { step->pointOfSale()->finishText("tevoTextField", "B0001"); },
         true}, // the field is left as it was
        {[&] { step->pointOfSale()->finishText("tevoTextField", "B0002"); }, false},
        {[&] { step->pointOfSale()->finishText("establishmentNameTextField", "Bar Roble"); }, false},
        {[&] {
             open(); // the draft fills the form anew
             step->pointOfSale()->finishText("establishmentNameTextField", "Bar Roble");
         },
         false},
        {[&] {
             step->pointOfSale()->searchTEVOCodeAction();
             request.succeed({});
         },
         false},
        {[&] {
             step->pointOfSale()->searchTEVOCodeAction();
             request.fail(failureWith({"motivo"}));
         },
         true},
    };
    Customer found;
    found.id = 70;
    found.name = "Bar Pino";
    found.placeLocalityId = 71;
    found.placeProvinceId = 72;
    found.priorityBrandIdentifiers = {11};
    for (const Case& each : cases) {
        open().pointOfSale()->editText("tevoTextField", "B0001");
        step->pointOfSale()->searchTEVOCodeAction();
        request.succeed({found});
        each.action();
        const Customer& kept = *draft().customerInformation;
        EXPECT_EQ(kept.id.has_value(), each.stays);
        EXPECT_EQ(kept.placeLocalityId.has_value(), each.stays);
        EXPECT_EQ(kept.placeProvinceId.has_value(), each.stays);
        EXPECT_EQ(kept.priorityBrandIdentifiers.has_value(), each.stays);
        EXPECT_EQ(temporaryCopy()->menu.customer.id, kept.id);
    }
}

TEST_F(ConfigurationTest, APlaceThatIsChangedByHandOrByTheLocationLosesTheNumberOfItsOwn) {
    struct Case {
        std::function<void()> action;
        bool localityStays;
        bool provinceStays;
    };
    const auto type = [this](const char* name, const char* text) {
        return [this, name, text] { step->pointOfSale()->finishText(name, text); };
    };
    const Case cases[] = {
        {type("municipalityTextField", "Getafe"), false, true},
        {type("provinceTextField", "Toledo"), true, false},
        {type("municipalityTextField", "Madrid"), true, true}, // the field is left as it was
        {type("postalCodeTextField", "28002"), true, true},
        {[this] {
             geocoder.placemark = Placemark{"45001", "Toledo", "Toledo", std::nullopt};
             step->pointOfSale()->locateDeviceAndFillFields();
             press("Sí");
         },
         false, false},
        {[this] {
             geocoder.placemark = Placemark{"28003", "Madrid", "Madrid", std::nullopt};
             step->pointOfSale()->locateDeviceAndFillFields();
             press("Sí");
         },
         true, true},
    };
    Customer known;
    known.id = 70;
    known.placeLocality = known.placeProvinceName = "Madrid";
    known.placeLocalityId = 71;
    known.placeProvinceId = 72;
    for (const Case& each : cases) {
        draft().customerInformation = known;
        open();
        each.action();
        const Customer& kept = *draft().customerInformation;
        EXPECT_EQ(kept.id, 70);
        EXPECT_EQ(kept.placeLocalityId.has_value(), each.localityStays);
        EXPECT_EQ(kept.placeProvinceId.has_value(), each.provinceStays);
    }
}

TEST_F(ConfigurationTest, ThePreviewWaitsForTheCustomerCodeWhereItIsRequired) {
    open();
    int previews = 0;
    QObject::connect(step.get(), &BrochureConfigurationViewController::previewSegueRequested,
                     [&] { ++previews; });
    session.loginResult->customerCodeRequired = true;
    step->previewAction();
    EXPECT_EQ(alert(), "Atencion | Has de informar de un código cliente.");
    EXPECT_EQ(previews, 0);
    step->pointOfSale()->editText("tevoTextField", "B0001");
    step->previewAction();
    EXPECT_EQ(previews, 1);
}

TEST_F(ConfigurationTest, TheLocationFillsTheAddressOnlyWhenTheUserAgrees) {
    open();
    geocoder.placemark = Placemark{"28001", "Madrid", "Comunidad de Madrid", std::nullopt};
    step->pointOfSale()->locateDeviceAndFillFields();
    EXPECT_EQ(alert(), "¿Desea utilizar la siguiente ubicación? | 28001, Madrid, Comunidad de Madrid");
    press("No");
    EXPECT_EQ(field("municipalityTextField"), "");
    step->pointOfSale()->locateDeviceAndFillFields();
    press("Sí");
    EXPECT_EQ(field("postalCodeTextField"), "28001");
    EXPECT_EQ(draft().customerInformation->placeProvinceName, "Comunidad de Madrid");

    geocoder.placemark.reset();
    geocoder.error = "no signal";
    step->pointOfSale()->locateDeviceAndFillFields();
    EXPECT_TRUE(alert().starts_with("Error | No se ha podido obtener la localización."));
    press("Reintentar");
    EXPECT_EQ(geocoder.asked.size(), 4U);
    press("Cancelar");
    locationService.available = false;
    step->pointOfSale()->locateDeviceAndFillFields();
    EXPECT_EQ(alert(), " | No se puede utilizar la ubicación, está deshabilitada.");
}

} // namespace
} // namespace kavor

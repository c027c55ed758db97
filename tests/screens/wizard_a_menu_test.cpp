#include "brochures/wizard/BrochureConfigurationViewController.h"
#include "brochures/wizard/BrochureMenuViewController.h"
#include "brochures/wizard/BrochureSendViewController.h"
#include "brochures/wizard/ComingSoonStep.h"
#include "wizard_a_fixture.h"

namespace kavor {
namespace {

using Menu = BrochureMenuViewController;

class MenuTest : public WizardTest {
protected:
    static BrochureConfigurationViewController* configuration(const Menu& menu) {
        return qobject_cast<BrochureConfigurationViewController*>(menu.activeViewController());
    }
};

TEST_F(MenuTest, EachOptionalStepHangsOnItsSwitchAlone) {
    struct Case {
        int button;
        bool Brochures::Type::Parameters::*parameter;
    };
    for (const Case& each :
         {Case{Menu::Drinks, &Parameters::showOtherDrink}, Case{Menu::Promotions, &Parameters::withPromotion},
          Case{Menu::OrderSheet, &Parameters::allowOrderSheet},
          Case{Menu::Pennant, &Parameters::withPennants},
          Case{Menu::PennantBrand, &Parameters::withPennantBrand},
          Case{Menu::DigitalStyle, &Parameters::allowSelectDigitalBrochure}}) {
        enter(BrochureType::beer,
              [&](Brochures::Type& type) { type.parameters.value().*each.parameter = true; });
        const Menu menu(services);
        for (int button = Menu::Reset; button <= Menu::PennantBrand; ++button) {
            const bool always = button == Menu::Reset || button == Menu::Configuration ||
                                button == Menu::Products || button == Menu::Prices || button == Menu::Style ||
                                button == Menu::Send;
            EXPECT_EQ(menu.isButtonVisible(button), always || button == each.button)
                << button << " " << each.button;
        }
    }
}

TEST_F(MenuTest, TheStyleEntryIsNamedAfterTheKind) {
    const std::pair<BrochureType, const char*> cases[] = {
        {BrochureType::chalkboard, "Pizarra"}, {BrochureType::video, "Video"},
        {BrochureType::mantel, "Mantel"},      {BrochureType::digital, "Online"},
        {BrochureType::beer, "Papel"},         {BrochureType::wineA4, "Papel"}};
    for (const auto& [type, caption] : cases) {
        enter(type);
        EXPECT_EQ(Menu(services).styleDefaultLabel().toStdString(), caption);
    }
}

TEST_F(MenuTest, OutsideABrochureSectionTheFirstStepStandsUnderTheWholeMenu) {
    session.actualSection = SectionIdentifier{SectionIdentifier::Activations{}};
    const Menu menu(services);
    EXPECT_TRUE(configuration(menu));
    EXPECT_EQ(menu.styleDefaultLabel(), QString());
    for (int button = Menu::Reset; button <= Menu::PennantBrand; ++button)
        EXPECT_TRUE(menu.isButtonVisible(button));
    session.actualSection.reset(); // nothing is saved outside a section
}

TEST_F(MenuTest, TheTwoStyleEntriesTellTheStepWhichStyleItEdits) {
    Menu menu(services);
    menu.buttonPushedAction(Menu::DigitalStyle);
    EXPECT_TRUE(session.isSectionDigital);
    menu.buttonPushedAction(Menu::Style);
    EXPECT_FALSE(session.isSectionDigital);
}

TEST_F(MenuTest, StepsToComeSaySoAndPlacesPastTheLastDoNothing) {
    Menu menu(services);
    for (const int button :
         {Menu::Drinks, Menu::OrderSheet, Menu::Promotions, Menu::Pennant, Menu::PennantBrand}) {
        menu.buttonPushedAction(button);
        EXPECT_TRUE(qobject_cast<ComingSoonStep*>(menu.activeViewController())) << button;
    }
    menu.buttonPushedAction(12);
    EXPECT_EQ(menu.selectedButton(), Menu::PennantBrand);
}

TEST_F(MenuTest, ATapOnTheEntryOnShowKeepsTheStepWithWhatWasTyped) {
    Menu menu(services);
    auto* step = configuration(menu);
    step->editText("establishmentNameTextField", "Bar Ol");
    menu.buttonPushedAction(Menu::Configuration);
    EXPECT_EQ(menu.activeViewController(), step);
    EXPECT_FALSE(draft().customerInformation);
}

TEST_F(MenuTest, LeavingAStepSavesItAndTheCopyExceptForTheSendStep) {
    Menu menu(services);
    configuration(menu)->editText("establishmentNameTextField", "Bar Olmo");
    menu.buttonPushedAction(Menu::Send);
    EXPECT_EQ(draft().customerInformation->name, "Bar Olmo");
    EXPECT_EQ(temporaryCopy()->menu.customer.name, "Bar Olmo");

    draft().customerInformation->name = "Bar Pino";
    menu.buttonPushedAction(Menu::Products);
    EXPECT_EQ(temporaryCopy()->menu.customer.name, "Bar Olmo");
}

TEST_F(MenuTest, SaysSoAtOnceWhenTheNetworkGoes) {
    Menu menu(services);
    int told = 0;
    QObject::connect(&menu, &Menu::offlineChanged, [&] { ++told; });
    EXPECT_FALSE(menu.isOffline());
    network.reachable = false;
    reachability.set(false);
    EXPECT_EQ(told, 1);
    EXPECT_TRUE(menu.isOffline());
}

TEST_F(MenuTest, ClosingSavesTheStepOnShowAlsoWhileAResetIsUnderWay) {
    Menu menu(services);
    bool closed = false;
    QObject::connect(&menu, &Menu::closed, [&] { closed = true; });
    configuration(menu)->editText("establishmentNameTextField", "Bar Olmo");
    session.resettingBrochure = true;
    menu.closeSceneAction();
    EXPECT_TRUE(closed);
    EXPECT_EQ(temporaryCopy()->menu.customer.name, "Bar Olmo");
}

TEST_F(MenuTest, ACopyOnDiskIsTakenUpAndGoneUntilTheNextStep) {
    completeDraft();
    TemporalBrochure::shared().write(draft());
    BrochureIntermediateData::replaceTemporalBrochure();
    Menu menu(services);
    EXPECT_EQ(menu.recoveredMessage(), "Se ha recuperado la carta en curso");
    EXPECT_EQ(configuration(menu)->fieldText("establishmentNameTextField"), "Bar Olmo");
    EXPECT_TRUE(draft().brochureTypeParameters);
    EXPECT_FALSE(temporaryCopy());
    menu.buttonPushedAction(Menu::Products);
    EXPECT_TRUE(temporaryCopy());
}

TEST_F(MenuTest, WithoutACopyTheDraftInMemoryGoesOn) {
    completeDraft();
    Menu menu(services);
    EXPECT_EQ(menu.recoveredMessage(), QString());
    EXPECT_EQ(configuration(menu)->fieldText("establishmentNameTextField"), "Bar Olmo");
}

TEST_F(MenuTest, AResetAnsweredWithNoChangesNothing) {
    completeDraft();
    Menu menu(services);
    menu.buttonPushedAction(Menu::Products);
    auto* step = menu.activeViewController();
    menu.buttonPushedAction(Menu::Reset);
    EXPECT_EQ(alert(), "Atención | ¿Desea borrar todos los datos introducidos en la carta actual?");
    EXPECT_EQ(alerts.current()->buttons[1].role, AlertButton::Role::Destructive);
    EXPECT_EQ(menu.selectedButton(), Menu::Products);
    EXPECT_TRUE(press("No"));
    EXPECT_EQ(menu.activeViewController(), step);
    EXPECT_EQ(draft().customerInformation->name, "Bar Olmo");
}

TEST_F(MenuTest, AResetStartsANewDraftAndTheOldStepWritesNothingIntoIt) {
    completeDraft();
    Menu menu(services);
    auto* old = configuration(menu);
    old->finishText("establishmentNameTextField", "Bar Pino");
    menu.buttonPushedAction(Menu::Reset);
    EXPECT_TRUE(press("Sí"));
    old->finishText("establishmentNameTextField", "Bar Pino"); // the field loses the focus as it goes
    EXPECT_FALSE(draft().customerInformation);
    EXPECT_TRUE(draft().brochureTypeParameters);
    EXPECT_FALSE(temporaryCopy());
    EXPECT_FALSE(session.resettingBrochure);
    EXPECT_EQ(menu.selectedButton(), Menu::Configuration);
    EXPECT_NE(configuration(menu), old);
    EXPECT_FALSE(session.catalogue().product(ownBrand));
    EXPECT_TRUE(session.catalogue().product(knownBrand));
}

TEST_F(MenuTest, AResetFromTheSendStepDoesNotSwallowTheNextSave) {
    completeDraft();
    Menu menu(services);
    menu.buttonPushedAction(Menu::Send);
    menu.buttonPushedAction(Menu::Reset);
    EXPECT_TRUE(press("Sí"));
    configuration(menu)->editText("establishmentNameTextField", "Bar Nuevo");
    menu.buttonPushedAction(Menu::Products);
    EXPECT_EQ(draft().customerInformation->name, "Bar Nuevo");
}

TEST_F(MenuTest, TheVeilFollowsItsNotification) {
    const Menu menu(services);
    auto& center = NotificationCenter::shared();
    center.post(notification::visibilityVeilView, {{"show", true}});
    EXPECT_TRUE(menu.isVeilVisible());
    center.post(notification::visibilityVeilView); // without the key it goes
    EXPECT_FALSE(menu.isVeilVisible());
}

TEST_F(MenuTest, TheBannerOfPreferredBrandsIsAskedForUntilItWasClosedAndAgainAfterAReset) {
    Menu menu(services);
    auto& center = NotificationCenter::shared();
    int asked = 0;
    const auto observer =
        center.observe(notification::showPreferredBrandsBanner, [&](const auto&) { ++asked; });
    menu.buttonPushedAction(Menu::Style);
    EXPECT_EQ(asked, 1);
    center.post(notification::preferredBrandsBannerClosed);
    menu.buttonPushedAction(Menu::Products);
    menu.buttonPushedAction(Menu::Style);
    EXPECT_EQ(asked, 1);
    menu.buttonPushedAction(Menu::Reset);
    press("Sí");
    menu.buttonPushedAction(Menu::Style);
    EXPECT_EQ(asked, 2);
}

TEST_F(MenuTest, AnOrderThatWasSentIsNotResumed) {
    completeDraft();
    Menu menu(services);
    menu.buttonPushedAction(Menu::Send);
    qobject_cast<BrochureSendViewController*>(menu.activeViewController())->sendOrderAction();
    SaveBrochuresOrderResponse answer;
    answer.urlOrder = Url{"http://server.example/order"};
    ASSERT_TRUE(network.requests.saveOrder.succeed(answer));
    menu.closeSceneAction();
    EXPECT_FALSE(temporaryCopy());
    EXPECT_TRUE(draft().selectedBrands.empty());
}

TEST_F(MenuTest, TheVeilOfARequestCanBeLeftAndItsAnswerFillsNothing) {
    Menu menu(services);
    NotificationCenter::shared().post(notification::visibilityVeilView, {{"show", true}});
    EXPECT_FALSE(menu.isVeilLeavable()) << "a file that is being written is waited for";
    menu.leaveVeil();
    EXPECT_TRUE(menu.isVeilVisible());

    configuration(menu)->editText("establishmentNameTextField", "Bar Olmo");
    configuration(menu)->searchTEVOCodeAction();
    EXPECT_TRUE(menu.isVeilVisible() && menu.isVeilLeavable());
    menu.leaveVeil();
    EXPECT_FALSE(menu.isVeilVisible() || menu.isVeilLeavable());
    Customer other;
    other.name = "Bar Otro";
    network.requests.getCustomerDataFromTevoCode.succeed({other});
    menu.buttonPushedAction(Menu::Products);
    EXPECT_EQ(draft().customerInformation->name, "Bar Olmo");

    // A place of which nothing is known is never answered.
    menu.buttonPushedAction(Menu::Configuration);
    configuration(menu)->locateDeviceAndFillFields();
    EXPECT_TRUE(menu.isVeilLeavable());
    menu.leaveVeil();
    location.onReverseHandler(Placemark{"28001", "Madrid", "Madrid", {}}, std::nullopt);
    EXPECT_FALSE(menu.isVeilVisible() || alerts.isVisible());
}

} // namespace
} // namespace kavor

#include "brochures/wizard/BrochureMenuViewController.h"
#include "brochures/wizard/WizardFixture.h"
#include "brochures/wizard/configuration/BrochureConfigurationViewController.h"
#include "brochures/wizard/send/BrochureSendViewController.h"

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

TEST_F(MenuTest, EntriesCountWhatIsMissingAndASentenceLeadsToWhereItIsMended) {
    Menu menu(services);
    menu.buttonPushedAction(Menu::Send);
    auto* send = qobject_cast<BrochureSendViewController*>(menu.activeViewController());
    const auto mark = [&menu](int button) {
        for (const QVariant& entry : menu.menuButtons()) {
            if (entry.toMap()["id"] == button)
                return entry.toMap()["done"].toBool() ? std::string("done")
                                                      : entry.toMap()["badge"].toString().toStdString();
        }
        return std::string("no entry");
    };
    EXPECT_EQ(mark(Menu::Configuration), "5") << "four of the bar and the languages";
    completeDraft();
    send->finishSupportComment("!"); // an edit counts anew
    ASSERT_TRUE(waitFor([&] { return mark(Menu::Configuration) == "done"; }));
    EXPECT_EQ(mark(Menu::Products) + mark(Menu::Style), "donedone");
    EXPECT_EQ(mark(Menu::Send) + mark(Menu::Reset), "00") << "no rule looks at them";
    draft().customerInformation->name.clear();
    draft().customerInformation->email.reset();
    draft().selectedStyleIdentifier.reset();
    send->finishSupportComment("?");
    ASSERT_TRUE(waitFor([&] { return mark(Menu::Configuration) == "2"; }));
    EXPECT_EQ(mark(Menu::Style), "1");

    std::vector<std::string> fields;
    QObject::connect(&menu, &Menu::fieldRequested,
                     [&fields](const QString& name) { fields.push_back(name.toStdString()); });
    send->sendOrderAction();
    press("Aceptar");
    ASSERT_EQ(send->missing().size(), 3);
    send->goToMissing(1); // "El email es obligatorio."
    EXPECT_NE(configuration(menu), nullptr);
    menu.buttonPushedAction(Menu::Send);
    send = qobject_cast<BrochureSendViewController*>(menu.activeViewController());
    send->sendOrderAction();
    press("Aceptar");
    send->goToMissing(2);
    EXPECT_EQ(menu.selectedButton(), Menu::Style);
    EXPECT_EQ(fields, (std::vector<std::string>{"contactEmailTextField", ""}));
}

TEST_F(MenuTest, TheTwoStyleEntriesTellTheStepWhichStyleItEdits) {
    Menu menu(services);
    menu.buttonPushedAction(Menu::DigitalStyle);
    EXPECT_TRUE(session.isSectionDigital);
    menu.buttonPushedAction(Menu::Style);
    EXPECT_FALSE(session.isSectionDigital);
}

TEST_F(MenuTest, ATapOnTheEntryOnShowKeepsTheStepWithWhatWasTyped) {
    Menu menu(services);
    auto* step = configuration(menu);
    step->pointOfSale()->editText("establishmentNameTextField", "Bar Ol");
    menu.buttonPushedAction(Menu::Configuration);
    EXPECT_EQ(menu.activeViewController(), step);
    EXPECT_FALSE(draft().customerInformation);
}

TEST_F(MenuTest, LeavingAStepSavesItAndTheCopyExceptForTheSendStep) {
    Menu menu(services);
    configuration(menu)->pointOfSale()->editText("establishmentNameTextField", "Bar Olmo");
    menu.buttonPushedAction(Menu::Send);
    EXPECT_EQ(draft().customerInformation->name, "Bar Olmo");
    EXPECT_EQ(temporaryCopy()->menu.customer.name, "Bar Olmo");

    draft().customerInformation->name = "Bar Pino";
    menu.buttonPushedAction(Menu::Products);
    EXPECT_EQ(temporaryCopy()->menu.customer.name, "Bar Olmo");
}

TEST_F(MenuTest, ClosingSavesTheStepOnShowAlsoWhileAResetIsUnderWay) {
    Menu menu(services);
    bool closed = false;
    QObject::connect(&menu, &Menu::closed, [&] { closed = true; });
    configuration(menu)->pointOfSale()->editText("establishmentNameTextField", "Bar Olmo");
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
    EXPECT_EQ(configuration(menu)->pointOfSale()->fieldText("establishmentNameTextField"), "Bar Olmo");
    EXPECT_TRUE(draft().brochureTypeParameters);
    EXPECT_FALSE(temporaryCopy());
    menu.buttonPushedAction(Menu::Products);
    EXPECT_TRUE(temporaryCopy());
}

TEST_F(MenuTest, ACopyInWhichTheUserEnteredNothingComesBackWithoutAWord) {
    {
        Menu menu(services);
        for (const int button : {Menu::Style, Menu::DigitalStyle, Menu::Products, Menu::Prices, Menu::Send})
            menu.buttonPushedAction(button); // each writes what it starts with
    }
    ASSERT_TRUE(draft().selectedStyleIdentifier);
    const Menu menu(services);
    EXPECT_EQ(draft().selectedStyleIdentifier, 5);
    EXPECT_EQ(menu.recoveredMessage(), QString());
}

TEST_F(MenuTest, ThePreviewOfTheConfigurationLeavesItOnShowWhateverComesOfIt) {
    completeDraft();
    Menu menu(services);
    auto* step = configuration(menu);
    step->previewAction();
    EXPECT_EQ(menu.veilText(), "Preparando la vista previa…");
    SaveBrochuresOrderResponse answer;
    answer.urlPDF = Url{"http://127.0.0.1:9/a.pdf"};
    ASSERT_TRUE(network.requests.saveOrder.succeed(answer));
    EXPECT_TRUE(menu.preview());
    EXPECT_EQ(configuration(menu), step);
    EXPECT_EQ(menu.selectedButton(), Menu::Configuration);

    step->previewAction();
    EXPECT_TRUE(menu.isVeilVisible());
    menu.buttonPushedAction(Menu::Products);
    EXPECT_FALSE(menu.isVeilVisible()) << "nobody could leave it any more";
    const auto* former = menu.preview();
    network.requests.saveOrder.succeed(answer);
    EXPECT_EQ(menu.preview(), former); // the answer came too late
}

TEST_F(MenuTest, ALookIntoAnotherTileLeavesTheDigitalMenuAsItWasChosen) {
    const auto digital = [](Brochures::Type& type) { type.parameters->allowSelectDigitalBrochure = true; };
    enter(BrochureType::beer, digital);
    completeDraft();
    draft().selectedStyleDigitalIdentifier = 5;
    draft().includeDigitalBrochure = true;
    Menu(services).closeSceneAction();
    enter(BrochureType::wineA4); // on offer on paper alone
    {
        Menu look(services);
        EXPECT_EQ(configuration(look)->pointOfSale()->fieldText("establishmentNameTextField"), "");
        look.closeSceneAction();
    }
    enter(BrochureType::beer, digital);
    const Menu menu(services);
    EXPECT_EQ(configuration(menu)->pointOfSale()->fieldText("establishmentNameTextField"), "Bar Olmo");
    EXPECT_TRUE(configuration(menu)->formats()->isDigitalOn());
    EXPECT_EQ(draft().selectedStyleDigitalIdentifier, 5);
}

TEST_F(MenuTest, AResetErasesTheMenuAndTheOwnBrandsOfItsKindAndNoOther) {
    const auto types = [](ApplicationInformation& information) {
        information.brochures->productTypes.emplace_back().name = "Caña";
    };
    enter(BrochureType::beer, {}, types);
    completeDraft();
    draft().setFormatSelected(true, ownBrand * 10, ownBrand);
    draft().setPrice(PriceType::main, ownBrand * 10, ownBrand, 3.4);
    Menu(services).closeSceneAction();
    enter(BrochureType::chalkboard, {}, types);
    {
        Menu other(services);
        other.buttonPushedAction(Menu::Reset);
        EXPECT_TRUE(press("Sí"));
        EXPECT_FALSE(session.catalogue().product(ownBrand));
        sessions.flush();
        const auto stored = folder.content(std::string(state_file::applicationInformation));
        ASSERT_NE(stored.find("\"Brava\""), std::string::npos) << "the catalogue was not stored";
        EXPECT_EQ(stored.find("\"id\":-1,"), std::string::npos);
        other.closeSceneAction();
    }
    const auto withoutOwnBrand = [&](ApplicationInformation& information) {
        types(information);
        information.products.pop_back();
    };
    enter(BrochureType::beer, {}, withoutOwnBrand);
    const Menu menu(services);
    EXPECT_EQ(alerts.current(), nullptr) << alert();
    const Product* back = session.catalogue().product(ownBrand);
    ASSERT_TRUE(back);
    EXPECT_EQ(back->name, "Brava");
    EXPECT_EQ(draft().priceOf(PriceType::main, back->productList.front().id, ownBrand), 3.4);
}

TEST_F(MenuTest, NamesWhatLeftTheCatalogueSinceTheMenuWasWritten) {
    completeDraft();
    Menu(services).closeSceneAction();
    enter(BrochureType::beer, {}, [](ApplicationInformation& information) {
        std::erase_if(information.products, [](const Product& each) { return each.id == knownBrand; });
    });
    const Menu menu(services);
    EXPECT_EQ(alert(), "Atención | 1 producto ya no está en el catálogo: Brava");
}

TEST_F(MenuTest, WithoutACopyTheDraftInMemoryGoesOn) {
    completeDraft();
    Menu menu(services);
    EXPECT_EQ(menu.recoveredMessage(), QString());
    EXPECT_EQ(configuration(menu)->pointOfSale()->fieldText("establishmentNameTextField"), "Bar Olmo");
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
    old->pointOfSale()->finishText("establishmentNameTextField", "Bar Pino");
    menu.buttonPushedAction(Menu::Reset);
    EXPECT_TRUE(press("Sí"));
    old->pointOfSale()->finishText("establishmentNameTextField",
                                   "Bar Pino"); // the field loses the focus as it goes
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
    configuration(menu)->pointOfSale()->editText("establishmentNameTextField", "Bar Nuevo");
    menu.buttonPushedAction(Menu::Products);
    EXPECT_EQ(draft().customerInformation->name, "Bar Nuevo");
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

class SentOrderTest : public MenuTest {
protected:
    void SetUp() override {
        MenuTest::SetUp();
        enter(
            BrochureType::beer,
            [](Brochures::Type& type) {
                type.parameters->isHighlightable = type.parameters->withPrinter = true;
            },
            [](ApplicationInformation& information) {
                information.products.front().productList.front().positionHighlightable = 1;
            });
        completeDraft();
        draft().orderIdentifier = 7;
        draft().fileName = "mi carta";
        menu = std::make_unique<Menu>(services);
        menu->buttonPushedAction(Menu::Send);
        send()->sendOrderAction();
        SaveBrochuresOrderResponse answer;
        answer.urlOrder = Url{"http://server.example/order"};
        ASSERT_TRUE(network.requests.saveOrder.succeed(answer));
        press("Aceptar");
    }
    [[nodiscard]] BrochureSendViewController* send() const {
        return qobject_cast<BrochureSendViewController*>(menu->activeViewController());
    }
    void rename(const QString& name) const {
        configuration(*menu)->pointOfSale()->finishText("establishmentNameTextField", name);
    }

    std::unique_ptr<Menu> menu;
    const std::string question =
        "Atención | Este pedido ya se ha realizado. ¿Desea hacer otro a partir de él?";
};

TEST_F(SentOrderTest, ChangingStepsForgetsNothingWritesNothingAndAsksNothing) {
    for (const int button : {Menu::Configuration, Menu::Style, Menu::Products, Menu::Prices, Menu::Send}) {
        menu->buttonPushedAction(button);
        EXPECT_NE(alert(), question) << button;
        press("Aceptar"); // what a step says by itself
        EXPECT_FALSE(temporaryCopy()) << button;
    }
    EXPECT_FALSE(draft().highlightedBrands.empty()) << "proposed by the prices, not chosen by the user";
    EXPECT_TRUE(send()->isOrderSent());
    EXPECT_EQ(send()->makeOrderButtonTitle(), "Ver pedido");
    EXPECT_FALSE(send()->isPrintedKavorButtonVisible() || send()->isPrintedMyselfVisible());
    send()->sendOrderMyselfAction();
    EXPECT_EQ(urls.opened, QStringList{"http://server.example/order"});
    EXPECT_EQ(network.requests.saveOrder.calls.size(), 1U);
    EXPECT_FALSE(alerts.isVisible());
}

TEST_F(SentOrderTest, TheFirstChangeIsTakenBackOrMakesAnotherOrder) {
    menu->buttonPushedAction(Menu::Configuration);
    rename("Bar Pino");
    EXPECT_EQ(alert(), question);
    press("No");
    EXPECT_FALSE(alerts.isVisible());
    EXPECT_EQ(configuration(*menu)->pointOfSale()->fieldText("establishmentNameTextField"), "Bar Olmo");
    EXPECT_EQ(draft().customerInformation->name, "Bar Olmo");
    EXPECT_EQ(draft().orderIdentifier, 7);
    EXPECT_EQ(draft().fileName, "mi carta");
    EXPECT_TRUE(draft().sent);
    EXPECT_FALSE(temporaryCopy());

    rename("Bar Pino");
    EXPECT_EQ(alert(), question);
    press("Sí");
    EXPECT_EQ(temporaryCopy()->menu.customer.name, "Bar Pino");
    EXPECT_FALSE(temporaryCopy()->orderIdentifier);
    rename("Bar Roble");
    EXPECT_FALSE(alerts.isVisible()) << "it was asked once";
    menu->buttonPushedAction(Menu::Send);
    EXPECT_FALSE(send()->isOrderSent());
    send()->sendOrderAction();
    const auto& [order, key] = network.requests.saveOrder.calls.back();
    EXPECT_FALSE(order.orderIdentifier);
    EXPECT_NE(key, std::get<1>(network.requests.saveOrder.calls.front()));
}

TEST_F(SentOrderTest, AChangeStillInItsFieldIsAskedAboutOnLeavingTheStep) {
    menu->buttonPushedAction(Menu::Configuration);
    configuration(*menu)->pointOfSale()->editText("establishmentNameTextField", "Bar Pino");
    menu->buttonPushedAction(Menu::Send);
    EXPECT_EQ(alert(), question);
    press("Sí");
    EXPECT_FALSE(send()->isOrderSent());
    EXPECT_EQ(send()->localNameLabel(), "Bar Pino");
}

TEST_F(SentOrderTest, TheNextOpeningAndTheResetStartAnew) {
    menu->buttonPushedAction(Menu::Products);
    menu->closeSceneAction();
    EXPECT_FALSE(temporaryCopy());
    const Menu again(services);
    EXPECT_TRUE(draft().selectedBrands.empty());
    EXPECT_FALSE(draft().sent);
}

// Keeps silent about every place.
class SilentGeocoder : public ReverseGeocoder {
public:
    void reverse(const Coordinate&, Callback) override {}
};

TEST_F(MenuTest, TheVeilOfARequestCanBeLeftAndItsAnswerFillsNothing) {
    SilentGeocoder silent;
    ReverseLocationManager waiting(locationService, silent);
    services.location = &waiting;
    Menu menu(services);
    NotificationCenter::shared().post(notification::visibilityVeilView, {{"show", true}});
    EXPECT_FALSE(menu.isVeilLeavable()) << "a file that is being written is waited for";
    menu.leaveVeil();
    EXPECT_TRUE(menu.isVeilVisible());

    configuration(menu)->pointOfSale()->editText("establishmentNameTextField", "Bar Olmo");
    configuration(menu)->pointOfSale()->searchTEVOCodeAction();
    EXPECT_TRUE(menu.isVeilVisible() && menu.isVeilLeavable());
    menu.leaveVeil();
    EXPECT_FALSE(menu.isVeilVisible() || menu.isVeilLeavable());
    Customer other;
    other.name = "Bar Otro";
    network.requests.getCustomerDataFromTevoCode.succeed({other});
    menu.buttonPushedAction(Menu::Products);
    EXPECT_EQ(draft().customerInformation->name, "Bar Olmo");

    menu.buttonPushedAction(Menu::Configuration);
    configuration(menu)->pointOfSale()->locateDeviceAndFillFields();
    EXPECT_TRUE(menu.isVeilLeavable());
    waiting.onReverseHandler(std::nullopt, std::nullopt); // nothing is known of the place
    EXPECT_FALSE(menu.isVeilVisible() || alerts.isVisible());
    configuration(menu)->pointOfSale()->locateDeviceAndFillFields();
    menu.leaveVeil();
    waiting.onReverseHandler(Placemark{"28001", "Madrid", "Madrid", {}}, std::nullopt);
    EXPECT_FALSE(menu.isVeilVisible() || alerts.isVisible());
}

} // namespace
} // namespace kavor

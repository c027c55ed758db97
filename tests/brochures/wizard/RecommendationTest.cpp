#include "base/BackgroundFileWriter.h"
#include "brochures/wizard/StepFixture.h"
#include "brochures/wizard/prices/BrochurePriceSetterViewController.h"
#include "brochures/wizard/prices/recommendation/BrochurePriceAssistantViewController.h"
#include "screens/VeilState.h"
#include "shell/screens/Screens.h"
#include "support/LogCapture.h"
#include "ui/UiScene.h"

namespace kavor {
namespace {

using Assistant = BrochurePriceAssistantViewController;

PriceRecommendationResponse exampleAnswer() {
    PriceRecommendationResponse answer;
    answer.files = {"Precios", "Mínimo", "Más habitual", "Máximo"};
    answer.columns = {"28013", "Madrid", "Provincia", "Comunidad", "España", "Mundo"};
    answer.table = {{std::nullopt, "2,60 €", std::nullopt, "3"}, {"2,00 €", "2,50 €", "4,00 €", std::nullopt},
                    {"2,00 €", "2,50 €", "3,00 €", "120"},       {"2,00 €", "2,50 €", "3,00 €", "1"},
                    {"2,00 €", "2,50 €", "3,00 €", "900"},       {}}; // a sixth, which nobody looks at
    answer.brandName = "Encina";
    answer.productName = "Tercio";
    return answer;
}

// The prices step with a stack of screens over it, as the frame has them, and its veil.
class RecommendationTest : public StepTest {
protected:
    std::unique_ptr<BrochurePriceSetterViewController> prices;
    ScreenStack screens;
    VeilState veil;

    void SetUp() override {
        StepTest::SetUp();
        builder.brand(ownBrand, "Casa").format(-10, "Jarra", 4.0);
        open(BrochureType::beer);
        for (const auto& [format, brand] :
             {std::pair<Int, Int>{110, 11}, {111, 11}, {100, 10}, {-10, ownBrand}})
            draft().setFormatSelected(true, format, brand);
        draft().defaultHighlightedElementVisited = true;
        draft().customerInformation = Customer{};
        draft().customerInformation->placePostalCode = "28801";
        draft().customerInformation->placeLocality = "Alcalá";
        geocoder.placemark = Placemark{"28013", "Madrid", "Comunidad de Madrid", std::nullopt};
        std::filesystem::create_directories(folder / "caches");
        screens.push({{}, new ScreenController}); // the wizard
        veil.follow();
        openStep();
    }
    void TearDown() override {
        screens.replaceAll({});
        prices.reset();
        BackgroundFileWriter::shared().flush();
        StepTest::TearDown();
    }
    // A new visit to the step.
    void openStep() {
        prices = std::make_unique<BrochurePriceSetterViewController>(services, nullptr);
        prices->viewDidLoad();
        prices->viewWillAppear();
        alerts.answerButton(0);
        QObject::connect(prices.get(), &WizardStepViewController::screenRequested, &screens,
                         &ScreenStack::push);
    }
    [[nodiscard]] auto& asked() { return network.requests.priceRecommendation; }
    [[nodiscard]] auto& searched() { return network.requests.searchMaps; }
    [[nodiscard]] Assistant* assistant() const {
        return screens.top() ? qobject_cast<Assistant*>(screens.top()->controller) : nullptr;
    }
    // Asks about a row where the device is, and gets the example.
    void answerRow(int row) {
        prices->priceRecommendation(row);
        if (alerts.isVisible())
            press("Sí");
        asked().succeed(exampleAnswer());
    }
    void closeAssistant() {
        assistant()->closeSceneAction();
        prices->viewWillAppear();
    }
    [[nodiscard]] bool nothingGoesOn() const { return !alerts.isVisible() && !veil.isVisible(); }
    static SearchMapsResponse addresses() {
        SearchMapsResponse found;
        for (const char* name : {"Calle Mayor 3, Madrid", "Calle Mayor, Sevilla"})
            found.addresses.emplace_back().fullAddress = name;
        found.addresses[0].zip = "28013";
        found.addresses[0].city = "Madrid";
        found.addresses[1].city = "Sevilla";
        return found;
    }
};

TEST_F(RecommendationTest, ThePlaceOfTheDeviceLeadsToTheTable) {
    prices->priceRecommendation(0);
    EXPECT_EQ(alert(), "¿Desea utilizar la siguiente ubicación? | 28013, Madrid");
    EXPECT_FALSE(veil.isVisible());
    press("No");
    EXPECT_TRUE(nothingGoesOn());
    prices->priceRecommendation(0);
    press("Sí");
    EXPECT_EQ(asked().calls.back(), std::make_tuple(Int(110), QString("28013"), QString("Madrid")));
    EXPECT_TRUE(veil.isVisible());
    const auto before = draft().brandPrices;
    asked().succeed(exampleAnswer());
    EXPECT_FALSE(veil.isVisible());
    ASSERT_TRUE(assistant());
    EXPECT_EQ(assistant()->ownPriceLabel().replace(u'\u00a0', u' '), "Tu precio: 3,00 €");
    EXPECT_EQ(draft().brandPrices, before);
    prices->priceRecommendation(3); // a brand added by hand
    EXPECT_EQ(asked().calls.size(), 1U);
}

TEST_F(RecommendationTest, APlaceIsAskedWithWhatThereIsOfIt) {
    struct Case {
        std::optional<Placemark> place;
        const char* text;
        std::tuple<Int, QString, QString> asked;
    };
    const Case cases[] = {{Placemark{std::nullopt, "Madrid", {}, {}}, "Madrid", {110, "", "Madrid"}},
                          {Placemark{"28013", std::nullopt, {}, {}}, "28013", {110, "28013", ""}}};
    for (const Case& each : cases) {
        openStep();
        geocoder.placemark = each.place;
        prices->priceRecommendation(0);
        EXPECT_EQ(alert(), std::string("¿Desea utilizar la siguiente ubicación? | ") + each.text);
        press("Sí");
        EXPECT_EQ(asked().calls.back(), each.asked);
        asked().fail(lostAnswer());
        press("Aceptar");
    }
    openStep();
    geocoder.placemark = Placemark{{}, {}, "Madrid", {}};
    prices->priceRecommendation(0);
    EXPECT_TRUE(alert().starts_with("Error | No se ha podido obtener la localización. Habilite"));
}

TEST_F(RecommendationTest, EveryEndOfTheSearchForThePlaceTakesTheVeilAway) {
    geocoder.placemark.reset();
    geocoder.error = "no signal";
    prices->priceRecommendation(0);
    EXPECT_FALSE(veil.isVisible());
    EXPECT_EQ(alert(), "Error | No se ha podido obtener la localización. Habilite los permisos de ubicación "
                       "para la app.");
    EXPECT_EQ(alerts.current()->buttons[1].role, AlertButton::Role::Cancel) << "Escape looks no further";
    press("Reintentar");
    EXPECT_EQ(geocoder.asked.size(), 2U);
    locationService.available = false; // switched off meanwhile
    press("Reintentar");
    press("Aceptar");
    EXPECT_EQ(alert(), " | Indique la dirección completa (incluyendo número)");
    press("Cancelar");
    EXPECT_TRUE(nothingGoesOn());
    locationService.available = true;
    geocoder.error.reset(); // neither place nor error
    prices->priceRecommendation(0);
    EXPECT_TRUE(nothingGoesOn());
    EXPECT_TRUE(asked().calls.empty());
}

TEST_F(RecommendationTest, WithoutLocationTheUserTypesAnAddressThatStartsWithTheBars) {
    locationService.available = false;
    prices->priceRecommendation(1);
    EXPECT_EQ(alert(), " | No se puede utilizar la ubicación, está deshabilitada.");
    EXPECT_FALSE(veil.isVisible());
    press("Aceptar");
    EXPECT_EQ(alert(), " | Indique la dirección completa (incluyendo número)");
    EXPECT_EQ(alerts.fieldInitialText(), "28801, Alcalá");
    press("Usar", "  ");
    EXPECT_TRUE(searched().calls.empty());

    prices->priceRecommendation(1);
    press("Aceptar");
    press("Usar", "Calle Mayor 3");
    EXPECT_EQ(std::get<0>(searched().calls.back()), "Calle Mayor 3");
    EXPECT_TRUE(veil.isVisible());
    searched().succeed(addresses());
    EXPECT_FALSE(veil.isVisible());
    EXPECT_EQ(alert(), "Seleccione la opción más aproximada | ");
    EXPECT_EQ(alerts.choices(), QStringList({"Calle Mayor 3, Madrid", "Calle Mayor, Sevilla"}));
    alerts.answerChoice(1); // without "zip"
    EXPECT_TRUE(nothingGoesOn());
    EXPECT_TRUE(asked().calls.empty());
}

TEST_F(RecommendationTest, AnAddressIsLookedUpChosenAndAskedAbout) {
    prices->priceRecommendation(0);
    press("Especificar");
    press("Usar", "Calle Mayor 3");
    searched().fail(failureWith({"Sin resultados"}));
    EXPECT_FALSE(veil.isVisible());
    EXPECT_EQ(alert(),
              "No se puede obtener una lista de  ubicaciones a partir de la dirección. | Sin resultados");
    press("Aceptar");
    prices->priceRecommendation(0);
    press("Especificar");
    press("Usar", "Calle Mayor 3");
    searched().succeed(addresses());
    press("Cancelar");
    EXPECT_TRUE(nothingGoesOn());
    prices->priceRecommendation(0);
    press("Especificar");
    press("Usar", "Calle Mayor 3");
    searched().succeed(addresses());
    alerts.answerChoice(0);
    EXPECT_EQ(asked().calls.back(), std::make_tuple(Int(110), QString("28013"), QString("Madrid")));
}

TEST_F(RecommendationTest, ALostAnswerIsToldAndTheSecondTapAsksAgain) {
    prices->priceRecommendation(0);
    press("Sí");
    asked().fail(lostAnswer());
    EXPECT_FALSE(veil.isVisible());
    EXPECT_EQ(alert(), "No se han podido obtener respuesta del servicio orientaprecios. | no answer");
    press("Aceptar");
    answerRow(0);
    EXPECT_TRUE(assistant());
}

TEST_F(RecommendationTest, AnAnswerAfterTheVeilWasLeftShowsNothing) {
    prices->priceRecommendation(0);
    press("Sí");
    veil.leave();
    EXPECT_FALSE(veil.isVisible());
    asked().succeed(exampleAnswer());
    EXPECT_FALSE(assistant());
    EXPECT_FALSE(alerts.isVisible());
    prices->priceRecommendation(0);
    press("Sí");
    prices.reset(); // the user goes to another step
    EXPECT_FALSE(veil.isVisible());
    asked().succeed(exampleAnswer());
    EXPECT_FALSE(assistant());
}

TEST_F(RecommendationTest, ThePlaceHoldsForTheOtherRowsOfTheVisitUntilItIsChanged) {
    answerRow(0);
    EXPECT_EQ(assistant()->placeLabel(), "28013, Madrid");
    closeAssistant();
    geocoder.placemark = Placemark{"41001", "Sevilla", {}, {}};
    prices->priceRecommendation(2);
    EXPECT_FALSE(alerts.isVisible());
    EXPECT_EQ(asked().calls.back(), std::make_tuple(Int(100), QString("28013"), QString("Madrid")));
    asked().succeed(exampleAnswer());
    assistant()->changePlaceAction();
    EXPECT_FALSE(assistant());
    EXPECT_EQ(alert(), "¿Desea utilizar la siguiente ubicación? | 41001, Sevilla");
    press("Sí");
    EXPECT_EQ(asked().calls.back(), std::make_tuple(Int(100), QString("41001"), QString("Sevilla")));
    asked().succeed(exampleAnswer());
    closeAssistant();
    prices->priceRecommendation(0);
    asked().fail(failureWith({"Ese sitio no existe"})); // what the server refuses is not remembered
    press("Aceptar");
    prices->priceRecommendation(0);
    EXPECT_EQ(alert(), "¿Desea utilizar la siguiente ubicación? | 41001, Sevilla");
    press("No");
    openStep(); // another visit
    prices->priceRecommendation(0);
    EXPECT_TRUE(alerts.isVisible());
}

TEST_F(RecommendationTest, WithoutANetworkTheLastAnswerOfFormatAndPlaceIsShownWithItsDate) {
    network.reachable = false;
    prices->priceRecommendation(0);
    press("Sí");
    EXPECT_EQ(alert(), "Error | No hay conexión a internet.");
    press("Aceptar");
    prices->priceRecommendation(0);
    press("Especificar");
    press("Usar", "Calle Mayor 3");
    EXPECT_EQ(alert(), "Error | No hay conexión a internet.");
    press("Aceptar");
    EXPECT_TRUE(searched().calls.empty() && asked().calls.empty());

    network.reachable = true;
    answerRow(0);
    EXPECT_EQ(assistant()->keptLabel(), "");
    closeAssistant();
    network.reachable = false;
    openStep(); // of another run of the program
    prices->priceRecommendation(0);
    press("Sí");
    ASSERT_TRUE(assistant());
    const int shown = screens.rowCount();
    prices->priceRecommendation(0);
    EXPECT_EQ(screens.rowCount(), shown) << "a second tap shows nothing twice";
    const auto day =
        LocalDateTime::fromTime(std::time_t(clock.now().toSecsSinceEpoch())).text().substr(0, 16);
    EXPECT_EQ(assistant()->keptLabel().toStdString(), "Sin conexión: respuesta guardada del " + day);
    EXPECT_EQ(assistant()->brandLabel(), "Encina");
    closeAssistant();

    openStep();
    geocoder.placemark = Placemark{"41001", "Sevilla", {}, {}}; // of another place: those that there are
    prices->priceRecommendation(0);
    press("Sí");
    EXPECT_EQ(alerts.title(), "No hay conexión a internet.");
    EXPECT_EQ(alerts.choices(), QStringList(QString::fromStdString("28013, Madrid · " + day.substr(0, 10))));
    alerts.answerChoice(0);
    EXPECT_TRUE(assistant());
    closeAssistant();
    openStep();
    prices->priceRecommendation(1); // of another format there is nothing
    press("Sí");
    EXPECT_EQ(alert(), "Error | No hay conexión a internet.");
}

TEST_F(RecommendationTest, AFileOfAnswersThatDoesNotDecodeIsNoAnswer) {
    answerRow(0);
    closeAssistant();
    BackgroundFileWriter::shared().flush();
    const LogCapture log;
    folder.put("caches/priceRecommendations", R"({"recommendations":[{"product_id":"1"}]})");
    KeptRecommendations kept(folder / "caches");
    EXPECT_FALSE(kept.find(110, "28013", "Madrid"));
    EXPECT_EQ(log.startingWith("priceRecommendations: "), 1);
    for (Int format = 1; format <= Int(KeptRecommendations::maximum) + 5; ++format)
        kept.keep({format, "28013", "Madrid", {}, exampleAnswer()});
    kept.keep({7, "28013", "Madrid", {2026, 11, 22}, exampleAnswer()}); // once more
    BackgroundFileWriter::shared().flush();
    KeptRecommendations again(folder / "caches");
    EXPECT_FALSE(again.find(5, "28013", "Madrid")) << "the oldest go";
    EXPECT_TRUE(again.find(6, "28013", "Madrid"));
    EXPECT_EQ(again.of(7).size(), 1U);
    EXPECT_EQ(again.find(7, "28013", "Madrid")->date.year, 2026);
}

TEST_F(RecommendationTest, TheTableFillsItsLabelsAsFarAsTheyReach) {
    answerRow(0);
    EXPECT_EQ(joined(assistant()->rows()), "Mínimo | Más habitual | Máximo");
    EXPECT_EQ(joined(assistant()->columns()), "28013 | Madrid | Provincia | Comunidad | España");
    EXPECT_EQ(joined(assistant()->prices(0)), "- | 2,60 € | -") << "the number of menus is no price";
    EXPECT_EQ(joined(assistant()->brochureNumbers()), "3 |  | 120 | 1 | 900");
    const auto area = [this](int index) { return assistant()->areas().at(index).toMap(); };
    EXPECT_EQ(assistant()->areas().size(), 5);
    EXPECT_EQ(area(0)["least"], -1.0) << "no price, no place";
    EXPECT_NEAR(area(0)["usual"].toDouble(), 0.3, 1e-9);
    EXPECT_EQ(area(1)["greatest"], 1.0);
    EXPECT_EQ(area(1)["own"], 0.5) << "3 between 2 and 4";
    EXPECT_EQ(area(3)["menus"], "1 carta");
    EXPECT_EQ(area(1)["range"].toString().replace(u'\u00a0', u' '),
              "De 2,00 € a 4,00 €, lo más habitual 2,50 €, tu precio 3,00 €");

    PriceRecommendationResponse bare;
    bare.files = {"Precios"};
    bare.table = {{"2"}, {std::nullopt}};
    Assistant empty({110, {}, bare, {}}, 0);
    empty.viewWillAppear();
    EXPECT_TRUE(empty.rows().isEmpty() && empty.brandLabel().isEmpty());
    EXPECT_EQ(empty.areas().size(), 2);
    bare.table.push_back({});
    Assistant broken({110, {}, bare, {}}, 0);
    EXPECT_EXIT(broken.viewWillAppear(), testing::ExitedWithCode(70), "area 2 of the price recommendation");
}

TEST_F(RecommendationTest, TheTableStandsInThreeSizesAndIsLeftByKeyboard) {
    QQmlEngine registering;
    registerScreens(registering); // for the whole process
    for (const QSize size : {QSize(1024, 768), QSize(768, 1024), QSize(390, 844)}) {
        Assistant shown({110, {"28013", "Madrid"}, exampleAnswer(), LocalDateTime{2026, 11, 22}}, 3);
        shown.viewWillAppear();
        int closed = 0;
        Int changed = 0;
        QObject::connect(&shown, &ScreenController::closed, [&closed] { ++closed; });
        QObject::connect(&shown, &Assistant::placeChangeRequested,
                         [&changed](Int format) { changed = format; });
        UiScene scene(QStringLiteral("Loader { anchors.fill: parent; focus: true\n"
                                     "Component.onCompleted: setSource(\"%1\", { controller: assistant }) }")
                          .arg(screenView("BrochurePriceAssistantView").toString()),
                      size, {{QStringLiteral("assistant"), &shown}});
        EXPECT_TRUE(scene.isOnShow(QStringLiteral("keptAnswer")));
        EXPECT_TRUE(scene.item(QStringLiteral("priceArea4")));
        scene.item(QStringLiteral("changePlace"))->forceActiveFocus(Qt::TabFocusReason);
        scene.key(Qt::Key_Return);
        EXPECT_EQ(changed, 110);
        scene.key(Qt::Key_Escape);
        EXPECT_EQ(closed, 2);
        EXPECT_TRUE(scene.warnings().isEmpty()) << joined(scene.warnings());
    }
}

} // namespace
} // namespace kavor

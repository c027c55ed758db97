#include "brochures/wizard/StepFixture.h"
#include "brochures/wizard/style/BrochureStyleSelectorViewController.h"

namespace kavor {
namespace {

class StyleStep : public StepTest {
protected:
    std::unique_ptr<BrochureStyleSelectorViewController> step;

    void SetUp() override {
        StepTest::SetUp();
        auto& style = addStyle(50, BrochureType::beer, 2);
        style.logotypeIdentifiers = {1, 2, 3, 4};
        style.preferredBrands = {10};
        addStyle(51, BrochureType::beer, 1);
        builder.brochures().styles.front().position = 9; // the builder's own, 1
    }
    Brochures::Style& addStyle(Int id, BrochureType kind, Int place) {
        auto& style = builder.brochures().styles.emplace_back();
        style.id = id;
        style.name = "Estilo " + std::to_string(id);
        style.typeId = static_cast<Int>(kind);
        style.position = place;
        style.firstImage = resource("front");
        style.secondImage = resource("back");
        return style;
    }
    void appear(bool digital = false) {
        session.isSectionDigital = digital;
        step = std::make_unique<BrochureStyleSelectorViewController>(services, nullptr);
        step->viewDidLoad();
        step->viewWillAppear();
    }
    void show(BrochureType kind = BrochureType::beer) {
        open(kind);
        appear();
    }
    [[nodiscard]] std::vector<Int> offered() const {
        std::vector<Int> ids;
        for (int row = 0; row < step->gallery()->covers()->count(); ++row)
            ids.push_back(step->gallery()->covers()->coverAt(row)->id);
        return ids;
    }
    using Ids = std::vector<Int>;
};

TEST_F(StyleStep, OffersTheStylesOfTheKindByPosition) {
    show();
    EXPECT_EQ(offered(), (Ids{51, 50, 1}));
    EXPECT_EQ(step->gallery()->selectedAndTotalNumberOfStylesLabel(), "1 / 3");
    EXPECT_EQ(draft().selectedStyleIdentifier, 51);

    builder.brochures().blackboardFormats.front().typeId = 7;
    addStyle(60, BrochureType::chalkboard, 1).blackboardFormatTypeId = 7;
    addStyle(61, BrochureType::chalkboard, 2).blackboardFormatTypeId = 8;
    show(BrochureType::chalkboard);
    EXPECT_EQ(offered(), Ids{});
    EXPECT_EQ(step->emptyMessage(), "Debes elegir un formato para la pizarra en configuración.");
    EXPECT_EQ(draft().selectedStyleIdentifier, std::nullopt);
    draft().setBlackboardFormat(1);
    appear();
    EXPECT_EQ(offered(), Ids{60});
}

TEST_F(StyleStep, KeepsThePaperAndTheOnlineStyleApart) {
    open(BrochureType::beer);
    draft().selectedStyleIdentifier = 50;
    draft().setLogos(1, 2, 3, 1, 2, 3);
    appear(true);
    step->gallery()->carouselCurrentItemIndexDidChange(2);
    EXPECT_EQ(draft().selectedStyleDigitalIdentifier, 1);
    EXPECT_EQ(draft().selectedStyleIdentifier, 50);
    EXPECT_TRUE(draft().selectedLogoIdentifiers); // the online style neither shows nor clears the logos
    EXPECT_FALSE(step->logos()->isVisible());
    appear();
    EXPECT_EQ(step->gallery()->current(), 1);
    EXPECT_EQ(draft().selectedStyleDigitalIdentifier, 1);
    const auto stored = temporaryCopy();
    ASSERT_TRUE(stored);
    EXPECT_EQ(stored->menu.style, 50);
    EXPECT_EQ(stored->menu.styleDigital, 1);
}

TEST_F(StyleStep, ClearsTheLogosWithANewStyleAndWritesThoseOfThePickers) {
    open(BrochureType::beer);
    draft().selectedStyleIdentifier = 50;
    draft().setLogos(3, 2, 1, 1, 2, 3);
    appear();
    ASSERT_TRUE(step->logos()->isVisible());
    EXPECT_EQ(step->logos()->firstBrandPicker(), 2);
    EXPECT_TRUE(draft().selectedLogoIdentifiers);
    step->logos()->choose(0, 3);
    EXPECT_EQ(draft().selectedLogoIdentifiers, (BrochureIntermediateData::LogoIdentifiers{4, 2, 1, 1, 2, 3}));

    step->gallery()->carouselCurrentItemIndexDidChange(2); // style 1, with logos too
    EXPECT_FALSE(draft().selectedLogoIdentifiers);
    step->serializeAutoSave(); // leaving writes what the pickers show: three different logos
    EXPECT_EQ(draft().selectedLogoIdentifiers, (BrochureIntermediateData::LogoIdentifiers{1, 2, 3, 1, 2, 3}));

    step->gallery()->carouselCurrentItemIndexDidChange(0); // style 51, without logos
    EXPECT_FALSE(step->logos()->isVisible());
    step->serializeAutoSave();
    EXPECT_FALSE(draft().selectedLogoIdentifiers);
}

TEST_F(StyleStep, AsksForTheQuantitiesAsTheKindSays) {
    struct Case {
        BrochureType kind;
        Ids range;
        bool second;
        const char* secondLabel;
        BrochureIntermediateData::MainAndSecondary stored;
    };
    const Case cases[] = {
        {BrochureType::beer, {}, false, "", {30, std::nullopt}},
        {BrochureType::chalkboard, {}, true, "Nº de pizarras 2º PVP recomendado*", {30, 7}},
        {BrochureType::mantel, {25, 50, 75}, true, "Nº de manteles 2º PVP recomendado*", {50, 75}},
    };
    for (const Case& each : cases) {
        builder.parameters(each.kind).rangeOrderQuantity = each.range;
        builder.type(each.kind).isSecondBrochuresPriceAllowed = each.second;
        open(each.kind);
        draft().setSecondPrice(PriceType::terrace); // without the kind's leave it counts for nothing
        appear();
        auto& form = *step->quantities();
        EXPECT_EQ(form.numberOfBrochuresSecondLabel().toStdString(), each.secondLabel);
        EXPECT_EQ(form.quantities().size(), int(each.range.size()));
        form.type(0, "30");
        form.type(1, "7");
        form.choose(0, 1);
        form.choose(1, 2);
        EXPECT_EQ(draft().selectedNumberOfBrochures, each.stored);
        appear(); // and they are found again
        step->serializeAutoSave();
        EXPECT_EQ(draft().selectedNumberOfBrochures, each.stored);
    }
    step->quantities()->type(0, "");
    EXPECT_EQ(step->quantities()->selectorQuantity1Picker(), 1); // a picker is in use: the field isn't read
    builder.parameters(BrochureType::beer).checkUnitsNumber = false;
    open(BrochureType::beer);
    draft().selectedNumberOfBrochures = {3, std::nullopt};
    appear();
    step->serializeAutoSave();
    EXPECT_FALSE(step->quantities()->isVisible());
    EXPECT_EQ(draft().selectedNumberOfBrochures->main, 3); // what isn't shown isn't written
}

TEST_F(StyleStep, MarksAQuantityOutOfRangeWhereItIsTyped) {
    builder.type(BrochureType::beer).isSecondBrochuresPriceAllowed = true;
    open(BrochureType::beer);
    draft().setSecondPrice(PriceType::terrace);
    appear();
    auto& form = *step->quantities();
    const auto* range = "Se pueden pedir de 5 a 50.";
    EXPECT_EQ(form.numberBrochuresError(), ""); // nothing typed is not wrong
    form.type(0, "2");
    EXPECT_EQ(form.numberBrochuresError(), ""); // it may become 25
    form.leave(0);
    EXPECT_EQ(form.numberBrochuresError(), range);
    form.type(0, "25");
    EXPECT_EQ(form.numberBrochuresError(), "");
    form.type(0, "251");
    EXPECT_EQ(form.numberBrochuresError(), range);
    form.type(1, "51");
    EXPECT_EQ(form.secondPriceNumberBrochuresError(), range);
    appear(); // also when it was stored so
    EXPECT_EQ(step->quantities()->numberBrochuresError(), range);
    builder.parameters(BrochureType::beer).multiPrices = false;
    session.applicationInformation = builder.take();
    appear();
    EXPECT_EQ(step->quantities()->secondPriceNumberBrochuresError(), ""); // it isn't checked then
    draft().includePaperBrochure = false;
    appear();
    EXPECT_EQ(step->quantities()->numberBrochuresError(), "");
}

TEST_F(StyleStep, KeepsAndMarksAStoredQuantityThatIsNoLongerOffered) {
    auto& limits = builder.information.validations;
    limits.lstMenuQrTableQuantity = {10, 20};
    limits.lstMenuQrDoorQuantity = {1, 2};
    builder.parameters(BrochureType::beer).rangeOrderQuantity = {25, 50};
    builder.parameters(BrochureType::beer).withTaco = true;
    open(BrochureType::beer);
    draft().selectedNumberOfBrochures = {30, std::nullopt};
    draft().selectedQuantityQr = 15;
    appear(true);
    EXPECT_EQ(step->quantities()->selectorQuantity1Picker(), -1);
    EXPECT_EQ(step->quantities()->numberBrochuresError(),
              "30 no está entre las cantidades disponibles (de 25 a 50).");
    auto& qr = *step->brandQr();
    EXPECT_EQ(qr.tableError(), "15 no está entre las cantidades disponibles (de 10 a 20).");
    EXPECT_EQ(qr.doorError(), "");
    step->serializeAutoSave();
    EXPECT_EQ(draft().selectedNumberOfBrochures->main, 30);
    EXPECT_EQ(draft().selectedQuantityQr, 15);
    step->quantities()->choose(0, 1);
    EXPECT_EQ(step->quantities()->numberBrochuresError(), "");
    qr.chooseType(1); // takes the vinyls away
    qr.chooseType(0);
    EXPECT_EQ(qr.tableError(), "");
    EXPECT_EQ(draft().selectedQuantityQr, 10);
}

TEST_F(StyleStep, OffersTheQrMaterialOfTheSelectedBrandsInTheDigitalSection) {
    auto& limits = builder.information.validations;
    limits.lstMenuQrTableQuantity = {0, 10, 20};
    limits.lstMenuQrDoorQuantity = {1, 2};
    limits.lstMenuQrTacoQuantity = {5, 6};
    auto& qrs = builder.brochures().brandQrs;
    constexpr auto beer = ApplicationFather::orderBeer;
    qrs = {{1, 1, "Encina", resource("e"), resource("et"), 11, beer},
           {2, 2, "Roble", resource("r"), resource("rt"), 10, beer},
           {3, 3, "Tinto", resource("t"), resource("tt"), 12, ApplicationFather::orderWine}};
    for (const bool withTaco : {false, true}) {
        builder.parameters(BrochureType::beer).withTaco = withTaco;
        open(BrochureType::beer);
        draft().brandQrTypeSelected = 1; // of an earlier menu
        draft().setFormatSelected(true, 100, 10);
        draft().setFormatSelected(true, 120, 12);
        appear(true);
        auto& form = *step->brandQr();
        EXPECT_EQ(joined(form.brandQrTypes()),
                  withTaco ? "Vinilos para mesa y puerta | Tacos de madera" : "Vinilos para mesa y puerta");
        EXPECT_EQ(form.isWooden(), withTaco);
        EXPECT_EQ(form.brands().size(), 1);
        EXPECT_EQ(draft().selectedBrandQrIdentifier, 2);
        form.chooseType(0);
        form.chooseQuantity(BrandQrForm::Table, 2);
        EXPECT_EQ(draft().selectedQuantityQr, 20);
        EXPECT_EQ(draft().selectedQuantityQrCircular, 1);
        form.chooseType(1);
        step->serializeAutoSave();
        EXPECT_EQ(draft().brandQrTypeSelected, withTaco ? 1 : 0);
        EXPECT_EQ(draft().selectedQuantityQrTaco, withTaco ? std::optional<Int>(5) : std::nullopt);
        EXPECT_EQ(draft().selectedQuantityQr, withTaco ? std::nullopt : std::optional<Int>(20));
    }
    appear(false);
    EXPECT_FALSE(step->brandQr()->isVisible());
    draft().printDigitalBrochure = false;
    appear(true);
    EXPECT_FALSE(step->brandQr()->isVisible());
}

TEST_F(StyleStep, ShowsTheBannerOnlyWhenAPreferredBrandIsSelectedAndUntilItIsClosed) {
    int closed = 0;
    const auto observer = NotificationCenter::shared().observe(notification::preferredBrandsBannerClosed,
                                                               [&](const auto&) { ++closed; });
    for (const bool selected : {false, true}) {
        open(BrochureType::beer);
        if (selected)
            draft().setFormatSelected(true, 100, 10);
        appear();
        EXPECT_FALSE(step->isBannerVisible());
        NotificationCenter::shared().post(notification::showPreferredBrandsBanner);
        EXPECT_EQ(step->isBannerVisible(), selected);
        EXPECT_EQ(joined(column(*step->gallery()->covers(), CoverModel::PreferredRole)),
                  selected ? "false | true | false" : "false | false | false");
    }
    step->bannerCloseAction();
    EXPECT_FALSE(step->isBannerVisible());
    EXPECT_EQ(closed, 1);
}

TEST_F(StyleStep, WritesTheAttributesOfTheChosenStylesAndNoOthers) {
    builder.information.attributesTypes = {{1, "Texto", {}, {}, "text"}, {2, "Logotipo", {}, {}, "image"}};
    auto& style = *std::ranges::find(builder.brochures().styles, Int(50), &Brochures::Style::id);
    style.attributesList = {{1, "Lema", 20, 1, {}},
                            {2, "Acabado", 0, 4, {{7, "Brillo", 2}, {8, "Mate", 1}}},
                            {3, "Logotipo", 0, 2, {}}};
    using Value = SaveBrochuresOrder::Menu::MenuStyleAttribute;
    open(BrochureType::beer);
    draft().selectedStyleIdentifier = 50;
    draft().selectedStyleDigitalIdentifier = 1;
    draft().valuesMenuStyleAttributes = {{9, 1, "online", std::nullopt}, {9, 77, "de antes", std::nullopt}};
    draft().customerInformation.emplace().imageLogo = "data:image/png;base64,AAAA";
    appear();
    auto& table = *step->attributeTable();
    EXPECT_EQ(joined(column(table, StyleAttributesModel::KindRole)),
              "attributeCell | pickerAttributeCell | imageAttributeCell");
    table.type(0, "La caña bien tirada");
    table.choose(1, 0);
    table.switchImage(2, true);
    const std::vector<Value> expected = {{9, 1, "online", std::nullopt},
                                         {1, 50, "La caña bien tirada", std::nullopt},
                                         {2, 50, "Mate", 8},
                                         {3, 50, "data:image/png;base64,AAAA", std::nullopt}};
    EXPECT_EQ(draft().valuesMenuStyleAttributes, expected);
    appear();
    auto& again = *step->attributeTable();
    EXPECT_EQ(again.data(again.index(1), StyleAttributesModel::ChoiceRole).toInt(), 0);
    again.switchImage(2, false);
    EXPECT_EQ(draft().valuesMenuStyleAttributes->size(), 3u);
    step->gallery()->carouselCurrentItemIndexDidChange(0);
    step->serializeAutoSave();
    EXPECT_EQ(draft().valuesMenuStyleAttributes, (std::vector<Value>{{9, 1, "online", std::nullopt}}));
}

TEST_F(StyleStep, TurnsACoverOverAndZoomsFromTheSideOnShow) {
    show();
    auto& styles = *step->gallery()->covers();
    const auto front = styles.data(styles.index(0), CoverModel::ImageRole);
    step->gallery()->flipStyleButtonAction();
    EXPECT_NE(styles.data(styles.index(0), CoverModel::ImageRole), front);
    step->gallery()->zoomStyleButtonAction();
    ASSERT_NE(step->gallery()->zoom(), nullptr);
    EXPECT_EQ(step->gallery()->zoom()->imagenCount(), "2 / 2");
    step->gallery()->zoom()->rightButtonAction(); // there is no further page
    EXPECT_EQ(step->gallery()->zoom()->imagenCount(), "2 / 2");
    step->gallery()->zoom()->leftButtonAction();
    EXPECT_EQ(step->gallery()->zoom()->imagenCount(), "1 / 2");
    EXPECT_EQ(step->gallery()->zoom()->image(), front);
    step->gallery()->closeZoom();
    EXPECT_EQ(step->gallery()->zoom(), nullptr);
}

} // namespace
} // namespace kavor

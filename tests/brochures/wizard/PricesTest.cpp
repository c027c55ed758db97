#include "brochures/wizard/StepFixture.h"
#include "brochures/wizard/prices/BrochurePriceSetterViewController.h"

#include <QSignalSpy>

namespace kavor {
namespace {

using Table = PriceTableModel;

const char* const reminder = "Recuerda que has de marcar las referencias que sean nuevas para este cliente.";

class PriceStep : public StepTest {
protected:
    std::unique_ptr<BrochurePriceSetterViewController> step;

    void SetUp() override {
        StepTest::SetUp();
        builder.type(BrochureType::beer).isSecondBrochuresPriceAllowed = true;
        builder.product(11).position = 2;
        builder.product(10).position = 1;
    }
    void appear() {
        step = std::make_unique<BrochurePriceSetterViewController>(services, nullptr);
        step->viewDidLoad();
        step->viewWillAppear();
    }
    // Opens the step on a beer menu with all four beer formats.
    void openWithAll(std::optional<PriceType> second = std::nullopt) {
        open(BrochureType::beer);
        draft().setSecondPrice(second);
        for (const Int format : {110, 111})
            draft().setFormatSelected(true, format, 11);
        for (const Int format : {100, 101})
            draft().setFormatSelected(true, format, 10);
        draft().defaultHighlightedElementVisited = true;
        appear();
        dismissAlert();
    }
    void dismissAlert() { alerts.answerButton(0); }
    [[nodiscard]] std::string rows() const {
        QStringList result;
        for (const PriceRow& row : step->productsPerBrandsSelected())
            result << QString::fromStdString(row.brandName + " " + row.productName);
        return joined(result);
    }
    [[nodiscard]] std::string shown(int role) const { return joined(column(*step->table(), role)); }
    [[nodiscard]] std::string pictures() const {
        return joined({step->orderByBrandPicture(), step->orderByFormatPicture(),
                       step->orderByPrimaryPicture(), step->orderBySecondaryPicture()});
    }
};

TEST_F(PriceStep, ListsTheSelectedFormatsOfTheFamilyInCatalogueOrder) {
    open(BrochureType::beer);
    draft().setFormatSelected(true, 100, 10);
    draft().setFormatSelected(true, 120, 12); // a wine
    draft().setFormatSelected(true, 111, 11);
    draft().setFormatSelected(true, 110, 11);
    appear();
    EXPECT_EQ(rows(), "Encina Tercio | Encina Jarra | Roble Tercio");
    EXPECT_EQ(shown(Table::PrimaryTextRole), "3,00\u00a0€ | 5,50\u00a0€ | 2,50\u00a0€");
    EXPECT_EQ(shown(Table::PrimaryEditRole), "3 | 5,5 | 2,5");
    EXPECT_TRUE(temporaryCopy());
}

TEST_F(PriceStep, ATagOutsideTheTableTouchesNothing) {
    openWithAll(PriceType::terrace);
    const auto before = draft().brandPrices;
    for (const int tag : {-1, 99, 108, 500})
        step->priceFieldDidEndEditing(tag, "1");
    EXPECT_EQ(draft().brandPrices, before);
}

TEST_F(PriceStep, ShowsZeroAndKeepsTheOldPriceForWhatIsNoNumber) {
    struct Case {
        const char* typed;
        const char* shown;
        double price;
    };
    const Case cases[] = {{"3,5", "3,50\u00a0€", 3.5},
                          {"4.25", "4,25\u00a0€", 4.25},
                          {"0", "0,00\u00a0€", 0},
                          {"", "0,00\u00a0€", 3.0},
                          {"tres", "0,00\u00a0€", 3.0}};
    for (const Case& each : cases) {
        openWithAll();
        step->priceFieldDidEndEditing(100, QString::fromUtf8(each.typed));
        EXPECT_EQ(
            step->table()->data(step->table()->index(0), Table::PrimaryTextRole).toString().toStdString(),
            each.shown)
            << each.typed;
        EXPECT_EQ(draft().priceOf(PriceType::main, 110, 11), each.price) << each.typed;
    }
    EXPECT_EQ(Table::editForm("1.234,50\u00a0€"), "1234,5");
    EXPECT_EQ(Table::editForm("nada"), "nada");
}

TEST_F(PriceStep, SortsByItsButtonsAndPaintsTheirPictures) {
    openWithAll(PriceType::night);
    EXPECT_EQ(step->orderBySecondaryTitle(), "Noche Rec");
    step->priceFieldDidEndEditing(101, "7"); // night price of Encina Tercio
    const std::string byPosition = "Roble Tercio | Roble Caña | Encina Tercio | Encina Jarra";
    const std::string byBrand = "Encina Tercio | Encina Jarra | Roble Tercio | Roble Caña";
    struct Press {
        void (BrochurePriceSetterViewController::*button)();
        std::string rows;
        const char* pictures;
    };
    using Step = BrochurePriceSetterViewController;
    const Press presses[] = {
        {&Step::orderByBrandButton, byBrand, "sort_ascendant | sort_both | sort_both | sort_both"},
        {&Step::orderByBrandButton, byPosition, "sort_descendant | sort_both | sort_both | sort_both"},
        {&Step::orderByPrimaryPVPButton, "Roble Caña | Roble Tercio | Encina Tercio | Encina Jarra",
         "sort_descendant | sort_both | sort_ascendant | sort_both"}, // the brand's picture stays
        {&Step::orderBySecondaryPVPButton, "Roble Caña | Roble Tercio | Encina Jarra | Encina Tercio",
         "sort_descendant | sort_both | sort_both | sort_ascendant"},
        {&Step::orderByPrimaryPVPButton, "Encina Jarra | Encina Tercio | Roble Tercio | Roble Caña",
         "sort_descendant | sort_both | sort_descendant | sort_both"},
        {&Step::orderByFormatButton, "Roble Caña | Encina Jarra | Encina Tercio | Roble Tercio",
         "sort_both | sort_ascendant | sort_both | sort_both"},
        {&Step::orderByBrandButton, byPosition,
         "sort_both | sort_both | sort_both | sort_both"}, // its status stayed
    };
    int number = 0;
    for (const Press& press : presses) {
        std::invoke(press.button, *step);
        EXPECT_EQ(pictures(), press.pictures) << number;
        if (++number < 7)
            EXPECT_EQ(rows(), press.rows) << number;
        else // a stable sort: within a brand the order of before
            EXPECT_EQ(rows(), "Roble Caña | Roble Tercio | Encina Jarra | Encina Tercio");
    }
}

TEST_F(PriceStep, GoesByTheRebuiltRowsAfterAnEditInASortedTable) {
    openWithAll();
    step->orderByPrimaryPVPButton();
    EXPECT_EQ(shown(Table::TypeRole), "Caña | Tercio | Tercio | Jarra");
    step->priceFieldDidEndEditing(103, "6");
    EXPECT_EQ(draft().priceOf(PriceType::main, 111, 11), 6);
    EXPECT_EQ(rows(), "Encina Tercio | Encina Jarra | Roble Tercio | Roble Caña");
    EXPECT_EQ(shown(Table::TypeRole), "Caña | Tercio | Tercio | Jarra"); // the table isn't reloaded
    step->priceFieldDidEndEditing(103, "8");
    EXPECT_EQ(draft().priceOf(PriceType::main, 111, 11), 6);
    EXPECT_EQ(draft().priceOf(PriceType::main, 101, 10), 8); // row 3 of the rebuilt rows
}

TEST_F(PriceStep, TheButtonsOfARowActOnWhatItShowsAlsoAfterAnEditInASortedTable) {
    auto& format = builder.product(10).productList[1];
    format.minimumVolume = 20;
    openWithAll();
    step->orderByPrimaryPVPButton();
    EXPECT_EQ(shown(Table::TypeRole), "Caña | Tercio | Tercio | Jarra");
    step->priceFieldDidEndEditing(103, "6"); // the rows begin with the other brand by now
    step->newProductButton(0);
    EXPECT_EQ(draft().isNewProduct(101, 10), true);
    EXPECT_EQ(shown(Table::NewProductRole), "true | false | false | false");
    step->editVolumeButton(0);
    EXPECT_EQ(step->volumeEditor()->formatLabel(), "Roble - Caña");
    step->volumeEditor()->setSelectedRow(1);
    step->volumeEditor()->confirm();
    EXPECT_EQ(draft().volumeOf(101, 10), 20);
    EXPECT_EQ(shown(Table::VolumeTextRole), "20 cl |  |  | ");
    EXPECT_EQ(shown(Table::TypeRole), "Caña | Tercio | Tercio | Jarra");
    step->deleteProductButton(0);
    EXPECT_EQ(alert(), "Atención | ¿Desea borrar Roble - Caña");
    alerts.answerButton(1);
    EXPECT_EQ(draft().isFormatSelected(101, 10), SelectionState::notSelected);
    EXPECT_EQ(rows(), "Encina Tercio | Encina Jarra | Roble Tercio");
}

TEST_F(PriceStep, ProposesTheDefaultHighlightOnceInTheLifeOfADraft) {
    builder.product(11).productList[1].positionHighlightable = 2;
    builder.product(10).productList[0].positionHighlightable = 1;
    builder.parameters(BrochureType::beer).maxBrandSelection = 10;
    open(BrochureType::beer);
    for (const Int format : {110, 111})
        draft().setFormatSelected(true, format, 11);
    draft().setFormatSelected(true, 100, 10);
    appear();
    EXPECT_EQ(alert(),
              "Atención | " + std::string(reminder) + "\nSe ha seleccionado Roble - Tercio por defecto.");
    dismissAlert();
    auto& zone = *step->highlight();
    EXPECT_EQ(zone.currentIndex(), 3);
    EXPECT_EQ(zone.brandAndProductHighlightedLabel(), "Roble - Tercio");
    EXPECT_EQ(draft().isFormatHighlighted(100, 10), SelectionState::selected);

    zone.carouselCurrentItemIndexDidChange(2);
    EXPECT_EQ(draft().isFormatHighlighted(111, 11), SelectionState::selected);
    EXPECT_EQ(draft().isFormatHighlighted(100, 10), SelectionState::notSelected);
    appear(); // a new visit finds it again
    EXPECT_EQ(step->highlight()->brandAndProductHighlightedLabel(), "Encina - Jarra");
    dismissAlert();

    step->highlight()->carouselCurrentItemIndexDidChange(0);
    EXPECT_TRUE(draft().highlightedBrands.empty());
    appear();
    EXPECT_EQ(alert(), "Atención | " + std::string(reminder));
    EXPECT_EQ(step->highlight()->brandAndProductHighlightedLabel(), "Sin producto destacado");
    EXPECT_EQ(step->highlight()->currentIndex(), 0);
}

TEST_F(PriceStep, CountsThePlacesThatAHighlightNeeds) {
    struct Case {
        Int maximum, places;
        int brands;
        bool highlighted;
        const char* text; // empty: there is room
    };
    const Case cases[] = {
        {10, 2, 8, false, ""},
        {10, 2, 9, false, "Deseleccione al menos 1 marcas para poder destacar uno"},
        {10, 2, 10, false, "Deseleccione al menos 2 marcas para poder destacar uno"},
        {10, 2, 6, true, ""},
        {10, 2, 8, true, "Deseleccione al menos 2 marcas para poder destacar uno"},
        {10, 0, 10, false, ""},
    };
    for (int i = 0; i < 10; ++i)
        builder.brand(200 + i, "Marca " + std::to_string(i))
            .format(2000 + i, "Caña", 2.0)
            .format(3000 + i, "Tubo", 2.0);
    for (const Case& each : cases) {
        builder.parameters(BrochureType::beer).maxBrandSelection = each.maximum;
        builder.parameters(BrochureType::beer).highLightedNumber = each.places;
        open(BrochureType::beer);
        for (int i = 0; i < each.brands; ++i) { // two formats of a brand count as one
            draft().setFormatSelected(true, 2000 + i, 200 + i);
            draft().setFormatSelected(true, 3000 + i, 200 + i);
        }
        if (each.highlighted)
            draft().setFormatHighlighted(true, 2000, 200);
        appear();
        dismissAlert();
        const auto& zone = *step->highlight();
        const bool room = *each.text == '\0';
        EXPECT_EQ(zone.informationCarouselLabel().toStdString(),
                  room ? "Seleccione el producto que desee destacar" : each.text)
            << each.brands;
        EXPECT_EQ(zone.isCarouselEnabled(), room);
        EXPECT_EQ(zone.isFirstInformationVisible(), !room);
    }
}

TEST_F(PriceStep, TakesAHighlightBackThatTheCarouselNoLongerCan) {
    builder.product(11).productList[0].positionHighlightable = 1;
    builder.parameters(BrochureType::beer).maxBrandSelection = 4;
    builder.parameters(BrochureType::beer).highLightedNumber = 2;
    open(BrochureType::beer);
    draft().setFormatSelected(true, 110, 11);
    draft().setFormatSelected(true, 100, 10);
    draft().setFormatHighlighted(true, 100, 10);
    appear();
    dismissAlert();
    auto& zone = *step->highlight();
    EXPECT_FALSE(zone.isCarouselEnabled()); // the highlight itself takes the room
    EXPECT_TRUE(zone.isRemoveHighlightVisible());
    zone.removeHighlight();
    EXPECT_TRUE(draft().highlightedBrands.empty());
    EXPECT_EQ(zone.currentIndex(), 0);
    EXPECT_EQ(zone.brandAndProductHighlightedLabel(), "Sin producto destacado");
    EXPECT_TRUE(zone.isCarouselEnabled());
    EXPECT_FALSE(zone.isRemoveHighlightVisible());
    EXPECT_FALSE(temporaryCopy()->menu.highlightedProductIdentifier);
    appear(); // what the user took back is not proposed
    EXPECT_EQ(alert(), "Atención | " + std::string(reminder));
    dismissAlert();
    step->highlight()->carouselCurrentItemIndexDidChange(1);
    EXPECT_FALSE(step->highlight()->isRemoveHighlightVisible()); // the carousel can take it back
}

TEST_F(PriceStep, ProposesNoHighlightForWhichThereIsNoRoomYet) {
    builder.product(11).productList[0].positionHighlightable = 1;
    builder.parameters(BrochureType::beer).maxBrandSelection = 3;
    builder.parameters(BrochureType::beer).highLightedNumber = 2;
    open(BrochureType::beer);
    draft().setFormatSelected(true, 110, 11);
    draft().setFormatSelected(true, 100, 10);
    appear();
    EXPECT_EQ(alert(), "Atención | " + std::string(reminder));
    EXPECT_TRUE(draft().highlightedBrands.empty());
    dismissAlert();
    draft().setFormatSelected(false, 100, 10);
    appear();
    EXPECT_EQ(alert(),
              "Atención | " + std::string(reminder) + "\nSe ha seleccionado Encina - Tercio por defecto.");
}

TEST_F(PriceStep, DeletesAFormatAfterAQuestionAndTakesItsHighlightAway) {
    openWithAll();
    step->highlight()->carouselCurrentItemIndexDidChange(2); // Encina Jarra
    step->deleteProductButton(1);
    EXPECT_EQ(alert(), "Atención | ¿Desea borrar Encina - Jarra");
    ASSERT_TRUE(press("No"));
    EXPECT_EQ(step->table()->count(), 4);
    step->deleteProductButton(1);
    EXPECT_EQ(alerts.current()->buttons[1].role, AlertButton::Role::Destructive);
    ASSERT_TRUE(press("Sí"));
    EXPECT_EQ(alerts.current(), nullptr); // the set-up runs without its alert
    EXPECT_EQ(rows(), "Encina Tercio | Roble Tercio | Roble Caña");
    EXPECT_EQ(shown(Table::TypeRole), "Tercio | Tercio | Caña");
    EXPECT_TRUE(draft().highlightedBrands.empty());
    EXPECT_EQ(step->highlight()->currentIndex(), 0);
    EXPECT_EQ(step->highlight()->rowCount(), 3);
    EXPECT_EQ(draft().isFormatSelected(111, 11), SelectionState::notSelected);
    const auto stored = temporaryCopy();
    ASSERT_TRUE(stored);
    EXPECT_EQ(stored->menu.beerBrands.at(1).beers.size(), 1u); // brand 11
}

TEST_F(PriceStep, MarksAFormatAsNewAndAsksForNoRecommendationOfAnOwnBrand) {
    builder.brand(-1, "Propia").format(-5, "Caña", 2.0);
    open(BrochureType::beer);
    draft().setFormatSelected(true, 110, 11);
    draft().setFormatSelected(true, -5, -1);
    appear();
    dismissAlert();
    EXPECT_EQ(shown(Table::RecommendationRole), "true | false");
    for (const bool wanted : {true, false}) {
        step->newProductButton(1);
        EXPECT_EQ(draft().isNewProduct(-5, -1), wanted);
        EXPECT_EQ(shown(Table::NewProductRole), wanted ? "false | true" : "false | false");
    }
    step->priceFieldDidEndEditing(101, "2,2");
    EXPECT_EQ(draft().priceOf(PriceType::main, -5, -1), 2.2);
}

TEST_F(PriceStep, OffersToLeaveThePricesOutUnlessTheKindRequiresThem) {
    openWithAll(PriceType::terrace);
    EXPECT_TRUE(step->isWithoutPriceVisible());
    EXPECT_TRUE(step->isPrimaryPriceVisible() && step->isSecondaryPriceVisible() &&
                step->isOrderBySecondaryVisible());
    step->withoutPriceSwitchChanged(true);
    EXPECT_TRUE(draft().withoutPriceBeer);
    EXPECT_TRUE(temporaryCopy()->menu.withoutPriceBeer);
    EXPECT_FALSE(step->isPrimaryPriceVisible() || step->isSecondaryPriceVisible() ||
                 step->isOrderBySecondaryVisible());
    appear();
    dismissAlert();
    EXPECT_TRUE(step->withoutPriceSwitch());

    builder.parameters(BrochureType::beer).requiredPriceBeer = true;
    session.applicationInformation = builder.take();
    appear();
    EXPECT_FALSE(step->isWithoutPriceVisible() || step->withoutPriceSwitch() || draft().withoutPriceBeer);
    EXPECT_TRUE(step->isPrimaryPriceVisible());
}

TEST_F(PriceStep, ShowsThePriceListThatTheKindNames) {
    builder.information.validations.archivePrice = resource("first");
    put(folder / "caches/PDFCache/doc.pdf", "%PDF");
    for (const char* column : {"archive_price_secondary", "archive_price_wine", "archive_price"}) {
        builder.parameters(BrochureType::beer).dtColumnFilePriceRecomended = column;
        open(BrochureType::beer);
        appear();
        dismissAlert();
        EXPECT_EQ(step->isArchivePriceVisible(), std::string(column) == "archive_price") << column;
    }
    const QSignalSpy previews(step.get(), &WizardStepViewController::previewRequested);
    step->showArchivePrice();
    ASSERT_EQ(previews.size(), 1);
    EXPECT_TRUE(previews[0][0].toUrl().isLocalFile());
}

TEST_F(PriceStep, EditsTheVolumeOfOneFormatWithinItsRange) {
    auto& format = builder.product(11).productList[0];
    const std::tuple<std::optional<Int>, std::optional<Int>, int> ranges[] = {
        {20, 23, 5}, {990, std::nullopt, 11}, {std::nullopt, 40, 1}};
    for (const auto& [minimum, maximum, rows] : ranges) {
        format.minimumVolume = minimum;
        format.maximumVolume = maximum;
        openWithAll();
        step->editVolumeButton(0);
        EXPECT_EQ(step->volumeEditor()->volumePicker().size(), rows);
        EXPECT_EQ(step->volumeEditor()->volumePicker().first(), "Vacío");
    }
    format.minimumVolume = 20;
    format.maximumVolume = 23;
    openWithAll();
    for (const int row : {2, 0}) {
        step->editVolumeButton(0);
        step->volumeEditor()->setSelectedRow(row);
        step->volumeEditor()->confirm();
        EXPECT_EQ(step->volumeEditor(), nullptr);
        EXPECT_EQ(draft().volumeOf(110, 11), row == 2 ? std::optional<Int>(21) : std::nullopt);
        EXPECT_EQ(shown(Table::VolumeTextRole), row == 2 ? "21 cl |  |  | " : " |  |  | ");
    }
    draft().setVolume(22, 110, 11);
    appear();
    dismissAlert();
    step->editVolumeButton(0);
    EXPECT_EQ(step->volumeEditor()->selectedRow(), 3);
    draft().setFormatSelected(false, 110, 11); // the draft refuses now
    step->volumeEditor()->confirm();
    EXPECT_EQ(alert(), "Atención | No se ha podido guardar el cambio.");
    EXPECT_NE(step->volumeEditor(), nullptr);
}

} // namespace
} // namespace kavor

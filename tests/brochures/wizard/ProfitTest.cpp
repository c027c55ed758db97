#include "base/BackgroundFileWriter.h"
#include "brochures/wizard/BrochureMenuViewController.h"
#include "brochures/wizard/StepViewFixture.h"
#include "brochures/wizard/prices/BrochurePriceSetterViewController.h"
#include "brochures/wizard/prices/profit/BrochureProfitAccountViewController.h"

namespace kavor {
namespace {

using Account = BrochureProfitAccountViewController;
using Rows = ProfitTableModel;

// A beer menu with Encina Tercio 3.00 and Jarra 5.50, Roble Tercio 2.50, Roble Caña without a price and a
// wine, Tinto Copa 12.00.
class ProfitTest : public StepViewTest<Account> {
protected:
    enum Column { Pvp, Net, Margin, Percent };

    void SetUp() override {
        StepTest::SetUp();
        builder.brand(ownBrand, "Casa").format(-10, "Jarra", 4.0);
    }
    void choose(std::initializer_list<std::pair<Int, Int>> formats) {
        open(BrochureType::beer);
        for (const auto& [format, brand] : formats)
            draft().setFormatSelected(true, format, brand);
    }
    void chooseAll() { choose({{110, 11}, {111, 11}, {100, 10}, {101, 10}, {120, 12}}); }
    void appear() {
        step = std::make_unique<Account>(services);
        step->viewWillAppear();
    }
    [[nodiscard]] int rowsOnShow() const { return step->table()->rowCount(); }
    // Types into the field of a row, as a view does.
    void type(Column column, int row, const char* text) {
        const int tag = int(column) * rowsOnShow() + row;
        step->fieldEdited(tag, QString::fromUtf8(text));
        step->fieldDidEndEditing(tag, QString::fromUtf8(text));
    }
    // The four texts of a row.
    [[nodiscard]] std::string texts(int row) const {
        QStringList result;
        for (const int role :
             {Rows::PvpTextRole, Rows::NetPriceTextRole, Rows::MarginTextRole, Rows::PercentTextRole})
            result
                << step->table()->data(step->table()->index(row), role).toString().replace(u'\u00a0', u' ');
        return joined(result);
    }
    [[nodiscard]] std::string names() const {
        QStringList result;
        for (const ProfitRow& row : step->productsPerBrand())
            result << QString::fromStdString(row.brandName + " " + row.productName);
        return joined(result);
    }
    [[nodiscard]] QVariant of(int row, int role) const {
        return step->table()->data(step->table()->index(row), role);
    }
    // What stands in the stored table.
    [[nodiscard]] std::string stored() const {
        BackgroundFileWriter::shared().flush();
        return folder.content("netPrices");
    }
};

TEST_F(ProfitTest, EverySelectedFormatWithAPriceHasARowInTheOrderOfTheCatalogue) {
    chooseAll();
    draft().setNetPrice(110, 11, 1.2);
    draft().setPrice(PriceType::main, 100, 10, 0); // and Caña has none
    appear();
    EXPECT_EQ(names(), "Encina Tercio | Encina Jarra | Tinto Copa");
    EXPECT_EQ(texts(0), "3,00 € | 1,20 € | 1,80 € | 60%");
    EXPECT_EQ(texts(1), "5,50 € | 0,00 € | 5,50 € | 100%");
    EXPECT_EQ(step->withoutNetPriceLabel(), "2 formatos sin precio neto");
    EXPECT_EQ(of(1, Rows::PercentTagRole), 3 * 3 + 1);
    choose({{101, 10}});
    appear();
    EXPECT_TRUE(step->isEmpty());
    step->fieldDidEndEditing(0, "1"); // no row, no field
}

TEST_F(ProfitTest, EachOfTheFourNumbersMovesTheOthers) {
    struct Case {
        Column column;
        const char* typed;
        const char* row;
    };
    // From a price of 3 and a cost of 1.2.
    const Case cases[] = {
        {Pvp, "4", "4,00 € | 1,20 € | 2,80 € | 70%"},
        {Net, "1,5", "3,00 € | 1,50 € | 1,50 € | 50%"},
        {Net, "6", "3,00 € | 6,00 € | -3,00 € | -100%"},
        {Margin, "0,8", "2,00 € | 1,20 € | 0,80 € | 40%"},
        {Margin, "-0,2", "1,00 € | 1,20 € | -0,20 € | -20%"},
        {Percent, "75", "4,80 € | 1,20 € | 3,60 € | 75%"},
        {Percent, "75%", "4,80 € | 1,20 € | 3,60 € | 75%"},
        {Percent, "-50 %", "0,80 € | 1,20 € | -0,40 € | -50%"},
        {Percent, "0", "1,20 € | 1,20 € | 0,00 € | 0%"},
        {Percent, "100", "∞ € | 1,20 € | ∞ € | 100%"},
        {Pvp, "0", "0,00 € | 1,20 € | -1,20 € | -∞%"},
        {Pvp, "nada", "0,00 € | 1,20 € | -1,20 € | -∞%"},
        {Net, "", "3,00 € | 0,00 € | 3,00 € | 100%"},
    };
    for (const Case& each : cases) {
        chooseAll();
        draft().setNetPrice(110, 11, 1.2);
        appear();
        type(each.column, 0, each.typed);
        EXPECT_EQ(texts(0), each.row) << each.column << ": " << each.typed;
        EXPECT_EQ(draft().priceOf(PriceType::main, 110, 11), 3.0) << "the menu keeps its price";
    }
    type(Pvp, 0, "0"); // of nothing that costs nothing
    EXPECT_EQ(texts(0), "0,00 € | 0,00 € | 0,00 € | NaN%");
}

TEST_F(ProfitTest, AFieldThatIsOnlyVisitedChangesNothing) {
    chooseAll();
    draft().setNetPrice(110, 11, 1.1);
    appear();
    type(Pvp, 0, "7"); // a percent of 84,2857...
    const ProfitRow before = step->productsPerBrand()[0];
    step->fieldDidEndEditing(3 * rowsOnShow(), of(0, Rows::PercentEditRole).toString());
    EXPECT_EQ(step->productsPerBrand()[0], before);
    type(Percent, 0, "100");
    step->fieldDidEndEditing(0, of(0, Rows::PvpEditRole).toString()); // "∞" is nothing that one can type
    EXPECT_EQ(texts(0), "∞ € | 1,10 € | ∞ € | 100%");
}

TEST_F(ProfitTest, SortsByItsSixButtonsWithWhatIsInfiniteLast) {
    chooseAll();
    for (const auto& [format, brand] : {std::pair<Int, Int>{110, 11}, {111, 11}, {100, 10}, {120, 12}})
        draft().setNetPrice(format, brand, 1);
    builder.product(11).position = 3;
    appear();
    type(Percent, 1, "100"); // Encina Jarra costs the world
    const std::string start = "Encina Tercio | Encina Jarra | Roble Tercio | Tinto Copa";
    EXPECT_EQ(names(), start) << "a row keeps its place after an edit";
    struct Press {
        void (Account::*button)();
        std::string rows;
        QString (Account::*picture)() const;
        const char* shows;
    };
    const Press presses[] = {
        {&Account::orderByPVP, "Roble Tercio | Encina Tercio | Tinto Copa | Encina Jarra",
         &Account::sortByPvpPicture, "sort_ascendant"},
        {&Account::orderByPVP, "Tinto Copa | Encina Tercio | Roble Tercio | Encina Jarra",
         &Account::sortByPvpPicture, "sort_descendant"},
        {&Account::orderByNetprice, "Tinto Copa | Encina Tercio | Roble Tercio | Encina Jarra",
         &Account::sortByNetPricePicture, "sort_ascendant"},
        {&Account::sortedByMargin, "Roble Tercio | Encina Tercio | Tinto Copa | Encina Jarra",
         &Account::sortByMarginPicture, "sort_ascendant"},
        {&Account::sortedByMarginPercent, "Roble Tercio | Encina Tercio | Tinto Copa | Encina Jarra",
         &Account::sortByMarginPercentPicture, "sort_ascendant"},
        {&Account::orderByBrandName, "Encina Tercio | Encina Jarra | Roble Tercio | Tinto Copa",
         &Account::sortByBrandPicture, "sort_ascendant"},
        {&Account::sortByFormatName, "Tinto Copa | Encina Jarra | Encina Tercio | Roble Tercio",
         &Account::sortByFormatPicture, "sort_ascendant"},
        {&Account::orderByBrandName, "Tinto Copa | Roble Tercio | Encina Jarra | Encina Tercio",
         &Account::sortByBrandPicture, "sort_descendant"},
    };
    for (const Press& press : presses) {
        std::invoke(press.button, *step);
        EXPECT_EQ(names(), press.rows);
        EXPECT_EQ(std::invoke(press.picture, *step), press.shows);
        QStringList pictures{step->sortByBrandPicture(),  step->sortByFormatPicture(),
                             step->sortByPvpPicture(),    step->sortByNetPricePicture(),
                             step->sortByMarginPicture(), step->sortByMarginPercentPicture()};
        EXPECT_EQ(pictures.count("sort_both"), 5) << press.shows;
    }
    type(Net, 0, "2"); // a tag goes by the rows as they stand now
    EXPECT_EQ(draft().netPriceOf(120, 12), 2);
}

TEST_F(ProfitTest, NetPricesAreKeptAfterEachEditAndTheRestLastsAsLongAsTheScreen) {
    choose({{110, 11}, {-10, ownBrand}});
    appear();
    type(Net, 0, "1,25");
    EXPECT_EQ(stored(), R"({"11":{"110":1.25}})") << "the user's own brands have no place in it";
    type(Net, 1, "2");
    type(Pvp, 0, "9");
    appear(); // left and come back
    EXPECT_EQ(texts(0), "3,00 € | 1,25 € | 1,75 € | 58,333%");
    EXPECT_EQ(texts(1), "4,00 € | 2,00 € | 2,00 € | 50%");
    EXPECT_EQ(stored(), R"({"11":{"110":1.25}})");
    EXPECT_EQ(BrochureIntermediateData().netPrices,
              (BrochureIntermediateData::NetPrices{{11, {{110, 1.25}}}}));
    folder.put("netPrices", R"({"-1":{"-10":2.0},"11":{"110":1.25}})"); // an older program wrote them all
    EXPECT_FALSE(BrochureIntermediateData().netPrices.contains(ownBrand));
}

TEST_F(ProfitTest, ANetPriceUnderTheFingersIsTakenHoweverTheScreenIsLeft) {
    choose({{110, 11}});
    appear();
    step->fieldEdited(1, "1,5");
    step->closeSceneAction();
    EXPECT_EQ(stored(), R"({"11":{"110":1.5}})");
    step->fieldEdited(1, "1,7");
    step.reset(); // the application ends
    EXPECT_EQ(stored(), R"({"11":{"110":1.7}})");
}

TEST_F(ProfitTest, TheBarAndTheMeanMoveWhileOneTypesAndGoBackWithTheText) {
    choose({{110, 11}, {111, 11}});
    draft().setNetPrice(110, 11, 1.5);
    draft().setNetPrice(111, 11, 1.1);
    appear();
    EXPECT_EQ(step->meanLabel(), "65 %");
    EXPECT_EQ(step->lowestLabel(), "50 % · Encina Tercio");
    step->fieldEdited(2, "2,7");
    EXPECT_NEAR(of(0, Rows::ShareRole).toDouble(), 0.1, 1e-9);
    EXPECT_EQ(of(0, Rows::NetPriceTextRole).toString().replace(u'\u00a0', u' '), "1,50 €");
    EXPECT_EQ(step->meanLabel(), "45 %");
    step->fieldEdited(2, "3,6");
    EXPECT_EQ(of(0, Rows::ToneRole), "danger");
    step->fieldEdited(2, "1,5"); // Escape
    EXPECT_NEAR(of(0, Rows::ShareRole).toDouble(), 0.5, 1e-9);
    EXPECT_FALSE(step->differsFromMenu());
    step->fieldDidEndEditing(2, "1,5");
    EXPECT_EQ(step->meanLabel(), "65 %");
}

TEST_F(ProfitTest, AWhatIfIsMarkedAndGoesBackToTheMenuWithItsNetPrice) {
    choose({{110, 11}, {111, 11}});
    appear();
    type(Pvp, 0, "9");
    type(Net, 0, "1");
    EXPECT_TRUE(step->differsFromMenu());
    EXPECT_EQ(column(*step->table(), Rows::ChangedRole), QStringList({"true", "false"}));
    step->restoreMenuPrices();
    EXPECT_FALSE(step->differsFromMenu());
    EXPECT_EQ(texts(0), "3,00 € | 1,00 € | 2,00 € | 66,667%");
    for (const char* percent : {"100", "66,667"})
        type(Percent, 0, percent);
    EXPECT_FALSE(step->differsFromMenu()) << "the price of the menu, over its percent";
    type(Percent, 0, "100");
    EXPECT_TRUE(step->differsFromMenu());
}

TEST_F(ProfitTest, StepAndOrderOfThePricesSurviveTheAccountOverTheWizard) {
    chooseAll();
    draft().defaultHighlightedElementVisited = true;
    ScreenStack screens;
    auto* wizard =
        new BrochureMenuViewController(services, nullptr, BrochureMenuViewController::Opening::OrderToEdit);
    QObject::connect(wizard, &BrochureMenuViewController::screenRequested, &screens, &ScreenStack::push);
    screens.push({{}, new ScreenController});
    screens.push({{}, wizard});
    wizard->buttonPushedAction(BrochureMenuViewController::Prices);
    alerts.answerButton(0);
    auto* prices = qobject_cast<BrochurePriceSetterViewController*>(wizard->activeViewController());
    ASSERT_TRUE(prices);
    prices->orderByPrimaryPVPButton();
    const auto order = column(*prices->table(), PriceTableModel::TypeRole);
    prices->showProfitAccount();
    auto* account = qobject_cast<Account*>(screens.top()->controller);
    ASSERT_TRUE(account);
    EXPECT_EQ(account->table()->rowCount(), 4) << "the wine has a row here";
    account->closeSceneAction();
    EXPECT_EQ(wizard->activeViewController(), prices);
    EXPECT_FALSE(alerts.isVisible());
    EXPECT_EQ(column(*prices->table(), PriceTableModel::TypeRole), order);
    EXPECT_EQ(prices->orderByPrimaryPicture(), "sort_ascendant");
}

TEST_F(ProfitTest, TheKeyboardAloneFillsTheColumnsAndLeavesAtThreeSizes) {
    for (const QSize size : {QSize(1024, 768), QSize(768, 1024), QSize(390, 844)}) {
        choose({{110, 11}, {111, 11}, {100, 10}});
        showView("BrochureProfitAccountView", size);
        bool closed = false;
        QObject::connect(step.get(), &ScreenController::closed, [&closed] { closed = true; });
        scene->item(QStringLiteral("netPriceTextField0"))->forceActiveFocus(Qt::TabFocusReason);
        for (const char* net : {"1", "1.1", "0,9"}) {
            scene->type(QString::fromUtf8(net));
            scene->key(Qt::Key_Return);
        }
        EXPECT_EQ(draft().netPriceOf(110, 11), 1);
        EXPECT_EQ(draft().netPriceOf(111, 11), 1.1);
        EXPECT_EQ(draft().netPriceOf(100, 10), 0.9);
        EXPECT_EQ(scene->focusName(), "marginTextField0") << size.width();
        scene->type(QStringLiteral("-0.5"));
        scene->key(Qt::Key_Tab);
        EXPECT_EQ(texts(0), "0,50 € | 1,00 € | -0,50 € | -100%");
        EXPECT_EQ(scene->focusName(), "manginPerCentLabel0");
        scene->type(QStringLiteral("60%"));
        QMetaObject::invokeMethod(scene->item(QStringLiteral("profitTable")), "positionViewAtBeginning");
        scene->click(QStringLiteral("showToCustomer"));
        EXPECT_EQ(texts(0), "2,50 € | 1,00 € | 1,50 € | 60%");
        EXPECT_FALSE(scene->isOnShow(QStringLiteral("netPriceTextField0")));
        EXPECT_FALSE(scene->isOnShow(QStringLiteral("sortByNetPriceButton")));
        scene->click(QStringLiteral("restoreMenuPrices"));
        EXPECT_EQ(step->productsPerBrand()[0].retailPrice, 3);
        scene->key(Qt::Key_Escape);
        EXPECT_TRUE(closed);
        EXPECT_TRUE(scene->warnings().isEmpty()) << joined(scene->warnings());
    }
}

} // namespace
} // namespace kavor

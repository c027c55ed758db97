#include "brochures/wizard/StepViewFixture.h"
#include "brochures/wizard/prices/BrochurePriceSetterViewController.h"

namespace kavor {
namespace {

// The real table of prices in a window, typed into.
class PriceCells : public StepViewTest<BrochurePriceSetterViewController> {
protected:
    static constexpr Int brand = 20;

    void SetUp() override {
        StepTest::SetUp();
        builder.type(BrochureType::beer).isSecondBrochuresPriceAllowed = true;
        builder.brand(brand, "Haya");
    }
    void show(int formats, std::optional<PriceType> second = std::nullopt, QSize size = UiScene::kTablet) {
        scene.reset();
        auto& list = builder.product(brand).productList;
        list.clear();
        for (int i = 0; i < formats; ++i)
            builder.format(200 + i, "Formato " + std::to_string(i), 0.5);
        open(BrochureType::beer);
        draft().setSecondPrice(second);
        for (int i = 0; i < formats; ++i)
            draft().setFormatSelected(true, 200 + i, brand);
        draft().defaultHighlightedElementVisited = true;
        showView("BrochurePriceSetterView", size);
    }
    static QString primary(int tag) { return QStringLiteral("retailPrimaryPriceTextField%1").arg(tag); }
    static QString secondary(int tag) { return QStringLiteral("retailSecondaryPriceTextField%1").arg(tag); }
    void enter(const QString& field) { scene->item(field)->forceActiveFocus(Qt::MouseFocusReason); }
    // Types so many prices from the first number on, each closed by Enter.
    void typeColumn(int number, int count) {
        for (int i = 0; i < count; ++i) {
            scene->type(QString::number(number + i));
            scene->key(i % 2 == 0 ? Qt::Key_Return : Qt::Key_Enter);
        }
    }
    static double price(int row, PriceType type = PriceType::main) {
        return draft().priceOf(type, 200 + row, brand).value_or(-1);
    }
    static int markedAsNew(int formats) {
        int marked = 0;
        for (int row = 0; row < formats; ++row)
            marked += draft().isNewProduct(200 + row, brand).value_or(false) ? 1 : 0;
        return marked;
    }
};

TEST_F(PriceCells, EnterTakesEveryPriceOfATypedColumnAndMarksNothingAsNew) {
    for (const QSize size : {QSize(1024, 768), QSize(768, 1024), QSize(390, 844)}) {
        show(12, std::nullopt, size);
        enter(primary(100));
        typeColumn(3, 12);
        for (int row = 0; row < 12; ++row)
            EXPECT_EQ(price(row), 3 + row) << row << " of " << size.width();
        EXPECT_EQ(markedAsNew(12), 0);
        EXPECT_EQ(scene->focusName(), primary(111)) << "the last price stays";
        EXPECT_TRUE(temporaryCopy());
    }
}

TEST_F(PriceCells, WithTwoPricesEnterStaysInItsColumnAndTabGoesAcross) {
    for (const QSize size : {QSize(1024, 768), QSize(390, 844)}) {
        show(4, PriceType::terrace, size);
        enter(primary(100));
        scene->key(Qt::Key_Tab);
        EXPECT_EQ(scene->focusName(), secondary(101));
        scene->key(Qt::Key_Backtab);
        typeColumn(1, 8); // from the foot of the first column on to the head of the second
        for (int row = 0; row < 4; ++row) {
            EXPECT_EQ(price(row), 1 + row);
            EXPECT_EQ(price(row, PriceType::terrace), 5 + row);
        }
        EXPECT_EQ(markedAsNew(4), 0);
        EXPECT_EQ(scene->focusName(), secondary(107));
    }
}

TEST_F(PriceCells, EnterReachesRowsThatTheListHasNotMadeYet) {
    show(60, PriceType::night, UiScene::kPhone);
    scene->item(QStringLiteral("priceTable"))->setProperty("cacheBuffer", 0);
    enter(primary(100));
    typeColumn(1, 120);
    for (int row = 0; row < 60; ++row) {
        ASSERT_EQ(price(row), 1 + row);
        ASSERT_EQ(price(row, PriceType::night), 61 + row);
    }
    EXPECT_EQ(markedAsNew(60), 0);
}

TEST_F(PriceCells, APriceBeingTypedOutlivesItsCell) {
    show(60);
    auto* table = scene->item(QStringLiteral("priceTable"));
    table->setProperty("cacheBuffer", 0);
    enter(primary(101)); // the list keeps its first, which is the current one
    scene->type(QStringLiteral("7"));
    QMetaObject::invokeMethod(table, "positionViewAtEnd");
    ASSERT_TRUE(UiScene::waitFor([&] { return !scene->isOnShow(primary(101)); }));
    EXPECT_EQ(price(1), 7);
}

TEST_F(PriceCells, BelowAnotherScreenTheTableKeepsItsOrderAndItsPlace) {
    show(60);
    alerts.answerButton(0);
    auto* table = scene->item(QStringLiteral("priceTable"));
    step->priceFieldDidEndEditing(100, QStringLiteral("9"));
    step->orderByPrimaryPVPButton();
    table->setProperty("contentY", 700.0);
    const auto order = column(*step->table(), PriceTableModel::TypeRole);
    std::unique_ptr<QObject> account;
    QObject::connect(step.get(), &WizardStepViewController::screenRequested,
                     [&account](const Screen& screen) { account.reset(screen.controller); });
    step->showProfitAccount();
    ASSERT_TRUE(account);
    step->viewWillAppear();
    EXPECT_EQ(column(*step->table(), PriceTableModel::TypeRole), order);
    EXPECT_EQ(table->property("contentY").toDouble(), 700.0);
    EXPECT_FALSE(alerts.isVisible()) << "nothing is said again";
}

TEST_F(PriceCells, WhatIsNoPriceKeepsTheOldOneAlsoInTheLastRow) {
    show(1);
    enter(primary(100));
    scene->key(Qt::Key_Delete);
    scene->key(Qt::Key_Return);
    scene->item(QStringLiteral("profitAccountButton"))->forceActiveFocus();
    EXPECT_EQ(price(0), 0.5);
    enter(primary(100));
    typeColumn(4, 1);
    EXPECT_EQ(price(0), 4);
}

} // namespace
} // namespace kavor

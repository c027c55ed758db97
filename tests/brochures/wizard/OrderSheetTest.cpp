#include "brochures/wizard/StepViewFixture.h"
#include "brochures/wizard/ordersheet/BrochureOrderSheetViewController.h"

namespace kavor {

namespace {

constexpr Int haya = 20, olmo = 21;

class OrderSheetStep : public StepViewTest<BrochureOrderSheetViewController> {
protected:
    void SetUp() override {
        StepTest::SetUp();
        builder.parameters(BrochureType::beer).numberOfOrderSheetsToSend = 12;
        for (const auto& [brand, name] : {std::pair(haya, "Haya"), std::pair(olmo, "Olmo")}) {
            builder.brand(brand, name);
            builder.format(brand * 10, "Caña", 0.5);
        }
        builder.brochures().orderSheets = {{3, 2, "De verano", "CM-3", resource("summer"), {olmo}},
                                           {2, 1, "De barra", "CM-2", resource("bar"), {haya, olmo, 777}},
                                           {4, 3, "Neutro", "CM-4", resource("plain"), {}}};
        open(BrochureType::beer);
        draft().setFormatSelected(true, haya * 10, haya);
    }
    void appear() {
        step = std::make_unique<BrochureOrderSheetViewController>(services, nullptr);
        step->viewDidLoad();
        step->viewWillAppear();
    }
    [[nodiscard]] std::string logos() const {
        QStringList names;
        for (const QVariant& logo : step->brandLogosCollection())
            names << logo.toMap().value(QStringLiteral("text")).toString();
        return joined(names);
    }
};

TEST_F(OrderSheetStep, OffersTheAbsenceOfOneAndThenTheSheetsByPosition) {
    appear();
    EXPECT_EQ(joined(column(*step->carousel(), OrderSheetModel::NameRole)),
              "SIN COMANDERO | De barra | De verano | Neutro");
    EXPECT_EQ(step->currentIndex(), 0);
    EXPECT_TRUE(step->numberOrderBrochuresToSend().isEmpty() && step->noBrandAvailableLabel().isEmpty());
    step->serializeAutoSave();
    EXPECT_FALSE(draft().selectedOrderSheetIdentifier) << "nothing is chosen by itself";
}

TEST_F(OrderSheetStep, TheEntryInTheMiddleGoesIntoTheDraftAndItsCopyAndSaysWhatItBrings) {
    struct Case {
        int entry;
        std::optional<Int> sheet;
        const char* units;
        const char* logos;
        const char* warning;
    };
    const char* none = "Ninguna de las marcas de este comandero está en la carta";
    appear();
    for (const Case& each :
         {Case{1, 2, "Se enviarán 12 unidades", "Haya", ""}, Case{2, 3, "Se enviarán 12 unidades", "", none},
          Case{3, 4, "Se enviarán 12 unidades", "", none}, Case{0, std::nullopt, "", "", ""}}) {
        step->carouselCurrentItemIndexDidChange(each.entry);
        EXPECT_EQ(draft().selectedOrderSheetIdentifier, each.sheet) << each.entry;
        EXPECT_EQ(temporaryCopy()->menu.orderSheetIdentifier, each.sheet) << each.entry;
        EXPECT_EQ(step->numberOrderBrochuresToSend(), each.units);
        EXPECT_EQ(logos(), each.logos);
        EXPECT_EQ(step->noBrandAvailableLabel(), each.warning);
    }
    step->carouselCurrentItemIndexDidChange(2);
    step->carouselCurrentItemIndexDidChange(4);
    step->carouselCurrentItemIndexDidChange(-1);
    appear();
    EXPECT_EQ(step->currentIndex(), 2) << "the step opens with what was chosen";
}

TEST_F(OrderSheetStep, ASheetThatLeftTheCatalogueShowsAsNoneAndGoesWhenTheStepIsLeft) {
    draft().selectedOrderSheetIdentifier = 99;
    appear();
    EXPECT_EQ(step->currentIndex(), 0);
    EXPECT_EQ(draft().selectedOrderSheetIdentifier, 99) << "nobody has touched anything";
    step->serializeAutoSave();
    EXPECT_FALSE(draft().selectedOrderSheetIdentifier);
}

TEST_F(OrderSheetStep, IsChosenByKeysAtEachSizeAndNothingStandsBeyondTheWindow) {
    for (const QSize size : {QSize(1024, 768), QSize(768, 1024), QSize(390, 844)}) {
        draft().setOrderSheet(3);
        showView("BrochureOrderSheetView", size);
        EXPECT_EQ(scene->item("orderSheetCarousel")->property("currentIndex"), 2);
        scene->item("orderSheetCarousel")->forceActiveFocus(Qt::TabFocusReason);
        scene->key(Qt::Key_Left);
        EXPECT_EQ(draft().selectedOrderSheetIdentifier, 2);
        EXPECT_TRUE(scene->isOnShow("brandLogo0") && !scene->isOnShow("noBrandAvailableLabel"));
        const QQuickItem* card = scene->item("orderSheetCard");
        EXPECT_GE(card->mapToScene({}).x(), 0);
        EXPECT_LE(card->mapToScene({card->width(), 0}).x(), size.width());
        scene->key(Qt::Key_Left);
        EXPECT_FALSE(draft().selectedOrderSheetIdentifier);
        EXPECT_FALSE(scene->isOnShow("orderSheetCard"));
    }
}

} // namespace
} // namespace kavor

#include "brochures/wizard/StepViewFixture.h"
#include "brochures/wizard/pennant/BrochureOrderPennantViewController.h"
#include "brochures/wizard/pennantbrand/PennantBrandViewController.h"
#include "brochures/wizard/send/BrochureSendViewController.h"
#include "interaction/AlertPresenter.h"

namespace kavor {
namespace {

using ProductPennant = SaveBrochuresOrder::Menu::ProductPennant;
using Products = std::vector<ProductPennant>;

class PennantStep : public StepViewTest<BrochureOrderPennantViewController> {
protected:
    void SetUp() override {
        StepTest::SetUp();
        auto& parameters = builder.parameters(BrochureType::beer);
        parameters.withPennants = true;
        parameters.requiredPriceBeer = false;
        auto& styles = builder.brochures().styles;
        std::erase_if(styles, [](const auto& style) { return style.typeId == pennantKind; });
        addStyle(201, 3, ApplicationFather::orderBeer);
        addStyle(202, 1, std::nullopt);
        addStyle(203, 2, ApplicationFather::orderWine);
        builder.product(11).position = 2; // Encina after Roble
        builder.product(10).position = 1;
        for (const Int brand : {10, 11}) {
            auto& formats = builder.product(brand).productList;
            formats[0].position = 2;
            formats[1].position = 1;
            formats[0].showInPennant = formats[1].showInPennant = true;
        }
        builder.product(10).productList[1].showInPennant = false; // Roble Caña
        open(BrochureType::beer);
        for (const auto& [format, brand] : {std::pair(110, 11), {111, 11}, {100, 10}, {101, 10}})
            draft().setFormatSelected(true, format, brand);
    }
    void addStyle(Int id, Int place, std::optional<ApplicationFather> family) {
        auto& style = builder.brochures().styles.emplace_back();
        style.id = id;
        style.name = "Guirnalda " + std::to_string(id);
        style.typeId = pennantKind;
        style.position = place;
        style.applicationFather = family;
    }
    void appear() {
        step = std::make_unique<BrochureOrderPennantViewController>(services, nullptr);
        step->viewDidLoad();
        step->viewWillAppear();
    }
    static constexpr Int pennantKind = static_cast<Int>(BrochureType::pennant);
};

TEST_F(PennantStep, OffersTheStylesOfItsFamilyAndChoosesOneOnlyWhilePennantsAreWanted) {
    draft().withPennant = false;
    appear();
    EXPECT_EQ(joined(column(*step->detailedCarousel()->covers(), CoverModel::NameRole)),
              "Guirnalda 202 | Guirnalda 201");
    EXPECT_FALSE(draft().selectedStylePennantIdentifier);
    EXPECT_FALSE(draft().withPennantTmp) << "the working value says the same";
    step->actionwithPennantClick(true);
    EXPECT_EQ(draft().selectedStylePennantIdentifier, 202);
    step->detailedCarousel()->carouselCurrentItemIndexDidChange(1);
    step->actionwithPennantClick(false);
    EXPECT_EQ(temporaryCopy()->menu.stylePennant, 201) << "what was chosen travels";
    EXPECT_FALSE(temporaryCopy()->withPennant);
    appear();
    EXPECT_EQ(step->detailedCarousel()->current(), 1);
}

TEST_F(PennantStep, PutsProductsOfTheMenuOnTheStringAndTakesOutWhatWasDeselected) {
    appear();
    EXPECT_EQ(joined(step->products()), "Ninguno | Roble · Tercio | Encina · Jarra | Encina · Tercio");
    step->choose(7, 3);
    step->choose(2, 1);
    step->choose(2, 2);
    EXPECT_EQ(draft().productPennant, (Products{{111, 3}, {110, 8}}));
    step->choose(7, 0);
    EXPECT_EQ(temporaryCopy()->menu.productPennant, (Products{{111, 3}}));

    step->choose(0, 1);
    step->fill();
    alerts.answerButton(0); // "No"
    EXPECT_EQ(draft().productPennant, (Products{{100, 1}, {111, 3}}));
    step->fill();
    alerts.answerButton(1);
    EXPECT_EQ(draft().productPennant, (Products{{100, 1}, {111, 2}, {110, 3}})) << "the other places go";

    draft().setFormatSelected(false, 111, 11);
    step->serializeAutoSave();
    EXPECT_EQ(draft().productPennant, (Products{{100, 1}, {110, 3}}));
    draft().setFormatSelected(false, 100, 10);
    BrochureSendViewController send(services, nullptr);
    send.viewDidLoad();
    send.viewWillAppear();
    EXPECT_EQ(draft().productPennant, (Products{{110, 3}}));
}

TEST_F(PennantStep, AMenuWithoutPricesOffersNoPricesOnItsPennants) {
    draft().setPrice(PriceType::main, 110, 11, 3.2);
    setPennantProduct(draft(), 1, 110);
    appear();
    const auto price = [this] { return step->pennants().at(0).toMap()[QStringLiteral("price")].toString(); };
    EXPECT_EQ(price(), "3,20\u00a0€");
    step->actionWithoutPriceClick(true);
    EXPECT_EQ(price(), "");
    EXPECT_EQ(temporaryCopy()->menu.withoutPricePennant, true);
    step->actionWithoutPriceClick(false);
    draft().withoutPriceBeer = true;
    EXPECT_FALSE(step->isWithoutPriceOffered());
    EXPECT_EQ(price(), "");
}

TEST_F(PennantStep, IsWorkedByKeysAtEachSizeAndDimsWhatHasNoUse) {
    for (const QSize size : {QSize(1024, 768), QSize(768, 1024), QSize(390, 844)}) {
        draft().withPennant = false;
        draft().productPennant.clear();
        showView("BrochureOrderPennantView", size);
        EXPECT_FALSE(scene->item("product01Picker")->isEnabled());
        scene->item("withPennantSwitch")->forceActiveFocus(Qt::TabFocusReason);
        scene->key(Qt::Key_Space);
        EXPECT_TRUE(draft().withPennant);
        EXPECT_TRUE(scene->item("product01Picker")->isEnabled());
        scene->item("fillPennants")->forceActiveFocus(Qt::TabFocusReason);
        scene->key(Qt::Key_Space);
        EXPECT_EQ(draft().productPennant.size(), 3u);
        for (const char* name : {"pennant7", "product08Picker"}) {
            const QQuickItem* item = scene->item(name);
            EXPECT_GE(item->mapToScene({}).x(), 0) << name;
            EXPECT_LE(item->mapToScene({item->width(), 0}).x(), size.width()) << name;
        }
    }
}

class PennantBrandStep : public StepViewTest<PennantBrandViewController> {
protected:
    void SetUp() override {
        StepTest::SetUp();
        builder.parameters(BrochureType::beer).withPennantBrand = true;
        builder.brochures().pennantBrands = {
            {5, 2, "De verano", "", "BD-5", "Para la terraza", {}, {}, {}, {10}},
            {6, 1, "De siempre", "", "BD-6", "Para dentro", {}, {}, {}, {10, 11}},
            {7, 3, "De vino", "", "BD-7", "", {}, {}, {}, {12}}};
        open(BrochureType::beer);
    }
    void appear() {
        step = std::make_unique<PennantBrandViewController>(services, nullptr);
        step->viewDidLoad();
        step->viewWillAppear();
    }
};

TEST_F(PennantBrandStep, OffersThePennantsOfTheBrandsInTheMenuAndKeepsTheOneInTheMiddle) {
    draft().setFormatSelected(true, 100, 10);
    appear();
    EXPECT_EQ(joined(column(*step->detailedCarousel()->covers(), CoverModel::NameRole)),
              "De siempre | De verano");
    EXPECT_EQ(temporaryCopy()->menu.pennantBrandId, 6) << "the first that fits";
    EXPECT_EQ(step->helpTextPennantLabel(), "Para dentro");
    std::string brands;
    for (const QVariant& brand : step->brandLogosCollection())
        brands += brand.toMap()["text"].toString().toStdString() +
                  (brand.toMap()["available"].toBool() ? " " : "! ");
    EXPECT_EQ(brands, "Roble Encina! ");
    step->detailedCarousel()->carouselCurrentItemIndexDidChange(1);
    EXPECT_EQ(temporaryCopy()->menu.pennantBrandId, 5);
    appear();
    EXPECT_EQ(step->infoPennantBrandLabel(), "De verano");

    draft().setFormatSelected(false, 100, 10);
    appear();
    EXPECT_TRUE(step->isWithoutPennant());
    EXPECT_FALSE(draft().selectedPennantBrandIdentifier) << "a menu without its brand has no such pennant";
}

TEST_F(PennantBrandStep, ShowsThatThereIsNoneAndIsChosenByKeys) {
    showView("PennantBrandView", QSize(390, 844));
    EXPECT_TRUE(scene->isOnShow("without_pennant"));
    draft().setFormatSelected(true, 100, 10);
    for (const QSize size : {QSize(1024, 768), QSize(768, 1024), QSize(390, 844)}) {
        draft().setPennantBrand(6);
        showView("PennantBrandView", size);
        EXPECT_FALSE(scene->isOnShow("without_pennant"));
        scene->item("styleCarousel")->forceActiveFocus(Qt::TabFocusReason);
        scene->key(Qt::Key_Right);
        EXPECT_EQ(draft().selectedPennantBrandIdentifier, 5);
    }
}

} // namespace
} // namespace kavor

#include "brochures/engine/MenuPromotions.h"
#include "brochures/engine/PennantProducts.h"
#include "brochures/wizard/BrochureMenuViewController.h"
#include "brochures/wizard/StepFixture.h"
#include "brochures/wizard/drinks/BrochureDrinkListViewController.h"
#include "brochures/wizard/ordersheet/BrochureOrderSheetViewController.h"
#include "brochures/wizard/pennant/BrochureOrderPennantViewController.h"
#include "brochures/wizard/pennantbrand/PennantBrandViewController.h"
#include "brochures/wizard/promotions/BrochurePromotionViewController.h"
#include "promotions/PromotionFixture.h"

namespace kavor {

namespace {

using Menu = BrochureMenuViewController;

// An order that was sent with something from each of the optional steps.
class SentSteps : public StepTest {
protected:
    std::unique_ptr<Menu> menu;

    void SetUp() override {
        StepTest::SetUp();
        addPromotions(builder);
        auto& parameters = builder.parameters(BrochureType::menu);
        parameters.showOtherDrink = parameters.allowOrderSheet = parameters.withPennants = true;
        parameters.withPennantBrand = parameters.withPromotion = true;
        for (Product& brand : builder.information.products)
            brand.productList.front().showInPennant = true;
        auto& first = builder.brochures().pennantBrands.front();
        first.brands = {11};
        auto& second = builder.brochures().pennantBrands.emplace_back(first);
        second.id = 2;
        second.position = first.position + 1;
        auto& style = builder.brochures().styles.emplace_back(builder.brochures().styles.front());
        style.id = 300;
        style.typeId = static_cast<Int>(BrochureType::pennant);
        style.position = 99;
        open(BrochureType::menu);
        order();
        menu = std::make_unique<Menu>(services, nullptr, Menu::Opening::OrderToEdit);
        menu->buttonPushedAction(Menu::Send);
        markSent(draft(), "http://server.example/order");
    }
    void TearDown() override {
        menu.reset();
        StepTest::TearDown();
    }
    static void order() {
        auto& sent = draft();
        sent.openedAs = BrochureType::menu;
        sent.setLanguages(1, std::nullopt);
        for (const auto& [format, brand] : {std::pair(110, 11), {111, 11}, {100, 10}})
            sent.setFormatSelected(true, format, brand);
        sent.setBeverageSelected(true, {.identifier = 1, .name = "", .formatName = "Vaso"}, 1);
        const Int own = sent.addBeverageCategory("De la casa");
        const Int mine = *sent.addBeverageProduct("Sangría", own);
        sent.setBeverageFormatSelected(true, "Jarra", mine, own);
        sent.setBeveragePrice(9.5, false, "Jarra", mine, own);
        setPennantProduct(sent, 1, 110);
        setPennantProduct(sent, 8, 100);
        sent.selectedStylePennantIdentifier = 300;
        sent.setOrderSheet(1);
        sent.setPennantBrand(2);
        MenuPromotions::shared().attach(BrochureIntermediateData::temporalBrochure(),
                                        {5, 1, "Martes de tapa", "Encina", {{13, "1,5", {}}}}, {});
    }
    template <class Step>
    Step& step() {
        return *qobject_cast<Step*>(menu->activeViewController());
    }
    static SaveBrochuresOrder content() { return draft().makeOrder(OrderRequestType::saveCloud, false); }
};

TEST_F(SentSteps, AChangeInEachOfThemIsAskedAboutOnceAndTakenBackOrMakesAnotherOrder) {
    struct Case {
        Menu::MenuButton button;
        std::function<void()> change;
    };
    const std::vector<Case> cases{
        {Menu::Drinks,
         [&] {
             auto& drinks = step<BrochureDrinkListViewController>();
             drinks.chooseCategory(0);
             drinks.chooseProduct(1);
         }},
        {Menu::Drinks,
         [&] {
             step<BrochureDrinkListViewController>().selectedDrinks()->categoryDescriptionModified(0, "Hoy");
         }},
        {Menu::OrderSheet,
         [&] { step<BrochureOrderSheetViewController>().carouselCurrentItemIndexDidChange(0); }},
        {Menu::Promotions,
         [&] {
             step<BrochurePromotionViewController>().deleteButton(0);
             press("Borrar");
         }},
        {Menu::Promotions,
         [&] {
             MenuPromotions::shared().attach(BrochureIntermediateData::temporalBrochure(),
                                             {{}, 2, "Mundial", "Roble", {}}, {});
             session.appendPromotionToMenu = true;
             step<BrochurePromotionViewController>().viewWillAppear();
         }},
        {Menu::Pennant, [&] { step<BrochureOrderPennantViewController>().choose(3, 1); }},
        {Menu::Pennant, [&] { step<BrochureOrderPennantViewController>().actionwithPennantClick(false); }},
        {Menu::Pennant, [&] { step<BrochureOrderPennantViewController>().actionWithoutPriceClick(true); }},
        {Menu::PennantBrand,
         [&] {
             step<PennantBrandViewController>().detailedCarousel()->carouselCurrentItemIndexDidChange(0);
         }},
    };
    for (const Case& each : cases) {
        menu->buttonPushedAction(each.button);
        const auto place = "entry " + std::to_string(each.button);
        ASSERT_FALSE(alerts.isVisible()) << place << ": " << alert();
        const auto before = content();
        each.change();
        ASSERT_EQ(alert(), "Atención | Este pedido ya se ha realizado. ¿Desea hacer otro a partir de él?")
            << place;
        press("No");
        EXPECT_FALSE(alerts.isVisible()) << place;
        EXPECT_EQ(content(), before) << place;
        EXPECT_FALSE(temporaryCopy()) << place;
        each.change();
        ASSERT_TRUE(alerts.isVisible()) << place << " asks again after it was taken back";
        press("No");
    }
    menu->buttonPushedAction(Menu::Pennant);
    for (const int row : {1, 0}) {
        step<BrochureOrderPennantViewController>().choose(3, row);
        EXPECT_EQ(press("Sí"), row == 1) << "it is asked about once";
    }
    menu->buttonPushedAction(Menu::OrderSheet);
    step<BrochureOrderSheetViewController>().carouselCurrentItemIndexDidChange(0);
    EXPECT_FALSE(alerts.isVisible());
    ASSERT_TRUE(temporaryCopy());
    EXPECT_FALSE(temporaryCopy()->menu.orderSheetIdentifier);
}

TEST_F(SentSteps, ASecondTapOpensNoSecondGallery) {
    int opened = 0;
    QObject::connect(menu.get(), &Menu::promotionsRequested, [&opened] { ++opened; });
    menu->buttonPushedAction(Menu::Promotions);
    for (int tap = 0; tap < 2; ++tap)
        step<BrochurePromotionViewController>().createButton();
    EXPECT_EQ(opened, 1);
    menu->viewWillAppear(); // it has closed
    step<BrochurePromotionViewController>().editButton(0);
    EXPECT_EQ(opened, 2);
}

} // namespace
} // namespace kavor

#include "brochures/engine/MenuPromotions.h"
#include "brochures/wizard/BrochureMenuViewController.h"
#include "brochures/wizard/StepViewFixture.h"
#include "brochures/wizard/promotions/BrochurePromotionViewController.h"
#include "promotions/PromotionFixture.h"

namespace kavor {

namespace {

class PromotionsStep : public StepViewTest<BrochurePromotionViewController> {
protected:
    std::vector<MenuPromotionRequest> requests;

    void SetUp() override {
        StepTest::SetUp();
        addPromotions(builder);
        builder.parameters(BrochureType::beer).withPromotion = true;
        open(BrochureType::beer);
        draft().openedAs = BrochureType::beer;
        draft().setLanguages(2, std::nullopt);
    }
    void appear() {
        step = std::make_unique<BrochurePromotionViewController>(services, nullptr);
        listen();
        step->viewDidLoad();
        step->viewWillAppear();
    }
    void listen() {
        QObject::connect(step.get(), &WizardStepViewController::promotionsRequested, step.get(),
                         [this](const MenuPromotionRequest& request) { requests.push_back(request); });
    }
    static void attach(Int id, std::vector<MenuPromotion::PromotionAttribute> attributes = {},
                       const char* name = "Martes de tapa") {
        MenuPromotions::shared().attach(BrochureIntermediateData::temporalBrochure(),
                                        {{}, id, name, "Encina", std::move(attributes)}, {});
    }
    [[nodiscard]] std::string column(int role) const {
        return joined(StepTest::column(*step->listPromotionsTable(), role));
    }
};

TEST_F(PromotionsStep, ListsThePromotionsWithTheirValuesAndAsksForAnother) {
    attach(1, {{11, "data:image/png;base64,AA", {}}, {13, "1,5", {}}, {14, "De 18 a 20", {}}});
    attach(44, {}, "Verano");
    appear();
    EXPECT_EQ(column(MenuPromotionModel::NumberRole), "1 | 2");
    EXPECT_EQ(column(MenuPromotionModel::NameRole), "Martes de tapa | Verano");
    EXPECT_EQ(column(MenuPromotionModel::DataRole), "imagen, 1,5, De 18 a 20 | ");
    EXPECT_EQ(column(MenuPromotionModel::KnownRole), "true | false") << "44 left the catalogue";
    step->createButton();
    ASSERT_EQ(requests.size(), 1U);
    EXPECT_EQ(requests[0].promotionSelectIds, (std::vector<Int>{1, 44}));
    EXPECT_EQ(requests[0].languageSelected->id, 2);
    EXPECT_FALSE(requests[0].menuPromotion);
    step->editButton(1);
    EXPECT_EQ(requests.size(), 1U) << "it can only be removed";
    step->editButton(0);
    ASSERT_EQ(requests.size(), 2U);
    EXPECT_EQ(requests[1].menuPromotion, draft().promotions.front());
    EXPECT_EQ(requests[1].place, 0U);
}

TEST_F(PromotionsStep, WhatTheFormAttachedShowsAndStandsInTheTemporaryCopy) {
    BrochureMenuViewController menu(services);
    menu.buttonPushedAction(BrochureMenuViewController::Promotions);
    auto* shown = qobject_cast<BrochurePromotionViewController*>(menu.activeViewController());
    ASSERT_NE(shown, nullptr);
    shown->createButton();
    attach(1);
    session.appendPromotionToMenu = true;
    menu.viewWillAppear(); // the form has closed
    EXPECT_EQ(shown->listPromotionsTable()->count(), 1);
    EXPECT_FALSE(session.appendPromotionToMenu);
    ASSERT_TRUE(temporaryCopy());
    ASSERT_EQ(temporaryCopy()->menu.promotions->size(), 1U);
    EXPECT_EQ(temporaryCopy()->menu.promotions->front().promotionId, 1);
}

TEST_F(PromotionsStep, OneIsRemovedOnlyOnceTheUserSaysSo) {
    attach(1);
    attach(2);
    attach(44);
    appear();
    step->deleteButton(2);
    EXPECT_EQ(kavor::shown(alerts), "Atención | ¿Desea eliminar la promoción de la carta?");
    press("Cancelar");
    EXPECT_EQ(draft().promotions.size(), 3U);
    step->deleteButton(0);
    step->deleteButton(0); // a double tap asks twice about the same one
    press("Borrar");
    press("Borrar");
    EXPECT_EQ(step->promotionSelectIds(), (std::vector<Int>{2, 44}));
    EXPECT_EQ(temporaryCopy()->menu.promotions->size(), 2U);
}

TEST_F(PromotionsStep, IsWorkedByKeysAtEachSizeAndNothingStandsBeyondTheWindow) {
    for (const QSize size : {QSize(1024, 768), QSize(768, 1024), QSize(390, 844)}) {
        draft().promotions.clear();
        requests.clear();
        showView("BrochurePromotionView", size);
        listen();
        EXPECT_EQ(scene->item("DraftEmptyCellIdentifier")->property("title"),
                  "Todavía no hay promociones en la carta");
        scene->item("DraftEmptyCellIdentifierAction")->forceActiveFocus(Qt::TabFocusReason);
        scene->key(Qt::Key_Space);
        EXPECT_EQ(requests.size(), 1U);
        attach(1, {{14, "De lunes a viernes, de siete a nueve de la tarde, con su tapa", {}}});
        attach(44, {}, "Verano en la terraza con amigos");
        step->viewWillAppear();
        ASSERT_NE(scene->item("editButton0"), nullptr);
        EXPECT_FALSE(scene->isOnShow("editButton1"));
        EXPECT_TRUE(scene->isOnShow("goneLabel1"));
        for (const char* name :
             {"DraftNormalCellIdentifier0", "deleteButton1", "nameLabel1", "createButton"}) {
            const QQuickItem* item = scene->item(name);
            ASSERT_NE(item, nullptr) << name;
            EXPECT_GE(item->mapToScene({}).x(), 0) << name;
            EXPECT_LE(item->mapToScene({item->width(), 0}).x(), size.width()) << name;
        }
        scene->item("editButton0")->forceActiveFocus(Qt::TabFocusReason);
        scene->key(Qt::Key_Return);
        ASSERT_EQ(requests.size(), 2U);
        EXPECT_EQ(requests.back().menuPromotion->promotionId, 1);
    }
}

} // namespace
} // namespace kavor

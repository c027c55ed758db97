#include "brochures/wizard/StepViewFixture.h"
#include "brochures/wizard/drinks/BrochureDrinkListViewController.h"

namespace kavor {

namespace {

class DrinkStep : public StepViewTest<BrochureDrinkListViewController> {
protected:
    using Step = BrochureDrinkListViewController;
    using Formats = std::set<std::string>;

    void SetUp() override {
        StepTest::SetUp();
        auto& limits = builder.information.validations;
        limits.categoryName = 8;
        limits.categoryDescription = 20;
        limits.productName = 10;
        limits.productDescription = 20;
        limits.productFormatLength = 6;
        limits.productFormatNumber = 3;
        // A product of two categories.
        builder.brochures().drinks.back().products.push_back({1, "Limonada", 9, 2.2, {}, {}, "Vaso"});
        open(BrochureType::menu);
    }
    void appear() {
        step = std::make_unique<Step>(services, nullptr);
        step->viewDidLoad();
        step->viewWillAppear();
    }
    [[nodiscard]] std::string texts(const DrinkListModel* list) const {
        return joined(column(*list, DrinkListModel::TextRole));
    }
    [[nodiscard]] int rowOf(const DrinkListModel* list, const char* text) const {
        return int(column(*list, DrinkListModel::TextRole).indexOf(QString::fromUtf8(text)));
    }
    void choose(const char* category, const char* product = nullptr, const char* format = nullptr) {
        step->chooseCategory(rowOf(step->categoriesDataSource(), category));
        if (product)
            step->chooseProduct(rowOf(step->productsDataSource(), product));
        if (format)
            step->chooseFormat(rowOf(step->formatsDataSource(), format));
    }
    // The table, a row of it as "name/format/first price/second price".
    [[nodiscard]] std::string table() const {
        QStringList rows;
        const auto* model = step->selectedProductsTable();
        for (int row = 0; row < model->count(); ++row) {
            const auto at = [&](int role) { return model->data(model->index(row), role).toString(); };
            rows << (at(BeveragesTableView::CellRole) == QStringLiteral("cabecera")
                         ? at(BeveragesTableView::NameRole) + at(BeveragesTableView::DescriptionRole)
                         : QStringList{at(BeveragesTableView::NameRole), at(BeveragesTableView::FormatRole),
                                       at(BeveragesTableView::PriceEditRole),
                                       at(BeveragesTableView::SecondPriceEditRole)}
                               .join(QStringLiteral("/")));
        }
        return joined(rows);
    }
    static BrochureIntermediateData::BeverageIdentifier info(Int category, Int product,
                                                             const std::string& format) {
        return draft().beverageInfo(category, product, false, format).value();
    }
    // The draft goes the way of its file and back.
    void reopen() {
        const auto order = temporaryCopy().value();
        step.reset();
        BrochureIntermediateData::replaceTemporalBrochure()->loadOrder(order);
        appear();
    }
};

TEST_F(DrinkStep, AProductEntersWithItsCategoryItsFormatAndThePricesOfTheCatalogue) {
    appear();
    EXPECT_EQ(texts(step->categoriesDataSource()), "Refrescos | Cafés");
    choose("Refrescos");
    EXPECT_EQ(texts(step->productsDataSource()), "Limonada | Agua") << "listed twice, offered once";
    EXPECT_TRUE(draft().selectedBeverages.empty()) << "a category comes with its first product";
    choose("Refrescos", "Limonada");
    EXPECT_EQ(draft().selectedProductFormat.at(1), Formats{"Vaso"});
    EXPECT_EQ(table(), "Refrescos: Fríos | Limonada/Vaso/2/2,5");
    EXPECT_EQ(texts(step->formatsDataSource()), "Vaso | Jarra | Taza") << "the product's own ones first";
    EXPECT_EQ(temporaryCopy()->menu.otherDrinks->size(), 1U);
    choose("Refrescos", "Limonada");
    EXPECT_EQ(draft().selectedProductFormat.at(1), Formats{"Vaso"});
    EXPECT_FALSE(alerts.isVisible()) << "a product of the draft is only selected";
    choose("Refrescos", "Limonada", "Jarra");
    choose("Refrescos", "Limonada", "Jarra");
    EXPECT_EQ(table(), "Refrescos: Fríos | Limonada/Jarra/5/ | Limonada/Vaso/2/2,5");
    EXPECT_EQ(step->selectedText(), "1 bebida elegida");
}

TEST_F(DrinkStep, ARecordWithoutAFormatBringsItsPriceUnderTheEmptyName) {
    builder.brochures().drinks.front().products.back().price1 = 1.5;
    open(BrochureType::menu);
    appear();
    choose("Refrescos", "Agua");
    EXPECT_EQ(draft().selectedProductFormat.at(2), Formats{""});
    EXPECT_EQ(table(), "Refrescos: Fríos | Agua//1,5/");
    const auto drinks = draft().makeOrder(OrderRequestType::sendToPrint, false).menu.otherDrinks;
    EXPECT_EQ(drinks->front().elements.front().prices.front().value, 1.5);
    EXPECT_EQ(drinks->front().elements.front().prices.front().formatName, "");
    EXPECT_EQ(texts(step->formatsDataSource()), "Sin formato | Vaso | Jarra | Taza");
}

TEST_F(DrinkStep, AProductOfTwoCategoriesSharesItsFormatsAndPrices) {
    appear();
    choose("Refrescos", "Limonada");
    choose("Cafés", "Limonada");
    EXPECT_EQ(table(), "Refrescos: Fríos | Limonada/Vaso/2/2,5 | Cafés | Limonada/Vaso/2,2/");
    step->selectedDrinks()->productModifyPriceDelegateMethod(1, false, QStringLiteral("3,4"));
    EXPECT_EQ(table(), "Refrescos: Fríos | Limonada/Vaso/3,4/2,5 | Cafés | Limonada/Vaso/3,4/");
    EXPECT_EQ(step->selectedText(), "2 bebidas elegidas");
    step->selectedDrinks()->productDeleteButtonDelegateMethod(1);
    ASSERT_TRUE(press(QStringLiteral("Sí")));
    EXPECT_EQ(table(), "Refrescos: Fríos | Cafés | Limonada/Vaso/3,4/")
        << "a category stays without products";
}

TEST_F(DrinkStep, OwnItemsAreMadeUnderTheLimitsAndStandInTheDraftAtOnce) {
    appear();
    step->addNewProduct();
    EXPECT_EQ(alert(), "Atención | Seleccione primero una categoría.");
    press(QStringLiteral("Aceptar"));
    step->addNewFormat();
    EXPECT_EQ(alert(), "Atención | Seleccione primero un producto.");
    press(QStringLiteral("Aceptar"));
    step->addNewCategory();
    EXPECT_EQ(alert(), "Nueva categoría | Introduzca un nombre para la nueva categoría (max: 8)");
    press(QStringLiteral("Crear"), QStringLiteral("  "));
    EXPECT_TRUE(draft().selectedBeverages.empty()) << "an empty name does nothing";
    step->addNewCategory();
    press(QStringLiteral("Crear"), QStringLiteral("Infusiones"));
    EXPECT_EQ(texts(step->categoriesDataSource()), "Refrescos | Cafés | Infusion");
    EXPECT_EQ(temporaryCopy()->menu.otherDrinks->front().name, "Infusion");
    step->addNewProduct();
    EXPECT_EQ(alert(), "Nuevo producto | Introduzca un nombre para el nuevo producto (max: 10)");
    press(QStringLiteral("Crear"), QStringLiteral("Piña"));
    EXPECT_EQ(table(), "Infusion | Piña///");
    step->addNewFormat();
    EXPECT_EQ(alert(), "Nuevo formato | Introduzca un nombre para el nuevo formato (max: 6)");
    press(QStringLiteral("Crear"), QStringLiteral("vaso"));
    EXPECT_EQ(draft().selectedProductFormat.at(-1), (Formats{"", "Vaso"})) << "a known name is not doubled";
    step->selectedDrinks()->productModifyPriceDelegateMethod(2, false, QStringLiteral("2.8"));
    EXPECT_EQ(table(), "Infusion | Piña/// | Piña/Vaso/2,8/");
    EXPECT_EQ(texts(step->formatsDataSource()), "Sin formato | Vaso | Jarra | Taza");
}

TEST_F(DrinkStep, TheFormatBeyondTheLimitIsRefusedWithTheNumber) {
    const char* refusal = "Atención | El número maximo de formatos para un producto es 3";
    appear();
    choose("Refrescos", "Limonada", "Jarra");
    choose("Refrescos", "Limonada", "Taza");
    step->addNewFormat();
    EXPECT_EQ(alert(), refusal);
    press(QStringLiteral("Aceptar"));
    step->chooseFormat(rowOf(step->formatsDataSource(), "Taza"));
    EXPECT_FALSE(alerts.isVisible()) << "it has that one";
    choose("Refrescos", "Agua", "Vaso");
    choose("Refrescos", "Agua", "Jarra");
    step->chooseFormat(rowOf(step->formatsDataSource(), "Taza"));
    EXPECT_EQ(alert(), refusal);
    EXPECT_EQ(draft().selectedProductFormat.at(2).size(), 3U);
    press(QStringLiteral("Aceptar"));
    builder.brochures().drinks.back().products.back().formatName = "Copa";
    session.applicationInformation = builder.take();
    appear();
    choose("Cafés", "Limonada");
    EXPECT_EQ(draft().selectedProductFormat.at(1), (Formats{"Jarra", "Taza", "Vaso"}))
        << "another category brings none beyond the limit";
}

TEST_F(DrinkStep, RemovingAsksFirstAndTellsWhatCouldNotBeRemoved) {
    struct Case {
        void (SelectedDrinksForm::*remove)(int);
        int row;
        const char* question;
        const char* failure;
        const char* left;
    };
    appear();
    choose("Refrescos", "Limonada");
    choose("Cafés", "Solo");
    const std::string before = "Refrescos: Fríos | Limonada/Vaso/2/2,5 | Cafés | Solo/Taza/1,2/1,4";
    for (const Case& each :
         {Case{&SelectedDrinksForm::formatDeleteButtonDelegateMethod, 3,
               "¿Desea quitar el formato 'Taza' del producto 'Solo'?",
               "No se ha podido eliminar el formato 'Taza' del producto 'Solo'",
               "Refrescos: Fríos | Limonada/Vaso/2/2,5 | Cafés | Solo///"},
          Case{&SelectedDrinksForm::productDeleteButtonDelegateMethod, 3, "¿Desea quitar el producto 'Solo'?",
               "No se ha podido eliminar el producto 'Solo'",
               "Refrescos: Fríos | Limonada/Vaso/2/2,5 | Cafés"},
          Case{&SelectedDrinksForm::categoryDeleteButtonDelegateMethod, 2,
               "¿Desea quitar la categoría 'Cafés'?", "No se ha podido deseleccionar la categoría 'Cafés'",
               "Refrescos: Fríos | Limonada/Vaso/2/2,5"}}) {
        (step->selectedDrinks()->*each.remove)(each.row);
        EXPECT_EQ(alert(), std::string("Atención | ") + each.question);
        press(QStringLiteral("No"));
        EXPECT_EQ(table(), before);
        (step->selectedDrinks()->*each.remove)(each.row);
        (step->selectedDrinks()->*each.remove)(each.row);
        press(QStringLiteral("Sí"));
        EXPECT_EQ(table(), each.left);
        press(QStringLiteral("Sí"));
        EXPECT_EQ(alert(), std::string("Error | ") + each.failure);
        press(QStringLiteral("Aceptar"));
        choose("Cafés", "Solo", "Taza");
        EXPECT_EQ(table(), before) << "what was removed can be chosen again";
    }
}

TEST_F(DrinkStep, TellsOfAProductThatCannotBeSelected) {
    appear();
    choose("Refrescos");
    builder.brochures().drinks.front().products.pop_back();
    session.applicationInformation = builder.take();
    step->chooseProduct(1);
    EXPECT_EQ(alert(), "Error | El producto no ha podido ser seleccionado.");
    EXPECT_TRUE(draft().selectedBeverages.empty());
}

TEST_F(DrinkStep, PricesAreTakenUnsetOrKeptAsTheyWereTyped) {
    struct Case {
        const char* typed;
        const char* shown;
    };
    draft().setSecondPrice(PriceType::night);
    appear();
    EXPECT_EQ(step->firstPriceLabel(), "Barra");
    EXPECT_EQ(step->secondPriceLabel(), "Noche");
    step->addNewCategory();
    press(QStringLiteral("Crear"), QStringLiteral("Zumos"));
    step->addNewProduct();
    press(QStringLiteral("Crear"), QStringLiteral("Piña"));
    for (const bool second : {false, true}) {
        const int role = second ? BeveragesTableView::SecondPriceEditRole : BeveragesTableView::PriceEditRole;
        for (const Case& each :
             {Case{"2,5", "2,5"}, Case{",", "2,5"}, Case{"3.25", "3,25"}, Case{"", ""}, Case{"4", "4"}}) {
            step->selectedDrinks()->productModifyPriceDelegateMethod(1, second,
                                                                     QString::fromUtf8(each.typed));
            const auto* model = step->selectedProductsTable();
            EXPECT_EQ(model->data(model->index(1), role).toString().toStdString(), each.shown);
        }
    }
    EXPECT_EQ(info(-1, -1, "").price1, 4);
    EXPECT_EQ(info(-1, -1, "").price2, 4);
    const auto prices = temporaryCopy()->menu.otherDrinks->front().elements.front().prices;
    EXPECT_EQ(prices.size(), 2U);
}

TEST_F(DrinkStep, WhatStillStandsInAFieldGoesIntoTheDraftWhenTheStepIsLeft) {
    appear();
    choose("Refrescos", "Limonada");
    step->selectedDrinks()->priceEdited(1, true, QStringLiteral("7,5"));
    EXPECT_EQ(info(1, 1, "Vaso").price2, 2.5);
    step->serializeAutoSave();
    EXPECT_EQ(info(1, 1, "Vaso").price2, 7.5);
    step->selectedDrinks()->categoryDescriptionModified(0, QStringLiteral("Con hielo"));
    EXPECT_EQ(temporaryCopy()->menu.otherDrinks->front().description, "Con hielo");
    step->selectedDrinks()->categoryDescriptionModified(0, QString());
    EXPECT_EQ(table(), "Refrescos | Limonada/Vaso/2/7,5") << "the catalogue's does not come back";
    step->selectedDrinks()->productDescriptionButtonDelegateMethod(1);
    EXPECT_EQ(alerts.current()->textField->initialText, "Casera");
    press(QStringLiteral("Guardar"), QStringLiteral("Con hierbabuena y mucho hielo"));
    EXPECT_EQ(draft().beverageInfo(1, 1, false, std::nullopt)->description, "Con hierbabuena y mu");
}

TEST_F(DrinkStep, ReopenedItShowsTheDrinksOfTheCatalogueAndOfTheUser) {
    draft().setSecondPrice(PriceType::terrace);
    draft().setLanguages(1, std::nullopt);
    draft().selectedNumberOfBrochures = {50, 10};
    appear();
    choose("Refrescos", "Limonada", "Jarra");
    step->addNewCategory();
    press(QStringLiteral("Crear"), QStringLiteral("Zumos"));
    step->addNewProduct();
    press(QStringLiteral("Crear"), QStringLiteral("Piña"));
    step->addNewFormat();
    press(QStringLiteral("Crear"), QStringLiteral("Cuba"));
    step->selectedDrinks()->formatDeleteButtonDelegateMethod(5);
    press(QStringLiteral("Sí"));
    for (const int row : {1, 2, 4}) {
        step->selectedDrinks()->productModifyPriceDelegateMethod(row, false, QString::number(row));
        step->selectedDrinks()->productModifyPriceDelegateMethod(row, true, QString::number(row + 10));
    }
    const std::string shown =
        "Refrescos: Fríos | Limonada/Jarra/1/11 | Limonada/Vaso/2/12 | Zumos | Piña//4/14";
    EXPECT_EQ(table(), shown);
    const auto sent = draft().makeOrder(OrderRequestType::sendToPrint, false).menu.otherDrinks.value();
    ASSERT_EQ(sent.size(), 2U);
    EXPECT_EQ(sent.front().name, "Zumos");
    EXPECT_FALSE(sent.front().id) << "a category of the user's own has no number for the server";
    EXPECT_EQ(sent.front().elements.front().name, "Piña");
    EXPECT_EQ(sent.back().id, 1);
    reopen();
    EXPECT_EQ(table(), shown);
    EXPECT_EQ(texts(step->categoriesDataSource()), "Refrescos | Cafés | Zumos");
    choose("Zumos", "Piña");
    EXPECT_TRUE(step->selectedProduct());
    step->serializeAutoSave();
    step->serializeAutoSave();
    EXPECT_EQ(draft().makeOrder(OrderRequestType::sendToPrint, false).menu.otherDrinks.value(), sent);
}

TEST_F(DrinkStep, WhatLeftTheCatalogueCanBeSeenAndRemoved) {
    draft().setBeverageSelected(true, {.identifier = 2, .formatName = ""}, 1);
    auto order = draft().makeOrder(OrderRequestType::saveCloud, false);
    order.menu.otherDrinks->front().elements.front().id = 77;
    BrochureIntermediateData::replaceTemporalBrochure()->loadOrder(order);
    appear();
    EXPECT_EQ(table(), "Refrescos: Fríos | Ya no está en el catálogo///");
    step->selectedDrinks()->productDeleteButtonDelegateMethod(1);
    press(QStringLiteral("Sí"));
    EXPECT_EQ(table(), "Refrescos: Fríos");
}

TEST_F(DrinkStep, TheSearchIgnoresCaseAndAccentsAndAFilteredChoiceStaysChosen) {
    appear();
    choose("Cafés");
    step->categoriesDataSource()->setFilterText(QStringLiteral("REFRÉ"));
    EXPECT_EQ(texts(step->categoriesDataSource()), "Refrescos");
    EXPECT_EQ(step->categoriesDataSource()->chosenRow(), -1);
    EXPECT_EQ(step->selectedCategory()->name, "Cafés");
    EXPECT_EQ(texts(step->productsDataSource()), "Solo | Limonada");
    step->categoriesDataSource()->setFilterText(QStringLiteral("zzz"));
    EXPECT_EQ(step->categoriesDataSource()->hint(), "Nada coincide con la búsqueda.");
    step->categoriesDataSource()->setFilterText({});
    EXPECT_EQ(step->categoriesDataSource()->chosenRow(), 1);
}

TEST_F(DrinkStep, OpeningAndLeavingChangesNothingAndAKindThatPrintsNoDrinksSaysSo) {
    for (const BrochureType kind : CatalogueBuilder::kinds) {
        open(kind);
        const auto before = draft().makeOrder(OrderRequestType::saveCloud, false);
        appear();
        step->serializeAutoSave();
        EXPECT_EQ(draft().makeOrder(OrderRequestType::saveCloud, false), before);
        const bool printed = kind == BrochureType::beverage || kind == BrochureType::menu;
        EXPECT_EQ(step->notPrintedText().isEmpty(), printed) << label(kind);
    }
}

// ---- In a window

TEST_F(DrinkStep, IsWorkedByKeysAloneWithThreeListsBesideEachOther) {
    for (const QSize size : {QSize(808, 704), QSize(552, 960)}) {
        open(BrochureType::menu);
        showView("BrochureDrinkListView", size);
        scene->item("drinkCategorySearch")->forceActiveFocus(Qt::TabFocusReason);
        scene->type("ref");
        scene->key(Qt::Key_Tab);
        EXPECT_EQ(scene->focusName(), "drinkCategory0");
        scene->key(Qt::Key_Return);
        for (int i = 0; i < 3; ++i)
            scene->key(Qt::Key_Tab);
        EXPECT_EQ(scene->focusName(), "drinkProduct0");
        scene->key(Qt::Key_Down);
        scene->key(Qt::Key_Up);
        scene->key(Qt::Key_Return);
        for (int i = 0; i < 3; ++i)
            scene->key(Qt::Key_Tab);
        EXPECT_EQ(scene->focusName(), "drinkFormat0");
        scene->key(Qt::Key_Down);
        scene->key(Qt::Key_Space);
        EXPECT_EQ(table(), "Refrescos: Fríos | Limonada/Jarra/5/ | Limonada/Vaso/2/2,5");
        scene->item("beveragePrice1")->forceActiveFocus(Qt::TabFocusReason);
        scene->type("6");
        scene->key(Qt::Key_Return);
        scene->type("3,5");
        scene->key(Qt::Key_Return);
        scene->item("categoryDescription0")->forceActiveFocus(Qt::TabFocusReason);
        scene->key(Qt::Key_End);
        scene->type(" y buenos");
        EXPECT_EQ(table(), "Refrescos: Fríos y buenos | Limonada/Jarra/6/ | Limonada/Vaso/3,5/2,5");
        for (const char* name : {"drinkFormatPlus", "categoryDelete0", "formatDelete1"}) {
            const QQuickItem* item = scene->item(name);
            EXPECT_LE(item->mapToScene({item->width(), 0}).x(), size.width()) << name;
        }
        EXPECT_TRUE(scene->warnings().isEmpty()) << scene->warnings().join(" ").toStdString();
    }
}

TEST_F(DrinkStep, WhatIsSaidOfDrinksThatAreNotPrintedCanBeReadInFullAtEachSize) {
    open(BrochureType::beer);
    for (const QSize size : {QSize(808, 704), QSize(552, 960), UiScene::kPhone}) {
        showView("BrochureDrinkListView", size);
        const QQuickItem* said = scene->item("notPrintedText");
        EXPECT_LE(said->property("contentWidth").toReal(), said->width());
        EXPECT_EQ(said->property("truncated"), false);
        EXPECT_LE(said->mapToScene({0, said->height()}).y(),
                  scene->item("drinkCategoryList")->mapToScene({}).y());
    }
}

TEST_F(DrinkStep, OnAPhoneTheListsComeOneAfterTheOtherAndTheChosenDrinksAreOneTapAway) {
    draft().setSecondPrice(PriceType::night);
    showView("BrochureDrinkListView", UiScene::kPhone);
    EXPECT_TRUE(scene->isOnShow("drinkCategory0") && !scene->isOnShow("drinkProductList"));
    scene->click("drinkCategory0");
    EXPECT_TRUE(scene->isOnShow("drinkProduct1") && !scene->isOnShow("drinkCategoryList"));
    scene->click("drinkProduct1");
    EXPECT_TRUE(scene->isOnShow("drinkFormatList"));
    scene->click("drinkCrumb1");
    scene->click("drinkProduct0");
    EXPECT_EQ(scene->value("selectedDrinksBar", "text"), "2 bebidas elegidas");
    scene->click("selectedDrinksBar");
    EXPECT_TRUE(scene->isOnShow("beveragePrice1") && !scene->isOnShow("drinkFormatList"));
    scene->click("beverageSecondPrice1");
    scene->type("9");
    scene->click("selectedDrinksBar"); // the field hands over what was typed
    EXPECT_EQ(info(1, 1, "Vaso").price2, 9);
    EXPECT_TRUE(scene->isOnShow("drinkFormatList")) << "back where one was";
    scene->click("drinkCrumb0");
    EXPECT_TRUE(scene->isOnShow("drinkCategoryList"));
    EXPECT_TRUE(scene->warnings().isEmpty()) << scene->warnings().join(" ").toStdString();
}

} // namespace
} // namespace kavor

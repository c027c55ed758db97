#include "brochures/wizard/StepFixture.h"
#include "brochures/wizard/products/BrochureProductListViewController.h"

namespace kavor {
namespace {

using Model = BrandListModel;

class ProductStep : public StepTest {
protected:
    std::unique_ptr<BrochureProductListViewController> step;

    void show(BrochureType kind = BrochureType::beer) {
        open(kind);
        appear();
    }
    void appear() {
        step = std::make_unique<BrochureProductListViewController>(services, nullptr);
        step->viewDidLoad();
        step->viewWillAppear();
    }
    [[nodiscard]] QStringList names() const { return column(*step->brandsList(), Model::NameRole); }
    void addBrands(int number) {
        for (int i = 0; i < number; ++i)
            builder.brand(100 + i, "Marca " + std::to_string(i)).format(1000 + i, "Caña", 2.0);
        for (Product& product : builder.information.products) {
            for (auto& format : product.productList)
                format.showOnBrochures = true;
        }
    }
};

TEST_F(ProductStep, ListsTheFamilyInCatalogueOrderAndAppliesAllFiltersTogether) {
    builder.brand(13, "Ámbar Doble").format(130, "Caña", 2.0).brand(14, "Ambarina").format(140, "Caña", 2.0);
    builder.brochures().brandProperties = {{1, ApplicationFather::orderBeer, "Propias"},
                                           {2, ApplicationFather::orderWine, "De vino"},
                                           {3, ApplicationFather::orderBeer, "De fuera"}};
    for (const Int brand : {11, 13})
        builder.product(brand).category->propertyId = 1;
    for (const Int brand : {10, 14})
        builder.product(brand).category->propertyId = 3;
    open(BrochureType::beer);
    draft().customerInformation.emplace().priorityBrandIdentifiers = {{10, 13}};
    appear();
    EXPECT_TRUE(step->isPriorityBrandsVisible());
    auto& filter = *step->brandFilter();
    EXPECT_EQ(joined(filter.propertyPicker()), "Todos | Propias | De fuera");

    struct Case {
        bool priority;
        int property;
        const char* search;
        const char* names;
    };
    const Case cases[] = {
        {false, 0, "", "Encina | Roble | Ámbar Doble | Ambarina"},
        {true, 0, "", "Roble | Ámbar Doble"},
        {false, 1, "", "Encina | Ámbar Doble"},
        {false, 0, "AMBÁR", "Ámbar Doble | Ambarina"},
        {true, 0, "ambar", "Ámbar Doble"},
        {true, 2, "ambar", ""},
        {false, 2, "ambar", "Ambarina"},
        {false, 0, "ámbar-¿", ""},                                   // what stays of the text is "ambar-"
        {false, 0, "¿¡", "Encina | Roble | Ámbar Doble | Ambarina"}, // nothing stays of it
    };
    for (const Case& each : cases) {
        filter.setPriorityApplied(each.priority);
        filter.setPropertyIndex(each.property);
        filter.setSearchBrandTextField(QString::fromUtf8(each.search));
        EXPECT_EQ(joined(names()), each.names) << each.priority << each.property << each.search;
    }
}

TEST(BrandList, SearchesTheNamesOfAnotherCatalogueToo) {
    CatalogueBuilder former;
    former.information.products.clear();
    former.brand(1, "Roble").brand(2, "Encina").brand(3, "Haya");
    CatalogueBuilder later;
    later.information.products.clear();
    later.brand(1, "Roble").brand(5, "Olmo").brand(3, "Haya").brand(-1, "Propia");
    Model model;
    model.setDraft(std::make_shared<BrochureIntermediateData>());
    model.setBrands(former.take(), ApplicationFather::orderBeer);
    model.setFilter({false, std::nullopt, "o"});
    model.setBrands(later.take(), ApplicationFather::orderBeer);
    std::vector<Int> shown;
    for (int row = 0; row < model.count(); ++row)
        shown.push_back(model.brandAt(row)->id);
    EXPECT_EQ(shown, (std::vector<Int>{1, 5, -1}));
}

TEST_F(ProductStep, CountsBrandsOfTheFamilyAgainstTheLimits) {
    addBrands(5);
    auto& parameters = builder.parameters(BrochureType::beer);
    parameters.minBrandSelection = 2;
    parameters.maxBrandSelection = 4;
    open(BrochureType::beer);
    draft().setFormatSelected(true, 120, 12); // a wine of an earlier menu doesn't count
    appear();
    EXPECT_EQ(step->minimumProductsSelectedLabel(), "2");
    EXPECT_EQ(step->maximumBrandsSelectedLabel(), "4");
    const bool red[] = {true, true, false, false, false};
    for (int count = 0; count <= 4; ++count) {
        EXPECT_EQ(step->currentProductsSelectedLabel(), QString::number(count));
        EXPECT_DOUBLE_EQ(step->progress(), count / 4.0);
        EXPECT_EQ(step->isProgressRed(), red[count]) << count;
        step->toggleFormat(2 + count, 1000 + count);
    }
    // The fifth brand was refused, and the user is told; a further format of a chosen brand is not.
    EXPECT_EQ(step->currentNumberOfSelections(), 4);
    EXPECT_NE(step->refusal(), "");
    EXPECT_EQ(draft().isFormatSelected(1004, 104), SelectionState::notSelected);
    step->toggleFormat(2, 1000); // out
    step->toggleFormat(0, 110);
    step->toggleFormat(0, 111);
    EXPECT_EQ(step->currentNumberOfSelections(), 4);
    EXPECT_EQ(step->refusal(), "");
    EXPECT_EQ(
        step->brandsList()->data(step->brandsList()->index(0), Model::SelectedFormatsRole).toList().size(),
        2);
    const auto stored = temporaryCopy();
    ASSERT_TRUE(stored);
    EXPECT_EQ(stored->menu.beerBrands.size(), 5u);
    // A draft from elsewhere may hold more than the limit.
    draft().setFormatSelected(true, 1004, 104);
    appear();
    EXPECT_TRUE(step->isProgressRed());
    EXPECT_GT(step->progress(), 1);
}

TEST_F(ProductStep, TellsTheLimitsOfAChalkboardByItsFormat) {
    addBrands(4);
    builder.brochures().blackboardFormats.front().numberOfSelectableBrands = {1, 3};
    show(BrochureType::chalkboard);
    EXPECT_EQ(alert(), "Atención | Debes elegir un formato para la pizarra en configuración.");
    EXPECT_EQ(step->setOfBrandsChoicesLabel(), "");
    EXPECT_FALSE(step->areLimitsVisible());
    alerts.answerButton(0);
    draft().setBlackboardFormat(1);
    appear();
    EXPECT_EQ(alerts.current(), nullptr);
    EXPECT_EQ(step->setOfBrandsChoicesLabel(), "Debes elegir entre 1 o 3 marcas.");
    for (const bool red : {true, false, true, false, true}) {
        EXPECT_EQ(step->isProgressRed(), red) << step->currentNumberOfSelections();
        const int row = step->currentNumberOfSelections();
        step->toggleFormat(2 + row, 1000 + row);
    }
}

class NewBrand : public ProductStep {
protected:
    void SetUp() override {
        ProductStep::SetUp();
        constexpr auto beer = ApplicationFather::orderBeer;
        builder.parameters(BrochureType::beer).showProductSecondary = true;
        auto& all = builder.brochures();
        all.brandTypologies = {{21, beer, "Doradas", 2, {}, {}}, {22, beer, "Negras", 1, {}, {}}};
        all.brandTastes = {{31, beer, "Suave", 1, {}, {}, true}};
        all.brandSegments = {{41, beer, "De siempre", 1, resource("segment")},
                             {42, ApplicationFather::orderWine, "De diario", 1, {}}};
        auto& barrel = all.productTypes.emplace_back();
        barrel = {1, beer, 2, "Barril", resource("plain"), {}, 1.5, {{{41, 31, resource("tasted")}}}};
        all.productTypes.push_back({2, beer, 1, "Botella", {}, {}, {}, {}});
        all.productTypes.push_back({3, ApplicationFather::orderWine, 1, "Copa", {}, {}, {}, {}});
        show();
        step->addNewBrandBtn();
    }
    void fill(const char* name) {
        auto& form = *step->formAddNewBrandView();
        form.setProperty("name", QString::fromUtf8(name));
        for (const char* picker : {"typology", "taste", "segment"})
            form.setProperty(picker, 1);
    }
};

TEST_F(NewBrand, WantsItsFourObligatoryFields) {
    auto& form = *step->formAddNewBrandView();
    EXPECT_EQ(joined(form.brandTypologyList()), "Sin seleccionar | Negras | Doradas");
    EXPECT_EQ(joined(form.brandSegmentList()), "Sin seleccionar | De siempre");
    for (const char* missing : {"name", "typology", "taste", "segment"}) {
        fill("Cierva");
        form.setProperty(missing, form.property(missing).typeId() == QMetaType::QString ? QVariant("  ")
                                                                                        : QVariant(0));
        step->createNewBrandBtn();
        EXPECT_EQ(alert(), "Atención | Se han de informar todos los campos obligatorios *") << missing;
        alerts.answerButton(0);
    }
    EXPECT_EQ(joined(names()), "Encina | Roble");
}

TEST_F(NewBrand, RefusesANameThatDiffersOnlyInAccentsOrCaseFromABrandOnShow) {
    fill("ÉNCINÁ");
    step->createNewBrandBtn();
    EXPECT_EQ(alert(), "Atención | Este producto ya está añadido a la Carta");
    alerts.answerButton(0);
    // The filters take part: what they hide is not compared.
    step->brandFilter()->setSearchBrandTextField("rob");
    step->createNewBrandBtn();
    EXPECT_EQ(alerts.current(), nullptr);
    EXPECT_FALSE(step->isFormAddNewBrandVisible());
}

TEST_F(NewBrand, MeetsTheLimitOfTheListFormToo) {
    builder.parameters(BrochureType::beer).withMenuFormat = true;
    builder.parameters(BrochureType::beer).maxBrandSelection = 9;
    builder.parameters(BrochureType::beer).maxBrandListSelection = 1;
    open(BrochureType::beer);
    draft().selectedFormatVisualizeId = 2;
    appear();
    EXPECT_EQ(step->maximumBrandsSelectedLabel(), "1") << "as the check of the order counts";
    step->toggleFormat(0, 110);
    step->addNewBrandBtn();
    fill("Cierva");
    step->createNewBrandBtn();
    EXPECT_EQ(alert(), "Atención | Ya has seleccionado el máximo de marcas. Quita una para añadir Cierva.");
    alerts.answerButton(0);
    EXPECT_EQ(step->formAddNewBrandView()->property("name").toString(), "Cierva") << "what was typed stays";
    step->toggleFormat(0, 110);
    step->createNewBrandBtn();
    EXPECT_EQ(step->currentNumberOfSelections(), 1);
}

TEST_F(NewBrand, EntersTheCatalogueTheListAndTheDraftWithItsFormatsSelected) {
    for (const char* name : {"Cierva", "Corza"}) {
        fill(name);
        step->createNewBrandBtn();
        EXPECT_FALSE(step->isFormAddNewBrandVisible());
        step->addNewBrandBtn();
        EXPECT_EQ(step->formAddNewBrandView()->property("name").toString(), "");
    }
    EXPECT_EQ(joined(names()), "Encina | Roble | Cierva | Corza");
    EXPECT_EQ(step->currentNumberOfSelections(), 2);
    const Product* made = session.catalogue().product(-1);
    ASSERT_TRUE(made && session.catalogue().product(-2));
    EXPECT_EQ(made->category->propertyId, 4);
    EXPECT_EQ(made->category->typologyId, 22);
    EXPECT_EQ(made->category->ageId, std::nullopt);
    ASSERT_EQ(made->productList.size(), 2u);
    EXPECT_EQ(made->productList[0].icon, "Botella");
    EXPECT_EQ(made->productList[1].image->cacheKey, "tasted");
    EXPECT_NE(made->productList[0].id, session.catalogue().product(-2)->productList[0].id);
    for (const auto& format : made->productList)
        EXPECT_EQ(draft().isFormatSelected(format.id, -1), SelectionState::selected);
    EXPECT_TRUE(draft().priceWarnings().empty());
    // The brands outlive a sudden end: the stored catalogue has both, and the later writing stands.
    const auto stored = session.catalogue().information().products.size();
    sessions.flush();
    SessionStore(session).restoreSession(); // reads the file anew
    EXPECT_EQ(session.catalogue().information().products.size(), stored);
    ASSERT_NE(session.catalogue().product(-2), nullptr);
    EXPECT_EQ(session.catalogue().product(-2)->name, "Corza");
}

} // namespace
} // namespace kavor

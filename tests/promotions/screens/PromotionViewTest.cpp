#include "promotions/screens/PromotionScreensFixture.h"
#include "shell/screens/Screens.h"
#include "ui/UiScene.h"

namespace kavor {
namespace {

// The real views in a window, worked by keys.
class PromotionViews : public PromotionScreens {
protected:
    static constexpr QSize sizes[] = {{1024, 768}, {768, 1024}, {390, 844}};
    std::unique_ptr<PromotionStyleSelectorViewController> gallery;
    std::unique_ptr<UiScene> scene;
    QObject* opened = nullptr;

    void TearDown() override {
        scene.reset();
        gallery.reset();
        PromotionScreens::TearDown();
    }
    void show(const QUrl& view, QObject* controller, QSize size) {
        scene.reset();
        QQmlEngine registering;
        registerScreens(registering); // for the whole process
        scene = std::make_unique<UiScene>(
            QStringLiteral("Loader { anchors.fill: parent; focus: true\n"
                           "onLoaded: item.focus = true\n"
                           "Component.onCompleted: setSource(\"%1\", { controller: shownScreen }) }\n"
                           "AlertHost { anchors.fill: parent; presenter: alerts }")
                .arg(view.toString()),
            size, QHash<QString, QObject*>{{"shownScreen", controller}, {"alerts", &alerts}});
    }
    void showForm(QSize size, Int promotion = 1, std::optional<MenuPromotionUse> use = std::nullopt) {
        scene.reset();
        open(promotion, 1, std::move(use));
        show(PromotionViewController::view(), form.get(), size);
    }
    void focus(const QString& name) const {
        QQuickItem* item = scene->item(name);
        ASSERT_NE(item, nullptr) << name.toStdString();
        item->forceActiveFocus(Qt::TabFocusReason);
    }
    void type(const QString& name, const QString& text) const {
        focus(name);
        scene->type(text);
    }
    void press(const QString& name, Qt::Key key = Qt::Key_Space) const {
        focus(name);
        scene->key(key);
    }
    // But for the pictures of the catalogue, which nobody provides here.
    [[nodiscard]] QStringList warnings() const {
        QStringList all = scene->warnings();
        all.removeIf([](const QString& line) { return line.contains("Invalid image provider"); });
        return all;
    }
    void expectInside(std::initializer_list<const char*> names, QSize size) const {
        for (const char* name : names) {
            const QQuickItem* item = scene->item(name);
            ASSERT_NE(item, nullptr) << name;
            EXPECT_GE(item->mapToScene({}).x(), 0) << name;
            EXPECT_LE(item->mapToScene({item->width(), 0}).x(), size.width()) << name;
        }
    }
};

TEST_F(PromotionViews, APromotionIsOrderedByKeysAtEachSize) {
    for (const QSize size : sizes) {
        sends().calls.clear();
        showForm(size);
        expectInside({"posterPreview", "attributeCard", "dateToTextView", "makeOrderButton"}, size);
        type("attributeCell0", "De 18 a 20");
        type("attributeCell1", "1,5");
        EXPECT_TRUE(scene->isOnShow("posterBand") && scene->isOnShow("posterPrice"));
        press("formatCell1");
        type("establishmentNameTextField", "Bar Sol");
        type("emailTextField0", "ana@sol.example");
        scene->key(Qt::Key_Return);
        EXPECT_TRUE(UiScene::waitFor([&] { return scene->isOnShow("emailTextField1"); }));
        press("showMenuSwitch");
        press("configureDays");
        press("showPromotionDay7");
        press("showPromotionDay6");
        EXPECT_TRUE(scene->value("chooseWorkdays", "selected").toBool());
        expectInside({"showPromotionDay1", "showPromotionDay7", "chooseAllDays"}, size);
        type("freeTextForSupport", "Urgente");
        press("makeOrderButton");
        ASSERT_EQ(sends().calls.size(), 1U);
        EXPECT_EQ(order(0).attributes.size(), 2U);
        EXPECT_EQ(order(0).supports.front().id, 102);
        EXPECT_TRUE(order(0).showMenu && order(0).showPromotionDay5 && !order(0).showPromotionDay6);
        EXPECT_TRUE(order(0).comment == "Urgente" && order(0).customer.name == "Bar Sol");
        sends().succeed(answer(7, "http://127.0.0.1:9/7.pdf"));
        told();
        EXPECT_EQ(scene->value("sentText", "text"), "Pedido 7 realizado");
        expectInside({"showSentDocument"}, size);
        EXPECT_EQ(warnings(), QStringList());
    }
}

TEST_F(PromotionViews, ADateIsChosenInTheCalendarByKeysOrLeftAsItWas) {
    for (const QSize size : sizes) {
        showForm(size);
        form->vigencia()->doneActionTo("");
        form->vigencia()->doneActionFrom("30-04-26");
        press("dateFromTextView");
        ASSERT_TRUE(UiScene::waitFor([&] { return scene->isOnShow("dateFromTextViewSheetMonth"); }));
        ASSERT_TRUE(UiScene::waitFor([&] { return scene->focusName() == "dateFromTextViewSheetMonth"; }));
        EXPECT_EQ(scene->value("dateFromTextViewSheetTitle", "text"), "Abril de 2026");
        expectInside({"dateFromTextViewSheetDay1", "dateFromTextViewSheetDay5", "dateFromTextViewSheetDone"},
                     size);
        scene->key(Qt::Key_Right);
        scene->key(Qt::Key_Down);
        EXPECT_EQ(scene->value("dateFromTextViewSheetTitle", "text"), "Mayo de 2026");
        scene->key(Qt::Key_Escape);
        EXPECT_EQ(form->vigencia()->dateFrom(), "30-04-26");
        ASSERT_TRUE(UiScene::waitFor([&] { return !scene->isOnShow("dateFromTextViewSheetMonth"); }));
        press("dateToTextView");
        ASSERT_TRUE(UiScene::waitFor([&] { return scene->focusName() == "dateToTextViewSheetMonth"; }));
        scene->key(Qt::Key_Up); // not before it begins
        scene->key(Qt::Key_PageDown);
        scene->key(Qt::Key_Return);
        EXPECT_EQ(form->vigencia()->dateTo(), "30-05-26");
        ASSERT_TRUE(UiScene::waitFor([&] { return scene->focusName() == "dateToTextView"; }));
        press("dateToTextView");
        ASSERT_TRUE(UiScene::waitFor([&] { return scene->isOnShow("dateToTextViewSheetClear"); }));
        press("dateToTextViewSheetClear");
        EXPECT_EQ(form->vigencia()->dateTo(), "");
        EXPECT_EQ(warnings(), QStringList());
    }
}

TEST_F(PromotionViews, TheFormOfAMenuShowsWhatBelongsThereAndAttachesByKeys) {
    for (const QSize size : sizes) {
        int attached = 0;
        MenuPromotionUse use;
        use.attach = [&](const MenuPromotion&, const PromotionValidity&) { ++attached; };
        showForm(size, 2, use);
        for (const char* hidden :
             {"formatsStackView", "languagePickerView", "customerStackView", "emailsStackView",
              "freeTextForSupport", "sendStackView", "imageLogoStackView"})
            EXPECT_FALSE(scene->isOnShow(hidden)) << hidden;
        EXPECT_TRUE(scene->isOnShow("vigenciaStackView"));
        expectInside({"appendStackview"}, size);
        press("appendStackview");
        EXPECT_EQ(attached, 1);
    }
}

TEST_F(PromotionViews, TheGalleryIsFilteredAndAPictureOpenedByKeysAtEachSize) {
    for (const QSize size : sizes) {
        scene.reset();
        gallery = std::make_unique<PromotionStyleSelectorViewController>(services);
        std::vector<std::unique_ptr<QObject>> forms;
        QObject::connect(gallery.get(), &PromotionStyleSelectorViewController::screenRequested, gallery.get(),
                         [&](const Screen& screen) { forms.emplace_back(screen.controller); });
        show(screenView("PromotionStyleSelectorView"), gallery.get(), size);
        ASSERT_NE(scene->item("collectionViewCell0"), nullptr);
        expectInside({"collectionViewCell0", "collectionViewCell1"}, size);
        focus("promotionGrid");
        scene->key(Qt::Key_Right);
        scene->key(Qt::Key_Return);
        ASSERT_EQ(forms.size(), 1U);
        EXPECT_EQ(qobject_cast<PromotionViewController*>(forms[0].get())->language(), 0)
            << "its second picture";
        press("classification1");
        EXPECT_EQ(gallery->visiblePromotions()->count(), 2);
        press("brandCarouselThumbnail2");
        EXPECT_TRUE(scene->isOnShow("galleryEmpty"));
        press("galleryEmptyAction");
        EXPECT_EQ(gallery->visiblePromotions()->count(), 4);
        EXPECT_EQ(warnings(), QStringList());
    }
}

} // namespace
} // namespace kavor

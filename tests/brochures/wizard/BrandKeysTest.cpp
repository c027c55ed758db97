#include "brochures/wizard/StepViewFixture.h"
#include "brochures/wizard/products/BrochureProductListViewController.h"

namespace kavor {
namespace {

// The real list of brands in a window, worked by keyboard.
class BrandKeys : public StepViewTest<BrochureProductListViewController> {
protected:
    static constexpr int brands = 40;

    void show(QSize size) { showView("BrochureProductListView", size); }
    // Rows of different heights, as brands have them.
    static int formatsOf(int brand) { return 1 + brand * 3 % 8; }
    static QString chip(int brand, int format) {
        return QStringLiteral("brandFormat%1_%2").arg(100 + brand).arg(1000 + 10 * brand + format);
    }
    [[nodiscard]] bool focusInSight() const {
        const QQuickItem* item = scene->window()->activeFocusItem();
        return item && QRectF(QPointF(), scene->window()->size())
                           .contains(item->mapRectToScene(item->boundingRect()));
    }
};

TEST_F(BrandKeys, TabAndArrowsReachEveryBrandAndTheListFollows) {
    builder.information.products.clear();
    QStringList chips;
    for (int i = 0; i < brands; ++i) {
        builder.brand(100 + i, "Marca " + std::to_string(i));
        for (int format = 0; format < formatsOf(i); ++format) {
            builder.format(1000 + 10 * i + format, "Caña de la casa", 2.0);
            builder.product(100 + i).productList.back().showOnBrochures = true;
            chips << chip(i, format);
        }
    }
    open(BrochureType::beer);
    for (const QSize size : {QSize(1024, 768), QSize(768, 1024), QSize(390, 844)}) {
        show(size);
        const auto comesTo = [&](Qt::Key key, const QString& expected) {
            scene->key(key);
            EXPECT_TRUE(UiScene::waitFor([&] { return focusInSight(); }))
                << expected.toStdString() << " of " << size.width();
            return scene->focusName() == expected;
        };
        scene->item(chips.first())->forceActiveFocus(Qt::TabFocusReason);
        for (qsizetype i = 1; i < chips.size(); ++i)
            ASSERT_TRUE(comesTo(Qt::Key_Tab, chips[i])) << scene->focusName().toStdString();
        for (int brand = brands - 2; brand >= 0; --brand)
            ASSERT_TRUE(comesTo(Qt::Key_Up, chip(brand, 0))) << scene->focusName().toStdString();
        for (int brand = 1; brand < brands; ++brand)
            ASSERT_TRUE(comesTo(Qt::Key_Down, chip(brand, 0))) << scene->focusName().toStdString();
    }
}

} // namespace
} // namespace kavor

#include "UiScene.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace kavor {

namespace {

constexpr int rows = 25;

// A list as the wizard has them: rows are made when they are needed and used again, above them a header.
const char* const longList = R"(
    ListView {
        id: list
        objectName: "list"; width: 400; height: 300; clip: true; model: 25; reuseItems: true; cacheBuffer: 40
        FocusFollower { view: list }
        header: AppButton { objectName: "header"; text: "Añadir" }
        delegate: Row {
            required property int index
            height: 70
            AppButton { objectName: "a" + parent.index; text: "A" }
            AppButton { objectName: "b" + parent.index; text: "B" }
        }
    }
)";

QStringList inOrder() {
    QStringList names("header");
    for (int row = 0; row < rows; ++row)
        names << QStringLiteral("a%1").arg(row) << QStringLiteral("b%1").arg(row);
    return names;
}

} // namespace

TEST(FocusFollower, TabGoesThroughALongListInTheOrderOfTheScreenAndTheListFollows) {
    UiScene scene(QString::fromUtf8(longList));
    QStringList expected = inOrder();
    const auto walk = [&](Qt::Key key) {
        QStringList visited;
        for (qsizetype i = 0; i < expected.size(); ++i) {
            if (i > 0 || key == Qt::Key_Tab)
                scene.key(key);
            visited << scene.focusName();
            const QQuickItem* item = scene.window()->activeFocusItem();
            const QRectF place = item->mapRectToScene(item->boundingRect());
            EXPECT_TRUE(QRectF(0, 0, 400, 300).contains(place)) << visited.last().toStdString();
        }
        return visited;
    };
    EXPECT_EQ(walk(Qt::Key_Tab), expected);
    std::ranges::reverse(expected);
    EXPECT_EQ(walk(Qt::Key_Backtab), expected);
    EXPECT_TRUE(scene.warnings().isEmpty());
}

TEST(FocusFollower, WhatHasTheFocusStaysInSightWhenTheWindowTurns) {
    UiScene scene(R"(
        Flickable {
            id: page
            anchors.fill: parent; contentHeight: tiles.height; clip: true
            FocusFollower { view: page }
            Grid {
                id: tiles
                columns: page.width > page.height ? 4 : 2
                spacing: 40
                Repeater { model: 16; AppButton { objectName: "tile" + index; width: 120; height: 120; text: "x" } }
            }
        }
    )");
    scene.key(Qt::Key_Backtab);
    ASSERT_EQ(scene.focusName(), QStringLiteral("tile15"));
    const QQuickItem* item = scene.window()->activeFocusItem();
    for (const QSize size : {UiScene::kPhone, UiScene::kTablet, UiScene::kPhone}) {
        scene.window()->resize(size);
        const QRectF sight(QPointF(), size);
        EXPECT_TRUE(UiScene::waitFor([&] {
            return scene.window()->size() == size &&
                   sight.contains(item->mapRectToScene(item->boundingRect()));
        })) << size.width();
    }
}

} // namespace kavor

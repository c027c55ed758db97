#include "orders/screens/OrderListViewFixture.h"

#include <QTest>

namespace kavor {
namespace {

// Where a list stands, measured from its first row.
qreal placeOf(const UiScene& scene, const QString& list) {
    return scene.value(list, "contentY").toReal() - scene.value(list, "originY").toReal();
}

TEST_F(OrderListViewTest, TheButtonsOfARowActOnThatRowAlsoAfterScrolling) {
    for (int i = 0; i < 40; ++i) {
        OrderList::Order& order = sent(100 + i);
        order.canDemandQr = i % 2 == 0;
        order.pending = i % 3 == 0;
    }
    open(tablet);
    QQuickItem* table = scene->item(QStringLiteral("sentOrdersTable"));
    ASSERT_NE(table, nullptr);
    for (const int row : {0, 39, 20, 21}) {
        QMetaObject::invokeMethod(table, "positionViewAtIndex", Q_ARG(int, row), Q_ARG(int, 4));
        const QString name =
            QStringLiteral("sentOrder%1").arg(list->sentOrders()->rows()[std::size_t(row)].id);
        const SentOrderRow& shown = list->sentOrders()->rows()[std::size_t(row)];
        ASSERT_NE(scene->item(name), nullptr) << row;
        EXPECT_EQ(inRow(name, QStringLiteral("demandQrOrderButton")) != nullptr, shown.canDemandQr) << row;
        EXPECT_EQ(inRow(name, QStringLiteral("imageIncidence")) != nullptr, shown.pending) << row;
        clickInRow(name, QStringLiteral("claimOrderButton"));
        ASSERT_FALSE(claimed.empty());
        EXPECT_EQ(claimed.back(), shown.id);
        ASSERT_TRUE(loads([&] { list->viewWillAppear(); }));
    }
    EXPECT_EQ(claimed.size(), 4U);
    EXPECT_EQ(scene->warnings(), QStringList());
}

TEST_F(OrderListViewTest, TheListsKeepTheirPlacesWhenTheyAreLoadedAnewAndWhileTheOtherIsOnShow) {
    for (int i = 0; i < 40; ++i)
        sent(100 + i);
    open(phone);
    scene->click(QStringLiteral("sentTab"));
    scene->swipe({195, 800}, {195, 400});
    ASSERT_TRUE(UiScene::waitFor(
        [&] { return !scene->value(QStringLiteral("sentOrdersTable"), "moving").toBool(); }));
    const qreal place = placeOf(*scene, QStringLiteral("sentOrdersTable"));
    ASSERT_GT(place, 200);

    ASSERT_TRUE(loads([&] { scene->click(QStringLiteral("refreshOrders")); }));
    EXPECT_EQ(placeOf(*scene, QStringLiteral("sentOrdersTable")), place);

    scene->click(QStringLiteral("savedTab"));
    EXPECT_FALSE(scene->isOnShow(QStringLiteral("sentOrdersTable")));
    scene->click(QStringLiteral("sentTab"));
    EXPECT_EQ(placeOf(*scene, QStringLiteral("sentOrdersTable")), place);
}

TEST_F(OrderListViewTest, AnOrderThatCameMeanwhileStandsInSightAtTheHeadOfTheList) {
    for (int i = 0; i < 40; ++i)
        sent(100 + i);
    open(tablet);
    sent(900).date = *LocalDateTime::parse("06-06-2024 07:08:09");
    network.requests.retrieveBrochureOrderList.always(answer);
    ASSERT_TRUE(loads([&] { scene->click(QStringLiteral("refreshOrders")); }));
    const QQuickItem* table = scene->item(QStringLiteral("sentOrdersTable"));
    const QQuickItem* newest = scene->item(QStringLiteral("sentOrder900"));
    ASSERT_NE(newest, nullptr);
    EXPECT_TRUE(UiScene::waitFor([&] { return newest->mapToItem(table, QPointF()).y() == 0; }));
}

TEST_F(OrderListViewTest, PullingAListFarEnoughDownLoadsItAnewOnceAlsoWhenItIsShortOrEmpty) {
    for (int i = 0; i < 12; ++i)
        draft("Bar " + std::to_string(i));
    open(phone);
    const std::size_t before = requests();
    pull(40);
    EXPECT_EQ(requests(), before) << "a short pull";
    EXPECT_TRUE(loads([&] { pull(200); }));

    scene->click(QStringLiteral("sentTab"));
    EXPECT_TRUE(scene->isOnShow(QStringLiteral("sentOrdersTableEmpty")));
    EXPECT_TRUE(loads([&] { pull(200); }));
}

TEST_F(OrderListViewTest, OnAPhoneASearchAndAQuickFilterShowWhatTheyFound) {
    sent(100);
    open(phone);
    EXPECT_FALSE(scene->isOnShow(QStringLiteral("localNameSearch")));
    scene->click(QStringLiteral("openSearch"));
    scene->click(QStringLiteral("localNameSearch"));
    scene->type(QStringLiteral("Sol"));
    ASSERT_TRUE(loads([&] { scene->key(Qt::Key_Return); }));
    EXPECT_EQ(std::get<0>(network.requests.retrieveBrochureOrderList.calls.back()).pdv,
              QStringLiteral("Sol"));
    EXPECT_TRUE(scene->isOnShow(QStringLiteral("sentOrdersTable")));
    EXPECT_FALSE(scene->isOnShow(QStringLiteral("localNameSearch"))) << "the list has its room back";

    ASSERT_TRUE(loads([&] { scene->click(QStringLiteral("filterpdv")); }));
    EXPECT_EQ(std::get<0>(network.requests.retrieveBrochureOrderList.calls.back()).pdv, QString());
    EXPECT_FALSE(scene->isOnShow(QStringLiteral("filterpdv")));

    scene->click(QStringLiteral("savedTab"));
    ASSERT_TRUE(loads([&] { scene->click(QStringLiteral("withoutConfirmButton")); }));
    EXPECT_TRUE(scene->isOnShow(QStringLiteral("sentOrdersTable")));
    EXPECT_TRUE(scene->value(QStringLiteral("withoutConfirmButton"), "active").toBool());
    EXPECT_EQ(scene->warnings(), QStringList());
}

TEST_F(OrderListViewTest, TheKeyboardAloneGoesThroughBothListsAndOpensASheet) {
    draft("Bar Sol");
    draft("Bar Olmo", DirectoryName::outbox);
    sent(100);
    sent(101).canDemandQr = true;
    open(tablet);
    scene->key(Qt::Key_F, Qt::ControlModifier);
    EXPECT_EQ(scene->focusName(), QStringLiteral("orderIdSearch"));

    QStringList reached;
    for (int i = 0; i < 30 && !reached.contains(QStringLiteral("sentOrder101")); ++i) {
        scene->key(Qt::Key_Tab);
        reached.append(scene->focusName());
    }
    for (const char* name : {"searchButton", "sendAllButton", "refreshOrders", "sendButton", "editButton",
                             "deleteButton", "sentOrder100", "claimOrderButton", "sentOrder101"})
        EXPECT_TRUE(reached.contains(QLatin1String(name))) << name;

    scene->key(Qt::Key_Left);
    EXPECT_TRUE(QStringLiteral("sendButton savedOrder").contains(scene->focusName().left(10)));
    scene->key(Qt::Key_Right);
    scene->key(Qt::Key_Down);
    EXPECT_EQ(scene->focusName(), QStringLiteral("sentOrder101"));
    scene->key(Qt::Key_Space);
    EXPECT_EQ(scene->focusName(), QStringLiteral("sheetPreview"));
    EXPECT_TRUE(scene->isOnShow(QStringLiteral("sheetDemandQr")));
    scene->key(Qt::Key_Escape);
    EXPECT_FALSE(scene->isOnShow(QStringLiteral("sheetPreview")));
    EXPECT_EQ(scene->focusName(), QStringLiteral("sentOrder101"));
}

TEST_F(OrderListViewTest, TheHelpGoesByATapBesideItOrEscapeAndStaysForOneInside) {
    open(phone);
    scene->click(QStringLiteral("openHelp"));
    const QQuickItem* rounded = scene->item(QStringLiteral("roundedView"));
    ASSERT_NE(rounded, nullptr);
    scene->click(QStringLiteral("roundedView"));
    EXPECT_TRUE(list->isHelpShown());
    scene->tap({195, 8});
    EXPECT_FALSE(list->isHelpShown());
    EXPECT_FALSE(scene->isOnShow(QStringLiteral("roundedView")));

    bool left = false;
    QObject::connect(list.get(), &ScreenController::closed, [&] { left = true; });
    scene->click(QStringLiteral("openHelp"));
    scene->key(Qt::Key_Escape);
    EXPECT_FALSE(list->isHelpShown());
    EXPECT_FALSE(left);
    scene->key(Qt::Key_Escape);
    EXPECT_TRUE(left);
}

TEST_F(OrderListViewTest, WhatWasDeletedComesBackByItsButtonAndByTheKeyboard) {
    draft("Bar Sol");
    open(phone);
    const auto remove = [&] {
        scene->click(QStringLiteral("deleteButton"));
        ASSERT_TRUE(press(alerts, QStringLiteral("Borrar")));
        ASSERT_NE(scene->item(QStringLiteral("undoDelete")), nullptr);
        EXPECT_TRUE(showsDrafts(0));
    };
    remove();
    scene->click(QStringLiteral("undoDelete"));
    EXPECT_TRUE(showsDrafts(1));
    EXPECT_FALSE(scene->isOnShow(QStringLiteral("undoDelete")));
    remove();
    scene->key(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_TRUE(showsDrafts(1));
}

TEST_F(OrderListViewTest, NothingStandsBeyondItsCardAtAnyOfTheThreeSizes) {
    const std::string longName(120, 'M');
    draft(longName);
    sent(4000000000LL, longName).state = longName;
    answer.orders->back().canDemandQr = true;
    answer.orders->back().pending = true;
    answer.orders->back().note = longName;
    for (const QSize size : {tablet, upright, phone}) {
        open(size);
        for (const bool sentList : {false, true}) {
            if (size == phone)
                scene->click(sentList ? QStringLiteral("sentTab") : QStringLiteral("savedTab"));
            const QString name = sentList ? QStringLiteral("sentOrder4000000000")
                                          : QStringLiteral("savedOrder") +
                                                QString::fromStdString(list->savedOrders()->rows()[0].key);
            const QQuickItem* cell = scene->item(name);
            ASSERT_NE(cell, nullptr) << name.toStdString();
            for (const QQuickItem* part : cell->findChildren<QQuickItem*>()) {
                if (!part->isVisible() || part->objectName().isEmpty())
                    continue;
                const QRectF place = part->mapRectToItem(cell, part->boundingRect());
                EXPECT_TRUE(cell->boundingRect().contains(place))
                    << part->objectName().toStdString() << " at " << size.width();
            }
        }
        EXPECT_EQ(scene->warnings(), QStringList());
        scene.reset();
        list.reset();
    }
}

} // namespace
} // namespace kavor

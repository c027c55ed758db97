#include "ShellFixture.h"
#include "shell/WelcomeOptions.h"
#include "shell/screens/ShellTexts.h"

namespace kavor {

namespace {

const QString serverTrouble = QStringLiteral("Error de conexión con el servidor.");

class Dashboard : public ShellTest {
protected:
    Dashboard() { session.loginResult = rights(); }

    WelcomeViewController& open() {
        screen_ = std::make_unique<WelcomeViewController>(welcomeServices());
        return *screen_;
    }
    // Lets what waits on the main queue happen.
    static void settle() { QCoreApplication::processEvents(); }
    [[nodiscard]] std::vector<int> buttons() const {
        std::vector<int> identifiers;
        for (const QVariant& button : screen_->welcomeButtons())
            identifiers.push_back(button.toMap().value(QStringLiteral("identifier")).toInt());
        return identifiers;
    }
    void putOrder(OrderDiskManager::DirectoryName directory, const std::string& name) {
        SaveBrochuresOrder order;
        order.filename = name;
        ASSERT_TRUE(orders.create(order, directory, name));
    }
    [[nodiscard]] std::vector<std::string> sentFiles() const {
        std::vector<std::string> names;
        for (const auto& call : network.requests.sendRawOrder.calls)
            names.push_back(std::get<1>(call).toStdString());
        return names;
    }

    std::unique_ptr<WelcomeViewController> screen_;
};

} // namespace

TEST_F(Dashboard, OffersWhatTheRightsAllowInItsOwnOrder) {
    open().viewWillAppear();
    EXPECT_TRUE(buttons().empty());

    session.loginResult->showBeerBrochures = true;
    session.loginResult->showPromotion = true; // has a right but no button
    session.loginResult->showFoodBrochures = false;
    open().viewWillAppear();
    EXPECT_EQ(buttons(), std::vector{1});
    EXPECT_EQ(welcomeFlags(*session.loginResult),
              (std::map<ApplicationType, bool>{{ApplicationType::orderBeer, true},
                                               {ApplicationType::promotion, true},
                                               {ApplicationType::orderFood, false}}));

    LoginResult& all = *session.loginResult;
    for (auto flag :
         {&LoginResult::showBeveragesBrochures, &LoginResult::showFoodBrochures,
          &LoginResult::showSellingSheet, &LoginResult::showFlyer, &LoginResult::showChalkboard,
          &LoginResult::showCarteleria, &LoginResult::showActivations, &LoginResult::showTextile,
          &LoginResult::showRRSS, &LoginResult::showVideoBrochure, &LoginResult::showMantelBrochure,
          &LoginResult::showEncarteBrochure, &LoginResult::appShowWineA4, &LoginResult::appShowWineOrder,
          &LoginResult::appShowWineTextil})
        all.*flag = true;
    open().viewWillAppear();
    EXPECT_EQ(buttons(), (std::vector{1, 4, 2, 3, 5, 13, 11, 23, 19, 24, 6, 7, 8, 21, 9}));
}

TEST_F(Dashboard, EntersASectionAndLeavesIt) {
    WelcomeViewController& screen = open();
    QStringList transitions;
    QObject::connect(&screen, &WelcomeViewController::transitionPerformed, &screen,
                     [&](const QString& name) { transitions << name; });
    const std::vector<std::pair<int, SectionIdentifier>> table{
        {13, SectionIdentifier::brochure(BrochureType::mantel)},
        {24, SectionIdentifier::brochure(BrochureType::wineOrder)},
        {6, SectionIdentifier::promotion(PromotionType::promotion)},   // crossed on purpose
        {12, SectionIdentifier::promotion(PromotionType::carteleria)}, // and back
        {21, SectionIdentifier::textile(ApplicationType::textilWine)},
        {7, {SectionIdentifier::SellingSheet{}}},
        {9, {SectionIdentifier::Activations{}}},
    };
    for (const auto& [identifier, section] : table) {
        screen.openSection(identifier);
        EXPECT_EQ(session.actualSection, section) << identifier;
        EXPECT_EQ(session.actualApplicationType, ApplicationType(identifier));
    }
    EXPECT_EQ(transitions.join(u' '),
              u"showBrochureSegue showBrochureSegue showPromotionSegue showPromotionSegue showTextileSegue "
              u"showSellingSheetSegue showActivationsSegue");
    screen.viewWillAppear();
    EXPECT_FALSE(session.actualSection);
    for (const int unknown : {20, 10, 14, 99})
        EXPECT_EXIT(screen.openSection(unknown), ::testing::ExitedWithCode(70), std::to_string(unknown));
}

TEST_F(Dashboard, FetchesTheCatalogueAfterTheLoginFormAndTellsHowFarItIs) {
    ScriptedServer server;
    std::vector<HashedResource> pictures;
    for (int i = 0; i < 3; ++i) {
        const QByteArray path = "/img/" + QByteArray::number(i);
        server.answer(path, ScriptedAnswer::bytes("picture", "image/png"));
        pictures.push_back({"hash" + std::to_string(i),
                            Url{server.address(QString::fromLatin1(path)).toStdString()},
                            i == 2 ? 0 : 1}); // the last one is not prefetched
    }
    WelcomeViewController& screen = open();
    QStringList texts;
    QObject::connect(&screen, &WelcomeViewController::progressChanged, &screen, [&] {
        if (texts.isEmpty() || texts.last() != screen.progressMessage())
            texts << screen.progressMessage();
    });
    screen.downloadApplicationInformation = true;
    screen.viewWillAppear();
    settle();
    EXPECT_TRUE(screen.isProgressVeilShown());
    ASSERT_EQ(network.requests.appInformation.waiting(), 1);
    EXPECT_EQ(screen.catalogueAge(), u"");

    network.requests.appInformation.succeed(catalogueWith(pictures));
    ASSERT_TRUE(waitFor([&] { return !screen.isProgressVeilShown(); }));
    EXPECT_EQ(texts.join(u'|'),
              u"Actualizando información|Actualizando imágenes 0/2|Actualizando imágenes 1/2|"
              u"Actualizando imágenes 2/2|Enviando pedidos 0/0");
    EXPECT_EQ(server.requests().size(), 2);
    EXPECT_FALSE(screen.downloadApplicationInformation);
    EXPECT_EQ(screen.catalogueAge(), u"Catálogo actualizado hace un momento");

    // A device that dies keeps what it fetched.
    sessions.flush();
    session.applicationInformation.reset();
    ASSERT_TRUE(sessions.restoreSession());
    EXPECT_EQ(session.applicationInformation->information().images.size(), 3U);

    clock.advance(std::chrono::minutes(5));
    EXPECT_EQ(screen.catalogueAge(), u"Catálogo actualizado hace 5 minutos");
}

TEST_F(Dashboard, AFailedFetchKeepsTheOldCatalogueAndLeadsBackToTheLogin) {
    WelcomeViewController& screen = open();
    const auto old = catalogueWith();
    session.applicationInformation = old;
    screen.downloadApplicationInformation = true;
    screen.viewWillAppear();
    settle();
    network.requests.appInformation.fail(failureWith({QStringLiteral("uno"), QStringLiteral("dos")}));
    EXPECT_EQ(alerts.current()->buttons.at(0).text, u"Volver");
    EXPECT_EQ(alerts.current()->buttons.size(), 1);
    answer(serverTrouble, QStringLiteral("uno\ndos"));
    EXPECT_EQ(roots, std::vector{Root::LoginNavigation});
    EXPECT_EQ(session.applicationInformation, old);
    EXPECT_TRUE(screen.downloadApplicationInformation);
}

TEST_F(Dashboard, TheUpdateRefreshesTheRightsFirst) {
    WelcomeViewController& screen = open();
    screen.viewWillAppear();
    screen.updateInfoapp();
    settle();
    EXPECT_TRUE(screen.isProgressVeilShown());
    EXPECT_EQ(screen.progressMessage(), u"Actualizando información");
    network.requests.userInformation.fail(failureWith({QStringLiteral("Servidor caído")}));
    answer(serverTrouble, QStringLiteral("Servidor caído"));
    EXPECT_FALSE(screen.isProgressVeilShown());
    EXPECT_TRUE(network.requests.appInformation.calls.empty());

    screen.updateInfoapp();
    settle();
    LoginResult answered = rights("newer");
    answered.showTextile = true;
    network.requests.userInformation.succeed(answered);
    EXPECT_EQ(session.loginResult->msg, "newer");
    EXPECT_EQ(buttons(), std::vector{8});
    EXPECT_DOUBLE_EQ(screen.progress(), 1.0 / 3);
    EXPECT_EQ(network.requests.appInformation.waiting(), 1);
}

TEST_F(Dashboard, ShowsTheServersNotificationsAfterAFetch) {
    WelcomeViewController& screen = open();
    session.loginResult->notifications =
        std::vector<UserNotification>{{"Nueva carta", "Ya disponible", "http://server.example/a.png"},
                                      {"Aviso", std::nullopt, "not a url"}};
    catalogue.start();
    network.requests.appInformation.succeed(catalogueWith());
    EXPECT_TRUE(screen.areNotificationsShown());
    EXPECT_EQ(screen.notificationsTitle(), u"Notificaciones (2)");
    EXPECT_EQ(screen.notificationsList().at(1).toMap().value("image"), "") << "not a url";
    session.loginResult->notifications->clear();
    catalogue.start();
    network.requests.appInformation.succeed(catalogueWith());
    EXPECT_FALSE(screen.areNotificationsShown());
}

TEST_F(Dashboard, SendsEveryOrderFileOnceWhenTheServerAsks) {
    putOrder(OrderDiskManager::DirectoryName::draft, "Bar Sol");
    putOrder(OrderDiskManager::DirectoryName::outbox, "Bar Sol");
    putOrder(OrderDiskManager::DirectoryName::outbox, "Bar Mar");
    session.loginResult->sendOrderInformation = true;
    WelcomeViewController& screen = open();
    QStringList texts;
    QObject::connect(&screen, &WelcomeViewController::progressChanged, &screen, [&] {
        if (texts.isEmpty() || texts.last() != screen.progressMessage())
            texts << screen.progressMessage();
    });
    screen.updateInfoapp(); // shows the veil
    settle();
    notifications.post(notification::updatingResourcesDidEnd);
    ASSERT_TRUE(waitFor([&] { return network.requests.sendRawOrder.waiting() == 1; }));
    EXPECT_FALSE(*session.loginResult->sendOrderInformation);

    network.requests.sendRawOrder.succeed({});
    network.requests.sendRawOrder.fail(failureWith({QStringLiteral("no")}));
    settle();
    EXPECT_TRUE(screen.isProgressVeilShown()) << "one is still under way";
    network.requests.sendRawOrder.succeed({});
    ASSERT_TRUE(waitFor([&] { return !screen.isProgressVeilShown(); }));

    // The list goes from its end: the outbox first, the draft of the same name last.
    ASSERT_EQ(sentFiles().size(), 3U);
    EXPECT_EQ(sentFiles().back(), "Bar Sol.zvo");
    EXPECT_EQ(std::ranges::count(sentFiles(), std::string("Bar Sol.zvo")), 2);
    // The next order is taken off the list before the count is told.
    EXPECT_EQ(texts.join(u'|'), u"Actualizando información|Enviando pedidos 0/3|Enviando pedidos 2/3|"
                                u"Enviando pedidos 3/3");
    EXPECT_FALSE(alerts.isVisible());
}

TEST_F(Dashboard, ADiagnosticUploadStopsAtABrokenFileAndWaitsForTheNetwork) {
    put(folder / "orders/draft_orders/SaveBrochuresOrder/broken.zvo", "{");
    session.loginResult->sendOrderInformation = true;
    open();
    EXPECT_EXIT(
        {
            notifications.post(notification::updatingResourcesDidEnd);
            waitFor([] { return false; }, 5000);
        },
        ::testing::ExitedWithCode(70), "broken");
    network.reachable = false;
    notifications.post(notification::updatingResourcesDidEnd);
    settle();
    EXPECT_FALSE(*session.loginResult->sendOrderInformation);
    EXPECT_TRUE(sentFiles().empty());
}

TEST_F(Dashboard, LogsOutWithTheStoredItem) {
    WelcomeViewController& screen = open();
    int dismissed = 0;
    QObject::connect(&screen, &WelcomeViewController::dismissWelcomeView, &screen, [&] { ++dismissed; });
    screen.logout();
    EXPECT_EXIT(alerts.answerButton(1), ::testing::ExitedWithCode(70), "credential");
    remember();
    answer(QStringLiteral("Atención"), QStringLiteral("¿Desea cerrar sesión?"), 0);
    EXPECT_TRUE(loadsItself());
    screen.logout();
    EXPECT_EQ(alerts.current()->buttons.at(1).role, AlertButton::Role::Destructive);
    alerts.answerButton(1);
    EXPECT_FALSE(loadsItself());
    EXPECT_EQ(roots, std::vector{Root::LoginNavigation});
    EXPECT_EQ(dismissed, 1);
    EXPECT_TRUE(session.loginResult) << "the session in memory stays";
}

TEST_F(Dashboard, CountsTheOrdersThatWaitInTheOutbox) {
    WelcomeViewController& screen = open();
    putOrder(OrderDiskManager::DirectoryName::draft, "a draft");
    putOrder(OrderDiskManager::DirectoryName::outbox, "one");
    screen.viewWillAppear();
    ASSERT_TRUE(waitFor([&] { return screen.unsentOrders() == u"1 pedido sin enviar"; }));
    SellingSheetOrder sheet;
    ASSERT_TRUE(orders.create(sheet, OrderDiskManager::DirectoryName::outbox, "two"));
    screen.viewWillAppear();
    EXPECT_TRUE(waitFor([&] { return screen.unsentOrders() == u"2 pedidos sin enviar"; }));
}

TEST_F(Dashboard, AnAnswerToARefreshThatWasLeftChangesNothing) {
    WelcomeViewController& screen = open();
    const auto old = catalogueWith();
    session.applicationInformation = old;
    int ended = 0;
    const auto observer = notifications.observe(notification::updatingResourcesDidEnd,
                                                [&](const NotificationInfo&) { ++ended; });
    const auto refresh = [&] {
        screen.updateInfoapp();
        settle();
    };
    const auto leave = [&] {
        EXPECT_TRUE(screen.isProgressVeilShown());
        screen.cancelUpdateAction();
        EXPECT_FALSE(screen.isProgressVeilShown());
    };
    refresh();
    leave();
    network.requests.userInformation.succeed(rights("late"));
    EXPECT_EQ(session.loginResult->msg, "ok");
    EXPECT_TRUE(network.requests.appInformation.calls.empty());

    for (const bool arrives : {true, false}) {
        refresh();
        LoginResult answered = rights();
        answered.notifications = std::vector<UserNotification>{{"Aviso", std::nullopt, std::nullopt}};
        network.requests.userInformation.succeed(answered);
        leave();
        if (arrives)
            network.requests.appInformation.succeed(catalogueWith());
        else
            network.requests.appInformation.fail(failureWith({QStringLiteral("no")}));
        EXPECT_EQ(session.applicationInformation, old);
        EXPECT_FALSE(screen.areNotificationsShown() || alerts.isVisible() || screen.isProgressVeilShown());
    }

    ScriptedServer server;
    server.answer("/p", ScriptedAnswer::bytes("picture", "image/png"));
    server.hold();
    refresh();
    network.requests.userInformation.succeed(rights());
    network.requests.appInformation.succeed(
        catalogueWith({{"p", Url{server.address("/p").toStdString()}, 1}}));
    ASSERT_TRUE(waitFor([&] { return server.waiting() > 0; }));
    leave();
    server.release();
    ASSERT_TRUE(waitFor([&] { return !downloader.isFetching(server.url("/p")); }));
    settle();
    EXPECT_EQ(ended, 0);
    EXPECT_EQ(screen.progressMessage(), u"Actualizando imágenes 0/1");
    EXPECT_TRUE(roots.empty()) << "there is a catalogue to work with";
}

TEST_F(Dashboard, AnUploadThatWasLeftSendsNothingMore) {
    for (const char* name : {"one", "two"})
        putOrder(OrderDiskManager::DirectoryName::draft, name);
    session.applicationInformation = catalogueWith();
    session.loginResult->sendOrderInformation = true;
    WelcomeViewController& screen = open();
    screen.updateInfoapp();
    settle();
    notifications.post(notification::updatingResourcesDidEnd);
    ASSERT_TRUE(waitFor([&] { return network.requests.sendRawOrder.waiting() == 1; }));
    screen.cancelUpdateAction();
    EXPECT_FALSE(screen.isProgressVeilShown());
    network.requests.sendRawOrder.succeed({});
    settle();
    EXPECT_EQ(sentFiles().size(), 1U);
}

TEST_F(Dashboard, LeavingTheFirstCatalogueLeadsBackToTheLogin) {
    WelcomeViewController& screen = open();
    screen.downloadApplicationInformation = true;
    screen.viewWillAppear();
    settle();
    screen.cancelUpdateAction();
    EXPECT_EQ(roots, std::vector{Root::LoginNavigation}) << "a section stops without a catalogue";
    EXPECT_FALSE(screen.downloadApplicationInformation);
}

TEST_F(Dashboard, ArrowsLeadFromTileToTile) {
    for (auto flag : {&LoginResult::showBeerBrochures, &LoginResult::showBeveragesBrochures,
                      &LoginResult::showFoodBrochures, &LoginResult::showFlyer, &LoginResult::showTextile})
        (*session.loginResult).*flag = true;
    WelcomeViewController& screen = open();
    screen.viewWillAppear();
    struct Case {
        int from, key, to;
    };
    for (const Case& each :
         {Case{-1, Qt::Key_Down, 0}, Case{-1, Qt::Key_Left, -1}, Case{0, Qt::Key_Left, -1},
          Case{0, Qt::Key_Right, 1}, Case{2, Qt::Key_Right, 3}, Case{4, Qt::Key_Right, -1},
          Case{1, Qt::Key_Down, 4}, Case{2, Qt::Key_Down, -1}, Case{4, Qt::Key_Up, 1},
          Case{1, Qt::Key_Up, -1}, Case{3, Qt::Key_Home, 0}, Case{0, Qt::Key_End, 4}, Case{0, Qt::Key_A, -1}})
        EXPECT_EQ(screen.tileAfter(each.from, each.key, 3), each.to) << each.from << " " << each.key;
}

TEST(CatalogueAge, IsToldInTheLargestWholeUnit) {
    const std::vector<std::pair<qint64, QString>> table{
        {59, QStringLiteral("un momento")},   {60, QStringLiteral("1 minuto")},
        {3599, QStringLiteral("59 minutos")}, {3600, QStringLiteral("1 hora")},
        {86399, QStringLiteral("23 horas")},  {86400, QStringLiteral("1 día")},
        {200000, QStringLiteral("2 días")}};
    for (const auto& [seconds, words] : table)
        EXPECT_EQ(catalogueAgeText(seconds), QStringLiteral("Catálogo actualizado hace ") + words);
    EXPECT_EQ(catalogueAgeText(std::nullopt), u"");
}

} // namespace kavor

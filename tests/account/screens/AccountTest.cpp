#include "account/Budget.h"
#include "account/screens/ProfileViewController.h"
#include "account/screens/SuggestionViewController.h"
#include "account/screens/TutorialsViewController.h"
#include "interaction/AlertPresenter.h"
#include "screens/messages/QueryText.h"
#include "session/AppSingleton.h"
#include "session/services/AuthManager.h"
#include "support/CatalogueBuilder.h"
#include "support/DeviceFakes.h"
#include "support/FakeServices.h"

#include <gtest/gtest.h>

namespace kavor {
namespace {

class Account : public ::testing::Test {
protected:
    AppSingleton& session = AppSingleton::shared();
    FakeServices network;
    MemoryUserDefaults defaults;
    MemoryKeychain keychain;
    AuthManager auth{keychain, defaults, "http://server.example"};
    AlertPresenter alerts;
    RecordingUrlOpener urls;
    FakeReachability reachability;
    SuggestionDraft suggestion;
    FakeFilmPlayer films;
    AccountServices services{session, network, auth, alerts, urls, reachability, suggestion, films};

    void SetUp() override {
        CatalogueBuilder builder;
        builder.information.suggestionCategories = {{7, "Catálogo"}, {3, "Pedidos"}};
        session.applicationInformation = builder.take();
        auth.addCredentials("ana", "secret", "token");
    }
    void TearDown() override { session.applicationInformation.reset(); }

    void filmsAt(const std::vector<const char*>& addresses) {
        CatalogueBuilder builder;
        for (const char* address : addresses) {
            const HashedResource film{"h", Url{address}, 3};
            builder.information.manuals.push_back({"carta", "Tu primera carta", 1, film, film, film});
        }
        session.applicationInformation = builder.take();
    }
    static UserProfile profile() {
        UserProfile result;
        result.user.name = "Ana";
        result.user.zone = "Zona 4";
        result.user.email = "";
        result.user.brochuresInitialBudget = "2.400,00 €";
        result.user.brochuresAvailableBudget = "600,00 €";
        result.user.brochureOrdersDone = "12";
        result.user.textileInitialBudget = "sin límite";
        result.user.textileAvailableBudget = "sin límite";
        result.user.textileOrdersDone = "1";
        return result;
    }
};

TEST_F(Account, OnlyAmountsThatAreAmountsGiveABudgetABar) {
    EXPECT_EQ(shareLeft("2.400,00 €", "600 €"), 0.25);
    EXPECT_EQ(shareLeft("0,00 €", "0,00 €"), 0);
    for (const auto& [initial, available] : {std::pair("100 €", "-1 €"),
                                             {"100 €", "100,01 €"},
                                             {"sin límite", "1 €"},
                                             {"100", ""},
                                             {"1.00 €", "1 €"},
                                             {"1e3 €", "1 €"},
                                             {"1,2,3 €", "1 €"},
                                             {"100 $", "1 €"}})
        EXPECT_FALSE(shareLeft(initial, available)) << initial << " " << available;
}

TEST_F(Account, TheProfileShowsWhatTheServerTellsAndNothingElse) {
    ProfileViewController screen(services);
    screen.viewWillAppear();
    EXPECT_TRUE(screen.isLoading());
    ASSERT_TRUE(network.requests.profileInformation.succeed(profile()));
    EXPECT_FALSE(screen.isLoading());
    EXPECT_EQ(screen.name(), u"Ana");
    ASSERT_EQ(screen.details().size(), 1) << "an empty text has no row";
    EXPECT_EQ(screen.details().at(0).toMap().value("text"), "Zona 4");
    EXPECT_EQ(screen.budgets().at(0).toMap().value("share"), 0.25);
    EXPECT_LT(screen.budgets().at(1).toMap().value("share").toDouble(), 0);
    EXPECT_FALSE(screen.isEditable());
}

TEST_F(Account, TheUsersPageOpensOnlyInABrowser) {
    for (const auto& [url, editable] : {std::pair("https://server.example/yo", true),
                                        {"http://server.example/yo", true},
                                        {"file:///etc/passwd", false},
                                        {"kavor:login", false}}) {
        ProfileViewController screen(services);
        screen.load();
        UserProfile answer = profile();
        answer.user.editUrl = url;
        network.requests.profileInformation.succeed(answer);
        EXPECT_EQ(screen.isEditable(), editable) << url;
        urls.opened.clear();
        screen.editAction();
        EXPECT_EQ(urls.opened.size(), editable ? 1 : 0) << url;
    }
}

TEST_F(Account, AProfileThatDidNotComeIsAskedForAgain) {
    network.reachable = false;
    ProfileViewController screen(services);
    screen.viewWillAppear();
    EXPECT_EQ(screen.problem(), u"No hay conexión a internet.");
    EXPECT_TRUE(network.requests.profileInformation.calls.empty());
    network.reachable = true;
    emit reachability.changed();
    ASSERT_TRUE(network.requests.profileInformation.fail(failureWith({"Vuelve mañana."})));
    EXPECT_EQ(screen.problem(), u"Vuelve mañana.");
    screen.load();
    EXPECT_EQ(screen.problem(), u"");
    ASSERT_TRUE(network.requests.profileInformation.succeed(profile()));
    screen.load();
    ASSERT_TRUE(network.requests.profileInformation.fail(lostAnswer()));
    EXPECT_EQ(screen.name(), u"Ana") << "what is known stays on show";
}

TEST_F(Account, ASuggestionNeedsACategoryATextAndTheNetwork) {
    SuggestionViewController screen(services);
    EXPECT_EQ(screen.categories(), QStringList({"Catálogo", "Pedidos"}));
    EXPECT_EQ(screen.category(), -1);
    EXPECT_EQ(screen.bodyError(), u"");
    screen.editText(QStringLiteral("  \n"));
    screen.sendAction();
    EXPECT_FALSE(screen.categoryError().isEmpty());
    EXPECT_FALSE(screen.bodyError().isEmpty());
    screen.chooseCategory(1);
    screen.editText(QStringLiteral(" Más papel "));
    network.reachable = false;
    screen.sendAction();
    EXPECT_EQ(alerts.text(), u"No hay conexión a internet.");
    alerts.answerButton(0);
    network.reachable = true;
    screen.sendAction();
    screen.sendAction(); // a second tap
    ASSERT_EQ(network.requests.suggestionMailboxAdd.calls.size(), 1U);
    const auto& [category, body, key] = network.requests.suggestionMailboxAdd.calls.at(0);
    EXPECT_EQ(category, 3);
    EXPECT_EQ(body, u" Más papel ");
    ASSERT_TRUE(network.requests.suggestionMailboxAdd.fail(failureWith({"Ahora no."})));
    EXPECT_EQ(alerts.text(), u"Ahora no.");
    alerts.answerButton(1); // "Intentar de nuevo"
    ASSERT_TRUE(network.requests.suggestionMailboxAdd.succeed({"Gracias."}));
    EXPECT_EQ(alerts.text(), u"Gracias.");
    EXPECT_EQ(screen.text(), u"");
    EXPECT_EQ(screen.category(), -1);
    EXPECT_EQ(screen.bodyError(), u"") << "an empty form is no fault of the user's";
}

TEST_F(Account, WhatWasWrittenIsThereAgainForItsAuthorOnly) {
    {
        SuggestionViewController screen(services);
        int left = 0;
        QObject::connect(&screen, &ScreenController::closed, [&] { ++left; });
        screen.chooseCategory(0);
        screen.editText(QStringLiteral("Más papel"));
        screen.closeSceneAction();
        EXPECT_EQ(alerts.text(), u"¿Salir sin enviar?");
        alerts.answerButton(0);
        EXPECT_EQ(left, 0);
        screen.closeSceneAction();
        alerts.answerButton(1);
        EXPECT_EQ(left, 1);
    }
    EXPECT_EQ(SuggestionViewController(services).text(), u"Más papel");
    auth.updateCredentials("eva", "secret", "token");
    SuggestionViewController another(services);
    EXPECT_EQ(another.text(), u"");
    EXPECT_EQ(another.category(), -1);
}

TEST_F(Account, AnAnswerThatNobodyWaitsForChangesNothing) {
    SuggestionViewController screen(services);
    screen.chooseCategory(0);
    screen.editText(QStringLiteral("Más papel"));
    screen.sendAction();
    screen.leaveVeil();
    alerts.answerButton(0);
    network.requests.suggestionMailboxAdd.succeed({"Gracias."});
    EXPECT_EQ(screen.text(), u"Más papel");
    EXPECT_FALSE(alerts.isVisible());
}

TEST_F(Account, TutorialsStandByPositionInGroupsOfTheirType) {
    CatalogueBuilder builder;
    const HashedResource none{"h", Url{"http://server.example/v.mp4"}, 3};
    builder.information.manuals = {{"textil", "Ropa", 4, none, none, none},
                                   {"carta", "Sin conexión", 2, none, none, none},
                                   {"textil", "Tallas", 3, none, none, none},
                                   {"carta", "Tu primera carta", 1, none, none, none},
                                   {"fiesta", "Una fiesta", 2, none, none, none}};
    session.applicationInformation = builder.take();
    const TutorialsViewController screen(services);
    QStringList seen;
    for (const QVariant& group : screen.groups()) {
        seen << group.toMap().value("title").toString() + ':';
        for (const QVariant& film : group.toMap().value("films").toList())
            seen << film.toMap().value("label").toString();
    }
    EXPECT_EQ(seen.join(' '), u"Carta: Tu primera carta Sin conexión Fiesta: Una fiesta Textil: Tallas Ropa");
}

TEST_F(Account, AFilmIsPlayedInsideAndLeftStepByStep) {
    filmsAt({"http://server.example/a.mp4"});
    TutorialsViewController screen(services);
    int left = 0;
    QObject::connect(&screen, &ScreenController::closed, [&] { ++left; });
    screen.openFilm(7);
    EXPECT_FALSE(screen.isFilmOpen());
    screen.openFilm(0);
    EXPECT_EQ(films.opened, std::vector{QUrl("http://server.example/a.mp4")});
    EXPECT_TRUE(screen.isLoading());
    films.become({FilmStatus::State::Playing, 65000, 125000, true});
    EXPECT_EQ(screen.timeText(), u"1:05 / 2:05");
    screen.seekBySeconds(-100);
    EXPECT_EQ(films.now.position, 0);
    screen.seekToShare(2);
    EXPECT_EQ(films.now.position, 125000);
    screen.playAction();
    EXPECT_FALSE(screen.isPlaying());
    screen.playAction();
    EXPECT_TRUE(screen.isPlaying());
    films.become({FilmStatus::State::Playing, 0, 125000, false});
    screen.seekToShare(0.5);
    EXPECT_EQ(films.now.position, 0) << "this film cannot be sought in";
    screen.fullWindowAction();
    screen.closeSceneAction();
    EXPECT_TRUE(!screen.isFullWindow() && screen.isFilmOpen());
    screen.closeSceneAction();
    EXPECT_EQ(films.now, FilmStatus());
    EXPECT_EQ(left, 0);
    screen.closeSceneAction();
    EXPECT_EQ(left, 1);
}

TEST_F(Account, AFilmThatDoesNotPlaySaysSoAndOpensOutside) {
    filmsAt({"http://server.example/a.mp4", "file:///etc/passwd"});
    TutorialsViewController screen(services);
    network.reachable = false;
    screen.openFilm(0);
    EXPECT_EQ(alerts.text(), u"No hay conexión a internet.");
    alerts.answerButton(0);
    EXPECT_FALSE(screen.isFilmOpen());
    network.reachable = true;
    screen.openFilm(0);
    EXPECT_EQ(screen.problem(), u"");
    films.become({FilmStatus::State::Failed, 0, 0, false});
    EXPECT_EQ(screen.problem(), u"Este vídeo no se puede ver aquí.");
    screen.playAction();
    EXPECT_EQ(films.now.state, FilmStatus::State::Failed);
    screen.openOutsideAction();
    EXPECT_EQ(urls.opened, QStringList("http://server.example/a.mp4"));
    screen.retryAction();
    EXPECT_TRUE(screen.isLoading());
    screen.openFilm(1);
    EXPECT_EQ(films.opened.size(), 2U) << "no file of the device";
    EXPECT_FALSE(screen.problem().isEmpty());
}

TEST_F(Account, AFilmEndsWithItsScreen) {
    filmsAt({"http://server.example/a.mp4"});
    {
        TutorialsViewController screen(services);
        screen.openFilm(0);
    }
    EXPECT_EQ(films.now, FilmStatus());
}

TEST_F(Account, ATextEndsWhereTheServersAddressEnds) {
    const QString letter = QString::fromUtf8("👩‍🍳"); // 11 bytes, 33 of them percent-encoded
    const QString kept = query_text::fitting(letter.repeated(400));
    EXPECT_EQ(kept, letter.repeated(7500 / 33));
    EXPECT_EQ(query_text::fitting(QStringLiteral("a").repeated(7501)).size(), 7500);
    EXPECT_EQ(query_text::counter(QStringLiteral("ñ").repeated(1000)), u"6000/7500");
    EXPECT_EQ(query_text::counter(QStringLiteral("a")), u"");
}

} // namespace
} // namespace kavor

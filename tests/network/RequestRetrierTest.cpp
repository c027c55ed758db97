#include "NetworkFixture.h"
#include "account/UserProfile.h"
#include "brochures/engine/SaveBrochuresOrder.h"
#include "session/LoginResult.h"

#include <QNetworkReply>

// An expired token and what becomes of the requests that meet it.
namespace kavor {
namespace {

using A = ScriptedAnswer;
using namespace std::chrono_literals;

const QByteArray savePath = "/api/saveOrderURL";

int requestsWith(const ScriptedServer& server, const QByteArray& path, const QByteArray& authorization) {
    int count = 0;
    for (const ScriptedRequest& request : server.requestsTo(path))
        count += request.header("authorization") == authorization;
    return count;
}

TEST(RequestRetrier, LeavesTheSecondOfTwoExpiredRequestsUnanswered) {
    Rig rig(true);
    rig.server.then(infoPath, A::empty(401));
    rig.server.then(infoPath, A::empty(401));
    rig.server.answer(infoPath, A::json(goodLogin));
    rig.server.answer(loginPath, A::json(goodLogin));
    rig.server.hold();
    const Outcome& first = rig.start();
    const Outcome& second = rig.start();
    ASSERT_TRUE(waitFor([&] { return rig.server.waiting() == 2; }));
    rig.server.release();
    // The repair's login waits until both answers are in.
    rig.server.hold();
    ASSERT_TRUE(waitFor([&] { return rig.server.waiting() == 1; }));
    waitFor([] { return false; }, 200);
    rig.server.release();
    ASSERT_TRUE(waitFor([&] { return first.ended() || second.ended(); }));
    const Outcome& third = rig.start();
    ASSERT_TRUE(waitFor([&] { return third.ended(); }));
    EXPECT_EQ(first.successes + second.successes, 1);
    EXPECT_EQ(first.failures + second.failures, 0);
    EXPECT_EQ(rig.server.requestsTo(infoPath).size(), 4);
    EXPECT_EQ(rig.server.requestsTo(loginPath).size(), 1);
}

TEST(RequestRetrier, LetsNoFailurePastA401WithoutACredentialButEverySuccess) {
    Rig rig;
    rig.server.then(infoPath, A::empty(401));
    rig.server.then(infoPath, A::empty(500));
    rig.server.then(infoPath, A::json("not json"));
    rig.server.then(infoPath, A::empty(419));
    rig.server.answer(infoPath, A::json(goodLogin));
    for (int i = 0; i < 4; ++i) {
        rig.start();
        ASSERT_TRUE(rig.waitForRequests(i + 1));
        ASSERT_TRUE(waitFor([&] { return rig.manager.isTokenRefreshing(); }));
    }
    for (int i = 0; i < 3; ++i) {
        const Outcome& good = rig.start();
        ASSERT_TRUE(waitFor([&] { return good.ended(); }));
        EXPECT_EQ(good.successes, 1);
    }
    rig.clock.advance(300s);
    for (int i = 0; i < 4; ++i)
        EXPECT_FALSE(rig.outcomes[i]->ended()) << i;
    EXPECT_EQ(rig.server.requests().size(), 7) << "nothing is repeated";
    EXPECT_TRUE(rig.manager.isTokenRefreshing());
}

TEST(RequestRetrier, HangsForGoodWhenTheLoginBringsNoToken) {
    Rig rig(true);
    rig.server.then(infoPath, A::empty(401));
    rig.server.then(infoPath, A::empty(500));
    rig.server.answer(loginPath, A::json(R"({"msg": "hola"})"));
    const Outcome& hanging = rig.start();
    ASSERT_TRUE(waitFor([&] { return !rig.server.requestsTo(loginPath).isEmpty(); }));
    const Outcome& other = rig.start();
    ASSERT_TRUE(waitFor([&] { return other.ended(); }));
    EXPECT_EQ(other.failures, 1) << "other failures go on";
    EXPECT_FALSE(hanging.ended());
    EXPECT_TRUE(rig.manager.isTokenRefreshing());
    EXPECT_EQ(rig.manager.accessToken(), "stale");
}

TEST(RequestRetrier, RepeatsWithTheOldTokenAfterAFailedLoginAndGoesRoundWhileTheServerSays401) {
    Rig rig(true);
    for (int i = 0; i < 3; ++i)
        rig.server.then(infoPath, A::empty(401));
    rig.server.answer(infoPath, A::json(goodLogin));
    rig.server.answer(loginPath, A::json(R"({"msg": "clave caducada"})", 422));
    const Outcome& outcome = rig.start();
    ASSERT_TRUE(waitFor([&] { return outcome.ended(); }));
    EXPECT_EQ(outcome.successes, 1);
    EXPECT_EQ(rig.server.requestsTo(loginPath).size(), 3);
    EXPECT_EQ(requestsWith(rig.server, infoPath, "Bearer stale"), 4);
    EXPECT_EQ(rig.manager.accessToken(), "stale");
}

TEST(RequestRetrier, HangsWhenTheLoginOfTheRepairIsItselfRefusedWith401) {
    Rig rig(true);
    rig.server.then(infoPath, A::empty(401));
    rig.server.answer(infoPath, A::json(goodLogin));
    rig.server.answer(loginPath, A::empty(401));
    const Outcome& hanging = rig.start();
    ASSERT_TRUE(waitFor([&] { return !rig.server.requestsTo(loginPath).isEmpty(); }));
    const Outcome& sentinel = rig.start();
    ASSERT_TRUE(waitFor([&] { return sentinel.ended(); }));
    EXPECT_FALSE(hanging.ended());
    EXPECT_EQ(rig.server.requestsTo(loginPath).size(), 1);
}

TEST(RequestRetrier, RepeatsA419EveryTenSecondsAsOftenAsItComes) {
    Rig rig;
    rig.server.answer(infoPath, A::empty(419));
    const Outcome& outcome = rig.start();
    for (int round = 1; round <= 15; ++round) { // well past the deadline of a single request
        ASSERT_TRUE(rig.waitForRequests(round));
        ASSERT_TRUE(waitFor([&] { return rig.clock.untilNext() == 10s; }));
        rig.clock.advance(9999ms);
        EXPECT_EQ(rig.clock.pending(), 1);
        if (round == 15)
            rig.server.answer(infoPath, A::json(goodLogin));
        rig.clock.advance(1ms);
    }
    ASSERT_TRUE(waitFor([&] { return outcome.ended(); }));
    EXPECT_EQ(outcome.successes, 1);
    EXPECT_EQ(rig.server.requests().size(), 16);
}

// A server whose every answer is 401, and 422 to the stored password.
struct RefusingRig : Rig {
    RefusingRig()
        : Rig(true) {
        server.answer(infoPath, A::empty(401));
        server.answer(loginPath, A::json(R"({"msg": "clave caducada"})", 422));
    }
    [[nodiscard]] bool waitForPause(std::chrono::milliseconds pause, qsizetype logins) {
        return waitFor([&] {
            return server.requestsTo(loginPath).size() == logins && clock.untilNext() == pause &&
                   !manager.isTokenRefreshing();
        });
    }
};

TEST(RequestRetrier, PausesLongerAndLongerFromTheFourthFailedLoginOnAndNeverGivesUp) {
    RefusingRig rig;
    const Outcome& outcome = rig.start();
    qsizetype logins = 4;
    for (const auto pause : {1s, 2s, 4s, 8s, 16s, 32s, 60s, 60s, 60s}) {
        ASSERT_TRUE(rig.waitForPause(pause, logins)) << logins;
        rig.clock.advance(pause - 1ms);
        EXPECT_EQ(rig.server.requestsTo(infoPath).size(), logins);
        if (++logins == 13)
            rig.server.answer(loginPath, A::json(goodLogin));
        rig.clock.advance(1ms);
    }
    ASSERT_TRUE(waitFor([&] { return rig.server.requestsTo(loginPath).size() == logins; }));
    rig.server.answer(infoPath, A::json(goodLogin));
    ASSERT_TRUE(waitFor([&] { return outcome.ended(); }));
    EXPECT_EQ(outcome.successes, 1);
}

TEST(RequestRetrier, BeginsWithoutPausesAgainWhenAnyRequestIsAnsweredOtherwise) {
    RefusingRig rig;
    rig.start();
    ASSERT_TRUE(rig.waitForPause(1s, 4));
    rig.clock.advance(1s);
    ASSERT_TRUE(rig.waitForPause(2s, 5));
    Outcome other; // a 404
    rig.manager.profileInformation(other.completion<UserProfile>());
    ASSERT_TRUE(waitFor([&] { return other.ended(); }));
    rig.clock.advance(2s);
    EXPECT_TRUE(rig.waitForPause(1s, 9));
}

TEST(RequestRetrier, LogsInForNobodyDuringAPauseAndAnswersEverybodyAfterIt) {
    RefusingRig rig;
    const Outcome& first = rig.start();
    ASSERT_TRUE(rig.waitForPause(1s, 4));
    const Outcome& second = rig.start();
    ASSERT_TRUE(waitFor([&] { return rig.manager.findChildren<QNetworkReply*>().isEmpty(); }));
    EXPECT_EQ(rig.clock.pending(), 3) << "the pause and two repeats";
    EXPECT_EQ(rig.server.requestsTo(loginPath).size(), 4);
    rig.server.then(infoPath, A::empty(401));
    rig.server.then(infoPath, A::empty(401));
    rig.server.answer(infoPath, A::json(goodLogin));
    rig.server.answer(loginPath, A::json(goodLogin));
    rig.clock.advance(1s);
    ASSERT_TRUE(waitFor([&] { return first.ended() || second.ended(); }));
    // Whichever met the repair under way waits for one more pause.
    ASSERT_TRUE(waitFor([&] {
        if (rig.clock.untilNext() == 1s)
            rig.clock.advance(1s);
        return first.ended() && second.ended();
    }));
    EXPECT_EQ(first.successes + second.successes, 2);
}

TEST(RequestRetrier, GivesUpWhatNobodyWaitsForAnyMore) {
    struct Case {
        int status;
        std::chrono::milliseconds pause;
        int requests; // of the one that is left
    };
    for (const Case& each : {Case{419, 10s, 1}, Case{401, 1s, 4}}) {
        for (const bool writes : {false, true}) {
            RefusingRig rig;
            rig.server.answer(infoPath, A::empty(each.status));
            rig.server.answer(savePath, A::empty(each.status));
            auto screen = std::make_unique<QObject>();
            Outcome left;
            if (writes)
                rig.manager.saveOrder({}, left.completion<SaveBrochuresOrderResponse>(screen.get()));
            else
                rig.manager.userInformation(left.completion<LoginResult>(screen.get()));
            ASSERT_TRUE(waitFor([&] { return rig.clock.untilNext() == each.pause; }));
            screen.reset();
            rig.clock.advance(each.pause);
            Outcome other; // a 404
            rig.manager.profileInformation(other.completion<UserProfile>());
            ASSERT_TRUE(waitFor([&] { return other.ended(); }));
            EXPECT_EQ(rig.server.requestsTo(writes ? savePath : infoPath).size(), each.requests);
            EXPECT_FALSE(rig.manager.isTokenRefreshing());
            EXPECT_FALSE(left.ended());
        }
    }
}

TEST(RequestRetrier, RepairsNoTokenForWhatWasLeftBeforeItsAnswerCame) {
    for (const bool remembered : {true, false}) {
        Rig rig(remembered);
        rig.server.then(infoPath, A::empty(401));
        rig.server.answer(infoPath, A::json(goodLogin));
        auto screen = std::make_unique<QObject>();
        Outcome left;
        rig.server.hold();
        rig.manager.userInformation(left.completion<LoginResult>(screen.get()));
        ASSERT_TRUE(waitFor([&] { return rig.server.waiting() == 1; }));
        screen.reset();
        rig.server.release();
        ASSERT_TRUE(waitFor([&] { return rig.manager.findChildren<QNetworkReply*>().isEmpty(); }));
        const Outcome& good = rig.start();
        ASSERT_TRUE(waitFor([&] { return good.ended(); }));
        EXPECT_TRUE(rig.server.requestsTo(loginPath).isEmpty());
        EXPECT_FALSE(rig.manager.isTokenRefreshing());
    }
}

TEST(RequestRetrier, BringsARepairToItsEndThroughTwoSwapsOfTheSession) {
    Rig rig(true);
    rig.server.then(infoPath, A::empty(401));
    rig.server.answer(infoPath, A::json(goodLogin));
    rig.server.answer(loginPath, A::json(goodLogin));
    rig.server.hold();
    const Outcome& outcome = rig.start();
    ASSERT_TRUE(waitFor([&] { return rig.server.waiting() == 1; }));
    rig.manager.configureSession(NetworkManager::backgroundConfiguration());
    rig.server.release();
    rig.server.hold();
    ASSERT_TRUE(waitFor([&] { return rig.server.waiting() == 1; })); // the login
    rig.manager.configureSession(NetworkManager::defaultConfiguration());
    rig.server.release();
    ASSERT_TRUE(waitFor([&] { return outcome.ended(); }));
    EXPECT_EQ(outcome.successes, 1);
    EXPECT_EQ(rig.server.requestsTo(loginPath).size(), 1);
    EXPECT_EQ(requestsWith(rig.server, infoPath, "Bearer fresh"), 1);
    EXPECT_FALSE(rig.manager.isTokenRefreshing());
    EXPECT_EQ(rig.auth.readCredentials()->token, "stored") << "the keychain keeps the old token";
}

} // namespace
} // namespace kavor

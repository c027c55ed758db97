#include "NetworkFixture.h"
#include "base/json/Json.h"
#include "brochures/engine/SaveBrochuresOrder.h"
#include "catalogue/Catalogue.h"
#include "shell/LoginResult.h"
#include "support/LogCapture.h"

#include <QThread>

#include <set>

// What goes over the wire, and how a request ends when the wire misbehaves.
namespace kavor {
namespace {

using A = ScriptedAnswer;
using Kind = RequestError::Kind;
using namespace std::chrono_literals;

const QByteArray orderPath = "/api/saveOrderURL";

void sendOrder(Rig& rig, Outcome& outcome) {
    rig.manager.saveOrder({}, outcome.completion<SaveBrochuresOrderResponse>());
}

TEST(HttpSession, SendsAnOrderOnceAlsoWhenAnotherConnectionStoodOpen) {
    Rig rig;
    rig.server.answer(infoPath, A::json(goodLogin));
    const Outcome& before = rig.start();
    ASSERT_TRUE(waitFor([&] { return before.ended(); }));
    rig.server.answer(orderPath, A::of(A::Kind::CloseWithoutAnswer));
    for (int i = 1; i <= 3; ++i) {
        Outcome order;
        sendOrder(rig, order);
        ASSERT_TRUE(waitFor([&] { return order.ended(); }));
        EXPECT_EQ(order.failures, 1);
        EXPECT_EQ(rig.server.requestsTo(orderPath).size(), i);
    }
}

// A server may keep a connection open, or close it later without having said so.
TEST(HttpSession, SendsEveryWriteOnAConnectionOfItsOwn) {
    Rig rig(true);
    rig.server.then(orderPath, A::empty(401));
    rig.server.answer(orderPath, A::json("{}"));
    rig.server.answer(loginPath, A::json(goodLogin));
    for (int i = 1; i <= 2; ++i) {
        Outcome order;
        sendOrder(rig, order);
        ASSERT_TRUE(waitFor([&] { return order.successes == 1; }));
    }
    std::set<int> connections;
    for (const ScriptedRequest& request : rig.server.requests())
        connections.insert(request.connection);
    EXPECT_EQ(rig.server.requests().size(), 4);
    EXPECT_EQ(connections.size(), 4U);
}

TEST(HttpSession, KeepsTheIdempotencyKeyOfAnOrderThroughItsRepeatsAndGivesTheNextItsOwn) {
    Rig rig(true);
    rig.server.then(orderPath, A::empty(419));
    rig.server.then(orderPath, A::empty(401));
    rig.server.answer(orderPath, A::json("{}"));
    rig.server.answer(loginPath, A::json(goodLogin));
    Outcome first;
    sendOrder(rig, first);
    ASSERT_TRUE(waitFor([&] { return rig.clock.untilNext() == 10s; }));
    rig.clock.advance(10s);
    ASSERT_TRUE(waitFor([&] { return first.successes == 1; }));
    Outcome second;
    sendOrder(rig, second);
    ASSERT_TRUE(waitFor([&] { return second.successes == 1; }));
    const auto requests = rig.server.requestsTo(orderPath);
    ASSERT_EQ(requests.size(), 4);
    const QByteArray key = requests[0].header("idempotency-key");
    EXPECT_EQ(key.size(), 36);
    EXPECT_EQ(requests[1].header("idempotency-key"), key);
    EXPECT_EQ(requests[2].header("idempotency-key"), key);
    EXPECT_EQ(requests[2].body, requests[0].body);
    EXPECT_NE(requests[3].header("idempotency-key"), key);
}

TEST(HttpSession, FollowsRedirectsOfReadsWithinTheServerOnlyAndOfWritesNever) {
    ScriptedServer elsewhere;
    elsewhere.setHandler([](const ScriptedRequest&) { return A::json(goodLogin); });
    Rig rig;
    rig.server.answer("/moved", A::json(goodLogin));
    A here = A::redirect("/moved");
    here.body = "moved";
    rig.server.then(infoPath, here);
    rig.server.then(infoPath, A::redirect(elsewhere.address("/steal").toUtf8()));
    rig.server.then(infoPath, A::redirect(elsewhere.address("/steal").toUtf8(), 307));
    rig.server.answer(infoPath, A::redirect("userInformation", 308)); // round and round
    for (const int expected : {1, 0, 0, 0}) {
        const Outcome& outcome = rig.start();
        ASSERT_TRUE(waitFor([&] { return outcome.ended(); }));
        EXPECT_EQ(outcome.successes, expected);
        if (outcome.failure) {
            EXPECT_EQ(int(outcome.failure->error.kind), int(Kind::Status));
        }
    }
    for (const int status : {301, 302, 303, 307, 308}) {
        rig.server.then(orderPath, A::redirect("/moved", status));
        Outcome order;
        sendOrder(rig, order);
        ASSERT_TRUE(waitFor([&] { return order.ended(); }));
        ASSERT_EQ(order.failures, 1);
        EXPECT_EQ(order.failure->error.status, status);
        EXPECT_EQ(*order.failure->messages, QStringList{genericText});
    }
    EXPECT_EQ(rig.server.requestsTo("/moved").size(), 1);
    EXPECT_TRUE(elsewhere.requests().isEmpty());
}

TEST(HttpSession, EndsARequestAfter120SecondsHoweverBusyItIs) {
    Rig rig;
    rig.server.answer(infoPath, A::slow(QByteArray(100000, ' ') + goodLogin, 1, 1));
    const Outcome& outcome = rig.start();
    ASSERT_TRUE(rig.waitForRequests(1));
    ASSERT_TRUE(waitFor([&] { return rig.clock.pending() == 1; }));
    rig.clock.advance(119'999ms);
    EXPECT_FALSE(outcome.ended());
    rig.clock.advance(1ms);
    ASSERT_TRUE(outcome.ended());
    EXPECT_EQ(int(outcome.failure->error.kind), int(Kind::TimedOut));
    EXPECT_EQ(rig.clock.pending(), 0);
}

TEST(HttpSession, SaysTooMuchTimeWhenPartOfAnAnswerHadCome) {
    Rig rig;
    rig.server.then(infoPath, A::slow(goodLogin, 10, 1'000'000));
    rig.server.answer(infoPath, A::json(goodLogin));
    const Outcome& outcome = rig.start();
    ASSERT_TRUE(rig.waitForRequests(1));
    // The first bytes are on their way before a whole request that starts now.
    const Outcome& later = rig.start();
    ASSERT_TRUE(waitFor([&] { return later.ended(); }));
    rig.clock.advance(120s);
    ASSERT_TRUE(outcome.ended());
    EXPECT_EQ(outcome.failure->messages->first(),
              "No podemos procesar su petición por exceso de tiempo. Inténtelo más tarde.");
}

TEST(HttpSession, TakesAPackedAnswerAndRefusesOneThatUnpacksBeyondTheLimit) {
    Rig rig;
    SessionConfiguration configuration = NetworkManager::defaultConfiguration();
    configuration.answerSizeLimit = 1'000'000;
    rig.manager.configureSession(configuration);
    for (const int blanks : {900'000, 3'000'000}) {
        A packed = A::json(qCompress(QByteArray(blanks, ' ') + goodLogin).mid(4));
        packed.headers.emplace_back("Content-Encoding", "deflate");
        rig.server.then(infoPath, packed);
        const Outcome& outcome = rig.start();
        ASSERT_TRUE(waitFor([&] { return outcome.ended(); }));
        EXPECT_EQ(outcome.successes, blanks < 1'000'000 ? 1 : 0);
    }
}

TEST(HttpSession, TakesTheWholeAnswerToAnOrderWhenTheConnectionClosesBehindIt) {
    Rig rig;
    for (const int blanks : {0, 1000, 70'000, 2'000'000}) {
        for (const auto framing : {A::Framing::ContentLength, A::Framing::Chunked, A::Framing::UntilClose}) {
            A answer = A::json(QByteArray(blanks, ' ') + "{\"order_id\": 7}");
            answer.framing = framing;
            answer.closeAfterwards = true;
            rig.server.then(orderPath, answer);
            Outcome order;
            sendOrder(rig, order);
            ASSERT_TRUE(waitFor([&] { return order.ended(); }));
            EXPECT_EQ(order.successes, 1) << blanks << " " << int(framing);
        }
    }
    EXPECT_EQ(rig.server.requests().size(), 12);
}

TEST(HttpSession, RefusesAnAddressThatIsNotOfTheWeb) {
    Rig rig;
    for (const char* base : {"file:///etc/hostname?", "", "http://"}) {
        NetworkManager manager(configurationFor(QString::fromLatin1(base)),
                               {rig.auth, rig.reachability, rig.clock});
        Outcome outcome;
        manager.userInformation(outcome.completion<LoginResult>());
        EXPECT_FALSE(outcome.ended());
        ASSERT_TRUE(waitFor([&] { return outcome.ended(); })) << base;
        EXPECT_EQ(int(outcome.failure->error.kind), int(Kind::Transport));
    }
}

TEST(HttpSession, LosesTheRequestsInFlightWhenTheSessionIsReplaced) {
    Rig rig;
    rig.server.then(infoPath, A::of(A::Kind::Silence));
    rig.server.then(infoPath, A::empty(419));
    rig.server.answer(infoPath, A::json(goodLogin));
    const Outcome& silent = rig.start();
    ASSERT_TRUE(rig.waitForRequests(1));
    const Outcome& pausing = rig.start();
    ASSERT_TRUE(waitFor([&] { return rig.clock.untilNext() == 10s; }));
    rig.manager.configureSession(NetworkManager::backgroundConfiguration());
    rig.clock.advance(200s);
    const Outcome& next = rig.start();
    ASSERT_TRUE(waitFor([&] { return next.ended(); }));
    EXPECT_EQ(next.successes, 1);
    EXPECT_FALSE(silent.ended());
    EXPECT_FALSE(pausing.ended());
    EXPECT_EQ(rig.server.requests().last().header("version"), "3.2.1");
}

TEST(HttpSession, WaitsForTheNetworkInTheBackgroundUpToItsDeadline) {
    Rig rig;
    rig.server.answer(infoPath, A::json(goodLogin));
    rig.manager.configureSession(NetworkManager::backgroundConfiguration());
    rig.reachability.set(false);
    const Outcome& late = rig.start();
    rig.clock.advance(120s);
    ASSERT_TRUE(late.ended());
    EXPECT_EQ(int(late.failure->error.kind), int(Kind::TimedOut));
    const Outcome& good = rig.start();
    EXPECT_TRUE(rig.server.requests().isEmpty());
    rig.reachability.set(true);
    ASSERT_TRUE(waitFor([&] { return good.ended(); }));
    EXPECT_EQ(good.successes, 1);
    EXPECT_EQ(rig.server.requests().size(), 1);
}

TEST(HttpSession, DropsTheAnswerOfAScreenThatIsGoneAndStillSendsItsOrder) {
    Rig rig;
    rig.server.answer(orderPath, A::json("{}"));
    Outcome gone;
    Outcome alive;
    auto screen = std::make_unique<QObject>();
    rig.server.hold();
    rig.manager.saveOrder({}, gone.completion<SaveBrochuresOrderResponse>(screen.get()));
    ASSERT_TRUE(waitFor([&] { return rig.server.waiting() == 1; }));
    screen.reset();
    sendOrder(rig, alive);
    ASSERT_TRUE(waitFor([&] { return rig.server.waiting() == 2; }));
    rig.server.release();
    ASSERT_TRUE(waitFor([&] { return alive.ended(); }));
    EXPECT_FALSE(gone.ended());
}

TEST(HttpSession, AnswersOnTheMainThreadAndLogsThePlaceOfAFaultInADocument) {
    LogCapture log;
    Rig rig;
    std::string document = json::encode(ApplicationInformation()).value();
    rig.server.then("/api/appInformationURL", A::json(QByteArray::fromStdString(document)));
    rig.server.then("/api/appInformationURL", A::json(R"({"validaciones": 3})"));
    QThread* thread = nullptr;
    Outcome broken;
    rig.manager.appInformation({nullptr,
                                [&](const std::shared_ptr<const Catalogue>& catalogue) {
                                    thread = QThread::currentThread();
                                    EXPECT_TRUE(catalogue);
                                },
                                [](const RequestFailure&) { FAIL(); }});
    ASSERT_TRUE(waitFor([&] { return thread != nullptr; }));
    EXPECT_EQ(thread, QCoreApplication::instance()->thread());
    rig.manager.appInformation(broken.completion<std::shared_ptr<const Catalogue>>());
    ASSERT_TRUE(waitFor([&] { return broken.ended(); }));
    EXPECT_EQ(int(broken.failure->error.kind), int(Kind::Decoding));
    EXPECT_EQ(log.startingWith("appInformationURL: "), 1);
    const auto lines = log.lines();
    EXPECT_TRUE(std::ranges::any_of(lines, [](const std::string& line) { return line.size() > 22; }))
        << lines[0];
}

} // namespace
} // namespace kavor

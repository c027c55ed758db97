#include "NetworkFixture.h"
#include "base/json/Json.h"
#include "brochures/engine/SaveBrochuresOrder.h"
#include "catalogue/Catalogue.h"
#include "session/LoginResult.h"
#include "support/LogCapture.h"

#include <QNetworkReply>
#include <QThread>

#include <iterator>
#include <map>
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

qsizetype sessionsOf(const Rig& rig) {
    return rig.manager.findChildren<HttpSession*>().size();
}

TEST(HttpSession, AnswersEverybodyThroughTwoSwapsOfTheSessionAndSendsNoOrderTwice) {
    Rig rig;
    rig.server.answer(infoPath, A::json(goodLogin));
    rig.server.then(orderPath, A::empty(419));
    rig.server.answer(orderPath, A::json("{}"));
    Outcome pausing;
    sendOrder(rig, pausing);
    ASSERT_TRUE(waitFor([&] { return rig.clock.untilNext() == 10s; }));
    rig.server.hold();
    Outcome order;
    sendOrder(rig, order);
    const Outcome& read = rig.start();
    ASSERT_TRUE(waitFor([&] { return rig.server.waiting() == 2; }));

    rig.manager.configureSession(NetworkManager::backgroundConfiguration());
    rig.reachability.set(false);
    Outcome offline; // waits for the network on a session that is replaced before it comes
    sendOrder(rig, offline);
    rig.manager.configureSession(NetworkManager::defaultConfiguration());
    EXPECT_EQ(sessionsOf(rig), 3);
    rig.reachability.set(true);
    rig.clock.advance(10s);
    ASSERT_TRUE(waitFor([&] { return rig.server.waiting() == 4; }));
    rig.server.release();
    for (const Outcome* each : std::initializer_list<const Outcome*>{&pausing, &order, &read, &offline}) {
        ASSERT_TRUE(waitFor([&] { return each->ended(); }));
        EXPECT_EQ(each->successes, 1);
    }
    EXPECT_TRUE(waitFor([&] { return sessionsOf(rig) == 1; })) << "an old session goes with its last request";
    const auto orders = rig.server.requestsTo(orderPath);
    ASSERT_EQ(orders.size(), 4) << "three orders, of which the server wanted one again";
    std::set<QByteArray> keys;
    for (const ScriptedRequest& request : orders)
        keys.insert(request.header("idempotency-key"));
    EXPECT_EQ(keys.size(), 3U);
    EXPECT_EQ(rig.server.requests().last().header("version"), "3.2.1");
}

// The broken ones break in every way; before and after them the connections are used again.
TEST(HttpSession, LosesOfManyReadsSideBySideOnlyThoseThatBreak) {
    Rig rig;
    const A broken[] = {A::cut("[]     ", 1), A::of(A::Kind::Reset), A::cut("[]", 0),
                        A::of(A::Kind::CloseWithoutAnswer)};
    const auto breaks = [](int number) { return number % 3 == 1; };
    rig.server.setHandler([&](const ScriptedRequest& request) {
        const int number = request.target.split('=').last().toInt();
        return breaks(number) ? broken[(number / 3) % std::size(broken)] : A::json("[]");
    });
    for (int round = 0; round < 5; ++round) {
        std::vector<Outcome> outcomes(24);
        for (std::size_t i = 0; i < outcomes.size(); ++i)
            rig.manager.getCustomerDataFromTevoCode(QString::number(i),
                                                    outcomes[i].completion<std::vector<Customer>>());
        for (std::size_t i = 0; i < outcomes.size(); ++i) {
            ASSERT_TRUE(waitFor([&] { return outcomes[i].ended(); }));
            EXPECT_EQ(outcomes[i].failures, breaks(int(i)) ? 1 : 0) << i << " in round " << round;
        }
    }
    std::map<QByteArray, int> wholeReads;
    for (const ScriptedRequest& request : rig.server.requests()) {
        if (const QByteArray number = request.target.split('=').last(); !breaks(number.toInt()))
            ++wholeReads[number];
    }
    ASSERT_EQ(wholeReads.size(), 16U);
    for (const auto& [number, times] : wholeReads)
        EXPECT_EQ(times, 5) << number.toStdString();
}

TEST(HttpSession, ReadsWhatA407SaysAndAsksInSpanish) {
    Rig rig;
    for (const char* challenge :
         {"", "Basic realm=\"k\"", "Digest realm=\"k\", nonce=\"n\"", "Negotiate", "NTLM"}) {
        A answer = A::json(R"({"msg": "el intermediario"})", 407);
        if (*challenge != 0)
            answer.headers.emplace_back("Proxy-Authenticate", challenge);
        rig.server.answer(infoPath, answer);
        rig.server.answer(orderPath, answer);
        const Outcome& read = rig.start();
        Outcome order;
        sendOrder(rig, order);
        for (const Outcome* each : std::initializer_list<const Outcome*>{&read, &order}) {
            ASSERT_TRUE(waitFor([&] { return each->ended(); })) << challenge;
            ASSERT_EQ(each->failures, 1);
            EXPECT_EQ(int(each->failure->error.kind), int(Kind::Status)) << challenge;
            EXPECT_EQ(each->failure->error.status, 407);
            EXPECT_EQ(*each->failure->messages, QStringList{"el intermediario"}) << challenge;
        }
    }
    EXPECT_EQ(rig.server.requests().size(), 10);
    for (const ScriptedRequest& request : rig.server.requests())
        EXPECT_EQ(request.header("accept-language"), "es-ES,es;q=0.9");
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

TEST(HttpSession, SendsNothingLateThatNobodyWaitsForAnyMore) {
    Rig rig;
    rig.server.answer(infoPath, A::json(goodLogin));
    rig.manager.configureSession(NetworkManager::backgroundConfiguration());
    rig.reachability.set(false);
    auto screen = std::make_unique<QObject>();
    Outcome left;
    rig.manager.saveOrder({}, left.completion<SaveBrochuresOrderResponse>(screen.get()));
    const Outcome& good = rig.start();
    screen.reset();
    rig.reachability.set(true);
    ASSERT_TRUE(waitFor([&] { return good.ended(); }));
    EXPECT_TRUE(rig.server.requestsTo(orderPath).isEmpty());
    EXPECT_EQ(rig.clock.pending(), 0) << "its deadline went too";
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

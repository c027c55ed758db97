#include "OperationTable.h"
#include "shell/LoginResult.h"

#include <tuple>

// Every operation of the backend against every fault of a server.
namespace kavor {
namespace {

using Kind = RequestError::Kind;

enum class Ending { Success, Failure, Never };

struct Fault {
    const char* name;
    std::function<ScriptedAnswer(const QByteArray& goodAnswer)> answer; // to the first request
    Ending ending = Ending::Failure;
    std::optional<Kind> kind = Kind::Status; // none: whichever the timing gives
    const char* message = genericText;       // nullptr: no messages
    bool withCredential = false;
    std::chrono::seconds turnClock{0}; // once the request is at the server
    friend std::ostream& operator<<(std::ostream& out, const Fault& fault) { return out << fault.name; }
};

using A = ScriptedAnswer;

std::function<A(const QByteArray&)> always(const A& answer) {
    return [answer](const QByteArray&) { return answer; };
}

std::function<A(const QByteArray&)> cut(A::Framing framing) {
    return [framing](const QByteArray& good) { return A::cut(good, good.size() - 1, framing); };
}

A packedCut(const QByteArray& good) {
    const QByteArray packed = qCompress(good).mid(4);
    A answer = A::cut(packed, packed.size() / 3, A::Framing::UntilClose);
    answer.headers.emplace_back("Content-Encoding", "deflate");
    return answer;
}

// The challenge is for a kind of authorisation that the client doesn't know.
A challenge() {
    A answer = A::json(R"({"msg": "caducado"})", 401);
    answer.headers.emplace_back("WWW-Authenticate", "Basic realm=\"k\"");
    return answer;
}

const char* elsewhere = "http://localhost:1/";

const std::vector<Fault>& everyFault() {
    static const std::vector<Fault> table{
        {"ClosedWithoutAnswer", always(A::of(A::Kind::CloseWithoutAnswer)), Ending::Failure, Kind::Transport},
        {"Reset", always(A::of(A::Kind::Reset)), Ending::Failure, Kind::Transport},
        {"SlowBytes", [](const QByteArray& good) { return A::slow(good, 24, 0); }, Ending::Success},
        {"WholeUntilClose",
         [](const QByteArray& good) {
             A answer = A::json(good);
             answer.framing = A::Framing::UntilClose;
             return answer;
         },
         Ending::Success},
        {"WholeAndClosed",
         [](const QByteArray& good) {
             A answer = A::json(good);
             answer.closeAfterwards = true;
             return answer;
         },
         Ending::Success},
        {"CutLength", cut(A::Framing::ContentLength), Ending::Failure, Kind::Transport},
        {"CutChunks", cut(A::Framing::Chunked), Ending::Failure, std::nullopt},
        {"CutUntilClose", cut(A::Framing::UntilClose), Ending::Failure, Kind::Decoding},
        {"CutPacked", packedCut, Ending::Failure, Kind::Decoding},
        {"EndlessBody", always(A::of(A::Kind::EndlessBody)), Ending::Failure, Kind::Transport},
        {"Silence", always(A::of(A::Kind::Silence)), Ending::Failure, Kind::TimedOut, genericText, false,
         std::chrono::seconds(120)},
        {"Empty200", always(A::empty(200)), Ending::Failure, Kind::Decoding},
        {"Status201", always(A::json("[]", 201))},
        {"Status204", always(A::empty(204))},
        {"Redirect", always(A::redirect(elsewhere, 302))},
        {"RedirectKeepingTheMethod", always(A::redirect(elsewhere, 307))},
        {"Unauthorised", always(A::empty(401)), Ending::Never},
        {"UnauthorisedWithCredential", always(challenge()), Ending::Success, Kind::Status, nullptr, true},
        {"Expired419", always(A::empty(419)), Ending::Success, Kind::Status, nullptr, false,
         std::chrono::seconds(10)},
        {"Invalid422", always(A::json(R"({"msg": "m", "errors": {"a": ["uno", "dos"]}})", 422)),
         Ending::Failure, Kind::Status, "uno\ndos"},
        {"TooMany429", always(A::json(R"({"msg": "despacio"})", 429)), Ending::Failure, Kind::Status,
         "despacio"},
        {"Html500", always(A::bytes("<html>\"msg\": 1</html>", "text/html", 500))},
        {"Outdated505", always(A::json(R"({"msg": "Actualice", "update_link": "https://a.es/x"})", 505)),
         Ending::Failure, Kind::Status, nullptr},
        {"WrongShape", always(A::json("\"nada\"")), Ending::Failure, Kind::Decoding},
        {"Html200", always(A::bytes("<html></html>", "text/html")), Ending::Failure, Kind::Decoding},
    };
    return table;
}

class EveryOperation : public testing::TestWithParam<std::tuple<OperationCase, Fault>> {
protected:
    const OperationCase& operation = std::get<0>(GetParam());
    const Fault& fault = std::get<1>(GetParam());
    Rig rig{fault.withCredential};
    Outcome outcome;

    void play() {
        SessionConfiguration configuration = NetworkManager::defaultConfiguration();
        configuration.answerSizeLimit = 100'000;
        rig.manager.configureSession(configuration);
        rig.server.answer(loginPath, A::json(goodLogin));
        rig.server.answer(operation.path(), A::json(operation.answer));
        // A GET may be sent again by the library, so a broken connection breaks every time.
        const A broken = fault.answer(operation.answer);
        if (broken.kind == A::Kind::Answer)
            rig.server.then(operation.path(), broken);
        else
            rig.server.answer(operation.path(), broken);
        operation.start(rig.manager, outcome);
        if (fault.turnClock.count() > 0) {
            ASSERT_TRUE(rig.waitForRequests(1));
            // The deadline of the request stands alone until a pause of ten seconds stands in its place.
            ASSERT_TRUE(waitFor([&] { return rig.clock.untilNext() == fault.turnClock; }));
            rig.clock.advance(fault.turnClock);
        }
    }

    // A request that succeeds is not held up; it shows that the first one had its chance to end.
    void expectNever() {
        ASSERT_TRUE(waitFor([&] { return rig.manager.isTokenRefreshing(); }));
        rig.server.answer(infoPath, A::json(goodLogin));
        const Outcome& sentinel = rig.start();
        ASSERT_TRUE(waitFor([&] { return sentinel.ended(); }));
        EXPECT_EQ(sentinel.successes, 1);
        EXPECT_FALSE(outcome.ended());
    }

    void expectFailure() {
        ASSERT_EQ(outcome.failures, 1);
        EXPECT_EQ(int(outcome.failure->error.kind), int(fault.kind.value_or(outcome.failure->error.kind)));
        EXPECT_FALSE(outcome.failure->error.localizedDescription.isEmpty());
        EXPECT_EQ(outcome.failure->messages.has_value(), fault.message != nullptr);
        if (fault.message != nullptr && outcome.failure->messages) {
            EXPECT_EQ(outcome.failure->messages->join("\n"), fault.message);
        }
    }
};

TEST_P(EveryOperation, EndsAsItShould) {
    play();
    if (fault.ending == Ending::Never) {
        expectNever();
        return;
    }
    ASSERT_TRUE(waitFor([&] { return outcome.ended(); }));
    EXPECT_EQ(outcome.successes + outcome.failures, 1);
    const bool anythingGoes = operation.takesAnyDocument && fault.name == std::string("WrongShape");
    if (fault.ending == Ending::Success || anythingGoes) {
        EXPECT_EQ(outcome.successes, 1) << (outcome.failure ? outcome.failure->error.status : 0);
    } else {
        expectFailure();
    }
    // What changes the server arrives once, repeats asked for by the server apart.
    const bool repeats = fault.name == std::string("Expired419") || fault.withCredential;
    if (operation.method != "GET" && operation.path() != loginPath) {
        EXPECT_EQ(rig.server.requestsTo(operation.path()).size(), repeats ? 2 : 1);
    }
}

INSTANTIATE_TEST_SUITE_P(Faults, EveryOperation,
                         testing::Combine(testing::ValuesIn(everyOperation()),
                                          testing::ValuesIn(everyFault())),
                         [](const auto& each) {
                             return std::string(std::get<0>(each.param).name) + "_" +
                                    std::get<1>(each.param).name;
                         });

} // namespace
} // namespace kavor

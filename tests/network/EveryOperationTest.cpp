#include "OperationTable.h"
#include "session/LoginResult.h"

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
    std::optional<Kind> kind = Kind::Status; // none: a cut is seen by the transport or by the reader
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

quint32 crc32(const QByteArray& bytes) {
    quint32 crc = 0xFFFFFFFFU;
    for (const char byte : bytes) {
        crc ^= static_cast<quint8>(byte);
        for (int bit = 0; bit < 8; ++bit)
            crc = (crc >> 1U) ^ ((crc & 1U) != 0 ? 0xEDB88320U : 0U);
    }
    return ~crc;
}

QByteArray littleEndian(quint32 number) {
    QByteArray bytes;
    for (int shift = 0; shift < 32; shift += 8)
        bytes += static_cast<char>(number >> shift);
    return bytes;
}

A gzip(const QByteArray& good, A::Framing framing, bool isCut) {
    const QByteArray zlib = qCompress(good).mid(4);
    const QByteArray packed = QByteArray("\x1f\x8b\x08\0\0\0\0\0\0\x03", 10) + zlib.mid(2).chopped(4) +
                              littleEndian(crc32(good)) + littleEndian(quint32(good.size()));
    A answer = A::cut(packed, isCut ? packed.size() / 2 : -1, framing);
    answer.headers.emplace_back("Content-Encoding", "gzip");
    return answer;
}

std::function<A(const QByteArray&)> cutGzip(A::Framing framing) {
    return [framing](const QByteArray& good) { return gzip(good, framing, true); };
}

// The challenge is for a kind of authorisation that the client doesn't know.
A challenge() {
    A answer = A::json(R"({"msg": "caducado"})", 401);
    answer.headers.emplace_back("WWW-Authenticate", "Basic realm=\"k\"");
    return answer;
}

// Stands for the address of another server, which listens and must never be asked.
const char* elsewhere = "http://elsewhere.example/";

const std::vector<Fault>& everyFault() {
    static const std::vector<Fault> table{
        {"ClosedWithoutAnswer", always(A::of(A::Kind::CloseWithoutAnswer)), Ending::Failure, Kind::Transport},
        {"Reset", always(A::of(A::Kind::Reset)), Ending::Failure, Kind::Transport},
        {"SlowBytes", [](const QByteArray& good) { return A::slow(good, good.size() < 2048 ? 1 : 24, 0); },
         Ending::Success},
        {"WholeGzip", [](const QByteArray& good) { return gzip(good, A::Framing::ContentLength, false); },
         Ending::Success},
        {"CutLength", cut(A::Framing::ContentLength), Ending::Failure, Kind::Transport},
        {"CutChunks", cut(A::Framing::Chunked), Ending::Failure, std::nullopt},
        {"CutUntilClose", cut(A::Framing::UntilClose), Ending::Failure, Kind::Decoding},
        {"CutGzipLength", cutGzip(A::Framing::ContentLength), Ending::Failure, std::nullopt},
        {"CutGzipChunks", cutGzip(A::Framing::Chunked), Ending::Failure, std::nullopt},
        {"CutGzipUntilClose", cutGzip(A::Framing::UntilClose), Ending::Failure, std::nullopt},
        {"ResetInBody",
         [](const QByteArray& good) {
             A answer = A::cut(good, good.size() / 2);
             answer.resetAtCut = true;
             return answer;
         },
         Ending::Failure, Kind::Transport},
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
    ScriptedServer other;
    Outcome outcome;

    void play() {
        SessionConfiguration configuration = NetworkManager::defaultConfiguration();
        configuration.answerSizeLimit = 100'000;
        rig.manager.configureSession(configuration);
        rig.server.answer(loginPath, A::json(goodLogin));
        rig.server.answer(operation.path(), A::json(operation.answer));
        // A GET may be sent again by the library, so a broken connection breaks every time.
        A broken = fault.answer(operation.answer);
        for (auto& [name, value] : broken.headers) {
            if (value == elsewhere)
                value = other.address("/").toUtf8();
        }
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

    // A request that succeeds is never held up. After it, whatever the first one had left to do is done.
    void sendSentinel() {
        rig.server.answer(infoPath, A::json(goodLogin));
        const Outcome& sentinel = rig.start();
        ASSERT_TRUE(waitFor([&] { return sentinel.ended(); }));
        EXPECT_EQ(sentinel.successes, 1);
    }

    void expectFailure() {
        ASSERT_EQ(outcome.failures, 1);
        const RequestError& error = outcome.failure->error;
        const bool cut = error.kind == Kind::Transport || error.kind == Kind::Decoding;
        EXPECT_TRUE(fault.kind ? error.kind == *fault.kind : cut) << int(error.kind);
        EXPECT_FALSE(error.localizedDescription.isEmpty());
        ASSERT_EQ(error.updateNeeded.has_value(), fault.message == nullptr);
        if (error.updateNeeded) {
            EXPECT_EQ(error.updateNeeded->updateLink, QUrl("https://a.es/x"));
        }
        EXPECT_EQ(outcome.failure->messages.has_value(), fault.message != nullptr);
        if (fault.message != nullptr && outcome.failure->messages) {
            EXPECT_EQ(outcome.failure->messages->join("\n"), fault.message);
        }
    }
};

TEST_P(EveryOperation, EndsAsItShould) {
    play();
    ASSERT_TRUE(waitFor(
        [&] { return fault.ending == Ending::Never ? rig.manager.isTokenRefreshing() : outcome.ended(); }));
    const qsizetype requests = rig.server.requestsTo(operation.path()).size();
    const QByteArray lastToken = rig.server.requestsTo(operation.path()).last().header("authorization");
    sendSentinel();
    EXPECT_EQ(outcome.successes + outcome.failures, fault.ending == Ending::Never ? 0 : 1);
    const bool anythingGoes = operation.takesAnyDocument && fault.name == std::string("WrongShape");
    if (fault.ending == Ending::Success || anythingGoes) {
        EXPECT_EQ(outcome.successes, 1) << (outcome.failure ? outcome.failure->error.status : 0);
    } else if (fault.ending == Ending::Failure) {
        expectFailure();
    }
    EXPECT_TRUE(other.requests().isEmpty()) << "no token reaches another host";
    if (operation.path() == loginPath)
        return;
    EXPECT_EQ(rig.server.requestsTo(loginPath).size(), fault.withCredential ? 1 : 0);
    if (fault.withCredential) {
        EXPECT_EQ(lastToken, "Bearer fresh");
    }
    // What changes the server arrives once, repeats asked for by the server apart.
    if (operation.method != "GET") {
        const bool repeats = fault.name == std::string("Expired419") || fault.withCredential;
        EXPECT_EQ(requests, repeats ? 2 : 1);
        EXPECT_EQ(rig.server.requestsTo(operation.path()).size(), requests);
    }
}

INSTANTIATE_TEST_SUITE_P(Faults, EveryOperation,
                         testing::Combine(testing::ValuesIn(everyOperation()),
                                          testing::ValuesIn(everyFault())),
                         [](const auto& each) {
                             return std::get<0>(each.param).name() + "_" + std::get<1>(each.param).name;
                         });

} // namespace
} // namespace kavor

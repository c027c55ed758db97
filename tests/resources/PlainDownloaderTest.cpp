#include "resources/PlainDownloader.h"

#include "support/LogCapture.h"
#include "support/ScriptedServer.h"
#include "support/WaitFor.h"

#include <gtest/gtest.h>

#include <memory>

namespace kavor {
namespace {

using Kind = ScriptedAnswer::Kind;
using Framing = ScriptedAnswer::Framing;

DownloadResult download(PlainDownloader& downloader, const QUrl& url, qint64 sizeLimit = 1'000'000) {
    std::optional<DownloadResult> result;
    downloader.get(
        url, nullptr, [&](const DownloadResult& answer) { result = answer; }, sizeLimit);
    EXPECT_FALSE(result.has_value()) << "the callback ran inside the call";
    EXPECT_TRUE(waitFor([&] { return result.has_value(); }));
    return result.value_or(DownloadResult());
}

TEST(PlainDownloader, TellsWholeBodiesFromEverythingElse) {
    const QByteArray body(5000, 'b');
    ScriptedAnswer zipped = ScriptedAnswer::json(body);
    zipped.headers.emplaceBack("Content-Encoding", "gzip");
    ScriptedAnswer chunked = ScriptedAnswer::json(body);
    chunked.framing = Framing::Chunked;
    ScriptedAnswer cutFault = ScriptedAnswer::cut("nothing", 3);
    cutFault.status = 404;
    struct Case {
        const char* name;
        ScriptedAnswer answer;
        bool transportError;
        std::optional<int> status;
        qsizetype bodySize;
    };
    const Case cases[] = {
        {"whole", ScriptedAnswer::json(body), false, 200, 5000},
        {"chunked", chunked, false, 200, 5000},
        {"not found", ScriptedAnswer::json("no", 404), false, 404, 2},
        {"not found and cut", cutFault, false, 404, 3},
        {"proxy's fault", ScriptedAnswer::json("no", 407), false, 407, 2},
        {"server fault", ScriptedAnswer::json("no", 500), false, 500, 2},
        {"cut by length", ScriptedAnswer::cut(body, 4999), true, 200, 0},
        {"unasked gzip", zipped, true, 200, 0},
        {"reset", ScriptedAnswer::of(Kind::Reset), true, std::nullopt, 0},
        {"endless", ScriptedAnswer::of(Kind::EndlessBody), true, 200, 0},
        {"too large", ScriptedAnswer::json(QByteArray(1'000'001, 'b')), true, 200, 0},
        {"redirected in a circle", ScriptedAnswer::redirect("/"), true, 302, 0},
    };
    for (const Case& each : cases) {
        SCOPED_TRACE(each.name);
        ScriptedServer server;
        server.answer("/", each.answer);
        PlainDownloader downloader;
        const DownloadResult result = download(downloader, server.url("/"));
        EXPECT_EQ(result.transportError.has_value(), each.transportError);
        EXPECT_EQ(result.status, each.status);
        EXPECT_EQ(result.body.size(), each.bodySize);
        EXPECT_FALSE(downloader.isFetching(server.url("/")));
    }
}

TEST(PlainDownloader, SaysWhenTheEndOfTheBodyIsACertainOne) {
    const QByteArray body(5000, 'b');
    ScriptedServer server;
    server.answer("/length", ScriptedAnswer::json(body));
    server.answer("/chunks", ScriptedAnswer::cut(body, 100, Framing::Chunked));
    server.answer("/close", ScriptedAnswer::cut(body, 100, Framing::UntilClose));
    PlainDownloader downloader;
    EXPECT_TRUE(download(downloader, server.url("/length")).lengthIsVerified);
    EXPECT_FALSE(download(downloader, server.url("/chunks")).lengthIsVerified);
    EXPECT_FALSE(download(downloader, server.url("/close")).lengthIsVerified);
}

TEST(PlainDownloader, GivesUpOnSilence) {
    ScriptedServer server;
    server.answer("/", ScriptedAnswer::of(Kind::Silence));
    PlainDownloader downloader(nullptr, 50);
    EXPECT_TRUE(download(downloader, server.url("/")).transportError.has_value());
}

TEST(PlainDownloader, SendsNeitherTokenNorCookieAcrossARedirect) {
    ScriptedServer other;
    other.answer("/there", ScriptedAnswer::json("moved"));
    ScriptedServer server;
    ScriptedAnswer answer = ScriptedAnswer::redirect(other.address("/there").toUtf8());
    answer.headers.emplaceBack("Set-Cookie", "session=secret");
    server.answer("/here", answer);
    PlainDownloader downloader;
    const DownloadResult moved = download(downloader, server.url("/here"));
    EXPECT_EQ(moved.body, "moved") << moved.transportError.value_or("").toStdString();
    download(downloader, server.url("/here"));
    for (const auto& request : server.requests() + other.requests()) {
        EXPECT_EQ(request.header("accept-language"), "es-ES,es;q=0.9");
        EXPECT_FALSE(request.hasHeader("authorization"));
        EXPECT_FALSE(request.hasHeader("cookie"));
        EXPECT_FALSE(request.hasHeader("version"));
    }
    EXPECT_EQ(other.requests().size(), 2);
}

TEST(PlainDownloader, OpensOnlyWebAddresses) {
    PlainDownloader downloader;
    for (const char* address :
         {"file:///etc/hostname", "qrc:/x", "data:,x", "relative/path", "http://", ""}) {
        const DownloadResult result = download(downloader, QUrl(QString::fromLatin1(address)));
        EXPECT_TRUE(result.transportError.has_value()) << address;
        EXPECT_FALSE(result.status.has_value()) << address;
    }
}

TEST(PlainDownloader, SaysWhatItFetchesAndForgetsGoneContexts) {
    ScriptedServer server;
    server.answer("/", ScriptedAnswer::json("x"));
    server.hold();
    PlainDownloader downloader;
    auto context = std::make_unique<QObject>();
    bool called = false;
    downloader.get(server.url("/"), context.get(), [&](const DownloadResult&) { called = true; });
    EXPECT_TRUE(downloader.isFetching(server.url("/")));
    ASSERT_TRUE(waitFor([&] { return server.waiting() == 1; }));
    context.reset();
    server.release();
    EXPECT_TRUE(waitFor([&] { return !downloader.isFetching(server.url("/")); }));
    EXPECT_FALSE(called);
}

TEST(PlainDownloader, LogsWhatIsAboveTheSizeLimitOnceAndWithoutItsQuery) {
    LogCapture log;
    ScriptedServer server;
    server.answer("/announced", ScriptedAnswer::json(QByteArray(2000, 'b')));
    server.answer("/endless", ScriptedAnswer::of(Kind::EndlessBody));
    PlainDownloader downloader;
    for (const char* path : {"/announced", "/endless"}) {
        download(downloader, server.url(QString::fromLatin1(path) + "?token=T"), 1000);
        EXPECT_EQ(log.lines().back(),
                  "Not downloaded, above the limit of 1000 bytes: " + server.address(path).toStdString());
    }
    EXPECT_EQ(log.lines().size(), 2U);
}

TEST(PlainDownloader, LetsNoLaneWaitForAnotherAndADownloadChangeItsLane) {
    using Lane = PlainDownloader::Lane;
    ScriptedServer server;
    server.setHandler([](const ScriptedRequest& request) {
        return request.path.startsWith("/slow") ? ScriptedAnswer::of(Kind::Silence)
                                                : ScriptedAnswer::json("x");
    });
    PlainDownloader downloader;
    int ended = 0;
    const auto get = [&](const QString& path, Lane lane) {
        return downloader.get(
            server.url(path), nullptr, [&](const DownloadResult&) { ++ended; }, 1000, lane);
    };
    for (int i = 0; i < 8; ++i)
        get(QStringLiteral("/slow/%1").arg(i), Lane::Background);
    const auto stuck = get("/wanted", Lane::Background);
    ASSERT_TRUE(waitFor([&] { return server.requests().size() == 5; }));
    for (const Lane lane : {Lane::Wanted, Lane::OnShow, Lane::Ahead}) {
        for (int i = 0; i < 10; ++i)
            get(QStringLiteral("/%1/%2").arg(int(lane)).arg(i), lane);
    }
    ASSERT_TRUE(waitFor([&] { return ended == 30; }));
    EXPECT_TRUE(server.requestsTo("/wanted").isEmpty());
    EXPECT_TRUE(downloader.isFetching(server.url("/wanted")));
    downloader.hasten(stuck, Lane::OnShow);
    ASSERT_TRUE(waitFor([&] { return ended == 31; }));
    EXPECT_EQ(server.requestsTo("/wanted").size(), 1);
    EXPECT_EQ(server.requests().size(), 36);
}

// Each third breaks; none takes another with it that waits or is under way.
TEST(PlainDownloader, LosesOfManyDownloadsSideBySideOnlyThoseThatBreak) {
    ScriptedServer server;
    const auto breaks = [](const QByteArray& path) { return path.mid(1).toInt() % 3 == 1; };
    server.setHandler([&](const ScriptedRequest& request) {
        return breaks(request.path) ? ScriptedAnswer::cut("body", 2) : ScriptedAnswer::json("body");
    });
    server.hold();
    PlainDownloader downloader;
    int ended = 0;
    for (int i = 0; i < 60; ++i) {
        const QByteArray path = "/" + QByteArray::number(i);
        downloader.get(server.url(QString::fromLatin1(path)), nullptr,
                       [&, path](const DownloadResult& result) {
                           ++ended;
                           EXPECT_EQ(result.isComplete(), !breaks(path)) << path.toStdString();
                       });
    }
    EXPECT_TRUE(waitFor([&] { return server.waiting() == 6; }));
    server.release();
    EXPECT_TRUE(waitFor([&] { return ended == 60; }));
    EXPECT_EQ(server.requests().size(), 60);
    EXPECT_EQ(server.mostInFlight(), 6);
}

} // namespace
} // namespace kavor

#include "resources/ImageCache.h"

#include "resources/PlainDownloader.h"
#include "resources/Prefetcher.h"
#include "support/LogCapture.h"
#include "support/ScriptedServer.h"
#include "support/TemporaryFolder.h"
#include "support/WaitFor.h"

#include <QBuffer>

#include <gtest/gtest.h>

#include <memory>

namespace kavor {
namespace {

QByteArray picture(int width, int height) {
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(Qt::green);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return bytes;
}

class ImageCacheTest : public testing::Test {
protected:
    [[nodiscard]] CachedResource resource(const QString& key, const QString& path) const {
        return {key, server.url(path)};
    }
    QImage load(const CachedResource& wanted, const QSize& bounds = {}) {
        std::optional<QImage> image;
        cache.load(wanted, bounds, &server, [&](const QImage& answer) { image = answer; });
        EXPECT_TRUE(waitFor([&] { return image.has_value(); }));
        return image.value_or(QImage());
    }
    [[nodiscard]] int files() const {
        return int(std::distance(std::filesystem::directory_iterator(folder / "images"), {}));
    }

    TemporaryFolder folder;
    ScriptedServer server;
    PlainDownloader downloader;
    ImageCache cache{folder / "images", downloader};
};

TEST_F(ImageCacheTest, DownloadsAResourceOnceHoweverOftenItIsAskedFor) {
    server.answer("/a", ScriptedAnswer::bytes(picture(8, 4), "image/png"));
    server.hold();
    int answers = 0;
    for (int i = 0; i < 3; ++i)
        cache.load(resource("a", "/a"), {}, &server,
                   [&](const QImage& image) { answers += image.size() == QSize(8, 4) ? 1 : 100; });
    ASSERT_TRUE(waitFor([&] { return server.waiting() == 1; }));
    EXPECT_FALSE(cache.isCached("a"));
    server.release();
    EXPECT_TRUE(waitFor([&] { return answers == 3; }));
    EXPECT_TRUE(cache.localUrl("a").isLocalFile());
    server.shutDown();
    EXPECT_EQ(load(resource("a", "/a")).size(), QSize(8, 4));
    ImageCache nextProcess(folder / "images", downloader);
    EXPECT_TRUE(nextProcess.isCached("a"));
    EXPECT_EQ(server.requests().size(), 1);
}

TEST_F(ImageCacheTest, ScalesLargePicturesIntoTheirBounds) {
    server.answer("/a", ScriptedAnswer::bytes(picture(400, 100), "image/png"));
    EXPECT_EQ(load(resource("a", "/a"), {100, 100}).size(), QSize(100, 25));
    EXPECT_EQ(load(resource("a", "/a"), {0, 50}).size(), QSize(200, 50));
    EXPECT_EQ(load(resource("a", "/a"), {800, 800}).size(), QSize(400, 100));
    EXPECT_EQ(load(resource("a", "/a")).size(), QSize(400, 100));
}

TEST_F(ImageCacheTest, FetchesAStoredFileAnewThatFormsNoPicture) {
    server.then("/a", ScriptedAnswer::bytes("no picture", "image/png"));
    server.answer("/a", ScriptedAnswer::bytes(picture(8, 4), "image/png"));
    EXPECT_TRUE(load(resource("a", "/a")).isNull());
    EXPECT_EQ(load(resource("a", "/a")).size(), QSize(8, 4));
    EXPECT_EQ(server.requests().size(), 2);
}

TEST_F(ImageCacheTest, StoresNothingOfAFailedDownload) {
    server.answer("/404", ScriptedAnswer::bytes(picture(8, 4), "image/png", 404));
    server.answer("/cut", ScriptedAnswer::cut(picture(8, 4), 20));
    server.answer("/close", ScriptedAnswer::cut(picture(80, 40), 60, ScriptedAnswer::Framing::UntilClose));
    EXPECT_TRUE(load(resource("a", "/404")).isNull());
    EXPECT_TRUE(load(resource("b", "/cut")).isNull());
    EXPECT_TRUE(load(resource("c", "/close")).isNull());
    EXPECT_EQ(files(), 0);
}

TEST_F(ImageCacheTest, KeepsEveryKeyInsideItsFolder) {
    server.setHandler(
        [](const ScriptedRequest&) { return ScriptedAnswer::bytes(picture(2, 2), "image/png"); });
    const QStringList keys{"../../escape",     "/etc/passwd",     "",   "..",
                           QString(5000, 'k'), QString(QChar(0)), "a/b"};
    for (const QString& key : keys)
        EXPECT_FALSE(load(resource(key, "/x")).isNull()) << key.toStdString();
    EXPECT_EQ(files(), keys.size());
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder.path()), {}), 1);
}

TEST_F(ImageCacheTest, ForgetsAScreenThatIsGone) {
    server.answer("/a", ScriptedAnswer::bytes(picture(8, 4), "image/png"));
    server.hold();
    auto screen = std::make_unique<QObject>();
    bool called = false;
    cache.load(resource("a", "/a"), {}, screen.get(), [&](const QImage&) { called = true; });
    ASSERT_TRUE(waitFor([&] { return server.waiting() == 1; }));
    screen.reset();
    server.release();
    EXPECT_TRUE(waitFor([&] { return cache.isCached("a"); }));
    load(resource("a", "/a"));
    EXPECT_FALSE(called);
}

TEST_F(ImageCacheTest, ShowsAtOnceWhatIsStillToBeFetchedInTheBackgroundAndFetchesItOnce) {
    server.setHandler([](const ScriptedRequest& request) {
        return request.path.startsWith("/slow") ? ScriptedAnswer::of(ScriptedAnswer::Kind::Silence)
                                                : ScriptedAnswer::bytes(picture(8, 4), "image/png");
    });
    Prefetcher::Resources slow;
    for (int i = 0; i < 5; ++i)
        slow.push_back(resource(QStringLiteral("slow%1").arg(i), QStringLiteral("/slow%1").arg(i)));
    // A run that waits for its own downloads, and one beside it that waits for theirs.
    Prefetcher::Resources waiting = slow;
    waiting.push_back(resource("later", "/later"));
    Prefetcher first(cache, waiting, {}, {});
    Prefetcher second(cache, {resource("queued", "/queued")}, {}, {});
    first.setLane(PlainDownloader::Lane::Background);
    second.setLane(PlainDownloader::Lane::Background);
    first.start();
    ASSERT_TRUE(waitFor([&] { return server.requests().size() == 5; }));
    second.start();
    ASSERT_TRUE(waitFor([&] { return downloader.isFetching(server.url("/queued")); }));
    for (const char* key : {"later", "queued"})
        EXPECT_EQ(load(resource(key, QLatin1Char('/') + QString(key))).size(), QSize(8, 4)) << key;
    EXPECT_TRUE(waitFor([&] { return second.isFinished(); }));
    EXPECT_EQ(server.requests().size(), 7);
}

} // namespace
} // namespace kavor

#include "base/NotificationCenter.h"
#include "catalogue/ApplicationInformation.h"
#include "resources/FontRegistry.h"
#include "resources/FontUpdater.h"
#include "resources/ImageCache.h"
#include "resources/PlainDownloader.h"
#include "resources/ResourceUpdateRun.h"
#include "support/LogCapture.h"
#include "support/ScriptedServer.h"
#include "support/TemporaryFolder.h"
#include "support/WaitFor.h"

#include <gtest/gtest.h>

namespace kavor {
namespace {

class ResourceUpdateTest : public testing::Test {
protected:
    ResourceUpdateTest() {
        server.answer("/roboto", ScriptedAnswer::bytes(QByteArray::fromStdString(roboto), "font/ttf"));
    }

    [[nodiscard]] Textile::Typography font(const std::string& mime, const std::string& filename,
                                           const QString& path) const {
        Textile::Typography typography;
        typography.mimetype = mime;
        typography.filename = filename;
        typography.fontURL.text = server.address(path).toStdString();
        return typography;
    }
    void update(const FontUpdater::Typographies& typographies) {
        bool finished = false;
        updater.update(typographies, [&] { finished = true; });
        EXPECT_FALSE(finished);
        EXPECT_TRUE(waitFor([&] { return finished; }));
    }
    [[nodiscard]] bool registered(const QString& name) const { return registry.isRegistered(name); }

    const std::string roboto = contentOf(KAVOR_FONTS "/Roboto-Regular.ttf");
    TemporaryFolder caches;
    ScriptedServer server;
    PlainDownloader downloader;
    FontRegistry registry;
    FontUpdater updater{caches.path(), downloader, registry};
    LogCapture log;
};

TEST_F(ResourceUpdateTest, FetchesNewFontsAndRegistersAllOfThem) {
    put(caches / "ApplicationFonts/old.ttf", roboto);
    update({font("Old", "old.ttf", "/never"), font("New", "new.ttf", "/roboto")});
    EXPECT_EQ(contentOf(caches / "ApplicationFonts/new.ttf"), roboto);
    EXPECT_TRUE(registered("Old") && registered("New"));
    EXPECT_EQ(log.lines(), std::vector<std::string>{"New fonts to download: [New]."});

    update({font("Old", "old.ttf", "/never"), font("New", "new.ttf", "/roboto")});
    EXPECT_EQ(log.lines().back(), "New fonts to download: [].");
    EXPECT_EQ(server.requests().size(), 1);
    EXPECT_FALSE(server.requests().first().hasHeader("authorization"));
}

TEST_F(ResourceUpdateTest, CostsALogLineWhenAFontFailsAndTriesAgainTheNextTime) {
    server.then("/a", ScriptedAnswer::empty(404));
    server.answer("/b", ScriptedAnswer::of(ScriptedAnswer::Kind::CloseWithoutAnswer));
    server.answer("/a", ScriptedAnswer::bytes(QByteArray::fromStdString(roboto), "font/ttf"));
    server.answer("/junk", ScriptedAnswer::bytes("no font", "font/ttf"));
    const FontUpdater::Typographies fonts{font("A", "a.ttf", "/a"), font("B", "b.ttf", "/b"),
                                          font("Junk", "junk.ttf", "/junk"), font("C", "c.ttf", "/roboto")};
    update(fonts);
    EXPECT_TRUE(log.contains("New fonts to download: [A, B, Junk, C]."));
    EXPECT_TRUE(log.contains("Failure on the download of the font A from url: " +
                             server.address("/a").toStdString() + " with status code: 404."));
    EXPECT_EQ(log.startingWith("Failure parsing download font B from url: " +
                               server.address("/b").toStdString() + " with error: "),
              1);
    for (const char* name : {"A", "B", "Junk"})
        EXPECT_TRUE(log.contains(std::string("Error registering font ") + name)) << name;
    EXPECT_FALSE(std::filesystem::exists(caches / "ApplicationFonts/a.ttf"));
    EXPECT_TRUE(registered("C"));
    update(fonts);
    EXPECT_TRUE(registered("A"));
}

TEST_F(ResourceUpdateTest, RefusesFontNamesThatLeaveTheFolder) {
    update({font("Up", "../up.ttf", "/roboto"), font("Root", "/kavor-root.ttf", "/roboto"),
            font("Dots", "..", "/roboto"), font("Empty", "", "/roboto")});
    EXPECT_EQ(log.startingWith("Refused the file name of the font "), 4);
    EXPECT_EQ(log.startingWith("Error registering font "), 4);
    EXPECT_TRUE(server.requests().isEmpty());
    EXPECT_FALSE(std::filesystem::exists(caches / "up.ttf"));
}

TEST_F(ResourceUpdateTest, LogsAFontThatCannotBeStored) {
    // A folder takes the name while the download runs.
    server.hold();
    bool finished = false;
    updater.update({font("Blocked", "blocked.ttf", "/roboto")}, [&] { finished = true; });
    ASSERT_TRUE(waitFor([&] { return server.waiting() == 1; }));
    std::filesystem::create_directories(caches / "ApplicationFonts/blocked.ttf/x");
    server.release();
    ASSERT_TRUE(waitFor([&] { return finished; }));
    EXPECT_EQ(log.startingWith("Failure on storing font: Blocked with error: "), 1);
}

class ResourceUpdateRunTest : public ResourceUpdateTest {
protected:
    ResourceUpdateRunTest() {
        server.setHandler([](const ScriptedRequest& request) {
            return request.path == "/1/3" ? ScriptedAnswer::empty(500)
                                          : ScriptedAnswer::bytes(request.path, "image/png");
        });
        subscription = center.observe(notification::updatingResourcesDidEnd, [this](const auto&) { ++ends; });
    }
    void addImages(int number, int downloadType) {
        for (int i = 0; i < number; ++i) {
            const QString path = QStringLiteral("/%1/%2").arg(downloadType).arg(i);
            catalogue.images.push_back(
                {path.toStdString(), {server.address(path).toStdString()}, downloadType});
        }
    }

    ImageCache cache{caches / "images", downloader};
    NotificationCenter center;
    ResourceUpdateRun run{cache, updater, center};
    ApplicationInformation catalogue;
    NotificationCenter::Subscription subscription;
    int ends = 0;
    std::vector<std::pair<int, int>> progress;
};

TEST_F(ResourceUpdateRunTest, CountsPicturesOfClassOneFetchesClassTwoBesideAndLeavesTheOthers) {
    addImages(7, 1);
    addImages(3, 2);
    addImages(2, 0);
    addImages(2, 3);
    catalogue.textile.emplace().typographies = {font("New", "new.ttf", "/roboto")};
    run.start(catalogue, [&](int count, int total) { progress.emplace_back(count, total); });
    EXPECT_EQ(progress, (std::vector<std::pair<int, int>>{{0, 7}}));
    ASSERT_TRUE(waitFor([&] { return ends == 1 && cache.isCached("/2/0") && cache.isCached("/2/2"); }));
    ASSERT_EQ(progress.size(), 8U);
    EXPECT_EQ(progress.back(), (std::pair{7, 7}));
    EXPECT_TRUE(registered("New"));
    EXPECT_FALSE(cache.isCached("/1/3"));
    EXPECT_TRUE(cache.isCached("/1/6"));
    EXPECT_TRUE(server.requestsTo("/0/0").isEmpty());
    EXPECT_TRUE(server.requestsTo("/3/0").isEmpty());
}

TEST_F(ResourceUpdateRunTest, WaitsForFontsButNotForTheBackground) {
    addImages(6, 2);
    server.hold();
    run.start(catalogue, {});
    EXPECT_TRUE(waitFor([&] { return ends == 1 && server.waiting() == 5; }));
    server.release();
    EXPECT_TRUE(waitFor([&] { return cache.isCached("/2/5"); }));
    EXPECT_TRUE(log.contains("New fonts to download: []."));
}

// The server answers nothing of the background: whatever else is wanted comes all the same.
TEST_F(ResourceUpdateRunTest, HoldsFiveOfEachClassAndLetsTheBackgroundHoldUpNobody) {
    addImages(12, 1);
    addImages(12, 2);
    catalogue.textile.emplace().typographies = {font("New", "new.ttf", "/roboto")};
    server.setHandler([](const ScriptedRequest& request) {
        return request.path.startsWith("/2/") && request.path != "/2/11"
                   ? ScriptedAnswer::of(ScriptedAnswer::Kind::Silence)
                   : ScriptedAnswer::bytes("a picture", "image/png");
    });
    server.hold();
    int picturesEnded = 0;
    QObject::connect(&run, &ResourceUpdateRun::picturesEnded, &run, [&] { ++picturesEnded; });
    run.start(catalogue, {});
    run.start(catalogue, {}); // a refresh that takes the place of another shares its places
    ASSERT_TRUE(waitFor([&] { return server.waiting() == 10; }));
    bool isShown = false;
    cache.fetch({"/2/11", server.url("/2/11")}, &server,
                [&](const auto& path) { isShown = path.has_value(); });
    ASSERT_TRUE(waitFor([&] { return server.waiting() == 11; }));
    server.release();
    ASSERT_TRUE(waitFor([&] { return ends == 1 && isShown; }));
    EXPECT_TRUE(registered("New"));
    EXPECT_TRUE(cache.isCached("/1/11"));
    const auto fonts = server.requestsTo("/roboto").size();
    EXPECT_EQ(server.requests().size() - fonts, 12 + 5 + 1)
        << "class 1, five of class 2 and the picture on show";
    EXPECT_EQ(picturesEnded, 0);
    EXPECT_EQ(ends, 1) << "who was replaced tells no end";
    server.shutDown();
    EXPECT_TRUE(waitFor([&] { return picturesEnded == 1; }));
}

} // namespace
} // namespace kavor

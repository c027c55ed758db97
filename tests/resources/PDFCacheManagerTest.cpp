#include "resources/PDFCacheManager.h"

#include "catalogue/URLParser.h"
#include "resources/PlainDownloader.h"
#include "support/LogCapture.h"
#include "support/ScriptedServer.h"
#include "support/TemporaryFolder.h"
#include "support/WaitFor.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

namespace kavor {
namespace {

const QByteArray document = "%PDF-1.7 a menu %%EOF";

class PDFCacheManagerTest : public testing::Test {
protected:
    std::optional<QUrl> ask(const std::string& text, qint64 limit = PDFCacheManager::limitSizeInBytes) {
        return PDFCacheManager(caches.path(), downloader, "PDFCache", limit).localOrRemoteURL(text);
    }
    [[nodiscard]] std::string remote(const QString& path) const { return server.address(path).toStdString(); }
    [[nodiscard]] std::filesystem::path local(const std::string& name) const {
        return caches / ("PDFCache/" + name);
    }
    // A stored file of a size that was read so many days ago.
    void store(const std::string& name, std::uintmax_t size, int days) const {
        put(local(name), "");
        std::filesystem::resize_file(local(name), size);
        const timespec times[2] = {{::time(nullptr) - days * 86400L, 0}, {0, UTIME_OMIT}};
        ASSERT_EQ(::utimensat(AT_FDCWD, local(name).c_str(), times, 0), 0);
    }
    [[nodiscard]] bool isStored(const std::string& name) const {
        return std::filesystem::exists(local(name));
    }

    TemporaryFolder caches;
    ScriptedServer server;
    PlainDownloader downloader;
    LogCapture log;
};

TEST_F(PDFCacheManagerTest, ShowsTheRemoteDocumentFirstAndItsCopyEverAfter) {
    server.answer("/a/menu%201.pdf", ScriptedAnswer::bytes(document, "application/pdf"));
    server.hold();
    const std::string text = remote("/a/menu%201.pdf?token=1#page");
    EXPECT_EQ(ask(text), QUrl(QString::fromStdString(text)));
    EXPECT_EQ(ask(text), QUrl(QString::fromStdString(text)));
    ASSERT_TRUE(waitFor([&] { return server.waiting() == 1; }));
    server.release();
    ASSERT_TRUE(waitFor([&] { return isStored("menu 1.pdf"); }));
    EXPECT_EQ(server.requests().size(), 1) << "a second download ran beside the first";
    EXPECT_EQ(contentOf(local("menu 1.pdf")), document.toStdString());
    const auto copy = QUrl::fromLocalFile(QString::fromStdString(local("menu 1.pdf")));
    EXPECT_EQ(ask(text), copy);
    EXPECT_EQ(ask("https://elsewhere.example/b/menu%201.pdf"), copy) << "the name alone is the key";
    EXPECT_EQ(server.requests().size(), 1);
}

TEST_F(PDFCacheManagerTest, AnswersNothingWithoutAUrlOrAFolder) {
    for (const char* text : {"", "no url at all", "http://host:port/x", "file:///etc/passwd", "data:,x"})
        EXPECT_EQ(ask(text), std::nullopt) << text;
    EXPECT_EQ(PDFCacheManager({}, downloader).localOrRemoteURL(remote("/a.pdf")), std::nullopt);
    put(caches / "file", "");
    EXPECT_EQ(PDFCacheManager(caches.path(), downloader, "file").localOrRemoteURL(remote("/a.pdf")),
              std::nullopt);
    EXPECT_TRUE(server.requests().isEmpty());
}

TEST_F(PDFCacheManagerTest, CachesNothingUnderANameThatLeavesTheFolder) {
    for (const char* path : {"/", "/x/..", "/x/..%2F..%2Fescape.pdf", "/%2e%2e", "/a%00.pdf", ""}) {
        const auto answer = ask(remote(path));
        EXPECT_TRUE(!answer || !answer->isLocalFile()) << path;
    }
    EXPECT_GE(log.startingWith("Refused the file name of the document "), 5);
    EXPECT_TRUE(server.requests().isEmpty());
    EXPECT_TRUE(std::filesystem::is_empty(caches / "PDFCache"));
}

TEST_F(PDFCacheManagerTest, StoresNothingOfAFailedDownloadAndSaysWhy) {
    const auto untilClose = ScriptedAnswer::Framing::UntilClose;
    server.answer("/404.pdf", ScriptedAnswer::bytes("<html>", "text/html", 404));
    server.answer("/cut.pdf", ScriptedAnswer::cut(document, 10));
    server.answer("/close.pdf", ScriptedAnswer::cut(document, 10, untilClose));
    server.answer("/whole.pdf", ScriptedAnswer::cut(document, document.size(), untilClose));
    for (const char* name : {"404.pdf", "cut.pdf", "close.pdf"}) {
        ask(remote(QStringLiteral("/") + name));
        const std::string line = std::string("Failure on downloading file ") + name +
                                 " from url: " + remote(QStringLiteral("/") + name);
        EXPECT_TRUE(waitFor([&] { return log.startingWith(line + " with error: ") == 1; })) << name;
    }
    ask(remote("/whole.pdf"));
    EXPECT_TRUE(waitFor([&] { return isStored("whole.pdf"); }));
    EXPECT_FALSE(isStored("404.pdf") || isStored("cut.pdf") || isStored("close.pdf"));
}

TEST_F(PDFCacheManagerTest, LogsADocumentThatCannotBeStored) {
    server.answer("/a.pdf", ScriptedAnswer::bytes(document, "application/pdf"));
    put(local("a.pdf") / "inside", "a folder has the name");
    ask(remote("/a.pdf"));
    const std::string line = "Failure on storing file: a.pdf from url: " + remote("/a.pdf") + " with error: ";
    EXPECT_TRUE(waitFor([&] { return log.startingWith(line) == 1; }));
}

TEST_F(PDFCacheManagerTest, RemovesTheFileReadLongestAgoOnlyAboveTheLimit) {
    server.answer("/new.pdf", ScriptedAnswer::empty(500));
    store("old.pdf", 400, 9);
    store("older.pdf", 300, 20);
    store("new.pdf", 300, 1);
    EXPECT_TRUE(ask(remote("/new.pdf"), 1000)->isLocalFile());
    EXPECT_TRUE(isStored("old.pdf") && isStored("older.pdf")) << "at the limit";
    ask(remote("/older.pdf"), 1000); // reading it makes it the youngest
    ask(remote("/new.pdf"), 999);
    EXPECT_TRUE(!isStored("old.pdf") && isStored("older.pdf") && isStored("new.pdf"));
    ask(remote("/x.pdf"), 0);
    EXPECT_EQ(int(isStored("older.pdf")) + int(isStored("new.pdf")), 1) << "one file for each request";
}

TEST(URLParser, TakesTheFirstNonEmptyValueOfAName) {
    struct Case {
        const char* url;
        const char* name;
        std::optional<std::string> value;
    };
    const Case cases[] = {
        {"kavor://open?login=ana&token=t1", "login", "ana"},
        {"kavor://open?login=ana&token=t1", "token", "t1"},
        {"kavor://open?login=ana#token=t1", "token", std::nullopt},
        {"kavor://open?login=&login=eva", "login", "eva"},
        {"kavor://open?loginX=ana&log=b", "login", std::nullopt},
        {"kavor://open?token=a=b%20c", "token", "a=b%20c"},
        {"kavor://open?a=1?login=ana&login=b", "login", "b"},
        {"kavor://open?login", "login", std::nullopt},
        {"kavor://open", "login", std::nullopt},
        {"", "", std::nullopt},
    };
    for (const Case& each : cases)
        EXPECT_EQ(URLParser(each.url).value(each.name), each.value) << each.url;
    EXPECT_FALSE(URLParser("kavor://open").variables().has_value());
    EXPECT_EQ(URLParser("kavor://open?a=1&&b").variables(), (std::vector<std::string>{"a=1", "", "b"}));
}

} // namespace
} // namespace kavor

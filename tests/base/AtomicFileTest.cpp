#include "base/AtomicFile.h"

#include "base/BackgroundFileWriter.h"
#include "support/LogCapture.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstring>

namespace kavor {

namespace {

using Names = std::set<std::string>;

// Runs a check in a child process, whose limits and user don't touch the test's own.
int inChild(const std::function<bool()>& check) {
    const pid_t child = ::fork();
    if (child == 0)
        ::_exit(check() ? 0 : 1);
    int status = -1;
    ::waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

// A disk that takes no more than some bytes of a file.
void limitFileSize(rlim_t bytes) {
    const rlimit limit{bytes, bytes};
    ::setrlimit(RLIMIT_FSIZE, &limit);
    atomic_file::survivePassingTheSizeLimit();
}

TEST(AtomicFile, WritesReplacesReadsMovesAndRemoves) {
    const TemporaryFolder folder;
    const std::string content = std::string("uno\0dos", 7) + std::string(200000, 'x');
    ASSERT_TRUE(atomic_file::write(folder / "a", "old"));
    ASSERT_TRUE(atomic_file::write(folder / "a", content));
    EXPECT_EQ(atomic_file::read(folder / "a"), content);
    struct stat status {};
    ::stat((folder / "a").c_str(), &status);
    EXPECT_EQ(status.st_mode & 0777, 0600U);
    ASSERT_TRUE(atomic_file::write(folder / "b", "b"));
    EXPECT_TRUE(atomic_file::move(folder / "a", folder / "b"));
    EXPECT_EQ(folder.names(), Names{"b"});
    EXPECT_FALSE(atomic_file::move(folder / "a", folder / "b"));
    EXPECT_EQ(atomic_file::read(folder / "b"), content);
    EXPECT_TRUE(atomic_file::remove(folder / "b"));
    EXPECT_TRUE(atomic_file::remove(folder / "b")) << "one that is not there";
    EXPECT_TRUE(folder.names().empty());
}

TEST(AtomicFile, CreateLeavesAnExistingFileAlone) {
    const TemporaryFolder folder;
    EXPECT_TRUE(atomic_file::create(folder / "a", "first"));
    EXPECT_FALSE(atomic_file::create(folder / "a", "second"));
    EXPECT_EQ(folder.content("a"), "first");
    EXPECT_EQ(folder.names(), Names{"a"});
}

TEST(AtomicFile, KeepsTheOldContentWhenTheDiskIsFull) {
    const TemporaryFolder folder;
    folder.put("a", "old");
    const int status = inChild([&] {
        limitFileSize(1000);
        const auto written = atomic_file::write(folder / "a", std::string(5000, 'x'));
        const auto created = atomic_file::create(folder / "b", std::string(5000, 'x'));
        return !written && !created &&
               written.error().text() == (folder / "a").string() + ": " + std::strerror(EFBIG);
    });
    EXPECT_EQ(status, 0);
    EXPECT_EQ(folder.content("a"), "old");
    EXPECT_EQ(folder.names(), Names{"a"}) << "no temporary stays";
}

TEST(AtomicFile, KeepsTheOldContentWhenTheFolderIsReadOnly) {
    const TemporaryFolder folder;
    folder.put("a", "old");
    std::filesystem::permissions(folder.path(), std::filesystem::perms(0555));
    const int status = inChild([&] {
        if (::getuid() == 0 && ::setuid(65534) != 0) // the superuser may write anywhere
            return false;
        ::chmod(folder.path().c_str(), 0555);
        return !atomic_file::write(folder / "a", "new") && !atomic_file::remove(folder / "a") &&
               !atomic_file::makeFolder(folder / "sub") && !atomic_file::move(folder / "a", folder / "b");
    });
    EXPECT_EQ(status, 0);
    EXPECT_EQ(folder.content("a"), "old");
}

TEST(AtomicFile, ReadsOnlyRegularFiles) {
    const TemporaryFolder folder;
    EXPECT_FALSE(atomic_file::read(folder / "absent"));
    EXPECT_EQ(atomic_file::read(folder.path()).error().reason, "not a regular file");
    ASSERT_EQ(::mkfifo((folder / "pipe").c_str(), 0600), 0);
    EXPECT_EQ(inChild([&] {
                  ::alarm(5); // a reader that waits for the pipe's other end would hang
                  return atomic_file::read(folder / "pipe").error().reason == "not a regular file";
              }),
              0);
}

TEST(AtomicFile, NamesThatLeaveTheFolderAreRefused) {
    const std::filesystem::path folder("/documents");
    for (const std::string& bad :
         {std::string(), std::string("."), std::string(".."), std::string("../a"), std::string("/etc/passwd"),
          std::string("a/b"), std::string("a\0b", 3), std::string(".tmp-1-1"), std::string(256, 'a')})
        EXPECT_EQ(atomic_file::child(folder, bad), std::nullopt) << bad;
    for (const std::string& good : {std::string("a"), std::string("..a"), std::string("La «Esquina».zvo"),
                                    std::string("a\\b"), std::string(255, 'a')})
        EXPECT_EQ(atomic_file::child(folder, good), folder / good);
}

TEST(AtomicFile, TheSweepTakesTheTemporariesOfTheDeadOnly) {
    const TemporaryFolder folder;
    const pid_t dead = ::fork();
    if (dead == 0)
        ::_exit(0);
    ::waitpid(dead, nullptr, 0);
    const std::string living = ".tmp-" + std::to_string(::getppid()) + "-0";
    for (const std::string& name :
         {".tmp-" + std::to_string(dead) + "-3", ".tmp-" + std::to_string(::getpid()) + "-9",
          std::string(".tmp-x"), std::string(".tmp-7-notes"), living, std::string("a.zvo")})
        folder.put(name, "x");
    atomic_file::sweepTemporaries(folder.path());
    EXPECT_EQ(folder.names(), (Names{living, ".tmp-7-notes", ".tmp-x", "a.zvo"}));
    atomic_file::sweepTemporaries(folder / "absent");
}

TEST(AtomicFile, FoldersAreMadeWithTheirParents) {
    const TemporaryFolder folder;
    EXPECT_TRUE(atomic_file::makeFolder(folder / "a/b/c"));
    EXPECT_TRUE(atomic_file::makeFolder(folder / "a/b/c"));
    struct stat status {};
    ::stat((folder / "a/b").c_str(), &status);
    EXPECT_EQ(status.st_mode & 0777, 0700U);
    folder.put("file", "x");
    EXPECT_FALSE(atomic_file::makeFolder(folder / "file"));
    EXPECT_FALSE(atomic_file::makeFolder(folder / "file/sub"));
}

TEST(BackgroundFileWriter, TheLatestWishForAPathStandsAndPathsDoNotMix) {
    const TemporaryFolder folder;
    {
        BackgroundFileWriter writer;
        for (int i = 0; i <= 300; ++i) {
            for (const auto* name : {"a", "b", "c"})
                writer.write(folder / name, name + std::to_string(i));
        }
        writer.remove(folder / "b");
        writer.flush();
        EXPECT_EQ(folder.content("a"), "a300");
        EXPECT_EQ(folder.names(), (Names{"a", "c"}));
        writer.remove(folder / "c");
        writer.write(folder / "c", "again");
        writer.write(folder / "d", "last");
    }
    EXPECT_EQ(folder.content("c"), "again") << "the end waits for what was asked for";
    EXPECT_EQ(folder.content("d"), "last");
}

TEST(BackgroundFileWriter, RemovesWhatAFileReplacesOnlyOnceItStands) {
    const TemporaryFolder folder;
    folder.put("recovery", "x");
    std::vector<BackgroundFileWriter::Failure> failures;
    BackgroundFileWriter writer(
        [&](const BackgroundFileWriter::Failure& failure) { failures.push_back(failure); });
    writer.write(folder / "absent/a", "new", {folder / "recovery"});
    writer.flush();
    ASSERT_EQ(failures.size(), 1U);
    EXPECT_EQ(failures.front().path, folder / "absent/a");
    EXPECT_FALSE(failures.front().removing);
    EXPECT_EQ(folder.names(), Names{"recovery"});
    writer.write(folder / "a", "new", {folder / "recovery"});
    std::filesystem::create_directories(folder / "full/x");
    writer.remove(folder / "full");
    writer.flush();
    EXPECT_TRUE(folder.names().contains("a") && !folder.names().contains("recovery"));
    ASSERT_EQ(failures.size(), 2U);
    EXPECT_TRUE(failures.back().removing);
}

TEST(BackgroundFileWriter, FailuresWithoutAHandlerAreLogged) {
    const LogCapture log;
    BackgroundFileWriter writer;
    writer.write("/nowhere/at/all", "x");
    writer.flush();
    EXPECT_EQ(log.startingWith("Error occurred when serializing file \"/nowhere/at/all\" No such"), 1);
}

} // namespace
} // namespace kavor

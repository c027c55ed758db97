#include "base/StopProcess.h"
#include "robust/KillHarness.h"
#include "robust/OwnMounts.h"
#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <charconv>
#include <cstdio>
#include <cstring>
#include <map>

namespace kavor::robust {

namespace {

int kills = 100; // --kills
unsigned seed = 1;

std::map<std::string, std::string> filesBelow(const std::filesystem::path& folder) {
    std::map<std::string, std::string> files;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) {
        if (entry.is_regular_file())
            files[entry.path().string()] = contentOf(entry.path());
    }
    return files;
}

KillReport reported(const char* name, const KillOptions& options) {
    const auto report = killChildren(options);
    std::printf("%s: %s\n", name, report.line().c_str());
    for (const auto& fault : report.faults)
        std::printf("%s: %s\n", name, fault.c_str());
    return report;
}

// The status of work that mounts; skips the test where the system does not allow it.
#define KAVOR_WITH_OWN_MOUNTS(work)                                                                          \
    const auto status = runWithOwnMounts(work);                                                              \
    if (!status)                                                                                             \
        GTEST_SKIP() << "this system lets nobody mount";                                                     \
    EXPECT_EQ(*status, 0)

TEST(KilledClient, LeavesEveryFileOldOrNewAndNoTemporaryAfterTheNextStart) {
    const TemporaryFolder folder;
    const auto report = reported("kills", {.folder = folder.path(), .kills = kills, .seed = seed});
    EXPECT_THAT(report.faults, testing::IsEmpty());
    EXPECT_EQ(report.kills, kills);
    EXPECT_GT(report.duringAWrite, kills / 4) << "the kills met nothing";
}

TEST(KilledClient, KeepsEveryFileWhenFilesMayNotGrow) {
    const TemporaryFolder folder;
    const auto report = reported(
        "file size limit",
        {.folder = folder.path(), .kills = std::max(10, kills / 10), .fileSizeLimit = 8'000, .seed = seed});
    EXPECT_THAT(report.faults, testing::IsEmpty());
    EXPECT_GT(report.failedWrites, 0);
    EXPECT_GT(report.operations, 0);
}

TEST(KilledClient, KeepsEveryFileWhenTheDiskIsFull) {
    const TemporaryFolder folder;
    KAVOR_WITH_OWN_MOUNTS([&] {
        if (!mountSmallDisk(folder.path(), 160))
            return 77;
        const auto report =
            reported("full disk", {.folder = folder.path(), .kills = std::max(10, kills / 10), .seed = seed});
        return report.faults.empty() && report.failedWrites > 0 && report.operations > 0 ? 0 : 1;
    });
}

TEST(ReadOnlyFolder, KeepsEveryFileAndEveryWriteSaysNo) {
    const TemporaryFolder folder;
    KAVOR_WITH_OWN_MOUNTS([&] {
        const auto before = runChild(folder.path(), seed, 1, 100);
        const auto files = filesBelow(folder.path());
        if (before.status != 0 || before.failed > 0 || files.size() < 8)
            return 1;
        if (!makeReadOnly(folder.path()))
            return 77;
        const auto after = runChild(folder.path(), seed + 1, 10'000, 100);
        std::printf("read-only folder: %ld of %ld operations refused\n", after.failed,
                    after.failed + after.succeeded);
        return after.status == 0 && after.failed > 50 && after.succeeded == 0 &&
                       filesBelow(folder.path()) == files
                   ? 0
                   : 1;
    });
}

TEST(ReadOnlyFolder, WithoutTheTreeOfOrdersStopsTheClient) {
    const TemporaryFolder folder;
    KAVOR_WITH_OWN_MOUNTS([&] {
        if (!makeReadOnly(folder.path()))
            return 77;
        return runChild(folder.path(), seed, 1, 1).status == stoppedExitStatus ? 0 : 1;
    });
}

} // namespace

} // namespace kavor::robust

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    for (int i = 1; i + 1 < argc; i += 2) {
        const char* value = argv[i + 1];
        if (std::strcmp(argv[i], "--kills") == 0)
            std::from_chars(value, value + std::strlen(value), kavor::robust::kills);
        else if (std::strcmp(argv[i], "--seed") == 0)
            std::from_chars(value, value + std::strlen(value), kavor::robust::seed);
    }
    return RUN_ALL_TESTS();
}

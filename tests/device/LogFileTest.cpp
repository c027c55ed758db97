#include "device/LogFile.h"

#include "base/StopProcess.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <algorithm>
#include <regex>
#include <sstream>
#include <vector>

namespace kavor {
namespace {

int modeOf(const std::filesystem::path& path) {
    struct stat status {};
    return ::stat(path.c_str(), &status) == 0 ? int(status.st_mode & 0777) : -1;
}

std::vector<std::string> linesOf(const std::filesystem::path& file) {
    std::istringstream content(contentOf(file));
    std::vector<std::string> lines;
    for (std::string line; std::getline(content, line);)
        lines.push_back(line);
    return lines;
}

class LogFileTest : public testing::Test {
protected:
    const TemporaryFolder folder;
    const std::filesystem::path logs = folder / "caches/Logs";
    const std::filesystem::path file = logs / LogFile::fileName;

    // What runs, with stderr taken.
    template <class Act>
    static std::string stderrOf(Act act) {
        testing::internal::CaptureStderr();
        act();
        return testing::internal::GetCapturedStderr();
    }
};

TEST_F(LogFileTest, HoldsALineForEachEntryAndForEachMessageOfQtFromTheStartOnAsStderrDoes) {
    const std::string shown = stderrOf([&] {
        LogFile log;
        logEntry({LogLevel::Warning, "orders", "before\nit was open\tñ"});
        log.open(logs);
        logEntry({LogLevel::Note, "resources", "New fonts to download: []."});
        qWarning("a binding loop");
        logLine("from here");
    });
    const std::string time = R"(\d{4}-\d\d-\d\dT\d\d:\d\d:\d\d\.\d{3} )";
    const char* const expected[] = {"warning orders: before it was open ñ",
                                    "note resources: New fonts to download: \\[\\]\\.",
                                    "warning qt: a binding loop", "warning kavor: from here"};
    const auto lines = linesOf(file);
    ASSERT_EQ(lines.size(), std::size(expected));
    for (std::size_t i = 0; i < lines.size(); ++i)
        EXPECT_TRUE(std::regex_match(lines[i], std::regex(time + expected[i]))) << lines[i];
    EXPECT_EQ(shown, contentOf(file));
    EXPECT_EQ(modeOf(file), 0600);
    EXPECT_EQ(modeOf(logs), 0700);
    EXPECT_EQ(stderrOf([] { logLine("plain again"); }), "plain again\n");
}

TEST_F(LogFileTest, KeepsTheLastLinesInTwoFilesOfALimitedSizeThroughManyStarts) {
    constexpr std::size_t starts = 10;
    stderrOf([&] {
        for (std::size_t start = 0; start < starts; ++start) {
            LogFile log(2000);
            log.open(logs);
            for (std::size_t i = 0; i < 100; ++i)
                logLine("line " + std::to_string(start * 100 + i));
        }
    });
    auto lines = linesOf(logs / LogFile::formerFileName);
    std::ranges::copy(linesOf(file), std::back_inserter(lines));
    EXPECT_LE(std::filesystem::file_size(file), 2000U);
    EXPECT_LE(std::filesystem::file_size(logs / LogFile::formerFileName), 2000U);
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(logs), {}), 2);
    ASSERT_GT(lines.size(), 40U);
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const std::string end = " line " + std::to_string(starts * 100 - lines.size() + i);
        EXPECT_TRUE(lines[i].ends_with(end)) << lines[i];
    }
}

TEST_F(LogFileTest, CostsNothingButItsLinesWhereNothingCanBeWritten) {
    put(folder / "file", "where the folder should be");
    std::filesystem::create_directories(folder / "link");
    std::filesystem::create_symlink("/dev/full", folder / "link/kavor.log");
    for (const char* place : {"file/Logs", "link"}) {
        const std::string shown = stderrOf([&] {
            LogFile log;
            log.open(folder / place);
            logLine("said");
            log.flush();
            logLine("said again");
        });
        EXPECT_EQ(std::ranges::count(shown, '\n'), 2) << place;
    }
    EXPECT_EQ(contentOf(folder / "file"), "where the folder should be");
}

TEST_F(LogFileTest, ShowsNoSecretThatItWasTold) {
    const std::string shown = stderrOf([&] {
        LogFile log;
        log.open(logs);
        log.setBlanking([](QString text) { return text.replace("pa55word", "***"); });
        logLine("the password pa55word is wrong");
        qWarning("pa55word");
    });
    EXPECT_TRUE(linesOf(file).front().ends_with("the password *** is wrong"));
    EXPECT_EQ((shown + contentOf(file)).find("pa55word"), std::string::npos);
}

TEST_F(LogFileTest, HoldsTheLastWordsOfAProcessThatStops) {
    EXPECT_EXIT(
        {
            LogFile log;
            log.open(logs);
            stopProcess("catalogue to store");
        },
        testing::ExitedWithCode(stoppedExitStatus), "fault kavor: kavor: stopped: catalogue to store");
    ASSERT_EQ(linesOf(file).size(), 1U);
    EXPECT_TRUE(linesOf(file).front().ends_with("kavor: stopped: catalogue to store"));
}

} // namespace
} // namespace kavor

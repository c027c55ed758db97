#include "orders/OrderDiskManager.h"

#include "base/StopProcess.h"
#include "base/json/Json.h"
#include "brochures/engine/SaveBrochuresOrder.h"
#include "support/LogCapture.h"
#include "support/TemporaryFolder.h"
#include "textile/SaveTextileOrder.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

namespace kavor {

namespace {

using Names = std::set<std::string>;
constexpr auto draft = OrderDiskManager::DirectoryName::draft;
constexpr auto outbox = OrderDiskManager::DirectoryName::outbox;
const std::string draftFolder = "orders/draft_orders/SaveBrochuresOrder/";

class OrderFiles : public testing::Test {
public:
    static SaveBrochuresOrder order(Int quantity) {
        SaveBrochuresOrder made;
        made.orderLines = {{PriceType::main, quantity}};
        made.menu.customer.name = "Bar";
        made.syncState = OrderSyncState::savedLocally;
        return made;
    }
    static Names names(const std::vector<OrderDiskManager::Listing>& listings) {
        Names found;
        for (const auto& each : listings)
            found.insert(each.fileName);
        return found;
    }

    TemporaryFolder folder;
    const OrderDiskManager disk{folder.path()};
};

TEST_F(OrderFiles, CreateKeepsAndUpdateReplacesWhatExists) {
    EXPECT_FALSE(disk.exists<SaveBrochuresOrder>("a", draft));
    EXPECT_FALSE(disk.update(order(1), "a.zvo", draft));
    EXPECT_TRUE(disk.create(order(1), draft, "a"));
    EXPECT_FALSE(disk.create(order(2), draft, "a"));
    EXPECT_EQ(disk.retrieve<SaveBrochuresOrder>("a.zvo", draft)->orderLines.front().quantity, 1);
    EXPECT_TRUE(disk.update(order(3), "a.zvo", draft));
    const auto read = disk.retrieve<SaveBrochuresOrder>("a.zvo", draft);
    EXPECT_EQ(read->orderLines.front().quantity, 3);
    EXPECT_EQ(read->syncState, std::nullopt) << "in memory only";
    EXPECT_EQ(folder.content(draftFolder + "a.zvo"), json::encodePretty(order(3)).value());
    EXPECT_TRUE(disk.exists<SaveBrochuresOrder>("a", draft));
    EXPECT_FALSE(disk.exists<SaveBrochuresOrder>("a", outbox)) << "another folder";
    EXPECT_FALSE(disk.exists<SaveTextileOrder>("a", draft)) << "another kind";
    EXPECT_TRUE(disk.create(order(4), outbox, "a"));
    EXPECT_TRUE(disk.remove<SaveBrochuresOrder>("a.zvo", draft));
    EXPECT_EQ(disk.retrieve<SaveBrochuresOrder>("a.zvo", draft), std::nullopt);
    EXPECT_TRUE(disk.exists<SaveBrochuresOrder>("a", outbox));
}

TEST_F(OrderFiles, ANameIsRefusedWithTheReasonExactlyWhenItCannotBecomeAFile) {
    struct Case {
        std::string name;
        std::string part; // of the sentence; empty: the name is good
    };
    const Case cases[] = {
        {"terraza 1/2", "el signo \"/\""},
        {"/", "el signo \"/\""},
        {"", "vacío"},
        {"  ", "vacío"},
        {".", "por un punto"},
        {"..", "por un punto"},
        {".tmp-7-1", "por un punto"},
        {"a\nb", "invisibles"},
        {std::string("a\0b", 3), "invisibles"},
        {std::string(252, 'a'), "largo"},
        {std::string(251, 'a'), ""},
        {"Bar Olmo nº 3 (ñ) v1.2", ""},
    };
    for (const Case& each : cases) {
        const auto refusal = OrderDiskManager::refusalOf(each.name);
        EXPECT_EQ(refusal.has_value(), !each.part.empty()) << each.name;
        EXPECT_NE(refusal.value_or("").find(each.part), std::string::npos) << *refusal;
        if (!refusal) {
            EXPECT_TRUE(disk.create(order(1), draft, each.name)) << each.name;
        }
    }
}

TEST_F(OrderFiles, TheListHasOrderFilesOnly) {
    for (const auto* name : {"b.txt", "c.ZVO", "zvo", "d.zvo.bak", "broken.zvo"})
        folder.put(draftFolder + name, "{");
    disk.create(order(1), draft, "La «Esquina»");
    const auto listing = disk.list<SaveBrochuresOrder>(draft);
    EXPECT_EQ(names(listing), (Names{"La «Esquina».zvo", "broken.zvo"}));
    EXPECT_LE(listing.front().creationDate, LocalDateTime::now());
    EXPECT_GT(listing.front().modificationDate.year, 2000);
    const LogCapture log;
    EXPECT_EQ(disk.retrieve<SaveBrochuresOrder>("broken.zvo", draft), std::nullopt);
    EXPECT_EQ(log.lines().size(), 1U);
    EXPECT_TRUE(disk.list<SaveTextileOrder>(outbox).empty());
    std::filesystem::remove_all(folder / "orders");
    EXPECT_EXIT(static_cast<void>(disk.list<SaveBrochuresOrder>(draft)),
                testing::ExitedWithCode(stoppedExitStatus), "orders folder");
}

TEST_F(OrderFiles, NamesThatLeaveTheFolderAreRefusedAndLogged) {
    folder.put("secret.zvo", "{}");
    for (const std::string& name : {std::string("../../../secret"), std::string("a/b"),
                                    std::string("a\0b", 3), std::string(300, 'x')}) {
        const LogCapture log;
        EXPECT_FALSE(disk.create(order(1), draft, name));
        EXPECT_EQ(log.startingWith("Error occurred when serializing file \""), 1) << name;
        EXPECT_FALSE(disk.exists<SaveBrochuresOrder>(name, draft));
        EXPECT_FALSE(disk.update(order(1), name + ".zvo", draft));
        EXPECT_FALSE(disk.retrieve<SaveBrochuresOrder>(name + ".zvo", draft));
        EXPECT_FALSE(disk.remove<SaveBrochuresOrder>(name + ".zvo", draft));
    }
    EXPECT_EQ(folder.content("secret.zvo"), "{}");
}

TEST_F(OrderFiles, AFileThatOnlyTheApplicationWritesMustBeRight) {
    folder.put("orders/draft_orders/SaveTextileOrder/a.zvo", "{\"save\":");
    EXPECT_FALSE(disk.retrieve<SaveTextileOrder>("a.zvo", draft));
    folder.put("orders/draft_orders/SaveTextileOrder/a.zvo", "{\"save\":\"x\"}");
    EXPECT_EXIT(static_cast<void>(disk.retrieve<SaveTextileOrder>("a.zvo", draft)),
                testing::ExitedWithCode(stoppedExitStatus), "save");
    folder.put(draftFolder + "a.zvo", "{\"save\":\"x\"}");
    EXPECT_FALSE(disk.retrieve<SaveBrochuresOrder>("a.zvo", draft));
}

TEST_F(OrderFiles, TheTreeIsMadeAndSweptAtTheStart) {
    EXPECT_EQ(folder.names(), Names{"orders"});
    folder.put(draftFolder + ".tmp-999999-1", "x");
    folder.put(draftFolder + "a.zvo", "x");
    const OrderDiskManager again(folder.path());
    EXPECT_EQ(folder.content(draftFolder + ".tmp-999999-1"), "");
    EXPECT_EQ(folder.content(draftFolder + "a.zvo"), "x");
    folder.put("file", "x");
    EXPECT_EXIT(OrderDiskManager(folder / "file"), testing::ExitedWithCode(stoppedExitStatus),
                "orders folder");
    EXPECT_EQ(OrderDiskManager::plainName("a.b.zvo"), "a.b");
}

} // namespace
} // namespace kavor

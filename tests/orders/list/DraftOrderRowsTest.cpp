#include "orders/list/DraftOrderRows.h"

#include "base/AtomicFile.h"
#include "base/StopProcess.h"
#include "base/json/Json.h"
#include "brochures/engine/SaveBrochuresOrder.h"
#include "support/TemporaryFolder.h"
#include "textile/SaveTextileOrder.h"

#include <gtest/gtest.h>

#include <chrono>

namespace kavor {
namespace {

using DirectoryName = OrderDiskManager::DirectoryName;

class DraftOrderRowsTest : public ::testing::Test {
protected:
    // A brochure file that was last written some minutes ago.
    void brochure(const std::string& name, DirectoryName directory, int minutesAgo,
                  std::optional<Int> identifier = std::nullopt, BrochureType type = BrochureType::beer) {
        SaveBrochuresOrder order;
        order.menu.orderType = type;
        order.orderIdentifier = identifier;
        ASSERT_TRUE(orders.create(order, directory, name));
        age("SaveBrochuresOrder", name, directory, minutesAgo);
    }

    void textile(const std::string& name, int minutesAgo, std::optional<Int> identifier) {
        SaveTextileOrder order;
        order.orderIdentifier = identifier;
        ASSERT_TRUE(orders.create(order, DirectoryName::draft, name));
        age("SaveTextileOrder", name, DirectoryName::draft, minutesAgo);
    }

    void age(const std::string& record, const std::string& name, DirectoryName directory, int minutesAgo) {
        const auto path = folder.path() / "orders" /
                          (directory == DirectoryName::draft ? "draft_orders" : "outbox_orders") / record /
                          (name + ".zvo");
        std::filesystem::last_write_time(path, std::filesystem::file_time_type::clock::now() -
                                                   std::chrono::minutes(minutesAgo));
    }

    static OrderList::Order server(Int id, OrderState state, const std::string& name,
                                   const std::string& date) {
        OrderList::Order order;
        order.id = id;
        order.stateId = state;
        order.filename = name;
        order.date = *LocalDateTime::parse(date);
        return order;
    }

    static std::vector<std::string> shown(const DraftOrderRows& rows) {
        std::vector<std::string> lines;
        for (const DraftOrderRow& row : rows.draftsOrderList())
            lines.push_back(row.filename + " " + std::string(label(row.syncState)) +
                            (row.serverId() ? " " + std::to_string(*row.serverId()) : ""));
        return lines;
    }

    TemporaryFolder folder;
    OrderDiskManager orders{folder.path()};
    DraftOrderRows rows;
};

using Lines = std::vector<std::string>;

TEST_F(DraftOrderRowsTest, ListsTheFilesOfTheDeviceNewestFirst) {
    brochure("Vieja", DirectoryName::draft, 30);
    brochure("Nueva", DirectoryName::draft, 1);
    brochure("Nueva", DirectoryName::outbox, 10);
    textile("Camisetas", 20, std::nullopt);
    rows.rebuildLocalRows(orders);
    EXPECT_EQ(shown(rows), (Lines{"Nueva Guardado local", "Nueva Pendiente de envío",
                                  "Camisetas Guardado local", "Vieja Guardado local"}));
    EXPECT_EQ(rows.draftsOrderList()[2].sectionIdentifier.text(), "Textile(textil)");
}

TEST_F(DraftOrderRowsTest, TellsFilesOfOneSecondApart) {
    using namespace std::chrono_literals;
    const auto drafts = folder.path() / "orders/draft_orders/SaveBrochuresOrder";
    const auto second =
        std::chrono::floor<std::chrono::seconds>(std::filesystem::file_time_type::clock::now());
    Lines expected;
    for (int i = 0; i < 6; ++i) {
        const std::string name = "orden " + std::to_string(i * 5 % 6);
        brochure(name, DirectoryName::draft, 0);
        std::filesystem::last_write_time(drafts / (name + ".zvo"), second + i * 100ms);
        expected.insert(expected.begin(), name + " Guardado local");
    }
    rows.rebuildLocalRows(orders);
    EXPECT_EQ(shown(rows), expected);
}

TEST_F(DraftOrderRowsTest, OneOrderInBothPlacesShowsOnceAsSynced) {
    brochure("Bar Nube", DirectoryName::draft, 5, 41);
    brochure("Sin servidor", DirectoryName::draft, 6, 99);
    brochure("En salida", DirectoryName::outbox, 7, 41);
    textile("Bar Nube", 8, 41); // the same number, another section
    rows.rebuildLocalRows(orders);
    OrderList answer;
    answer.orders = {server(41, OrderState::cloud, "nombre del servidor", "01-01-2020 10:00:00"),
                     server(42, OrderState::cloud, "solo nube", "01-01-2021 10:00:00"),
                     server(43, OrderState::sent, "enviada", "01-01-2022 10:00:00")};
    rows.applyAnswer(answer);
    const Lines expected{"Bar Nube Sincronizado 41", "Sin servidor Guardado local",
                         "En salida Pendiente de envío", "Bar Nube Guardado local",
                         "solo nube En la nube 42"};
    EXPECT_EQ(shown(rows), expected);
    EXPECT_EQ(rows.sentBrochureOrders().size(), 1U);

    rows.applyAnswer(answer);
    EXPECT_EQ(shown(rows), expected) << "a second answer brings nothing twice";
    rows.applyAnswer(OrderList());
    EXPECT_EQ(shown(rows).front(), "Bar Nube Guardado local") << "the server no longer lists it";
}

TEST_F(DraftOrderRowsTest, MergesWithAnOrderInAnyStateAndKeepsTheCloudRowOfAnotherKind) {
    brochure("Impresa", DirectoryName::draft, 5, 50);
    brochure("Cambiada", DirectoryName::draft, 6, 51, BrochureType::flyer);
    rows.rebuildLocalRows(orders);
    OrderList answer;
    answer.orders = {server(50, OrderState::sent, "x", "01-01-2020 10:00:00"),
                     server(51, OrderState::cloud, "otro tipo", "01-01-2020 10:00:00")};
    rows.applyAnswer(answer);
    EXPECT_EQ(shown(rows),
              (Lines{"Impresa Sincronizado 50", "Cambiada Sincronizado 51", "otro tipo En la nube 51"}));
}

TEST_F(DraftOrderRowsTest, SortsSentOrdersAndLeavesOrdersOfOneMomentInPlace) {
    OrderList answer;
    answer.orders = {server(1, OrderState::sent, "a", "01-01-2020 10:00:00"),
                     server(2, OrderState::sent, "b", "01-01-2021 10:00:00"),
                     server(3, OrderState::sent, "c", "01-01-2021 10:00:00")};
    rows.applyAnswer(answer);
    rows.sortSentOrders();
    std::vector<Int> ids;
    for (const auto& order : rows.sentBrochureOrders())
        ids.push_back(order.id);
    EXPECT_EQ(ids, (std::vector<Int>{2, 3, 1}));
}

TEST_F(DraftOrderRowsTest, StopsForAFileThatCannotBeReadAndForACloudOrderWithoutName) {
    OrderList answer;
    answer.orders = {server(7, OrderState::cloud, "", "01-01-2020 10:00:00")};
    answer.orders->front().filename.reset();
    EXPECT_EXIT(rows.applyAnswer(answer), ::testing::ExitedWithCode(stoppedExitStatus), "cloud order 7");
    ASSERT_TRUE(
        atomic_file::write(folder.path() / "orders/draft_orders/SaveBrochuresOrder/rota.zvo", "{\"save\":"));
    EXPECT_EXIT(rows.rebuildLocalRows(orders), ::testing::ExitedWithCode(stoppedExitStatus), "rota.zvo");
}

} // namespace
} // namespace kavor

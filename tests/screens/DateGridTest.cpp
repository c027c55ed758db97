#include "screens/DateGrid.h"

#include <gtest/gtest.h>

namespace kavor {
namespace {

QVariantMap currentDay(const DateGrid& grid) {
    for (const QVariant& day : grid.days()) {
        if (day.toMap().value("current").toBool())
            return day.toMap();
    }
    return {};
}

TEST(DateGridTest, ShowsSixWeeksFromMondayOnAroundItsDay) {
    DateGrid grid;
    grid.setToday("15-05-26");
    EXPECT_EQ(grid.title(), "Mayo de 2026");
    ASSERT_EQ(grid.days().size(), 42);
    EXPECT_EQ(grid.days().front().toMap().value("date"), "27-04-26") << "a Monday";
    EXPECT_EQ(currentDay(grid).value("name"), "viernes, 15 de mayo de 2026");
    grid.setDate("29-02-28");
    EXPECT_EQ(grid.title(), "Febrero de 2028");
    grid.moveMonths(12);
    EXPECT_EQ(grid.date(), "28-02-29");
    grid.moveDays(1);
    EXPECT_EQ(grid.date(), "01-03-29");
    for (const char* none : {"", "31-02-26", "1-5-26", "01/05/26", "01-05-2026"})
        EXPECT_FALSE(DateGrid::read(none).isValid()) << none;
    EXPECT_EQ(DateGrid::write(DateGrid::read("01-05-26")), "01-05-26");
}

TEST(DateGridTest, NeverStandsBeforeTheFirstDayThatMayBeChosen) {
    DateGrid grid;
    grid.setToday("01-01-26");
    grid.setMinimum("10-05-26");
    EXPECT_EQ(grid.date(), "10-05-26");
    grid.moveDays(-3);
    EXPECT_EQ(grid.date(), "10-05-26");
    EXPECT_FALSE(grid.hasFormer());
    grid.moveMonths(1);
    EXPECT_TRUE(grid.hasFormer());
    EXPECT_EQ(grid.date(), "10-06-26");
}

} // namespace
} // namespace kavor

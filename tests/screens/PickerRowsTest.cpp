#include "screens/PickerRows.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace kavor {
namespace {

struct Record {
    Int id = 0;
    Int position = 0;
    std::string name;
};

const std::vector<Record> records{{7, 2, "Tostada"}, {8, 1, "Rubia"}, {9, 2, "Ámbar"}, {6, 1, "Negra"}};

TEST(PickerRowsTest, RecordsStandByTheirPositionAndEqualOnesInTheirOrder) {
    PickerRows rows;
    rows.appendByPosition(records);
    EXPECT_EQ(rows.names(), (QStringList{"Rubia", "Negra", "Tostada", "Ámbar"}));
    EXPECT_EQ(rows.rowOf(9), 3);
    EXPECT_EQ(rows.idAt(1), 6);
    EXPECT_EQ(rows.rowOf(std::nullopt), -1);
    for (const int row : {-1, 4})
        EXPECT_EQ(rows.idAt(row), std::nullopt) << row;
}

TEST(PickerRowsTest, TheFirstRowMayMeanNoneOfThem) {
    PickerRows rows(QStringLiteral("Ninguna"));
    rows.appendByPosition(records, [](const Record& record) { return record.id > 7; });
    EXPECT_EQ(rows.names(), (QStringList{"Ninguna", "Rubia", "Ámbar"}));
    EXPECT_EQ(rows.rowOf(std::nullopt), 0);
    EXPECT_EQ(rows.idAt(0), std::nullopt);
    EXPECT_EQ(rows.rowOf(7), -1) << "what is not offered is not none";
    EXPECT_EQ(rows.idAt(rows.rowOf(8)), 8);
}

} // namespace
} // namespace kavor

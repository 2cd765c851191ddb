#include "platform/text.h"
#include "support/test_desk.h"

namespace tallyvane {

namespace {

class CellEditingTest : public DiaryDesk {
protected:
    void SetUp() override {
        DiaryDesk::SetUp();
        open();
        for (int day = 1; day <= 3; ++day)
            addRow({std::to_string(day) + "/1/2026", "5", "6", "7", "8", "9", "10", "11", "", "180"});
    }
};

TEST_F(CellEditingTest, KeysMoveTheEditing) {
    struct Row {
        const char* name;
        int row, column, key;
        int wantRow, wantColumn;
    };
    const Row rows[] = {
        {"up", 1, 4, 30, 0, 4},
        {"up in the first row", 0, 4, 30, 0, 4},
        {"down", 1, 4, 31, 2, 4},
        {"down in the last row", 2, 4, 31, 2, 4},
        {"left", 1, 4, 28, 1, 3},
        {"left in the first reading", 1, 1, 28, 1, 1},
        {"left from the weight", 1, 9, 28, 1, 8},
        {"right", 1, 4, 29, 1, 5},
        {"right in the last reading", 1, 7, 29, 1, 7},
        {"right in the weight", 1, 9, 29, 1, 9},
        {"right in the average", 1, 8, 29, 1, 8},
        {"tab", 1, 6, 9, 1, 7},
        {"tab in the last reading", 1, 7, 9, 1, 7},
    };
    for (const Row& row : rows) {
        table_.EditCell(row.row, row.column);
        table_.ActiveCell().userChanged(table_.ActiveCell().Text(), 1, 0); // the cursor somewhere
        EXPECT_TRUE(table_.CellKeyDown(row.row, row.column, Chr(row.key))) << row.name;
        EXPECT_EQ(table_.openRow(), row.wantRow) << row.name;
        EXPECT_EQ(table_.openColumn(), row.wantColumn) << row.name;
        EXPECT_EQ(table_.ListIndex(), row.wantRow) << row.name;
        EXPECT_EQ(table_.ActiveCell().SelStart(), 0) << row.name;
        EXPECT_EQ(table_.ActiveCell().SelLength(), Len(table_.Cell(row.wantRow, row.wantColumn))) << row.name;
    }
}

TEST_F(CellEditingTest, OtherKeysAreLeftToTheCell) {
    table_.EditCell(1, 1);
    for (const std::string& key : {Chr(13), Chr(27), Chr(8), std::string("5"), std::string("x"), std::string()})
        EXPECT_FALSE(table_.CellKeyDown(1, 1, key));
    EXPECT_EQ(table_.openColumn(), 1);
}

TEST_F(CellEditingTest, EachKeystrokeReachesAveragesAndStrip) {
    table_.EditCell(0, 1);
    table_.userTyped("1", 1, 0);
    EXPECT_EQ(table_.Cell(0, 8), "7.4");
    EXPECT_EQ(window1_.StaticText1.Text(), "1.0");
    table_.userTyped("12", 2, 0);
    EXPECT_EQ(table_.Cell(0, 8), "9.0");
    EXPECT_EQ(window1_.StaticText1.Text(), "12.0");
    table_.EditCell(0, 9);
    table_.userTyped("200", 3, 0);
    EXPECT_EQ(window1_.StaticText16.Text(), "200.0");
}

TEST_F(CellEditingTest, WhatIsTypedOverAnAverageIsReplacedAtOnce) {
    table_.EditCell(0, 8);
    table_.userTyped("99", 2, 0);
    EXPECT_EQ(table_.Cell(0, 8), "8.0");
    EXPECT_EQ(table_.ActiveCell().Text(), "8.0");
}

TEST_F(CellEditingTest, KeysOfReadingsWaitForTheNextRebuild) {
    window1_.doSortColumns();
    table_.EditCell(0, 1);
    table_.userTyped("99", 2, 0);
    EXPECT_EQ(table_.Cell(0, 11), "0050");
    table_.Cell(0, 0, "12/1/2026");
    window1_.ListBox1_CellTextChange(0, 0);
    EXPECT_EQ(table_.Cell(0, 11), "0990");
}

} // namespace
} // namespace tallyvane

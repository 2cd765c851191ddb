#include "platform/base/text.h"
#include "support/diary_desk.h"

namespace tallyvane {

namespace {

class CellEditingTest : public DiaryDesk {
protected:
    void SetUp() override {
        DiaryDesk::SetUp();
        open();
        for (int day = 1; day <= 3; ++day)
            table_.AddRows({{std::to_string(day) + "/1/2026", "5", "6", "7", "8", "9", "10", "11", "", "180"}});
    }
};

TEST_F(CellEditingTest, KeysMoveTheEditing) {
    const auto check = [this](const char* name, int key, int row, int column, int wantRow, int wantColumn) {
        SCOPED_TRACE(name);
        table_.EditCell(row, column);
        table_.ActiveCell().userChanged(table_.ActiveCell().Text(), 1, 0); // the cursor somewhere
        EXPECT_TRUE(table_.CellKeyDown(row, column, Chr(key)));
        EXPECT_EQ(table_.openRow(), wantRow);
        EXPECT_EQ(table_.openColumn(), wantColumn);
        EXPECT_EQ(table_.ListIndex(), wantRow);
        EXPECT_EQ(table_.ActiveCell().SelStart(), 0);
        EXPECT_EQ(table_.ActiveCell().SelLength(), Len(table_.Cell(wantRow, wantColumn)));
    };
    check("up", 30, 1, 4, 0, 4);
    check("up in the first row", 30, 0, 4, 0, 4);
    check("down", 31, 1, 4, 2, 4);
    check("down in the last row", 31, 2, 4, 2, 4);
    check("left", 28, 1, 4, 1, 3);
    check("left in the first reading", 28, 1, 1, 1, 1);
    check("left from the weight", 28, 1, 9, 1, 8);
    check("right", 29, 1, 4, 1, 5);
    check("right in the last reading", 29, 1, 7, 1, 7);
    check("right in the weight", 29, 1, 9, 1, 9);
    check("right in the average", 29, 1, 8, 1, 8);
    check("tab", 9, 1, 6, 1, 7);
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

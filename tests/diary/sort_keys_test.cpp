#include "diary/sort_keys.h"

#include "support/test_desk.h"

namespace tallyvane {

namespace {

class SortKeysTest : public DiaryDesk {};

using Texts = std::vector<std::string>;

TEST_F(SortKeysTest, KeysOfValues) {
    struct Row {
        std::string text;
        std::string want;
    };
    const Row rows[] = {
        {"", "0000"},      {"5", "0050"},       {"5.6", "0056"},         {"12.4", "0124"}, {"120", "1200"},
        {"120.5", "1205"}, {"1000.5", "10005"}, {"7.25", "0725"},        {"abc", "abc0"},  {"5.", "0005"},
        {"1.2.3", "0123"}, {".", "0000"},       {"\u00e9", "00\u00e90"},
    };
    for (const Row& row : rows)
        EXPECT_EQ(SortKeys::valueKey(row.text), row.want) << row.text;
}

TEST_F(SortKeysTest, DateKeysSortAsTheDaysDo) {
    const std::string early = SortKeys::dateKey(Date(1, 1, 1));
    EXPECT_EQ(early, "000000000000");
    EXPECT_LT(SortKeys::dateKey(Date(999, 12, 31)), SortKeys::dateKey(Date(1991, 4, 9)));
    EXPECT_LT(SortKeys::dateKey(Date(1991, 4, 9)), SortKeys::dateKey(Date(1991, 4, 21)));
    EXPECT_EQ(SortKeys::dateKey(Date(9999, 12, 31)).size(), early.size());
}

TEST_F(SortKeysTest, AHeadingSortsAndTheNextPressTurnsItsOwnOrderRound) {
    addRow({"10/2/2025", "5.6"});
    addRow({"9/30/2025", "12"});
    addRow({"no date", "4"});
    addRow({"1/1/2026", ""});
    EXPECT_TRUE(window1_.ListBox1_HeaderPressed(0));
    EXPECT_EQ(column(0), (Texts{"no date", "9/30/2025", "10/2/2025", "1/1/2026"}));
    EXPECT_TRUE(window1_.ListBox1_HeaderPressed(1));
    EXPECT_EQ(column(1), (Texts{"", "4", "5.6", "12"}));
    EXPECT_TRUE(window1_.ListBox1_HeaderPressed(0)); // its second press: descending, whatever came between
    EXPECT_EQ(column(0), (Texts{"1/1/2026", "10/2/2025", "9/30/2025", "no date"}));
    EXPECT_TRUE(window1_.ListBox1_HeaderPressed(0));
    EXPECT_EQ(column(0), (Texts{"no date", "9/30/2025", "10/2/2025", "1/1/2026"}));
    EXPECT_FALSE(window1_.ListBox1_HeaderPressed(10));
    EXPECT_FALSE(window1_.ListBox1_HeaderPressed(-1));
}

TEST_F(SortKeysTest, AReadingTypedSinceSortsByItsFormerKeyUntilADateIsSorted) {
    open();
    addRow({"1/1/2026", "5"});
    addRow({"1/2/2026", "6"});
    window1_.doSortColumns();
    table_.EditCell(0, 1);
    table_.userTyped("9", 1, 0);
    window1_.ListBox1_HeaderPressed(1);
    EXPECT_EQ(column(1), (Texts{"9", "6"}));
    window1_.ListBox1_HeaderPressed(0);
    window1_.ListBox1_HeaderPressed(1);
    window1_.ListBox1_HeaderPressed(1);
    EXPECT_EQ(column(1), (Texts{"6", "9"}));
}

TEST_F(SortKeysTest, ADateThatCantBeReadKeepsItsKey) {
    addRow({"soon", "", "", "", "", "", "", "", "", "", "000000000777"});
    window1_.doSortColumns();
    EXPECT_EQ(table_.Cell(0, 10), "000000000777");
}

} // namespace
} // namespace tallyvane

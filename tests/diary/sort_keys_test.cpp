#include "diary/sort_keys.h"

#include "diary/date_key.h"

#include "support/diary_desk.h"

namespace tallyvane {

namespace {

class SortKeysTest : public DiaryDesk {};

TEST_F(SortKeysTest, KeysOfValues) {
    const std::pair<std::string, std::string> rows[] = {
        {"", "0000"},      {"5", "0050"},       {"5.6", "0056"},         {"12.4", "0124"}, {"120", "1200"},
        {"120.5", "1205"}, {"1000.5", "10005"}, {"7.25", "0725"},        {"abc", "abc0"},  {"5.", "0005"},
        {"1.2.3", "0123"}, {".", "0000"},       {"\u00e9", "00\u00e90"},
    };
    for (const auto& [text, want] : rows)
        EXPECT_EQ(SortKeys::valueKey(text), want) << text;
}

TEST_F(SortKeysTest, DateKeysSortAsTheDaysDo) {
    const std::string early = DateKey::of(Date(1, 1, 1));
    EXPECT_EQ(early, "000000000000");
    EXPECT_LT(DateKey::of(Date(999, 12, 31)), DateKey::of(Date(1991, 4, 9)));
    EXPECT_LT(DateKey::of(Date(1991, 4, 9)), DateKey::of(Date(1991, 4, 21)));
    EXPECT_EQ(DateKey::of(Date(9999, 12, 31)).size(), early.size());
}

TEST_F(SortKeysTest, AHeadingSortsAndTheNextPressTurnsItsOwnOrderRound) {
    table_.AddRows({{"10/2/2025", "5.6"}, {"9/30/2025", "12"}, {"no date", "4"}, {"1/1/2026", ""}});
    EXPECT_TRUE(window1_.ListBox1_HeaderPressed(0));
    EXPECT_EQ(columnOf(table_, 0), (Texts{"no date", "9/30/2025", "10/2/2025", "1/1/2026"}));
    EXPECT_TRUE(window1_.ListBox1_HeaderPressed(1));
    EXPECT_EQ(columnOf(table_, 1), (Texts{"", "4", "5.6", "12"}));
    EXPECT_TRUE(window1_.ListBox1_HeaderPressed(0)); // its second press: descending, whatever came between
    EXPECT_EQ(columnOf(table_, 0), (Texts{"1/1/2026", "10/2/2025", "9/30/2025", "no date"}));
    EXPECT_TRUE(window1_.ListBox1_HeaderPressed(0));
    EXPECT_EQ(columnOf(table_, 0), (Texts{"no date", "9/30/2025", "10/2/2025", "1/1/2026"}));
    table_.AddRows({{"1/2/2026", "", "", "", "", "", "", "", "6.1", "90.5"}});
    for (const auto& [column, last] : {std::pair{8, "6.1"}, {9, "90.5"}}) { // average and weight
        window1_.doSortColumns();
        EXPECT_TRUE(window1_.ListBox1_HeaderPressed(column));
        EXPECT_EQ(columnOf(table_, column), (Texts{"", "", "", "", last}));
    }
    EXPECT_FALSE(window1_.ListBox1_HeaderPressed(10));
    EXPECT_FALSE(window1_.ListBox1_HeaderPressed(-1));
}

TEST_F(SortKeysTest, AReadingTypedSinceSortsByItsFormerKeyUntilADateIsSorted) {
    open();
    table_.AddRows({{"1/1/2026", "5"}, {"1/2/2026", "6"}});
    window1_.doSortColumns();
    table_.EditCell(0, 1);
    table_.userTyped("9", 1, 0);
    window1_.ListBox1_HeaderPressed(1);
    EXPECT_EQ(columnOf(table_, 1), (Texts{"9", "6"}));
    window1_.ListBox1_HeaderPressed(0);
    window1_.ListBox1_HeaderPressed(1);
    window1_.ListBox1_HeaderPressed(1);
    EXPECT_EQ(columnOf(table_, 1), (Texts{"6", "9"}));
}

TEST_F(SortKeysTest, ADateThatCantBeReadKeepsItsKey) {
    table_.AddRows({{"soon", "", "", "", "", "", "", "", "", "", "000000000777"}});
    window1_.doSortColumns();
    EXPECT_EQ(table_.Cell(0, 10), "000000000777");
}

} // namespace
} // namespace tallyvane

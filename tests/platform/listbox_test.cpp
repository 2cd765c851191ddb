#include "platform/controls/listbox.h"

#include <gtest/gtest.h>

#include "support/cells.h"

namespace tallyvane {

namespace {

/// A list of three columns that counts its events.
class ListboxTest : public ::testing::Test {
protected:
    ListboxTest() {
        list_.SelectionType(Listbox::SelectionTypes::multiple);
        list_.Change = [this] { ++changes_; };
        list_.CellTextChange = [this](int row, int column) { texts_.push_back(list_.Cell(row, column)); };
    }

    void fill(const Texts& firstCells) {
        for (const std::string& text : firstCells)
            list_.AddRow(text);
    }
    void sort(int column, int direction) {
        list_.SortedColumn(column);
        list_.ColumnSortDirection(column, direction);
        list_.Sort();
    }

    Listbox list_{3};
    int changes_ = 0;
    Texts texts_;
};

TEST_F(ListboxTest, CellsOutsideReadEmptyAndTakeNothing) {
    fill({"a"});
    for (const auto& [row, column] : {std::pair{-1, 0}, {1, 0}, {0, -1}, {0, 3}}) {
        list_.Cell(row, column, "x");
        EXPECT_EQ(list_.Cell(row, column), "");
        list_.EditCell(row, column);
        EXPECT_EQ(list_.openRow(), -1);
    }
    list_.RemoveRow(5);
    list_.Selected(5, true);
    EXPECT_EQ(columnOf(list_, 0), Texts{"a"});
    EXPECT_EQ(changes_, 0);
}

TEST_F(ListboxTest, LastIndexFollowsTheRowAddedLast) {
    EXPECT_EQ(list_.LastIndex(), -1);
    fill({"a", "b", "c"});
    EXPECT_EQ(list_.LastIndex(), 2);
    list_.RemoveRow(0);
    EXPECT_EQ(list_.LastIndex(), 1);
    list_.RemoveRow(1);
    EXPECT_EQ(list_.LastIndex(), -1);
}

TEST_F(ListboxTest, RowsComeAtOneGo) {
    fill({"a"});
    const std::uint64_t before = list_.revision(0);
    list_.AddRows({{"b", "1"}, {}, Texts(22, "c")});
    list_.AddRows({});
    EXPECT_EQ(list_.ListCount(), 4);
    EXPECT_EQ(list_.LastIndex(), 3);
    EXPECT_EQ(list_.Cell(1, 1), "1");
    EXPECT_EQ(list_.Cell(2, 0), "");
    list_.Cell(2, 1, "x");
    EXPECT_EQ(list_.Cell(2, 1), "x");
    EXPECT_NE(list_.revision(1), list_.revision(3));
    EXPECT_EQ(list_.revision(0), before);
}

TEST_F(ListboxTest, EveryWriteGivesARowARevisionOfItsOwn) {
    fill({"a", "b"});
    const auto first = list_.revision(0);
    EXPECT_NE(first, list_.revision(1));
    list_.Cell(0, 1, "x");
    EXPECT_NE(list_.revision(0), first);
    const auto written = list_.revision(0);
    list_.Cell(0, 1, "x"); // the same text: nothing to remember anew
    EXPECT_EQ(list_.revision(0), written);
    list_.Cell(0, 1, "y");
    list_.Cell(0, 1, "x");
    EXPECT_NE(list_.revision(0), written);
}

TEST_F(ListboxTest, ChangeIsRaisedOncePerChangeOfTheSelection) {
    fill({"a", "b", "c"});
    list_.ListIndex(1);
    EXPECT_EQ(changes_, 1);
    list_.ListIndex(1);
    EXPECT_EQ(changes_, 1);
    list_.Selected(2, true);
    EXPECT_EQ(list_.SelectedCount(), 2);
    EXPECT_EQ(list_.ListIndex(), 1);
    list_.RemoveSelectedRows();
    EXPECT_EQ(columnOf(list_, 0), Texts{"a"});
    EXPECT_EQ(list_.SelectedCount(), 0);
    EXPECT_EQ(changes_, 3);
    list_.RemoveSelectedRows();
    EXPECT_EQ(changes_, 3);
    list_.ListIndex(0);
    list_.RemoveRow(0);
    EXPECT_EQ(list_.ListIndex(), -1);
    EXPECT_EQ(changes_, 5);
}

TEST_F(ListboxTest, ASingleSelectionHasOneRow) {
    list_.SelectionType(Listbox::SelectionTypes::single);
    fill({"a", "b"});
    list_.Selected(0, true);
    list_.Selected(1, true);
    EXPECT_EQ(list_.SelectedCount(), 1);
    EXPECT_EQ(list_.ListIndex(), 1);
}

TEST_F(ListboxTest, TypingReachesTheCellAtOnceAndEscapeTakesItBack) {
    fill({"a", "b"});
    list_.Cell(1, 1, "5.6");
    list_.EditCell(1, 1);
    EXPECT_EQ(list_.ListIndex(), 1);
    EXPECT_EQ(list_.ActiveCell().Text(), "5.6");
    EXPECT_EQ(list_.ActiveCell().SelLength(), 3);
    list_.userTyped("7", 1, 0);
    list_.userTyped("7.2", 3, 0);
    EXPECT_EQ(list_.Cell(1, 1), "7.2");
    EXPECT_EQ(texts_, (Texts{"7", "7.2"}));
    list_.userTyped("7.2\n", 4, 0);
    EXPECT_EQ(list_.Cell(1, 1), "7.2");
    EXPECT_EQ(list_.ActiveCell().Text(), "7.2");
    list_.userTyped("7\r\n8\r9\n\n", 4, 0);
    EXPECT_EQ(list_.Cell(1, 1), "7 8 9");
    texts_.resize(2);
    list_.revertCell();
    EXPECT_EQ(list_.Cell(1, 1), "5.6");
    EXPECT_EQ(texts_, (Texts{"7", "7.2", "5.6"}));
    EXPECT_EQ(list_.openRow(), -1);
    list_.userTyped("9", 1, 0); // no cell is open
    list_.revertCell();
    EXPECT_EQ(list_.Cell(1, 1), "5.6");
}

TEST_F(ListboxTest, EscapeTakesBackWhatFollowedTheTyping) {
    fill({"a"});
    list_.CellTextChange = [this](int row, int) { list_.Cell(row, 2, "computed"); };
    list_.EditCell(0, 1);
    list_.Cell(0, 0, "written since");
    list_.userTyped("5", 1, 0);
    list_.userTyped("56", 2, 0);
    list_.CellTextChange = nullptr;
    list_.revertCell();
    EXPECT_EQ(list_.Cell(0, 0), "written since");
    EXPECT_EQ(list_.Cell(0, 1), "");
    EXPECT_EQ(list_.Cell(0, 2), "");
}

TEST_F(ListboxTest, TheOpenCellShowsWhatCodeWritesAndOpenedAgainSelectsItsRowAlone) {
    fill({"a", "b"});
    list_.EditCell(1, 1);
    list_.Cell(1, 1, "6.5");
    EXPECT_EQ(list_.ActiveCell().Text(), "6.5");
    EXPECT_TRUE(texts_.empty()) << "no event";
    list_.Selected(0, true);
    list_.EditCell(1, 1);
    EXPECT_EQ(list_.ListIndex(), 1);
    EXPECT_EQ(list_.openRow(), 1);
}

TEST_F(ListboxTest, AnOpenCellIsClosedBeforeRowsMove) {
    fill({"b", "a"});
    list_.EditCell(0, 0);
    sort(0, 1);
    EXPECT_EQ(list_.openRow(), -1);
    EXPECT_TRUE(list_.Selected(1)); // the selection went with its row
    list_.EditCell(0, 0);
    list_.RemoveRow(1);
    EXPECT_EQ(list_.openRow(), -1);
}

TEST_F(ListboxTest, SortingIsByBytesAndKeepsTheOrderOfEquals) {
    list_.AddRows({{"b", "even"}, {"B", "odd"}, {"a", "even"}, {"\u00e9", "odd"}, {"", "even"}});
    sort(0, 1);
    EXPECT_EQ(columnOf(list_, 0), (Texts{"", "B", "a", "b", "\u00e9"}));
    sort(0, -1);
    EXPECT_EQ(columnOf(list_, 0), (Texts{"\u00e9", "b", "a", "B", ""}));
    sort(1, -1);
    EXPECT_EQ(columnOf(list_, 0), (Texts{"\u00e9", "B", "b", "a", ""}));
    list_.SortedColumn(9); // there is none
    list_.Sort();
    EXPECT_EQ(list_.ListCount(), 5);
}

TEST_F(ListboxTest, AHeadingSortsByItselfUnlessTheEventHasDoneIt) {
    fill({"b", "a"});
    list_.pressHeader(0);
    EXPECT_EQ(columnOf(list_, 0), (Texts{"a", "b"}));
    list_.pressHeader(0);
    EXPECT_EQ(columnOf(list_, 0), (Texts{"b", "a"}));
    list_.HeaderPressed = [](int) { return true; };
    list_.pressHeader(0);
    EXPECT_EQ(columnOf(list_, 0), (Texts{"b", "a"}));
}

} // namespace
} // namespace tallyvane

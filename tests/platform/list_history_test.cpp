#include "platform/controls/list_history.h"

#include <gtest/gtest.h>

#include "support/cells.h"

namespace tallyvane {

namespace {

class ListHistoryTest : public ::testing::Test {
protected:
    ListHistoryTest() {
        list_.ColumnType(1, Listbox::TypeEditable);
        list_.AddRow("a");
        list_.AddRow("b");
    }
    void change(const std::string& text) {
        list_.beginStep(text);
        list_.Cell(0, 1, text);
    }

    Listbox list_{2};
    ListHistory history_{list_};
};

TEST_F(ListHistoryTest, WhatWasThereBeforeTheFirstStepStays) {
    list_.AddRow("c");
    list_.Cell(0, 1, "1");
    history_.undo();
    EXPECT_EQ(columnOf(list_, 0), (Texts{"a", "b", "c"}));
    EXPECT_EQ(list_.Cell(0, 1), "1");
}

TEST_F(ListHistoryTest, StepsWithoutADifferenceAreNone) {
    change("1");
    list_.beginStep("nothing");
    list_.beginStep("there and back");
    list_.Cell(1, 1, "x");
    list_.Cell(1, 1, "");
    EXPECT_EQ(history_.undoName(), "1");
    history_.undo();
    EXPECT_FALSE(history_.canUndo());
    list_.beginStep("nothing");
    EXPECT_EQ(history_.redoName(), "1"); // which only a change takes away
    list_.Cell(1, 1, "x");
    EXPECT_FALSE(history_.canRedo());
}

TEST_F(ListHistoryTest, TheOldestStepsAreForgotten) {
    const int steps = static_cast<int>(ListHistory::mostSteps) + 20;
    for (int step = 0; step < steps; ++step)
        change(std::to_string(step));
    while (history_.canUndo())
        history_.undo();
    EXPECT_EQ(list_.Cell(0, 1), "19");
    while (history_.canRedo())
        history_.redo();
    EXPECT_EQ(list_.Cell(0, 1), std::to_string(steps - 1));
}

TEST_F(ListHistoryTest, EachOpeningOfACellIsAStepOfItsOwn) {
    const auto type = [this](const char* text) {
        list_.EditCell(0, 1);
        list_.userTyped(text, 0, 0);
    };
    type("5");
    list_.userTyped("5.", 0, 0);
    list_.userTyped("5.6", 0, 0);
    type("7"); // confirmed in between
    EXPECT_TRUE(list_.clearCell(0, 1));
    EXPECT_FALSE(list_.clearCell(0, 1));
    EXPECT_FALSE(list_.clearCell(0, 0)); // not to be typed in
    Texts texts;
    for (; history_.canUndo(); texts.push_back(list_.Cell(0, 1)))
        history_.undo();
    EXPECT_EQ(texts, (Texts{"7", "5.6", ""}));
    EXPECT_EQ(list_.openRow(), -1);
}

TEST_F(ListHistoryTest, NoStepIsRedoneOnRowsThatHaveMoved) {
    list_.beginStep("remove");
    list_.RemoveRow(0);
    history_.undo();
    list_.ColumnSortDirection(0, -1);
    list_.SortedColumn(0);
    list_.Sort(); // in no step
    history_.redo();
    EXPECT_EQ(columnOf(list_, 0), (Texts{"b", "a"}));
    list_.pressHeader(0);
    EXPECT_EQ(columnOf(list_, 0), (Texts{"a", "b"}));
    history_.undo();
    EXPECT_EQ(columnOf(list_, 0), (Texts{"b", "a"}));
}

TEST_F(ListHistoryTest, WhatTheUserDoesNotSeeGoesWithTheStepBefore) {
    Listbox list(2);
    ListHistory history(list, 1);
    list.AddRow("a");
    list.Cell(0, 1, "key of a");
    list.beginStep("seen");
    list.Cell(0, 0, "b");
    list.beginStep("unseen");
    list.Cell(0, 1, "key of b");
    EXPECT_EQ(history.undoName(), "seen");
    history.undo();
    EXPECT_EQ(list.Cell(0, 0) + list.Cell(0, 1), "akey of a");
    history.redo();
    EXPECT_EQ(list.Cell(0, 1), "key of b");
}

TEST_F(ListHistoryTest, RowsComeBackWithAllThatBelongsToThem) {
    list_.SelectionType(Listbox::SelectionTypes::multiple);
    list_.CellBold(1, 0, true);
    list_.AddRow("c");
    list_.select({true, true, false});
    list_.beginStep("remove");
    list_.RemoveSelectedRows();
    list_.AddRow("d");
    list_.AddRow("e");
    list_.RemoveRow(0);
    history_.undo();
    EXPECT_EQ(columnOf(list_, 0), (Texts{"a", "b", "c"}));
    EXPECT_TRUE(list_.CellBold(1, 0));
    EXPECT_EQ(list_.SelectedCount(), 2);
    history_.redo();
    EXPECT_EQ(columnOf(list_, 0), (Texts{"d", "e"}));
    EXPECT_FALSE(list_.CellBold(1, 0));
}

} // namespace

} // namespace tallyvane

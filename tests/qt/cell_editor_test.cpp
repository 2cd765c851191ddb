#include <QClipboard>

#include "qt/qt_desk.h"

namespace tallyvane {

namespace {

class CellEditorTest : public QtDesk {
protected:
    void SetUp() override {
        QtDesk::SetUp();
        std::string days;
        for (int day = 1; day <= 40; ++day)
            days += "1/" + std::to_string(day % 28 + 1) + "/2026@#@5@#@6@#@@#@@#@@#@@#@@#@@#@180@#@\n";
        startOn(days);
    }
};

TEST_F(CellEditorTest, AClickOpensAReadingAndTypingReplacesIt) {
    click(3, 1);
    ASSERT_TRUE(editor()->isVisible());
    EXPECT_EQ(editor()->selectedText(), "5");
    QTest::keyClicks(editor(), "7.2");
    EXPECT_EQ(list().Cell(3, 1), "7.2");
    EXPECT_EQ(list().Cell(3, 8), "6.6");
    EXPECT_EQ(app_->windows().main->StaticText1.Text(), "7.2");
    QTest::keyClick(editor(), Qt::Key_Tab);
    EXPECT_EQ(list().openColumn(), 2);
    EXPECT_EQ(editor()->selectedText(), "6");
    QTest::keyClick(editor(), Qt::Key_Down);
    EXPECT_EQ(list().openRow(), 4);
    QTest::keyClick(editor(), Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(list().openColumn(), 1);
    QTest::keyClick(editor(), Qt::Key_Return);
    EXPECT_EQ(list().openRow(), -1);
    EXPECT_FALSE(editor()->isVisible());
    EXPECT_EQ(list().Cell(3, 1), "7.2");
}

TEST_F(CellEditorTest, ColumnsWithoutTypingDoNotOpen) {
    click(2, 8);
    EXPECT_EQ(list().openRow(), -1);
    EXPECT_EQ(list().ListIndex(), 2);
    click(2, 9);
    EXPECT_EQ(list().openColumn(), 9);
}

TEST_F(CellEditorTest, AMoveAtAnEdgeTakesInWhatWasTypedAndTellsTheWayToTheWeight) {
    click(0, 7);
    QTest::keyClicks(editor(), "8.8");
    QTest::keyClick(editor(), Qt::Key_Tab);
    EXPECT_EQ(list().openColumn(), 7);
    EXPECT_EQ(editor()->selectedText(), "8.8");
    EXPECT_NE(editor()->accessibleDescription().indexOf("Weight: "), -1);
    QTest::keyClicks(editor(), "9");
    QTest::keyClick(editor(), Qt::Key_Escape);
    EXPECT_EQ(list().Cell(0, 7), "8.8") << "what was typed after that is taken back";
    EXPECT_EQ(list().Cell(0, 8), "6.6");

    click(0, 1);
    EXPECT_EQ(editor()->accessibleDescription(), "");
    QTest::keyClicks(editor(), "7");
    for (const Qt::Key key : {Qt::Key_Up, Qt::Key_Left, Qt::Key_PageUp})
        QTest::keyClick(editor(), key);
    QTest::keyClick(editor(), Qt::Key_Escape);
    EXPECT_EQ(list().Cell(0, 1), "7");
}

TEST_F(CellEditorTest, NoKeyReachesTheListWhileACellIsOpen) {
    click(3, 1);
    for (const Qt::Key key : {Qt::Key_Home, Qt::Key_End, Qt::Key_Space, Qt::Key_Up, Qt::Key_PageDown})
        for (const Qt::KeyboardModifiers also : {Qt::NoModifier, Qt::ShiftModifier})
            QTest::keyClick(editor(), key, Qt::ControlModifier | also);
    QTest::keyClick(editor(), Qt::Key_F3);
    EXPECT_EQ(list().openRow(), 3);
    EXPECT_EQ(list().ListIndex(), 3);
    EXPECT_EQ(list().SelectedCount(), 1);
    QTest::keyClick(editor(), Qt::Key_PageDown);
    EXPECT_EQ(list().openRow(), 3 + table_->viewport()->height() / 15) << "a page further down";
    EXPECT_EQ(list().ListIndex(), list().openRow());
    EXPECT_EQ(editor()->selectedText(), "5");
    QTest::keyClick(editor(), Qt::Key_PageUp);
    EXPECT_EQ(list().openRow(), 3);
    QTest::keyClick(editor(), Qt::Key_PageUp);
    QTest::keyClick(editor(), Qt::Key_PageDown);
    EXPECT_EQ(list().openRow(), table_->viewport()->height() / 15) << "from the first row";
    QTest::keyClick(editor(), Qt::Key_PageUp);
    QTest::keyClicks(editor(), "12");
    QTest::keyClick(editor(), Qt::Key_PageUp);
    EXPECT_EQ(list().openRow(), 0);
    EXPECT_EQ(editor()->selectedText(), "12") << "taken in, and marked as after every move";
}

TEST_F(CellEditorTest, AnOpenCellIsClosedWhenOtherDaysAreSelected) {
    click(3, 1);
    QTest::keyClicks(editor(), "7");
    list().AddRows({{"2/1/2026", "5"}, {"2/2/2026", "6"}}); // as an import does
    std::vector<bool> added(42);
    added[40] = added[41] = true;
    list().select(added);
    list().ScrollPosition(40);
    EXPECT_EQ(list().openRow(), -1);
    QTest::keyClick(table_, Qt::Key_F2); // opens the date of the day that is marked
    EXPECT_EQ(list().Cell(3, 1), "7");
    EXPECT_EQ(table_->currentIndex().row(), 40) << "and keys go to the first that is marked";
    EXPECT_TRUE(table_->viewport()->rect().contains(table_->visualRect(table_->model()->index(40, 0)).center()));
}

TEST_F(CellEditorTest, AScrollBarCoversNoWeight) {
    list().select(std::vector<bool>(40, true));
    app_->windows().main->BevelButton2_Action();
    list().AddRows(std::vector<std::vector<std::string>>(40, {"1/1/2026"})); // as an import adds them
    QCoreApplication::processEvents();
    EXPECT_EQ(list().WidthActual(9), 87) << "the widths are as they were";
    EXPECT_EQ(table_->columnViewportPosition(9) + table_->columnWidth(9), table_->viewport()->width());
}

TEST_F(CellEditorTest, EscapeTakesTheTypingBack) {
    click(5, 2);
    QTest::keyClicks(editor(), "99");
    EXPECT_EQ(list().Cell(5, 8), "52.0");
    QTest::keyClick(editor(), Qt::Key_Escape);
    EXPECT_EQ(list().Cell(5, 2), "6");
    EXPECT_EQ(list().Cell(5, 8), "5.5");
    EXPECT_FALSE(editor()->isVisible());
}

TEST_F(CellEditorTest, WhatAnotherProgramHasSeenSavedIsNotTakenBack) {
    click(5, 2);
    QTest::keyClicks(editor(), "7.7");
    QFocusEvent leaves(QEvent::FocusOut, Qt::ActiveWindowFocusReason);
    QCoreApplication::sendEvent(editor(), &leaves);
    EXPECT_EQ(list().openRow(), 5) << "the cell stays open";
    QTest::keyClicks(editor(), "9");
    QTest::keyClick(editor(), Qt::Key_Escape);
    EXPECT_EQ(list().Cell(5, 2), "7.7");
}

TEST_F(CellEditorTest, PastedLinesBecomeOneLine) {
    QGuiApplication::clipboard()->setText("5\n6\r\n7");
    click(1, 1);
    editor()->paste();
    EXPECT_EQ(list().Cell(1, 1), "5 6 7");
    QGuiApplication::clipboard()->setText("12.5\r\n"); // as a spreadsheet leaves it
    click(2, 1);
    editor()->selectAll();
    editor()->paste();
    EXPECT_EQ(list().Cell(2, 1), "12.5");
    EXPECT_EQ(editor()->text(), "12.5");
    EXPECT_EQ(editor()->cursorPosition(), 4);
    EXPECT_EQ(list().ActiveCell().SelStart(), 4);
}

TEST_F(CellEditorTest, TheOpenCellStaysWithItsRowWhileTheListScrollsUntilTheFocusIsElsewhere) {
    table_->scrollToTop();
    click(3, 1);
    EXPECT_EQ(editor()->y(), 3 * 15);
    table_->scrollToBottom(); // 40 rows, 16 of them in sight
    EXPECT_EQ(editor()->y(), (3 - 24) * 15);
    QTest::keyClicks(editor(), "8");
    EXPECT_EQ(list().Cell(3, 1), "8");
    journal()->setFocus();
    EXPECT_EQ(list().openRow(), -1);
    EXPECT_EQ(list().Cell(3, 1), "8");
}

TEST_F(CellEditorTest, InvalidUtf8SurvivesOpeningTheCell) {
    list().Cell(2, 1, "\xFF\xFE");
    click(2, 1);
    EXPECT_EQ(editor()->text(), QString(2, QChar(0xFFFD)));
    QTest::keyClick(editor(), Qt::Key_Return);
    EXPECT_EQ(list().Cell(2, 1), "\xFF\xFE");
}

} // namespace
} // namespace tallyvane

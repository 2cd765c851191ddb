/// The keys that write, undo and find, with the focus where they are pressed.
#include <QHeaderView>

#include "qt/qt_desk.h"

namespace tallyvane {

namespace {

class DayKeysTest : public QtDesk {
protected:
    void SetUp() override {
        QtDesk::SetUp();
        startOn("1/1/2026@#@5\n1/2/2026@#@6\n1/3/2026@#@7\n");
    }
    /// Puts the focus on a cell, unopened.
    void goTo(int row, int column) {
        table_->setFocus();
        table_->setCurrentIndex(table_->model()->index(row, column));
    }
    static void key(int key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(QApplication::focusWidget(), static_cast<Qt::Key>(key), modifiers);
    }
    Texts firstReadings() { return columnOf(list(), 1); }
};

TEST_F(DayKeysTest, ADigitOpensTheCellWithItAndDeleteEmptiesIt) {
    goTo(1, 1);
    key(Qt::Key_8);
    ASSERT_TRUE(editor()->isVisible());
    key(Qt::Key_1); // behind the first, not in its place
    EXPECT_EQ(editor()->text(), "81");
    key(Qt::Key_Return);
    EXPECT_EQ(list().Cell(1, 1), "81");
    goTo(0, 1);
    key(Qt::Key_F2);
    EXPECT_EQ(editor()->text(), "5");
    key(Qt::Key_Escape);
    key(Qt::Key_Delete);
    EXPECT_EQ(firstReadings(), (Texts{"", "81", "7"}));
    goTo(0, 8); // the average is not the user's
    key(Qt::Key_3);
    key(Qt::Key_Delete);
    EXPECT_FALSE(editor()->isVisible());
    EXPECT_EQ(list().Cell(0, 8), "5.0");
}

TEST_F(DayKeysTest, UndoIsForTheFieldWhileOneIsTypedInAndForTheDaysOtherwise) {
    goTo(1, 1);
    key(Qt::Key_8);
    key(Qt::Key_Return);
    key(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(firstReadings(), (Texts{"5", "6", "7"}));
    key(Qt::Key_Y, Qt::ControlModifier);
    EXPECT_EQ(firstReadings(), (Texts{"5", "8", "7"}));

    click(2, 1); // opened, and nothing typed
    key(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(firstReadings(), (Texts{"5", "6", "7"}));
    key(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(firstReadings(), (Texts{"5", "8", "7"}));

    click(2, 1);
    key(Qt::Key_4);
    key(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_TRUE(editor()->isVisible());
    EXPECT_EQ(firstReadings(), (Texts{"5", "8", "7"}));
    key(Qt::Key_Escape);

    journal()->setFocus();
    key(Qt::Key_X);
    key(Qt::Key_Z, Qt::ControlModifier);
    key(Qt::Key_Z, Qt::ControlModifier); // has nothing left, and is the journal's still
    EXPECT_EQ(journal()->toPlainText(), "");
    EXPECT_EQ(firstReadings(), (Texts{"5", "8", "7"}));
}

TEST_F(DayKeysTest, WhatWasTypedInACellIsNeverUndoneInAnother) {
    list().Cell(1, 2, "4");
    click(0, 1);
    key(Qt::Key_Backspace);
    key(Qt::Key_Down);
    key(Qt::Key_Backspace);
    key(Qt::Key_Down);
    key(Qt::Key_Up); // to a cell of the same text
    key(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(firstReadings(), (Texts{"", "6", "7"})); // the step before, and no text of the first cell

    click(0, 2);
    key(Qt::Key_4);
    key(Qt::Key_Return);
    click(1, 2);
    key(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(columnOf(list(), 2), (Texts{"", "4", ""}));
}

TEST_F(DayKeysTest, AnUndoInTheCellLeavesNoAverageBehind) {
    list().AddRow("1/4/2026");
    click(3, 1);
    key(Qt::Key_5);
    EXPECT_EQ(list().Cell(3, 8), "5.0");
    key(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(list().Cell(3, 8), "");
    EXPECT_TRUE(editor()->isVisible());
    key(Qt::Key_Y, Qt::ControlModifier);
    EXPECT_EQ(list().Cell(3, 1) + " " + list().Cell(3, 8), "5 5.0");
}

TEST_F(DayKeysTest, AFigureTypedOnACellCanBeUndoneAndRedoneThere) {
    goTo(1, 1);
    key(Qt::Key_8);
    key(Qt::Key_1);
    key(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(list().Cell(1, 1), "6");
    EXPECT_EQ(list().Cell(1, 8), "6.0");
    key(Qt::Key_Y, Qt::ControlModifier);
    EXPECT_EQ(list().Cell(1, 1), "81");
}

TEST_F(DayKeysTest, WhatWasConfirmedAtTheEdgeIsUndoneInTheTable) {
    click(0, 1);
    key(Qt::Key_9);
    key(Qt::Key_Up); // stays, with a beep
    key(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(firstReadings(), (Texts{"5", "6", "7"}));
}

TEST_F(DayKeysTest, ALineOfTheJournalIsPointedOutAlsoBehindAShiftedReturn) {
    journal()->setFocus();
    QTest::keyClicks(journal(), "walk");
    key(Qt::Key_Return, Qt::ShiftModifier);
    QTest::keyClicks(journal(), "soup");
    EXPECT_TRUE(app_->windows().main->JournalFld.showLine(1, "soup"));
    EXPECT_EQ(journal()->textCursor().position(), 5);
    EXPECT_EQ(journal()->extraSelections().size(), 1);
    key(Qt::Key_Right);
    EXPECT_TRUE(journal()->extraSelections().isEmpty());
}

TEST_F(DayKeysTest, KeysForSomethingElseWriteNoReading) {
    goTo(0, 1);
    key(Qt::Key_1, Qt::ControlModifier);
    key(Qt::Key_1, Qt::AltModifier);
    QKeyEvent arabic(QEvent::KeyPress, Qt::Key_5, {}, QStringLiteral("\u0665"));
    QApplication::sendEvent(table_, &arabic);
    list().select({true, true}); // with the focus in the first
    key(Qt::Key_Delete); // of the days, or of the reading?
    EXPECT_EQ(firstReadings(), (Texts{"5", "6", "7"}));
    EXPECT_FALSE(editor()->isVisible());
}

TEST_F(DayKeysTest, TheKeysOfUndoReachAWindowWithoutAMenuAlsoAfterAlt) {
    QTest::keyClick(frame_, Qt::Key_Alt);
    QTest::keyClick(frame_, Qt::Key_Escape);
    app_->windows().main->showResources();
    WindowFrame* side = frameTitled("Files");
    ASSERT_NE(side, nullptr);
    QApplication::setActiveWindow(side);
    auto* links = side->findChild<ListboxPeer*>();
    fileWindow& files = *app_->windows().files;
    files.ListBox1.AddRow("one");
    files.ListBox1.AddRow("two");
    links->setFocus();
    files.ListBox1.ListIndex(0);
    files.BevelButton2.Action();
    key(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(files.ListBox1.ListCount(), 2);
    key(Qt::Key_Y, Qt::ControlModifier);
    const QRect first = links->visualRect(links->model()->index(0, 0));
    QTest::mouseClick(links->viewport(), Qt::LeftButton, {}, first.center());
    EXPECT_TRUE(files.BevelButton2.Enabled()); // the row hears of the click
}

TEST_F(DayKeysTest, AButtonsStepIsUndoneByTheKeysAndNamedInTheMenu) {
    list().select({true, true});
    QTest::mouseClick(button<QToolButton>(frame_, "\u2212"), Qt::LeftButton);
    EXPECT_EQ(list().ListCount(), 1);
    Q_EMIT frame_->findChild<QMenu*>("EditMenu")->aboutToShow();
    EXPECT_EQ(item("EditUndo")->text(), "&Undo Removal of 2 Days");
    EXPECT_FALSE(item("EditRedo")->isEnabled());
    key(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(firstReadings(), (Texts{"5", "6", "7"}));
    EXPECT_EQ(list().SelectedCount(), 2);
    journal()->setFocus();
    EXPECT_EQ(item("EditUndo")->text(), "&Undo");
}

TEST_F(DayKeysTest, EscapeSelectsNothingAndTheHeadingShowsTheDirection) {
    const QHeaderView& headings = *table_->horizontalHeader();
    EXPECT_FALSE(headings.isSortIndicatorShown());
    list().pressHeader(1);
    list().pressHeader(1);
    EXPECT_TRUE(headings.isSortIndicatorShown());
    EXPECT_EQ(headings.sortIndicatorSection(), 1);
    EXPECT_EQ(headings.sortIndicatorOrder(), Qt::DescendingOrder);
    EXPECT_EQ(firstReadings(), (Texts{"7", "6", "5"}));
    list().select({true, true});
    goTo(1, 0);
    list().select({true, true});
    key(Qt::Key_Escape);
    EXPECT_EQ(list().SelectedCount(), 0);
    list().Cell(0, 1, "3"); // the order does not hold any more
    EXPECT_FALSE(headings.isSortIndicatorShown());
}

} // namespace

} // namespace tallyvane

#include <QCalendarWidget>
#include <QClipboard>
#include <QHeaderView>
#include <QMenu>
#include <QMimeData>
#include <QScreen>

#include <set>

#include "qt/qt_desk.h"
#include "settings/globals.h"

namespace tallyvane {

namespace {

class MainWindowTest : public QtDesk {
protected:
    WindowFrame* dateDialog() { return frameTitled("Change Date"); }
    void setDate(const QDate& date) {
        dateDialog()->findChild<QCalendarWidget*>()->setSelectedDate(date);
        QTest::mouseClick(button<QPushButton>(dateDialog(), "OK"), Qt::LeftButton);
    }
    /// What the window shows there, in its own coordinates.
    QImage grabbed(const QRect& area) const { return frame_->centralWidget()->grab(area).toImage(); }
};

TEST_F(MainWindowTest, ADayIsAddedTypedKeptAndRemoved) {
    start();
    press("+");
    ASSERT_TRUE(editor()->isVisible());
    EXPECT_TRUE(editor()->hasFocus());
    QTest::keyClicks(editor(), "5.6");
    app_->Event_Deactivate();
    EXPECT_TRUE(read(applicationFile("7VXData")).starts_with("11/22/2026@#@5.6@#@"));
    press("\u2212");
    EXPECT_EQ(list().ListCount(), 0);
    EXPECT_EQ(table_->model()->rowCount(), 0);
    EXPECT_FALSE(editor()->isVisible());
}

TEST_F(MainWindowTest, SelectionsGoBothWays) {
    startOn("1/1/2026@#@5\n1/2/2026@#@6\n1/3/2026@#@7\n1/4/2026@#@8\n");
    click(0, 8);
    click(2, 8, Qt::ShiftModifier);
    EXPECT_EQ(list().SelectedCount(), 3);
    EXPECT_EQ(app_->windows().main->StaticText1.Text(), "6.0");
    click(1, 0, Qt::ControlModifier); // no click in the date: the selection changes, no dialog comes
    EXPECT_EQ(list().SelectedCount(), 2);
    EXPECT_EQ(dateDialog(), nullptr);
    list().ListIndex(3);
    EXPECT_EQ(table_->selectionModel()->selectedRows().size(), 1);
    QTest::mouseClick(table_->viewport(), Qt::LeftButton, {}, {20, table_->viewport()->height() - 3});
    EXPECT_EQ(list().SelectedCount(), 0);
    EXPECT_EQ(app_->windows().main->StaticText1.Text(), "6.5");
}

TEST_F(MainWindowTest, AHeadingSortsAndTheSelectionStaysWithItsDays) {
    startOn("1/2/2026@#@5\n1/1/2026@#@6\n");
    click(0, 8);
    QHeaderView* header = table_->horizontalHeader();
    QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, {20, 8});
    EXPECT_EQ(list().Cell(0, 0), "1/1/2026");
    EXPECT_TRUE(list().Selected(1));
    EXPECT_EQ(table_->selectionModel()->selectedRows().front().row(), 1);
    doubleClick(header->viewport(), {20, 8});
    EXPECT_EQ(list().Cell(0, 0), "1/2/2026");
    EXPECT_EQ(table_->selectionModel()->selectedRows().front().row(), 0);
}

TEST_F(MainWindowTest, ADateIsChangedInItsDialog) {
    startOn("1/2/2026@#@5\nsoon@#@6\n");
    click(0, 0);
    ASSERT_NE(dateDialog(), nullptr);
    EXPECT_EQ(dateDialog()->findChild<QCalendarWidget*>()->selectedDate(), QDate(2026, 1, 2));
    setDate({2025, 12, 31});
    EXPECT_EQ(list().Cell(0, 0), "12/31/2025");
    EXPECT_EQ(dateDialog(), nullptr);

    click(1, 0);
    QApplication::setActiveWindow(dateDialog());
    QTest::keyClick(dateDialog(), Qt::Key_Escape);
    EXPECT_EQ(list().Cell(1, 0), "soon");
    EXPECT_EQ(dateDialog(), nullptr);
}

TEST_F(MainWindowTest, ADoubleClickInTheCalendarAddsThatDay) {
    start();
    auto* calendar = frame_->findChild<QCalendarWidget*>();
    auto* days = calendar->findChild<QTableView*>();
    calendar->setSelectedDate(QDate(2026, 3, 4));
    const QPoint fourth = days->visualRect(days->currentIndex()).center();
    QTest::mouseClick(days->viewport(), Qt::LeftButton, {}, fourth);
    EXPECT_EQ(list().ListCount(), 0) << "a single click adds nothing";
    doubleClick(days->viewport(), {fourth.x(), 2}); // the names of the days: they add nothing either
    doubleClick(days->viewport(), fourth);
    EXPECT_EQ(list().ListCount(), 1);
    EXPECT_EQ(list().Cell(0, 0), "3/4/2026");
}

TEST_F(MainWindowTest, MenuItemsWithoutAHandlerAreDisabled) {
    start();
    std::set<std::string> enabled;
    for (const QAction* menu : frame_->menuBar()->actions()) {
        Q_EMIT menu->menu()->aboutToShow();
        for (const QAction* action : menu->menu()->actions())
            if (!action->isSeparator() && action->isEnabled() && !action->objectName().startsWith("Edit") &&
                !action->objectName().startsWith("Days"))
                enabled.insert(fromQt(action->objectName()));
    }
    EXPECT_EQ(enabled, (std::set<std::string>{"FileAboutBrindlemarks", "FileExportData", "FileImportData",
                                              "FileOpenArchivedDays", "FilePreferences", "FilePrint", "FilePrintSetup",
                                              "FileQuit", "FileSaveAsPDF", "HelpSupportForum", "HelpUsersGuide"}));
}

TEST_F(MainWindowTest, TheEditMenuActsOnTheFocusedField) {
    start();
    journal()->setFocus();
    journal()->setPlainText("felt well");
    const auto choose = [&](const char* name) {
        Q_EMIT qobject_cast<QMenu*>(item(name)->parent())->aboutToShow();
        EXPECT_TRUE(item(name)->isEnabled()) << name;
        item(name)->trigger();
    };
    choose("EditSelectAll");
    choose("EditClear");
    EXPECT_EQ(Globals::gJournal, "");
    choose("EditUndo");
    EXPECT_EQ(Globals::gJournal, "felt well");
    QGuiApplication::clipboard()->setMimeData(new QMimeData); // of no format
    choose("EditPaste");
    EXPECT_EQ(Globals::gJournal, "felt well");
}

TEST_F(MainWindowTest, TheEditMenuCopiesRowsOfTheTable) {
    startOn("1/1/2026@#@5@#@@#@6,5\n1/2/2026@#@7\n");
    journal()->setFocus();
    table_->setFocus();
    EXPECT_FALSE(item("EditCut")->isEnabled());
    list().ListIndex(1);
    item("EditCopy")->trigger();
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "1/2/2026\t7\t\t\t\t\t\t\t7.0\t\n");
    item("EditSelectAll")->trigger();
    EXPECT_EQ(list().SelectedCount(), 2);
    item("EditCopy")->trigger();
    EXPECT_TRUE(QGuiApplication::clipboard()->text().startsWith("1/1/2026\t5\t\t6,5\t"));

    QTest::keyClick(table_, Qt::Key_End, Qt::ControlModifier);
    list().ListIndex(1);
    QTest::keyClick(table_, Qt::Key_Home, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(list().SelectedCount(), 2);
    app_->FileAboutBrindlemarks_Action();
    QApplication::setActiveWindow(frameTitled("About Tallyvane"));
    QGuiApplication::clipboard()->clear();
    item("EditCopy")->trigger();
    EXPECT_TRUE(QGuiApplication::clipboard()->text().isEmpty()) << "the table's window is not in front";
}

TEST_F(MainWindowTest, TheTableAndItsOpenCellStayLightAndLegibleInADarkTheme) {
    const QPalette before = QApplication::palette();
    QPalette dark(QColor(40, 40, 40), QColor(30, 30, 30));
    for (const auto role : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText, QPalette::HighlightedText})
        dark.setColor(role, Qt::white);
    dark.setColor(QPalette::Base, QColor(30, 30, 30));
    QApplication::setPalette(dark);
    QApplication::setPalette(dark, "QLineEdit"); // as themes do
    startOn("1/1/2026@#@888@#@888\n");
    list().ListIndex(-1);
    click(0, 1);
    QTest::keyClick(editor(), Qt::Key_End); // nothing selected
    // The darkest and the lightest place of the open cell, of its neighbour and of the strip below.
    const auto legible = [&](const QRect& area) {
        const QImage image = grabbed(area);
        std::set<int> grays;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                grays.insert(qGray(image.pixel(x, y)));
        return *grays.begin() < 100 && *grays.rbegin() > 180;
    };
    const int firstRow = 26 + 19;
    EXPECT_TRUE(legible({82 + 20, firstRow + 2, 42, 11})) << "open cell"; // without its cursor
    EXPECT_TRUE(legible({82 + 72 + 20, firstRow + 2, 50, 11})) << "cell beside it";
    EXPECT_TRUE(legible({82 + 16, 26 + 259 + 4, 52, 18})) << "strip";
    QApplication::setPalette(before);
}

TEST_F(MainWindowTest, TheIndicatorSwitchHidesAndShowsTheStripsLights) {
    startOn("1/1/2026@#@5\n");
    const QRect light(82 + 3 + 4, 26 + 259 + 6 + 4, 3, 3);
    const auto shows = [&] { return grabbed(light).pixelColor(1, 1).saturationF() > 0.5; };
    for (const bool on : {true, false, true}) {
        Globals::gShowIndicators = on;
        app_->windows().main->Timer1.fire();
        EXPECT_EQ(shows(), on);
    }
}

TEST_F(MainWindowTest, ReturnOpensTheDateOfItsOwnRow) {
    startOn("1/1/2026@#@5\n1/2/2026@#@6\n1/3/2026@#@7\n");
    list().ListIndex(0);
    table_->setCurrentIndex(table_->model()->index(0, 0));
    QTest::keyClick(table_, Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_EQ(list().SelectedCount(), 2);
    QTest::keyClick(table_, Qt::Key_Return);
    EXPECT_EQ(list().ListIndex(), 1);
    setDate({2020, 1, 1});
    EXPECT_EQ(list().Cell(0, 0), "1/1/2026");
    EXPECT_EQ(list().Cell(1, 0), "1/1/2020");
}

TEST_F(MainWindowTest, ShortcutsWorkWhileACellIsOpen) {
    start();
    press("+");
    QTest::keyClick(editor(), Qt::Key_I, Qt::ControlModifier); // no Tab, although it comes as character 9
    EXPECT_EQ(list().openColumn(), 1);
    QTest::keyClick(editor(), Qt::Key_Q, Qt::ControlModifier);
    EXPECT_TRUE(qt_.desktop.quitAsked());
}

TEST_F(MainWindowTest, MovesAndSizesOfTheUserAreSaved) {
    write(applicationFile("QVXWindowData"), "60\n70\n746\n560\n");
    start();
    EXPECT_EQ(frame_->pos(), QPoint(60, 70));
    EXPECT_EQ(frame_->centralWidget()->size(), QSize(746, 560));
    frame_->move(90, 100);
    frame_->resize(frame_->width() + 50, frame_->height() + 40);
    frame_->close();
    EXPECT_EQ(read(applicationFile("QVXWindowData")), "90\n100\n746\n600\n");
    EXPECT_TRUE(qt_.desktop.quitAsked());
    EXPECT_EQ(frameTitled("Tallyvane"), nullptr);
}

TEST_F(MainWindowTest, AWindowFromAScreenThatIsGoneComesBackIntoSight) {
    write(applicationFile("QVXWindowData"), "9000\n700\n746\n518\n");
    start();
    EXPECT_TRUE(QGuiApplication::primaryScreen()->geometry().contains(frame_->geometry().center()));
}

TEST_F(MainWindowTest, AWindowWithItsTitleBarInReachStaysWhereItWas) {
    const int left = QGuiApplication::primaryScreen()->geometry().right() - 60;
    write(applicationFile("QVXWindowData"), std::to_string(left) + "\n100\n746\n518\n");
    start();
    EXPECT_EQ(frame_->x(), left);
}

TEST_F(MainWindowTest, TheGraphGrowsWithItsWindowAndHandlesThePrintItem) {
    startOn("1/1/2026@#@5\n1/2/2026@#@7\n");
    list().select({true, true});
    app_->windows().main->showGraph();
    WindowFrame* graph = frameTitled("Graph");
    ASSERT_NE(graph, nullptr);
    EXPECT_EQ(graph->minimumSizeHint(), QSize(716, 431));
    graph->resize(900, 600);
    QCoreApplication::processEvents();
    const Canvas& plot = app_->windows().graph->Canvas1;
    EXPECT_EQ(QSize(plot.Width(), plot.Height()), QSize(499 + 900 - 716, 397 + 600 - 431));
    const QImage shown = graph->grab().toImage();
    EXPECT_EQ(shown.pixelColor(20 + plot.Width() - 1, 14 + plot.Height() - 1), QColor(Qt::white)) << "its last corner";
    EXPECT_NE(shown.pixelColor(20 + plot.Width() - 1, 14 + plot.Height() / 2), QColor(Qt::white)) << "the plot";

    const auto* print = item("FilePrint");
    app_->windows().main->showLogs();
    EXPECT_TRUE(QTest::qWaitFor([&] { return !print->isEnabled(); })) << "the logs have a button of their own";
    graph->activateWindow();
    EXPECT_TRUE(QTest::qWaitFor([&] { return print->isEnabled(); }));
}

TEST_F(MainWindowTest, ReadingsStandUnderTheirHeadingsInRightToLeftLayout) {
    const std::string days = "1/1/2026@#@5.6@#@7@#@@#@13.1\n";
    startOn(days);
    const QImage before = frame_->grab().toImage();
    TearDown();
    SetUp();
    QGuiApplication::setLayoutDirection(Qt::RightToLeft);
    startOn(days);
    const QImage after = frame_->grab().toImage();
    QGuiApplication::setLayoutDirection(Qt::LeftToRight);
    EXPECT_EQ(after, before);
}

TEST_F(MainWindowTest, TheSelectedRowIsLegibleOnBothBands) {
    startOn("1/1/2026@#@5\n1/2/2026@#@5\n1/3/2026@#@5\n1/4/2026@#@5\n");
    list().select({true, true, false, false});
    const QImage shown = table_->viewport()->grab().toImage();
    // A free place of the cell, and the middle of its light.
    const auto ground = [&](int row) { return shown.pixelColor(82 + 25, row * 15 + 3); };
    const auto light = [&](int row) { return shown.pixelColor(82 + 8, row * 15 + 7); };
    EXPECT_EQ(ground(2), QColor(217, 233, 255));
    EXPECT_EQ(ground(3), QColor(255, 255, 255));
    for (const int row : {0, 1}) {
        EXPECT_NE(ground(row), ground(row + 2)) << "a selected row looks like one that is not";
        EXPECT_EQ(light(row), light(row + 2)) << "the selection changes the light";
        EXPECT_GT(ground(row).lightnessF(), 0.6) << "dark text is hard to read";
    }
}

} // namespace
} // namespace tallyvane

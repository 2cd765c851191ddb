#include <QCalendarWidget>
#include <QClipboard>
#include <QHeaderView>
#include <QMenu>
#include <QScreen>
#include <QToolBar>
#include <QToolButton>

#include "qt/qt_desk.h"
#include "settings/globals.h"

namespace tallyvane {

namespace {

class MainWindowTest : public QtDesk {
protected:
    std::vector<std::string> column(int column) {
        std::vector<std::string> cells;
        for (int row = 0; row < list().ListCount(); ++row)
            cells.push_back(list().Cell(row, column));
        return cells;
    }
};

TEST_F(MainWindowTest, ADayIsAddedTypedKeptAndRemoved) {
    start();
    QTest::mouseClick(button<QToolButton>(frame_, QStringLiteral("+")), Qt::LeftButton);
    ASSERT_TRUE(editor()->isVisible());
    EXPECT_TRUE(editor()->hasFocus());
    QTest::keyClicks(editor(), QStringLiteral("5.6"));
    app_->Event_Deactivate();
    EXPECT_TRUE(read(applicationFile("7VXData")).starts_with("11/22/2026@#@5.6@#@"));
    QTest::mouseClick(button<QToolButton>(frame_, QString(QChar(0x2212))), Qt::LeftButton);
    EXPECT_EQ(list().ListCount(), 0);
    EXPECT_EQ(table_->model()->rowCount(), 0);
    EXPECT_FALSE(editor()->isVisible());
}

TEST_F(MainWindowTest, SelectionsGoBothWays) {
    write(applicationFile("7VXData"), "1/1/2026@#@5\n1/2/2026@#@6\n1/3/2026@#@7\n1/4/2026@#@8\n");
    start();
    click(0, 8);
    click(2, 8, Qt::ShiftModifier);
    EXPECT_EQ(list().SelectedCount(), 3);
    EXPECT_EQ(app_->window1()->StaticText1.Text(), "6.0");
    click(1, 0, Qt::ControlModifier); // no click in the date: the selection changes, no dialog comes
    EXPECT_EQ(list().SelectedCount(), 2);
    EXPECT_EQ(frameTitled(QStringLiteral("Change Date")), nullptr);
    list().ListIndex(3);
    EXPECT_EQ(table_->selectionModel()->selectedRows().size(), 1);
    QTest::mouseClick(table_->viewport(), Qt::LeftButton, {}, {20, table_->viewport()->height() - 3});
    EXPECT_EQ(list().SelectedCount(), 0);
    EXPECT_EQ(app_->window1()->StaticText1.Text(), "6.5");
}

TEST_F(MainWindowTest, AHeadingSortsAndTheSelectionStaysWithItsDays) {
    write(applicationFile("7VXData"), "1/2/2026@#@5\n1/1/2026@#@6\n");
    start();
    click(0, 8);
    QHeaderView* header = table_->horizontalHeader();
    QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, {20, 8});
    EXPECT_EQ(list().Cell(0, 0), "1/1/2026");
    EXPECT_TRUE(list().Selected(1));
    EXPECT_EQ(table_->selectionModel()->selectedRows().front().row(), 1);
    QMouseEvent second(QEvent::MouseButtonDblClick, QPointF(20, 8), header->viewport()->mapToGlobal(QPointF(20, 8)),
                       Qt::LeftButton, Qt::LeftButton, {}); // of two quick clicks
    QApplication::sendEvent(header->viewport(), &second);
    EXPECT_EQ(list().Cell(0, 0), "1/2/2026");
    EXPECT_EQ(table_->selectionModel()->selectedRows().front().row(), 0);
}

TEST_F(MainWindowTest, ADateIsChangedInItsDialog) {
    write(applicationFile("7VXData"), "1/2/2026@#@5\nsoon@#@6\n");
    start();
    click(0, 0);
    WindowFrame* dialog = frameTitled(QStringLiteral("Change Date"));
    ASSERT_NE(dialog, nullptr);
    auto* calendar = dialog->findChild<QCalendarWidget*>();
    EXPECT_EQ(calendar->selectedDate(), QDate(2026, 1, 2));
    calendar->setSelectedDate(QDate(2025, 12, 31));
    QTest::mouseClick(button<QPushButton>(dialog, QStringLiteral("OK")), Qt::LeftButton);
    EXPECT_EQ(list().Cell(0, 0), "12/31/2025");
    EXPECT_EQ(frameTitled(QStringLiteral("Change Date")), nullptr);

    click(1, 0);
    dialog = frameTitled(QStringLiteral("Change Date"));
    QApplication::setActiveWindow(dialog);
    QTest::keyClick(dialog, Qt::Key_Escape);
    EXPECT_EQ(list().Cell(1, 0), "soon");
    EXPECT_EQ(frameTitled(QStringLiteral("Change Date")), nullptr);
}

TEST_F(MainWindowTest, ADoubleClickInTheCalendarAddsThatDay) {
    start();
    auto* calendar = frame_->findChild<QCalendarWidget*>();
    auto* days = calendar->findChild<QTableView*>();
    calendar->setSelectedDate(QDate(2026, 3, 4));
    const QPoint fourth = days->visualRect(days->currentIndex()).center();
    QTest::mouseClick(days->viewport(), Qt::LeftButton, {}, fourth);
    EXPECT_EQ(list().ListCount(), 0) << "a single click adds nothing";
    const auto second = [&](const QPoint& place) {
        QMouseEvent event(QEvent::MouseButtonDblClick, QPointF(place), days->viewport()->mapToGlobal(QPointF(place)),
                          Qt::LeftButton, Qt::LeftButton, {});
        QApplication::sendEvent(days->viewport(), &event);
    };
    second({fourth.x(), 2}); // the names of the days
    EXPECT_EQ(list().ListCount(), 0);
    second(fourth);
    EXPECT_EQ(column(0), (std::vector<std::string>{"3/4/2026"}));
}

TEST_F(MainWindowTest, ItemsWithoutAnAnswerAreOff) {
    start();
    std::vector<std::string> enabled;
    for (const QAction* menu : frame_->menuBar()->actions()) {
        Q_EMIT menu->menu()->aboutToShow();
        for (const QAction* action : menu->menu()->actions())
            if (!action->isSeparator() && action->isEnabled() &&
                !action->objectName().startsWith(QStringLiteral("Edit")))
                enabled.push_back(fromQt(action->objectName()));
    }
    std::sort(enabled.begin(), enabled.end());
    EXPECT_EQ(enabled,
              (std::vector<std::string>{"FileAboutBrindlemarks", "FileExportData", "FileImportData",
                                        "FileOpenArchivedDays", "FilePreferences", "FilePrint", "FilePrintSetup",
                                        "FileQuit", "FileSaveAsPDF", "HelpSupportForum", "HelpUsersGuide"}));
}

TEST_F(MainWindowTest, TheEditMenuActsOnTheFocusedField) {
    start();
    auto* journal = frame_->findChild<QPlainTextEdit*>();
    journal->setFocus();
    journal->setPlainText(QStringLiteral("felt well"));
    const auto choose = [&](const char* name) {
        auto* action = frame_->findChild<QAction*>(QLatin1String(name));
        Q_EMIT qobject_cast<QMenu*>(action->parent())->aboutToShow();
        EXPECT_TRUE(action->isEnabled()) << name;
        action->trigger();
    };
    choose("EditSelectAll");
    choose("EditClear");
    EXPECT_EQ(Globals::gJournal, "");
    choose("EditUndo");
    EXPECT_EQ(Globals::gJournal, "felt well");
}

TEST_F(MainWindowTest, TheEditMenuCopiesRowsOfTheTable) {
    write(applicationFile("7VXData"), "1/1/2026@#@5@#@@#@6,5\n1/2/2026@#@7\n");
    start();
    frame_->findChild<QPlainTextEdit*>()->setFocus();
    table_->setFocus();
    const auto action = [&](const char* name) { return frame_->findChild<QAction*>(QLatin1String(name)); };
    EXPECT_FALSE(action("EditCut")->isEnabled());
    list().ListIndex(1);
    action("EditCopy")->trigger();
    EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("1/2/2026\t7\t\t\t\t\t\t\t7.0\t\n"));
    action("EditSelectAll")->trigger();
    EXPECT_EQ(list().SelectedCount(), 2);
    action("EditCopy")->trigger();
    EXPECT_TRUE(QGuiApplication::clipboard()->text().startsWith(QStringLiteral("1/1/2026\t5\t\t6,5\t")));

    QTest::keyClick(table_, Qt::Key_End, Qt::ControlModifier);
    list().ListIndex(1);
    QTest::keyClick(table_, Qt::Key_Home, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(list().SelectedCount(), 2);
    app_->FileAboutBrindlemarks_Action();
    QApplication::setActiveWindow(frameTitled(QStringLiteral("About Tallyvane")));
    QGuiApplication::clipboard()->clear();
    action("EditCopy")->trigger();
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
    write(applicationFile("7VXData"), "1/1/2026@#@888@#@888\n");
    start();
    list().ListIndex(-1);
    click(0, 1);
    QTest::keyClick(editor(), Qt::Key_End); // nothing selected
    // The darkest and the lightest place of the open cell, of its neighbour and of the strip below.
    const auto legible = [&](const QRect& area) {
        const QImage shown = frame_->centralWidget()->grab(area).toImage();
        int darkest = 255;
        int lightest = 0;
        for (int y = 0; y < shown.height(); ++y)
            for (int x = 0; x < shown.width(); ++x) {
                darkest = std::min(darkest, qGray(shown.pixel(x, y)));
                lightest = std::max(lightest, qGray(shown.pixel(x, y)));
            }
        return darkest < 100 && lightest > 180;
    };
    const int firstRow = 26 + 19;
    EXPECT_TRUE(legible({82 + 20, firstRow + 2, 42, 11})) << "open cell"; // without its cursor
    EXPECT_TRUE(legible({82 + 72 + 20, firstRow + 2, 50, 11})) << "cell beside it";
    EXPECT_TRUE(legible({82 + 16, 26 + 259 + 4, 52, 18})) << "strip";
    QApplication::setPalette(before);
}

TEST_F(MainWindowTest, TheIndicatorSwitchHidesAndShowsTheStripsLights) {
    write(applicationFile("7VXData"), "1/1/2026@#@5\n");
    start();
    const QRect light(82 + 3 + 4, 26 + 259 + 6 + 4, 3, 3);
    const auto shows = [&] {
        return frame_->centralWidget()->grab(light).toImage().pixelColor(1, 1).saturationF() > 0.5;
    };
    EXPECT_TRUE(shows());
    for (const bool on : {false, true}) {
        Globals::gShowIndicators = on;
        app_->window1()->Timer1.fire();
        EXPECT_EQ(shows(), on);
    }
}

TEST_F(MainWindowTest, ReturnOpensTheDateOfItsOwnRow) {
    write(applicationFile("7VXData"), "1/1/2026@#@5\n1/2/2026@#@6\n1/3/2026@#@7\n");
    start();
    list().ListIndex(0);
    table_->setCurrentIndex(table_->model()->index(0, 0));
    QTest::keyClick(table_, Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_EQ(list().SelectedCount(), 2);
    QTest::keyClick(table_, Qt::Key_Return);
    EXPECT_EQ(list().ListIndex(), 1);
    WindowFrame* dialog = frameTitled(QStringLiteral("Change Date"));
    dialog->findChild<QCalendarWidget*>()->setSelectedDate(QDate(2020, 1, 1));
    QTest::mouseClick(button<QPushButton>(dialog, QStringLiteral("OK")), Qt::LeftButton);
    EXPECT_EQ(list().Cell(0, 0), "1/1/2026");
    EXPECT_EQ(list().Cell(1, 0), "1/1/2020");
}

TEST_F(MainWindowTest, ShortcutsWorkWhileACellIsOpen) {
    start();
    QTest::mouseClick(button<QToolButton>(frame_, QStringLiteral("+")), Qt::LeftButton);
    QTest::keyClick(editor(), Qt::Key_I, Qt::ControlModifier); // no Tab, although it comes as character 9
    EXPECT_EQ(list().openColumn(), 1);
    QTest::keyClick(editor(), Qt::Key_Q, Qt::ControlModifier);
    EXPECT_TRUE(qt_.quitAsked());
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
    EXPECT_TRUE(qt_.quitAsked());
    EXPECT_EQ(frameTitled(QStringLiteral("Tallyvane")), nullptr);
}

TEST_F(MainWindowTest, AWindowFromAScreenThatIsGoneComesBackIntoSight) {
    write(applicationFile("QVXWindowData"), "9000\n700\n746\n518\n");
    start();
    EXPECT_TRUE(QGuiApplication::primaryScreen()->geometry().contains(frame_->geometry().center()));
}

TEST_F(MainWindowTest, TheGraphGrowsWithItsWindowAndAnswersThePrintItem) {
    write(applicationFile("7VXData"), "1/1/2026@#@5\n1/2/2026@#@7\n");
    start();
    list().select({true, true});
    app_->window1()->showGraph();
    WindowFrame* graph = frameTitled(QStringLiteral("Graph"));
    ASSERT_NE(graph, nullptr);
    EXPECT_EQ(graph->minimumSizeHint(), QSize(716, 431));
    graph->resize(900, 600);
    QCoreApplication::processEvents();
    const Canvas& plot = app_->graph()->Canvas1;
    EXPECT_EQ(plot.Width(), 499 + 900 - 716);
    EXPECT_EQ(plot.Height(), 397 + 600 - 431);
    const QImage shown = graph->grab().toImage();
    EXPECT_EQ(shown.pixelColor(20 + plot.Width() - 1, 14 + plot.Height() - 1), QColor(Qt::white)) << "its last corner";
    EXPECT_NE(shown.pixelColor(20 + plot.Width() - 1, 14 + plot.Height() / 2), QColor(Qt::white)) << "the plot";

    const auto* print = frame_->findChild<QAction*>(QStringLiteral("FilePrint"));
    app_->window1()->showLogs();
    EXPECT_TRUE(QTest::qWaitFor([&] { return !print->isEnabled(); })) << "the logs have a button of their own";
    graph->activateWindow();
    EXPECT_TRUE(QTest::qWaitFor([&] { return print->isEnabled(); }));
}

TEST_F(MainWindowTest, ReadingsStandUnderTheirHeadingsWhereOneWritesFromTheRight) {
    write(applicationFile("7VXData"), "1/1/2026@#@5.6@#@7@#@@#@13.1\n");
    start();
    const QImage before = frame_->grab().toImage();
    app_.reset();
    QGuiApplication::setLayoutDirection(Qt::RightToLeft);
    start();
    const QImage after = frame_->grab().toImage();
    QGuiApplication::setLayoutDirection(Qt::LeftToRight);
    EXPECT_EQ(after, before);
}

TEST_F(MainWindowTest, TheSelectedRowIsLegibleOnBothBands) {
    write(applicationFile("7VXData"), "1/1/2026@#@5\n1/2/2026@#@5\n1/3/2026@#@5\n1/4/2026@#@5\n");
    start();
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
        const auto brightness = [](const QColor& color) { return color.lightnessF(); };
        EXPECT_GT(brightness(ground(row)), 0.6) << "dark text is hard to read";
    }
}

} // namespace
} // namespace tallyvane

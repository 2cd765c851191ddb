#include "diary/window1.h"

#include "diary/date_window.h"
#include "support/diary_desk.h"

namespace tallyvane {

namespace {

class Window1Test : public DiaryDesk {
protected:
    /// The date dialog that a click has opened.
    DateWindow& dateWindow() { return dynamic_cast<DateWindow&>(*Window::openWindows().back()); }
};

TEST_F(Window1Test, GeometryComesFromItsFileAndIsCorrected) {
    const auto check = [this](const char* name, const char* file, const Rect& want) {
        SCOPED_TRACE(name);
        write(applicationFile("QVXWindowData"), file);
        Window1 window(toolbar_, menuBar_);
        window.Open();
        EXPECT_EQ((Rect{window.Left(), window.Top(), window.Width(), window.Height()}), want);
        window.saveWindowData();
        EXPECT_EQ(read(applicationFile("QVXWindowData")), std::to_string(want.left) + "\n" + std::to_string(want.top) +
                                                              "\n746\n" + std::to_string(want.height) + "\n");
    };
    check("as saved", "120\n80\n746\n600\n", {120, 80, 746, 600});
    check("off the top and the left", "-30\n20\n746\n518\n", {0, 50, 746, 518});
    check("another width, too low", "5\n60\n1000\n100\n", {5, 60, 746, 490});
    check("too high", "5\n60\n746\n99999999999\n", {5, 60, 746, 32000});
    check("too short", "7\n", {7, 50, 746, 490});
    check("no numbers", "left\ntop\nwidth\nheight", {0, 50, 746, 490});
    check("no number fits", "1e9\n-99999999999999999999\n\n", {1, 50, 746, 490});
}

TEST_F(Window1Test, TheDividerGivesTheTableWholeRowsAndIsKept) {
    const auto heights = [](const Window1& window) {
        return std::vector{window.ListBox1.Height(), window.JournalFld.Height()};
    };
    write(applicationFile("QVXWindowData"), "120\n80\n746\n600\n");
    Window1& window = open();
    EXPECT_EQ(heights(window), (std::vector{259, 226}));
    window.saveAll();
    EXPECT_FALSE(std::filesystem::exists(applicationFile("Table Height")));
    window.TableDivider.Event_MouseDown(10, 3);
    window.TableDivider.Event_MouseDrag(10, 3 + 40);
    EXPECT_EQ(heights(window), (std::vector{259 + 45, 226 - 45}));
    window.TableDivider.Event_KeyDown(Keys::down);
    window.saveAll();
    EXPECT_EQ(read(applicationFile("Table Height")), "60\n");

    Window1 next(toolbar_, menuBar_);
    next.Open();
    EXPECT_EQ(heights(next), (std::vector{259 + 60, 226 - 60}));
    next.TableDivider.Dragged(1000); // the calendar stays in sight
    EXPECT_EQ(heights(next), (std::vector{259 + 105, 226 - 105}));
    next.TableDivider.Dragged(-1000); // so do four rows
    EXPECT_EQ(heights(next), (std::vector{259 - 180, 226 + 180}));
    next.TableDivider.Dragged(1000);
    next.userChangedBounds({120, 80, 746, 518});
    EXPECT_EQ(heights(next), (std::vector{259 + 15, 144 - 15}));
    next.userChangedBounds({120, 80, 746, 600});
    EXPECT_EQ(heights(next), (std::vector{259 + 105, 226 - 105})); // it comes back with the room
    next.TableDivider.Dragged(-7); // less than half a row
    EXPECT_EQ(heights(next), (std::vector{259 + 105, 226 - 105}));
}

TEST_F(Window1Test, WithoutAFileTheWindowKeepsItsSizeAndPlaceOfCreation) {
    open();
    EXPECT_EQ((Rect{window1_.Left(), window1_.Top(), window1_.Width(), window1_.Height()}), (Rect{400, 300, 746, 518}));
    EXPECT_FALSE(window1_.Visible());
}

TEST_F(Window1Test, HeadingsGoToTheirLabelsAndColumns) {
    write(applicationFile("7VXHeadings"), "g1\ng2\ng3\ng4\nc1\nc2\nc3\nc4\nc5\nc6\nc7\nc8\nc9\nmore\n");
    open();
    EXPECT_EQ(window1_.StaticText13.Text(), "g1");
    EXPECT_EQ(window1_.StaticText20.Text(), "g4");
    EXPECT_EQ(table_.Heading(0), "Date");
    for (int column = 1; column <= 9; ++column)
        EXPECT_EQ(table_.Heading(column), "c" + std::to_string(column));
}

TEST_F(Window1Test, TheCalendarFollowsMidnightWhileItStandsOnToday) {
    const auto nowIs = [](int day) { DateSource::now = [day] { return Date(2026, 11, day, 600); }; };
    const auto marked = [this] { return window1_.CalendarControl1.SelectedDate().isoDate(); };
    open();
    window1_.CalendarControl1.SelectedDate(Date());
    window1_.MidnightTimer.fire();
    nowIs(23);
    window1_.MidnightTimer.fire();
    EXPECT_EQ(marked(), "2026-11-23");
    nowIs(25); // after days of sleep
    window1_.BevelButton1_Action();
    EXPECT_EQ(table_.Cell(table_.LastIndex(), 0), "11/25/2026");

    window1_.CalendarControl1.SelectedDate(Date(2026, 11, 24));
    nowIs(26);
    window1_.MidnightTimer.fire();
    EXPECT_EQ(marked(), "2026-11-24") << "a day that the user has chosen";
    nowIs(27);
    window1_.CalendarControl1_DayDoubleClicked();
    EXPECT_EQ(table_.Cell(table_.LastIndex(), 0), "11/24/2026") << "the day that was clicked";
}

TEST_F(Window1Test, TheLastColumnIsNarrowerWhenTheRowsNeedAScrollBar) {
    open();
    const std::string wide = "82,72,72,72,72,72,72,72,72,87";
    const std::string narrow = "82,72,72,72,72,72,72,72,72,72";
    for (int row = 0; row < 15; ++row)
        table_.AddRows({{"1/1/2026"}});
    window1_.BevelButton1_Action(); // 16 rows and the headings: 255 of 259 points
    EXPECT_EQ(table_.ColumnWidths(), wide);
    window1_.CalendarControl1_DayDoubleClicked(); // leaves the widths as they are
    EXPECT_EQ(table_.ColumnWidths(), wide);
    window1_.BevelButton2_Action();
    window1_.BevelButton1_Action();
    EXPECT_EQ(table_.ColumnWidths(), narrow);
    window1_.BevelButton2_Action();
    EXPECT_EQ(table_.ColumnWidths(), wide);
}

TEST_F(Window1Test, TheDialogChangesTheDateOfTheSelectedDay) {
    open();
    table_.AddRows({{"1/1/2026", "5"}, {"2/2/2026"}});
    table_.ListIndex(1);
    EXPECT_FALSE(window1_.ListBox1_CellClick(1, 0, 0, 0));
    EXPECT_EQ(dateWindow().CalendarControl1.SelectedDate(), Date(2026, 2, 2));
    dateWindow().CalendarControl1.SelectedDate(Date(2025, 12, 24));
    dateWindow().PushButton1_Action();
    EXPECT_EQ(columnOf(table_, 0), (Texts{"1/1/2026", "12/24/2025"})) << "the row keeps its place";
    EXPECT_LT(table_.Cell(1, 10), table_.Cell(0, 10));
    EXPECT_EQ(Window::openWindows().size(), 1U);

    window1_.ListBox1_CellClick(1, 0, 0, 0);
    dateWindow().CalendarControl1.SelectedDate(Date(2000, 1, 1));
    dateWindow().PushButton2_Action();
    EXPECT_EQ(table_.Cell(1, 0), "12/24/2025");
    EXPECT_EQ(Window::openWindows().size(), 1U);

    EXPECT_FALSE(window1_.ListBox1_CellClick(1, 1, 0, 0)); // no date, no dialog
    EXPECT_EQ(Window::openWindows().size(), 1U);
}

TEST_F(Window1Test, TheDialogOpensAlsoForADateThatCantBeRead) {
    open();
    table_.AddRows({{"soon"}});
    table_.ListIndex(0);
    window1_.ListBox1_CellClick(0, 0, 0, 0);
    EXPECT_EQ(dateWindow().CalendarControl1.SelectedDate(), Date(2026, 11, 22, 12 * 3600)) << "today";
    dateWindow().PushButton1_Action();
    EXPECT_EQ(table_.Cell(0, 0), "11/22/2026");
}

TEST_F(Window1Test, AGraphNeedsTwoSelectedDays) {
    int graphs = 0;
    window1_.showGraph = [&] { ++graphs; };
    const auto press = [this] { toolbar_.Action({"GraphBtn", "", "", ""}); };
    table_.AddRows({{"1/1/2026"}, {"1/1/2026"}});
    press();
    table_.Selected(0, true);
    press();
    EXPECT_EQ(toolkit_.messages, Texts(2, "Please select 2 or more days to graph."));
    table_.Selected(1, true);
    press();
    EXPECT_EQ(graphs, 1);
    EXPECT_EQ(toolkit_.messages.size(), 2U);
}

} // namespace
} // namespace tallyvane

#include "diary/cell_help.h"
#include "diary/date_window.h"
#include "diary/day_table.h"
#include "diary/find_window.h"
#include "diary/go_to_day_window.h"
#include "diary/indicators.h"
#include "diary/window1.h"
#include "platform/base/translation.h"
#include "platform/windows/undo_items.h"
#include "platform/windows/wiring.h"
#include "settings/list_colors.h"

#include <algorithm>
#include <cmath>

namespace tallyvane {

namespace {

constexpr int windowWidth = 746;
constexpr int windowHeight = 518;
constexpr int bandHeight = 26;
constexpr int stripTop = bandHeight + Window1::listHeight;

constexpr Color white = RGB(255, 255, 255);
constexpr Color stripBackground = RGB(242, 245, 250);
constexpr Color stripLine = RGB(128, 140, 156);
constexpr Color stripText = RGB(20, 24, 30);

/// Left edge of a visible column.
constexpr int columnLeft(int column) { return column == 0 ? 0 : 82 + 72 * (column - 1); }

/// A label and a light of the strip stand under their column.
constexpr Rect labelUnder(int column, int width = 72) {
    return {columnLeft(column) + 16, stripTop + 4, width - 20, 18};
}
constexpr Rect lightUnder(int column) { return {columnLeft(column) + 3, stripTop + 6, 15, 15}; }

/// A heading over the columns from `first`.
constexpr Rect labelOver(int first, int width) { return {columnLeft(first), 4, width, 18}; }

} // namespace

Window1::Window1(Toolbar& toolbar, MenuBar& menuBar) : ListBox1(DayTable::columnCount), Toolbar11(toolbar) {
    shape(Kind::document, windowWidth, windowHeight, 490, anySize);
    Title("Tallyvane");
    setBars(&menuBar, &toolbar);
    layOut();
    build();
    wire();
}

std::array<StaticText*, 4> Window1::groupLabels() {
    return {&StaticText13, &StaticText14, &StaticText15, &StaticText20};
}

std::array<StaticText*, Averages::columns> Window1::stripLabels() {
    return {&StaticText1, &StaticText2,  &StaticText3,  &StaticText4, &StaticText5,
            &StaticText6, &StaticText23, &StaticText22, &StaticText16};
}

std::array<Canvas*, 8> Window1::stripLights() {
    return {&Canvas4, &Canvas5, &Canvas6, &Canvas7, &Canvas8, &Canvas9, &Canvas10, &Canvas11};
}

void Window1::layOut() {
    place({
        {&Canvas2, {0, 0, windowWidth, bandHeight}},
        {&StaticText13, labelOver(1, 144)},
        {&StaticText14, labelOver(3, 144)},
        {&StaticText15, labelOver(5, 144)},
        {&StaticText20, labelOver(9, 87)},
        {&ListBox1, {0, bandHeight, windowWidth, listHeight}},

        {&SummaryBand, {0, stripTop, windowWidth, 27}},
        {&BevelButton1, {8, stripTop + 3, 22, 22}},
        {&BevelButton2, {34, stripTop + 3, 22, 22}},
        {&StaticText1, labelUnder(1)},
        {&StaticText2, labelUnder(2)},
        {&StaticText3, labelUnder(3)},
        {&StaticText4, labelUnder(4)},
        {&StaticText5, labelUnder(5)},
        {&StaticText6, labelUnder(6)},
        {&StaticText23, labelUnder(7)},
        {&StaticText22, labelUnder(8)},
        {&StaticText16, labelUnder(9, 87)},
        {&Canvas4, lightUnder(1)},
        {&Canvas5, lightUnder(2)},
        {&Canvas6, lightUnder(3)},
        {&Canvas7, lightUnder(4)},
        {&Canvas8, lightUnder(5)},
        {&Canvas9, lightUnder(6)},
        {&Canvas10, lightUnder(7)},
        {&Canvas11, lightUnder(8)},

        {&TableDivider, {0, stripTop + 27, windowWidth, 6}},
        {&CalendarControl1, {10, 346, 135, 143}},
        {&TabPanel1, {155, 318, 581, 190}, lockAll},
        {&JournalFld, {167, 352, 515, 144}, lockAll, &TabPanel1, 0},
        {&AutoButton13, {692, 352, 32, 32}, lockLeft | lockTop, &TabPanel1, 0},
        {&AutoButton14, {692, 392, 32, 32}, lockLeft | lockTop, &TabPanel1, 0},
        {&AutoButton15, {692, 432, 32, 32}, lockLeft | lockTop, &TabPanel1, 0},
        {&StripLine, {240, 318, 490, 26}},
        {&Timer1},
        {&AutosaveTimer},
        {&OutsideTimer},
        {&MidnightTimer},
    });
}

/// Makes the table so much higher than at first, by whole rows, as far as there is room, and moves what stands below
/// it. Four rows stay in sight, and so does the calendar.
void Window1::growTable(int points) {
    constexpr int fewestRows = 4;
    constexpr int belowCalendar = 25; // free at first
    constexpr int least = (fewestRows + 1) * DayTable::rowHeight - listHeight; // with the headings
    const int most = std::max(0, Height() - windowHeight + belowCalendar);
    const int rows = std::clamp(points, least, most) / DayTable::rowHeight;
    wantedTableGrowth_ = points;
    const int by = rows * DayTable::rowHeight - tableGrowth();
    if (by == 0)
        return;
    reframe([by](const Placement& placement) {
        Rect frame = placement.frame;
        if (std::holds_alternative<Listbox*>(placement.control)) {
            frame.height += by;
        } else if (frame.top > bandHeight) {
            frame.top += by;
            frame.height -= (placement.locks & lockBottom) != 0 ? by : 0;
        }
        return frame;
    });
    doColWidth();
}

/// The bar has been dragged by so many points: the table follows by the nearest whole rows.
void Window1::dragTable(int points) {
    const double rows = std::round(static_cast<double>(points) / DayTable::rowHeight);
    if (rows == 0)
        return;
    const int wanted = wantedTableGrowth_;
    const int before = tableGrowth();
    growTable(before + static_cast<int>(rows) * DayTable::rowHeight);
    wantedTableGrowth_ = tableGrowth() == before ? wanted : tableGrowth(); // no more than there was room for
}

void Window1::build() {
    Canvas2.Backdrop(Picture("blackBar.png"));
    for (StaticText* label : groupLabels()) {
        label->Align(TextAlign::center);
        label->TextColor(white);
        label->TextSize(13);
        label->Bold(true);
    }
    ListBox1.DefaultRowHeight(DayTable::rowHeight);
    ListBox1.Colors(listColors);
    ListBox1.SelectionType(Listbox::SelectionTypes::multiple);
    ListBox1.AccessibleName(tr("Days"));
    ListBox1.EmptyText(
        tr("No days yet. Press \u201c+\u201d below to add today. Readings that you have in a file come in by "
           "\u201cImport Data...\u201d in the menu File."));
    ListBox1.Heading(DayTable::dateColumn, tr("Date"));
    showHeadings(defaultHeadings());
    doColWidth();

    for (StaticText* label : stripLabels()) {
        label->Align(TextAlign::center);
        label->TextColor(stripText);
        label->TextSize(13);
        label->Text("00.0");
    }
    StaticText16.Text("000");
    StaticText22.TextColor(Indicators::averageColor);
    StaticText16.TextColor(Indicators::weightColor);
    BevelButton1.Caption("+");
    BevelButton1.HelpTag(tr("Add a day"));
    BevelButton1.AccessibleName(tr("Add a day"));
    BevelButton2.Caption("\u2212");
    BevelButton2.HelpTag(tr("Remove the selected days"));
    BevelButton2.AccessibleName(tr("Remove the selected days"));

    TableDivider.Step = DayTable::rowHeight;
    TableDivider.HelpTag(tr("Drag it up or down for fewer or more days, or press the arrow keys"));
    TableDivider.AccessibleName(tr("Height of the table"));
    CalendarControl1.AccessibleName(tr("Calendar"));
    TabPanel1.Captions({tr("Journal")});
    JournalFld.AccessibleName(tr("Journal"));
    AutoButton13.Backdrop(Picture("calendarpng_32x32.png"));
    AutoButton13.HelpTag(tr("Add date to journal"));
    AutoButton14.Backdrop(Picture("printItem3.png"));
    AutoButton14.HelpTag(tr("Print journal"));
    AutoButton15.Backdrop(Picture("download_pagepng_32x32.png"));
    AutoButton15.HelpTag(tr("Save journal"));
    for (AutoButton* button : {&AutoButton13, &AutoButton14, &AutoButton15})
        button->AccessibleName(button->HelpTag());
    JournalFld.SpellChecking(true);
    Timer1.Period(50);
    constexpr int halfAMinute = 30 * 1000;
    constexpr int fiveMinutes = 5 * 60 * 1000;
    AutosaveTimer.Period(fiveMinutes);
    constexpr int halfASecond = 500;
    OutsideTimer.Period(halfASecond);
    AutosaveTimer.Mode(Timer::ModeMultiple);
    MidnightTimer.Period(halfAMinute);
    MidnightTimer.Mode(Timer::ModeMultiple);
}

void Window1::wire() {
    menuHandlers = daysMenu();
    handleUndoItems(
        *this, [this]() -> ListHistory& { return history_; }, [this] { showDaysAnew(); });
    notes_.goToDay = [this](const Date& day) {
        goToDay(day);
        ListBox1.SetFocus();
    };
    notes_.undo = [this] {
        menuHandlers.at("EditUndo")();
        ListBox1.SetFocus();
    };
    notes_.offerLimits = [this](const UsualLimits::Limits& limits) {
        if (offerLimits)
            offerLimits(limits);
    };
    notes_.dismissed = [this] { ListBox1.SetFocus(); };
    ListBox1.CellClick = [this](int row, int column, int x, int y) { return ListBox1_CellClick(row, column, x, y); };
    ListBox1.CellKeyDown = [this](int row, int column, const std::string& key) {
        return ListBox1_CellKeyDown(row, column, key);
    };
    ListBox1.CellTextChange = [this](int row, int column) { ListBox1_CellTextChange(row, column); };
    ListBox1.HeaderPressed = [this](int column) { return ListBox1_HeaderPressed(column); };
    ListBox1.CellDescription = [this](int row, int column) { return ListBox1_CellDescription(row, column); };
    ListBox1.CellHelpTag = [this](int row, int column) { return CellHelp::helpTag(ListBox1, row, column); };
    ListBox1.CellBackgroundPaint = [this](Graphics& g, int row, int column) {
        return ListBox1_CellBackgroundPaint(g, row, column);
    };
    ListBox1.CellTextPaint = [this](Graphics& g, int row, int column, int x, int y) {
        return ListBox1_CellTextPaint(g, row, column, x, y);
    };
    SummaryBand.Paint = [](Graphics& g) {
        g.ForeColor(stripBackground);
        g.FillRect(0, 0, g.Width(), g.Height());
        g.ForeColor(stripLine);
        g.FillRect(0, 0, g.Width(), 1);
        g.FillRect(0, g.Height() - 1, g.Width(), 1);
    };
    Toolbar11.Action = [this](const ToolItem& item) { Toolbar11_Action(item); };
    Wiring(*this).connect({
        {ListBox1.Open, &Window1::ListBox1_Open},
        {ListBox1.Change, &Window1::ListBox1_Change},
        {BevelButton1.Action, &Window1::BevelButton1_Action},
        {BevelButton2.Action, &Window1::BevelButton2_Action},
        {CalendarControl1.DayClicked, &Window1::CalendarControl1_DayClicked},
        {CalendarControl1.MonthChange, &Window1::showBoldDays},
        {CalendarControl1.DayDoubleClicked, &Window1::CalendarControl1_DayDoubleClicked},
        {AutoButton13.Action, &Window1::AutoButton13_Action},
        {AutoButton14.Action, &Window1::AutoButton14_Action},
        {AutoButton15.Action, &Window1::AutoButton15_Action},
        {JournalFld.TextChange, &Window1::JournalFld_TextChange},
        {Timer1.Action, &Window1::Timer1_Action},
        {MidnightTimer.Action, &Window1::MidnightTimer_Action},
    });
    TableDivider.Dragged = [this](int points) { dragTable(points); };
    AutosaveTimer.Action = [this] {
        if (autosave)
            autosave();
    };
}

} // namespace tallyvane

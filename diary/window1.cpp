#include "diary/window1.h"

#include "diary/cell_help.h"
#include "diary/cell_navigation.h"
#include "diary/date_window.h"
#include "diary/day_details.h"
#include "diary/day_table.h"
#include "diary/find_window.h"
#include "diary/go_to_day_window.h"
#include "diary/indicators.h"
#include "diary/running_logs.h"
#include "diary/sort_keys.h"
#include "diary/strip_words.h"
#include "diary/window_data.h"
#include "platform/base/number.h"
#include "platform/base/translation.h"
#include "platform/desktop/desktop.h"
#include "platform/files/save_each.h"
#include "platform/files/system_files.h"
#include "platform/printing/print_and_save.h"
#include "platform/windows/quit.h"
#include "platform/windows/undo_items.h"
#include "settings/globals.h"

namespace tallyvane {

Window1::~Window1() = default;

// Opening and closing

void Window1::Event_Open() {
    getWindowData();
    growTable(WindowData::loadTableGrowth());
    getHeadings();
    getData();
    getLogs();
    doSortColumns();
    doColWidth();
    if (Top() < 50)
        Top(50);
    if (Left() < 0)
        Left(0);
    showBoldDays();
    if (const std::optional<int> newest = Finding::newestRow(ListBox1))
        ListBox1.ScrollPosition(*newest);
    DayTable::setBaseline(ListBox1);
}

void Window1::Event_Close() {
    try {
        saveAll();
    } catch (const IOException&) { // the user is asked about it before the program ends
    }
    Quit(0);
}

void Window1::saveAll() {
    saveEach(
        {[this] { saveData(); }, [this] { saveLogs(); }, [this] { saveWindowData(); }, [this] { saveTableGrowth(); }});
}

void Window1::saveChanged() {
    bringInLogs();
    saveEach({[this] { saveData(); }, [] { RunningLogs::saveIfChanged(); }});
    AutosaveTimer.Mode(Timer::ModeMultiple); // restarts the five minutes
}

void Window1::saveData() {
    if (!datesInQuestion_.isEmpty())
        return;
    try {
        bringInChanges();
    } catch (const IOException&) { // no room for a copy: the save meets the same disk, and keeps what it can't write
    }
    DayTable::save(ListBox1);
}

void Window1::answerDates(const std::vector<DateForms::MeantDay>& days) {
    if (!days.empty()) {
        ListBox1.beginStep(tr("Dates in Your Form"));
        DateForms::rewrite(ListBox1, days);
        doSortColumns();
        showBoldDays();
        if (const std::optional<int> newest = Finding::newestRow(ListBox1))
            ListBox1.ScrollPosition(*newest);
        notes_.update();
    }
    datesInQuestion_ = {}; // at the end: the days may be those in question
}

void Window1::getData() {
    if (!DayTable::load(ListBox1))
        return;
    datesInQuestion_ = DateForms::find(DateForms::rowsOf(ListBox1)); // by the keys in the file
    doAverages();
    doSortColumns();
}

void Window1::saveLogs() {
    bringInLogs();
    RunningLogs::save();
}

void Window1::getLogs() {
    keptJournal = RunningLogs::load([this](const std::string& journal) { JournalFld.Text(journal); });
    RunningLogs::setBaseline();
}

void Window1::getDetails(int row) {
    const std::optional<Date> day = ParseDate(ListBox1.Cell(row, DayTable::dateColumn));
    const DayDetails details = day ? DayDetails::of(*day) : DayDetails();
    theMeds = details.medications;
    theExercises = details.exercise;
    theFoods = details.food;
    medLines = details.medicationLines;
}

void Window1::saveWindowData() { WindowData::save({Left(), Top(), Width(), Height()}); }

/// A table that has its first height has no file, until it had another.
void Window1::saveTableGrowth() {
    if (wantedTableGrowth_ != WindowData::loadTableGrowth())
        WindowData::saveTableGrowth(wantedTableGrowth_);
}

void Window1::getWindowData() {
    const std::optional<Rect> saved = WindowData::load();
    if (!saved)
        return;
    Left(saved->left);
    Top(saved->top);
    Width(saved->width);
    Height(saved->height);
}

void Window1::getHeadings() {
    if (const std::optional<Headings> headings = readHeadings())
        showHeadings(*headings);
}

void Window1::showHeadings(const Headings& headings) {
    const auto labels = groupLabels();
    for (std::size_t i = 0; i < headingGroups; ++i)
        labels[i]->Text(headings[i]);
    for (std::size_t i = headingGroups; i < headings.size(); ++i)
        ListBox1.Heading(static_cast<int>(i - headingGroups) + 1, headings[i]);
    tellDaysChanged();
}

// Averages, keys, widths

void Window1::doAverages() {
    doRowAverages();
    if (checkForSelection())
        doSelectedAverages();
    else
        fillStrip(averages_.sumsOfAll());
    notes_.update();
    tellDaysChanged();
}

void Window1::doRowAverages() { averages_.updateRows(); }

void Window1::doSelectedAverages() { fillStrip(averages_.sumsOfSelected()); }

bool Window1::checkForSelection() const { return ListBox1.SelectedCount() > 0; }

void Window1::fillStrip(const Averages::Sums& sums) {
    const auto labels = stripLabels();
    const auto lights = stripLights();
    for (std::size_t i = 0; i < labels.size(); ++i) {
        const std::string text = Averages::stripText(static_cast<int>(i) + 1, sums[i]);
        labels[i]->Text(text);
        const std::string count = StripWords::ofColumn(static_cast<int>(i) + 1, sums[i]);
        labels[i]->HelpTag(count);
        labels[i]->AccessibleName(tr("%1: %2, %3", {columnName(static_cast<int>(i) + 1), text, count}));
        if (i < lights.size())
            lights[i]->Backdrop(sums[i].count > 0 ? getLight(Val(text)) : std::nullopt);
    }
}

std::optional<Picture> Window1::getLight(double value) const { return Indicators::getLight(value); }

void Window1::doSortColumns() {
    SortKeys::rebuild(ListBox1);
    tellDaysChanged();
}

void Window1::tellDaysChanged() {
    if (daysChanged)
        daysChanged();
}

void Window1::doColWidth() { ListBox1.ColumnWidths(DayTable::columnWidths(ListBox1.ListCount(), ListBox1.Height())); }

// The table

void Window1::ListBox1_Open() { DayTable::setUp(ListBox1); }

void Window1::ListBox1_Change() {
    notes_.forgetAdded();
    doAverages();
    if (ListBox1.ListCount() == daysShownBold_)
        return;
    showBoldDays();
    notes_.noteSelectedReadings();
}

bool Window1::ListBox1_CellClick(int row, int column, int /*x*/, int /*y*/) {
    if (column != DayTable::dateColumn)
        return false;
    dateWindow_ = std::make_unique<DateWindow>(*this, ListBox1);
    dateWindow_->dateChanged = [this] {
        doSortColumns();
        showBoldDays();
        notes_.update();
    };
    dateWindow_->Open();
    if (const std::optional<Date> date = ParseDate(ListBox1.Cell(row, column)))
        dateWindow_->CalendarControl1.SelectedDate(*date);
    dateWindow_->Show();
    return false;
}

bool Window1::ListBox1_CellKeyDown(int row, int column, const std::string& key) {
    return moveByKey(ListBox1, row, column, key);
}

void Window1::ListBox1_CellTextChange(int row, int column) {
    if (column == DayTable::dateColumn)
        doSortColumns();
    else
        doAverages();
    if (column >= DayTable::firstReading && column <= DayTable::lastReading)
        notes_.noteReading(row, column);
}

bool Window1::ListBox1_HeaderPressed(int column) {
    if (column >= 0 && column < DayTable::visibleColumns)
        ListBox1.beginStep(tr("Sort by %1", {columnName(column)}));
    const bool isSorted = SortKeys::sortBy(ListBox1, column);
    notes_.update();
    tellDaysChanged();
    ListBox1.SetFocus(); // undo is for the table now
    return isSorted;
}

bool Window1::ListBox1_CellBackgroundPaint(Graphics& g, int row, int column) {
    Indicators::paintCell(g, ListBox1, row, column);
    return false;
}

bool Window1::ListBox1_CellTextPaint(Graphics& g, int /*row*/, int column, int /*x*/, int /*y*/) {
    Indicators::colorText(g, column);
    return false;
}

std::string Window1::ListBox1_CellDescription(int row, int column) const {
    return CellHelp::accessibleText(ListBox1, row, column, columnName(column));
}

/// A column's heading with the name of its meal, if it stands under one.
std::string Window1::columnName(int column) const {
    const std::array<const StaticText*, 3> meals{&StaticText13, &StaticText14, &StaticText15};
    const auto meal = static_cast<std::size_t>((column - DayTable::firstReading) / 2);
    const bool isUnderMeal = column >= DayTable::firstReading && meal < meals.size();
    const std::string& heading = ListBox1.Heading(column);
    return isUnderMeal ? tr("%1 %2", {heading, meals[meal]->Text()}) : heading;
}

// Days

void Window1::addDay() {
    DayTable::addDay(ListBox1, CalendarControl1.SelectedDate());
    doSortColumns();
    showBoldDays();
    notes_.noteAdded(CalendarControl1.SelectedDate());
}

void Window1::BevelButton1_Action() {
    MidnightTimer_Action(); // the computer may just have woken up
    addDay();
    doColWidth();
}

void Window1::BevelButton2_Action() {
    const int days = ListBox1.SelectedCount();
    ListBox1.beginStep(days == 1 ? tr("Removal of %1", {ListBox1.Cell(ListBox1.ListIndex(), DayTable::dateColumn)})
                                 : tr("Removal of %1 Days", {Grouped(days)}));
    ListBox1.RemoveSelectedRows();
    doColWidth();
    ListBox1.SetFocus(); // undo is for the table now
}

/// After a step was undone or redone, which raises no event but that of the selection.
void Window1::showDaysAnew() {
    notes_.forgetAdded();
    doAverages();
    doColWidth();
    showBoldDays();
}

void Window1::CalendarControl1_DayDoubleClicked() { addDay(); }

void Window1::JournalFld_TextChange() { Globals::gJournal = JournalFld.Text(); }

void Window1::AutoButton13_Action() { JournalFld.SelText(Date().AbbreviatedDate()); }

void Window1::AutoButton14_Action() { PrintLog(JournalFld); }

void Window1::AutoButton15_Action() { SaveJournalToDisk(JournalFld, tr("Save Journal")); }

void Window1::PrintLog(const TextArea& field) { printText(field.Text()); }

void Window1::SaveJournalToDisk(const TextArea& field, const std::string& prompt) {
    saveText(field.Text(), {tr("Save"), prompt, tr(&field == &JournalFld ? "Tallyvane Journal" : "untitled")});
}

void Window1::Timer1_Action() {
    for (Canvas* light : stripLights())
        light->Visible(Globals::gShowIndicators);
    Refresh();
    notes_.update(); // the limits may be others
    tellDaysChanged();
}

void Window1::MidnightTimer_Action() {
    const Date now;
    if (now.isoDate() == today_.isoDate())
        return;
    if (CalendarControl1.SelectedDate().isoDate() == today_.isoDate())
        CalendarControl1.SelectedDate(now);
    today_ = now;
    tellDaysChanged();
}

// Menus and toolbar

void Window1::Event_EnableMenuItems(MenuBar& menuBar) {
    if (checkForSelection()) {
        menuBar.enable("FilePrintSelected");
        menuBar.enable("FileArchiveSelectedDays");
    }
    enableUndoItems(menuBar, history_);
    for (const char* item : {"FileSaveAsPDF", "FileOpenArchivedDays", "FileImportData"})
        menuBar.enable(item);
}

void Window1::Toolbar11_Action(const ToolItem& item) {
    const std::array<std::pair<std::string_view, std::function<void()>>, 6> actions{{
        {"ResourcesBtn", [this] { toggleResources(); }},
        {"LogsBtn", showLogs},
        {"TeamMedBtn", showTeamAndMedications},
        {"GraphBtn", [this] { graphSelectedDays(); }},
        {"SummaryBtn", showSummary},
        {"HeadingsBtn", showHeadingsEditor},
    }};
    for (const auto& [name, action] : actions)
        if (item.Name == name && action)
            action();
}

void Window1::toggleResources() {
    const bool show = !Globals::gFileWindowOpen;
    if (const std::function<void()>& change = show ? showResources : closeResources)
        change();
    Globals::gFilesOpen = show;
}

void Window1::graphSelectedDays() {
    if (ListBox1.SelectedCount() < 2)
        MsgBox(tr("Please select 2 or more days to graph."));
    else if (showGraph)
        showGraph();
}

} // namespace tallyvane

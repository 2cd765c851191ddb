#pragma once

#include <array>
#include <functional>
#include <memory>
#include <optional>

#include "auto_button/auto_button.h"
#include "diary/averages.h"
#include "diary/conflict_copies.h"
#include "diary/conflict_window.h"
#include "diary/date_forms.h"
#include "diary/day_merge.h"
#include "diary/day_table.h"
#include "diary/finding.h"
#include "diary/search.h"
#include "diary/strip_notes.h"
#include "platform/controls/divider.h"
#include "platform/windows/window.h"
#include "settings/headings.h"

namespace tallyvane {

class DateWindow;
class FindWindow;
class GoToDayWindow;

/// The main window: the day table with its headings, the summary strip, a calendar, the journal and the toolbar.
/// It passes what happens in its controls on to the functions of the diary, and their results back.
class Window1 : public Window {
public:
    static constexpr int listHeight = 259;

    /// The shell owns the toolbar and the menu bar, which must outlive the window.
    Window1(Toolbar& toolbar, MenuBar& menuBar);
    ~Window1() override;

    Canvas Canvas2; // the band over the table
    StaticText StaticText13, StaticText14, StaticText15, StaticText20; // breakfast, lunch, supper, weight
    Listbox ListBox1;

    Canvas SummaryBand; // the background of the summary strip
    StaticText StaticText1, StaticText2, StaticText3, StaticText4, StaticText5, StaticText6; // readings 1 to 6
    StaticText StaticText23, StaticText22, StaticText16; // before bed, average, weight
    Canvas Canvas4, Canvas5, Canvas6, Canvas7, Canvas8, Canvas9, Canvas10, Canvas11; // lights of columns 1 to 8
    BevelButton BevelButton1, BevelButton2; // "+", "-"
    Divider TableDivider; // below the strip
    LinkLine StripLine; // says of which days the strip shows averages, and what became of the last step

    CalendarControl CalendarControl1;
    TabPanel TabPanel1;
    TextArea JournalFld;
    AutoButton AutoButton13, AutoButton14, AutoButton15; // date, print, save
    Toolbar& Toolbar11;
    Timer Timer1; // applies the indicator switch
    Timer AutosaveTimer; // raises `autosave`
    Timer MidnightTimer; // lets the calendar follow the day
    Timer OutsideTimer; // what other programs did waits for an open cell

    /// Details of one day, as getDetails left them.
    std::string theMeds;
    std::string theExercises;
    std::string theFoods;
    int medLines = 0;

    /// Opens or closes windows of other rooms; set by the shell. An empty one does nothing.
    std::function<void()> showResources;
    std::function<void()> closeResources;
    std::function<void()> showLogs;
    std::function<void()> showTeamAndMedications;
    std::function<void()> showGraph;
    std::function<void()> showSummary;
    std::function<void()> showHeadingsEditor;
    /// The days, their order, the selection, the limits, the headings or the date have changed.
    std::function<void()> daysChanged;
    /// Brings up the dialog of the limits with these in it.
    std::function<void(const UsualLimits::Limits& limits)> offerLimits;
    /// Shows a line of a log; false when it is not there.
    std::function<bool(const Search::Hit& hit)> showLogLine;
    /// The logs have other texts now, which another program wrote.
    std::function<void()> logsBroughtIn;
    /// Five minutes have gone without a save.
    std::function<void()> autosave;

    /// The file in which a journal was kept at opening, since the file "Tallyvane Journal" took its place; "" for none.
    std::string keptJournal;
    /// Dates that were found in another form at opening. Until the user has answered what they mean the table is not
    /// saved.
    const DateForms::Findings& datesInQuestion() const { return datesInQuestion_; }

    void Event_Open() override;
    void Event_Close() override;
    void Event_EnableMenuItems(MenuBar& menuBar) override;
    /// Nothing but what keeps a table that was made higher within the window: the geometry is read only at close.
    void Event_Resized() override { growTable(wantedTableGrowth_); }
    void Event_Moved() override {}

    /// The saves of closing: days, logs, window geometry, height of the table. All are run even if one fails; the first
    /// failure of days or logs is thrown at the end.
    void saveAll();
    /// The days, and the logs if they have changed since they were read or saved.
    void saveChanged();
    void saveData();
    void getData();
    /// Brings in what another program has changed in the file, as a step of its own, and says so in the line beside the
    /// journal's tab.
    void bringInChanges();
    /// Joins the table with a version that a synchroniser has left beside it.
    void bringIn(const ConflictCopies::Copy& copy);
    /// The same for journal and logs.
    void bringInLogs();
    /// Selects these rows, brings the first into view and gives the table the keys.
    void selectRows(const std::vector<bool>& rows);
    /// The user has answered: these days get the user's form, as a step of its own.
    void answerDates(const std::vector<DateForms::MeantDay>& days);
    void saveLogs();
    void getLogs();
    /// Reads the details of a row's day into the four properties; they are empty for a day without any.
    void getDetails(int row);
    void saveWindowData();
    void getWindowData();
    void getHeadings();
    void showHeadings(const Headings& headings);

    void doAverages();
    void doRowAverages();
    void doSelectedAverages();
    bool checkForSelection() const;
    std::optional<Picture> getLight(double value) const;
    void doSortColumns();
    void doColWidth();

    void ListBox1_Open();
    void ListBox1_Change();
    bool ListBox1_CellClick(int row, int column, int x, int y);
    bool ListBox1_CellKeyDown(int row, int column, const std::string& key);
    void ListBox1_CellTextChange(int row, int column);
    bool ListBox1_HeaderPressed(int column);
    bool ListBox1_CellBackgroundPaint(Graphics& g, int row, int column);
    std::string ListBox1_CellDescription(int row, int column) const;
    bool ListBox1_CellTextPaint(Graphics& g, int row, int column, int x, int y);
    void BevelButton1_Action();
    void BevelButton2_Action();
    void CalendarControl1_DayDoubleClicked();
    void CalendarControl1_DayClicked();
    void JournalFld_TextChange();
    void DaysGoTo_Action();
    void DaysToday_Action();
    void DaysFind_Action();
    void AutoButton13_Action();
    void AutoButton14_Action();
    void AutoButton15_Action();
    void PrintLog(const TextArea& field);
    void SaveJournalToDisk(const TextArea& field, const std::string& prompt);
    void Toolbar11_Action(const ToolItem& item);
    void Timer1_Action();
    /// A calendar that stands on what was today goes to the new day.
    void MidnightTimer_Action();

private:
    void build();
    void layOut();
    void wire();
    void addDay();
    void tellDaysChanged();
    void toggleResources();
    void graphSelectedDays();
    void showDaysAnew();

    // The menu "Days" and the calendar
    MenuHandlers daysMenu();
    bool goToDay(const Date& day);
    bool goToHit(const Search::Hit& hit);
    void show(const DayMerge::Result& joined);
    void tellOf(const DayMerge::Result& joined);
    void showConflicts(const std::vector<DayMerge::Conflict>& conflicts);
    bool takeOther(const DayMerge::Conflict& conflict);
    void selectPeriod(const Finding::Period& period);
    void showBoldDays();

    void growTable(int points);
    void dragTable(int points);
    int tableGrowth() const { return ListBox1.Height() - listHeight; }
    void saveTableGrowth();
    void fillStrip(const Averages::Sums& sums);

    std::string columnName(int column) const;

    std::array<StaticText*, 4> groupLabels();
    std::array<StaticText*, Averages::columns> stripLabels();
    std::array<Canvas*, 8> stripLights();

    Averages averages_{ListBox1};
    ListHistory history_{ListBox1, DayTable::visibleColumns};
    std::unique_ptr<DateWindow> dateWindow_;
    std::unique_ptr<GoToDayWindow> goToDayWindow_;
    std::unique_ptr<FindWindow> findWindow_;
    std::unique_ptr<ConflictWindow> conflictWindow_;
    StripNotes notes_{StripLine, ListBox1, history_};
    int wantedTableGrowth_ = 0; // as the table was dragged, also while the window has no room for it
    DateForms::Findings datesInQuestion_;
    int daysShownBold_ = 0; // how many rows there were when the calendar was told of its bold days
    Date today_; // as the calendar last knew it
};

} // namespace tallyvane

#include "summary/summary_window.h"

#include <algorithm>
#include <cstddef>

#include "platform/base/number.h"
#include "platform/base/translation.h"
#include "platform/desktop/desktop.h"
#include "platform/drawing/surface_part.h"
#include "platform/files/io_exception.h"
#include "platform/files/replacement.h"
#include "platform/printing/printing.h"
#include "platform/windows/dialogs.h"
#include "platform/windows/wiring.h"
#include "settings/globals.h"
#include "settings/list_colors.h"
#include "summary/charts.h"
#include "summary/day_pages.h"
#include "summary/figures_table.h"
#include "summary/remarks.h"
#include "summary/visit_page.h"

namespace tallyvane {

namespace {

constexpr int width = 930;
constexpr int height = 600;
constexpr Rect tabPage{174, 96, 742, 484}; // below the row of tabs
constexpr std::size_t figureColumns = 9; // of the table, with the names; those of the ranges follow
constexpr double screenSize = 1.2; // of the first figures, against paper

constexpr Rect onPage(int left, int top, int w, int h) { return {tabPage.left + left, tabPage.top + top, w, h}; }

/// The pictures bring a light ground along, whatever the desktop's theme.
void fillWhite(Graphics& g) {
    g.ForeColor(RGB(255, 255, 255));
    g.FillRect(0, 0, g.Width(), g.Height());
}

/// Draws on white, some points from the edges.
template <class Draw>
std::function<void(Graphics& g)> onWhite(Draw draw) {
    return [draw](Graphics& g) {
        constexpr double margin = 8;
        fillWhite(g);
        SurfacePart inner(g, margin, margin, g.Width() - 2 * margin, g.Height() - 2 * margin);
        draw(inner);
    };
}

enum class Part { figures, ranges };

/// The name of the test period, and of the other columns those that a list shows.
Summary::TableRow part(const Summary::TableRow& row, Part part) {
    const auto ranges = row.begin() + static_cast<std::ptrdiff_t>(figureColumns);
    if (part == Part::figures)
        return {row.begin(), ranges};
    Summary::TableRow shown{row.front()};
    shown.insert(shown.end(), ranges, row.end());
    return shown;
}

void buildList(Listbox& list, const Summary::TableRow& headings) {
    for (int column = 0; column < list.ColumnCount(); ++column) {
        list.Heading(column, headings[static_cast<std::size_t>(column)]);
        list.ColumnAlignment(column, column == 0 ? Listbox::AlignLeft : Listbox::AlignRight);
    }
    list.HeaderPressed = [](int) { return true; }; // the order stays
    list.Colors(listColors);
    list.Border(true);
    list.DefaultRowHeight(22);
    list.TextSize(13);
}

std::string joined(const std::vector<std::string>& lines) {
    std::string text;
    for (const std::string& line : lines)
        text += (text.empty() || line.empty() ? "" : std::string(EndOfLine)) + line;
    return text;
}

} // namespace

SummaryWindow::SummaryWindow(const Listbox& days)
    : ListBox1(figureColumns), ListBox2(1 + Ranges::all.size()), days_(days) {
    shape(Kind::document, width, height, {width, anySize, height, anySize});
    Title(tr("Summary"));
    layOut();
    build();
    wire();
}

void SummaryWindow::layOut() {
    constexpr unsigned lockWidth = lockLeft | lockTop | lockRight;
    const int third = tabPage.width / 3;
    place({
        {&GroupBox1, {10, 12, 148, 292}},
        {&Periods[0], {18, 40, 136, 24}},
        {&Periods[1], {18, 68, 136, 24}},
        {&Periods[2], {18, 96, 136, 24}},
        {&Periods[3], {18, 124, 136, 24}},
        {&Periods[4], {18, 152, 136, 24}},
        {&Periods[5], {18, 180, 136, 24}},
        {&Periods[6], {18, 208, 136, 24}},
        {&Periods[7], {18, 236, 136, 24}},
        {&Periods[8], {18, 264, 136, 24}},
        {&PushButton1, {10, 320, 148, 32}},
        {&PushButton2, {10, 360, 148, 32}},
        {&PushButton3, {10, 400, 148, 32}},
        {&StaticText1, {168, 4, 756, 36}, lockWidth},
        {&LinkLine1, {168, 40, 756, 20}, lockWidth},
        {&TabPanel1, {166, 60, 758, 528}, lockAll},
        {&Canvas1, onPage(0, 0, tabPage.width, 100), lockWidth, &TabPanel1, 0},
        {&ListBox1, onPage(0, 108, tabPage.width, 206), lockWidth, &TabPanel1, 0},
        {&TextArea2, onPage(0, 324, tabPage.width, 158), lockAll, &TabPanel1, 0},
        {&Canvas2, onPage(0, 0, tabPage.width, 452), lockAll, &TabPanel1, 1},
        {&StaticText3, onPage(0, 458, tabPage.width, 22), lockLeft | lockRight | lockBottom, &TabPanel1, 1},
        {&StaticText4, onPage(0, 0, 2 * third - 6, 20), lockLeft | lockTop, &TabPanel1, 2},
        {&Canvas3, onPage(0, 24, 2 * third - 10, 456), lockLeft | lockTop | lockBottom, &TabPanel1, 2},
        {&StaticText6, onPage(2 * third, 0, third, 20), lockWidth, &TabPanel1, 2},
        {&Canvas5, onPage(2 * third, 24, tabPage.width - 2 * third, 456), lockAll, &TabPanel1, 2},
        {&ListBox2, onPage(0, 0, tabPage.width, 206), lockWidth, &TabPanel1, 3},
        {&StaticText5, onPage(0, 218, tabPage.width, 20), lockWidth, &TabPanel1, 3},
        {&Canvas4, onPage(0, 242, tabPage.width, 240), lockAll, &TabPanel1, 3},
        {&StaticText7, onPage(0, 8, 300, 20), lockLeft | lockTop, &TabPanel1, 4},
        {&TextField1, onPage(0, 30, 400, 28), lockWidth, &TabPanel1, 4},
        {&StaticText8, onPage(0, 72, 300, 20), lockLeft | lockTop, &TabPanel1, 4},
        {&TextArea1, onPage(0, 94, tabPage.width, 220), lockAll, &TabPanel1, 4},
        {&CheckBox1, onPage(0, 326, tabPage.width, 24), lockLeft | lockRight | lockBottom, &TabPanel1, 4},
        {&Timer1},
    });
}

void SummaryWindow::build() {
    GroupBox1.Caption(tr("Period"));
    const std::array<std::string, 9> periods{tr("Last 7 days"),  tr("Last 14 days"), tr("Last 30 days"),
                                             tr("Last 90 days"), tr("This month"),   tr("Last month"),
                                             tr("This year"),    tr("All days"),     tr("Selected days")};
    for (std::size_t i = 0; i < periods.size(); ++i)
        Periods[i].Caption(periods[i]);
    RadioButton::join({&Periods[0], &Periods[1], &Periods[2], &Periods[3], &Periods[4], &Periods[5], &Periods[6],
                       &Periods[7], &Periods[8]});
    Periods[static_cast<std::size_t>(Summary::Span::last30)].Value(true);
    PushButton1.Caption(tr("Print..."));
    PushButton2.Caption(tr("Save as PDF..."));
    PushButton3.Caption(tr("Export Figures..."));
    StaticText1.Bold(true);
    StaticText1.Multiline(true); // in large letters
    TabPanel1.Captions({tr("Figures"), tr("Course"), tr("The Day"), tr("Ranges"), tr("For the Visit")});

    ListBox1.ColumnWidths("18%,8%,8%,10%,10%,8%,8%,15%,15%");
    ListBox2.ColumnWidths("25%,15%,15%,15%,15%,15%");
    ListBox1.AccessibleName(tr("Figures by test period"));
    ListBox2.AccessibleName(tr("Ranges by test period"));
    const Summary::TableRow headings = Summary::tableHeadings();
    buildList(ListBox1, part(headings, Part::figures));
    buildList(ListBox2, part(headings, Part::ranges));
    TextArea2.ReadOnly(true);
    TextArea2.AccessibleName(tr("What stands out"));
    StaticText3.Text(tr("Point at a reading to see it; a click selects its day."));
    StaticText4.Text(tr("The day: the middle half of the readings in the box, the median as a line"));
    StaticText5.Text(tr("Shares of your five ranges"));
    StaticText6.Text(tr("Rise from before to after"));
    StaticText7.Text(tr("Name on the page"));
    StaticText8.Text(tr("What I want to ask"));
    CheckBox1.Caption(tr("Print the days too, 40 on a page"));
    TextField1.AccessibleName(StaticText7.Text());
    TextArea1.AccessibleName(StaticText8.Text());
    Canvas2.TracksPointer(true);
    Timer1.Period(1);
}

void SummaryWindow::wire() {
    for (RadioButton& period : Periods)
        period.Action = [this] { update(); };
    Timer1.Action = [this] { update(); };
    Canvas1.Paint = onWhite([this](Graphics& g) { drawKeyFigures(g, summary_, screenSize); });
    Canvas2.Paint = [this](Graphics& g) { paintCourse(g); };
    Canvas2.PointerMoved = [this](int x, int y) { showReadingAt(x, y); };
    Canvas2.Pressed = [this](int x, int y) { selectReadingAt(x, y); };
    Canvas3.Paint = onWhite([this](Graphics& g) { drawDay(summary_, g); });
    Canvas4.Paint = onWhite([this](Graphics& g) { drawShares(summary_, g); });
    Canvas5.Paint = onWhite([this](Graphics& g) { drawRises(summary_, g); });
    Wiring(*this).connect({
        {PushButton1.Action, &SummaryWindow::PushButton1_Action},
        {PushButton2.Action, &SummaryWindow::PushButton2_Action},
        {PushButton3.Action, &SummaryWindow::PushButton3_Action},
    });
    menuHandlers["FilePrint"] = [this] { PushButton1_Action(); };
}

void SummaryWindow::Event_Open() {
    const Summary::VisitTexts texts = Summary::readVisitTexts();
    TextField1.Text(texts.patient);
    TextArea1.Text(texts.questions);
    update();
}

void SummaryWindow::Event_Close() { saveTexts(); }

void SummaryWindow::daysChanged() { Timer1.Mode(Timer::ModeSingle); }

void SummaryWindow::saveTexts() { Summary::saveVisitTexts({TextField1.Text(), TextArea1.Text()}); }

Summary::Span SummaryWindow::span() const {
    const auto chosen = std::find_if(Periods.begin(), Periods.end(), [](const RadioButton& p) { return p.Value(); });
    return static_cast<Summary::Span>(chosen - Periods.begin());
}

// The figures

void SummaryWindow::update() {
    Timer1.Mode(Timer::ModeOff);
    summary_ = Summary::summarize(days_, span(), Date());
    course_.reset(); // made when it is to be seen
    finishedCourse_.reset();
    showFigures();
    Refresh();
}

void SummaryWindow::showFigures() {
    if (summary_.span == Summary::Span::selected && summary_.rows.empty())
        StaticText1.Text(tr("No days are selected in the table."));
    else
        StaticText1.Text(Summary::headWords(summary_));
    std::vector<int> rows = summary_.readings.unreadableRows;
    rows.insert(rows.end(), summary_.rowsOfOtherUnit.begin(), summary_.rowsOfOtherUnit.end());
    rows.insert(rows.end(), summary_.undatedRows.begin(), summary_.undatedRows.end());
    std::vector<LinkLine::Link> links;
    if (!rows.empty())
        links.push_back({tr("Select them"), [this, rows] { selectAll(rows); }});
    LinkLine1.show(Summary::leftOutWords(summary_), std::move(links));
    for (Listbox* list : {&ListBox1, &ListBox2})
        list->DeleteAllRows();
    for (const Summary::TableRow& row : Summary::tableRows(summary_)) {
        ListBox1.AddRows({part(row, Part::figures)});
        ListBox2.AddRows({part(row, Part::ranges)});
    }
    std::vector<std::string> lines = Summary::remarksOn(summary_);
    lines.push_back(Summary::weightWords(summary_));
    lines.push_back(Summary::limitsWords(summary_));
    TextArea2.Text(joined(lines));
    std::string key;
    for (const Summary::KeyFigure& figure : Summary::keyFigures(summary_))
        key += figure.name + ": " + figure.value + ", " + figure.note + ". ";
    Canvas1.AccessibleName(key);
    Canvas2.AccessibleName(tr("Course of the readings: %1", {StaticText1.Text()}));
    Canvas3.AccessibleName(StaticText4.Text());
    Canvas4.AccessibleName(StaticText5.Text());
    Canvas5.AccessibleName(StaticText6.Text());
}

// The pictures

void SummaryWindow::paintCourse(Graphics& g) {
    const int w = Canvas2.Width();
    const int h = Canvas2.Height();
    if (!course_)
        course_ = std::make_unique<Summary::CourseChart>(summary_);
    if (!finishedCourse_ || finishedCourse_->Width() != w || finishedCourse_->Height() != h) {
        finishedCourse_.emplace(w, h, 32);
        fillWhite(finishedCourse_->Graphics());
        course_->draw(finishedCourse_->Graphics());
    }
    g.DrawPicture(*finishedCourse_, 0, 0);
}

void SummaryWindow::showReadingAt(int x, int y) {
    const std::optional<Summary::Reading> reading = course_ ? course_->readingAt(x, y) : std::nullopt;
    if (!reading) {
        StaticText3.Text(tr("Point at a reading to see it; a click selects its day."));
        return;
    }
    const std::string& when = summary_.names.words[static_cast<std::size_t>(reading->testPeriod)];
    StaticText3.Text(tr("%1, %2: %3 %4",
                        {reading->day->AbbreviatedDate(), when, Str(reading->value), Summary::nameOf(summary_.unit)}));
}

void SummaryWindow::selectReadingAt(int x, int y) {
    if (const auto reading = course_ ? course_->readingAt(x, y) : std::nullopt)
        selectAll({reading->row});
}

/// The rows are those of the summary: where the table has changed since, they may be of other days.
void SummaryWindow::selectAll(const std::vector<int>& rows) {
    if (Timer1.Mode() != Timer::ModeOff) {
        update();
        return;
    }
    std::vector<bool> selected(static_cast<std::size_t>(days_.ListCount()));
    for (const int row : rows)
        if (row < days_.ListCount())
            selected[static_cast<std::size_t>(row)] = true;
    if (selectRows)
        selectRows(selected);
}

// The page for the visit

/// Of the table as it is at that moment: a preview stays open while other programs change it.
void SummaryWindow::drawPages(Graphics& g) const {
    const Summary::PeriodSummary summary = Summary::summarize(days_, span(), Date());
    const int pages = 1 + (CheckBox1.Value() ? Summary::dayPageCount(summary) : 0);
    Summary::drawVisitPage(g, summary,
                           {{TextField1.Text(), TextArea1.Text()}, Summary::medicationLines(), Date(), pages});
    if (CheckBox1.Value())
        Summary::drawDayPages(g, days_, summary, 2, pages);
}

const Paper* SummaryWindow::paper() { return Globals::ps ? Globals::ps->paper() : nullptr; }

void SummaryWindow::PushButton1_Action() {
    saveTexts();
    update();
    Printers::current().preview(paper(), Summary::visitTitle(summary_), [this](Graphics& g) { drawPages(g); });
}

void SummaryWindow::PushButton2_Action() {
    saveTexts();
    update();
    const SaveAsDialog dialog{tr("Save as PDF"), tr("Save the page as:"), Summary::visitTitle(summary_), ".pdf"};
    const std::optional<FolderItem> file = dialog.ShowModal();
    if (!file)
        return;
    const PdfTexts texts{Summary::visitTitle(summary_), TextField1.Text()};
    const std::string pdf = Printers::current().pdfOf(paper(), texts, [this](Graphics& g) { drawPages(g); });
    write(*file, pdf);
}

/// The file stays as it was where that can't be.
void SummaryWindow::write(const FolderItem& file, const std::string& content) {
    try {
        if (!content.empty())
            writeFile(file.AbsolutePath(), content, Replacement::Recorded::unlessNew);
        else
            MsgBox(tr("\u201c%1\u201d could not be made.", {file.AbsolutePath()}));
    } catch (const IOException& failure) {
        MsgBox(tr("\u201c%1\u201d could not be written: %2", {file.AbsolutePath(), failure.why()}));
    }
}

void SummaryWindow::PushButton3_Action() {
    const SaveAsDialog dialog{tr("Export Figures"), tr("Save the figures as:"), tr("Figures"), ".csv"};
    if (const std::optional<FolderItem> file = dialog.ShowModal())
        write(*file, Summary::figuresCsv(summary_));
}

} // namespace tallyvane

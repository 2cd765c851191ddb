#include "reports/diary_report.h"

#include <algorithm>
#include <cmath>

#include "diary/strip_words.h"
#include "platform/base/text.h"
#include "platform/base/translation.h"
#include "platform/desktop/desktop.h"
#include "settings/globals.h"

namespace tallyvane {

namespace {

// In points. On a page higher than the threshold the lines fill 650 points, on any other 450.
constexpr double tallPageThreshold = 600;
constexpr double heightOnTallPage = 650;
constexpr double heightOnLowPage = 450;

std::string title() { return tr("Tallyvane Report"); }

} // namespace

int countLines2(const std::string& text, double width, const Graphics& g) {
    int lines = 0;
    for (FieldWalk paragraphs(text, EndOfLine); !paragraphs.atEnd();) {
        const std::string_view paragraph = paragraphs.next();
        lines += paragraph.empty() ? 1 : static_cast<int>(std::ceil(g.StringWidth(paragraph) / width));
    }
    return lines;
}

void DiaryReport::PrintAll(const std::string& pdfName) {
    if (!Globals::ps)
        Globals::ps = std::make_unique<PrinterSetup>();
    const std::unique_ptr<Graphics> g = OpenPrinterDialog(Globals::ps.get(), pdfName);
    if (!g)
        return;
    const bool isTall = Globals::ps->Height() > tallPageThreshold;
    print(*g, title(), isTall ? heightOnTallPage : heightOnLowPage, Days::all);
}

void DiaryReport::FilePrint_Action() { PrintAll(); }

bool DiaryReport::FilePrintSelected_Action() {
    const std::unique_ptr<Graphics> g = OpenPrinterDialog(Globals::ps.get());
    if (!g)
        return true;
    print(*g, tr("Marklog Report"), heightOnTallPage, Days::selected);
    return false;
}

void DiaryReport::FileSaveAsPDF_Action() {
    MsgBox(tr("In the dialog that follows select 'Save as PDF...' from the PDF button menu."));
    PrintAll(title());
}

void FilePrintSetup_Action() {
    auto setup = std::make_unique<PrinterSetup>();
    if (setup->PageSetupDialog())
        Globals::ps = std::move(setup);
}

ReportPage::Cells DiaryReport::cellsOf(int row) const {
    ReportPage::Cells cells;
    for (std::size_t column = 0; column < cells.size(); ++column)
        cells[column] = diary_.ListBox1.Cell(row, static_cast<int>(column));
    return cells;
}

ReportPage::Cells DiaryReport::averages() const {
    const Window1& d = diary_;
    return {tr("Averages: "),     d.StaticText1.Text(),  d.StaticText2.Text(),
            d.StaticText3.Text(), d.StaticText4.Text(),  d.StaticText5.Text(),
            d.StaticText6.Text(), d.StaticText23.Text(), d.StaticText22.Text()};
}

void DiaryReport::print(Graphics& g, const std::string& title, double height, Days days) {
    g.TextFont("Verdana");
    g.TextSize(12);
    ReportPage page(g, static_cast<int>(height / g.TextHeight()));
    page.drawHead(title);
    for (int row = 0; row < diary_.ListBox1.ListCount(); ++row) {
        if (days == Days::selected && !diary_.ListBox1.Selected(row))
            continue;
        page.ensureLines(1);
        page.drawDay(cellsOf(row));
        if (Globals::gIncludeMeds || Globals::gIncludeExercise || Globals::gIncludeFood)
            diary_.getDetails(row);
        printDetails(page, g);
        page.skipLine();
        page.ensureLines(0);
    }
    page.skipLine();
    page.drawAverages(averages());
    if (diary_.ListBox1.SelectedCount() == 0)
        return;
    page.skipLine(); // the strip's averages are those of the selected days, also in a report of all
    page.drawNote(StripWords::ofTable(diary_.ListBox1));
}

void DiaryReport::printDetails(ReportPage& page, const Graphics& g) {
    page.ensureLines(0);
    if (Globals::gIncludeMeds) {
        // What is too wide for the page takes more lines than the file has.
        const int wrapped = diary_.theMeds.empty() ? 0 : countLines2(diary_.theMeds, page.detailWidth(), g);
        const int lines = std::max(diary_.medLines, wrapped);
        page.ensureLines(lines);
        if (!diary_.theMeds.empty())
            page.drawDetail(tr("Medication: "), diary_.theMeds, lines - 1);
    }
    const auto printEstimated = [&](bool included, const std::string& label, const std::string& text) {
        page.ensureLines(0);
        if (!included)
            return;
        const int lines = countLines2(text, page.detailWidth(), g);
        page.ensureLines(lines);
        if (!text.empty())
            page.drawDetail(label, text, lines);
    };
    printEstimated(Globals::gIncludeExercise, tr("Exercise: "), diary_.theExercises);
    printEstimated(Globals::gIncludeFood, tr("Food: "), diary_.theFoods);
    page.ensureLines(0);
}

} // namespace tallyvane

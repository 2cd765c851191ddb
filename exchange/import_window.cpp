#include "exchange/import_window.h"

#include <algorithm>

#include "diary/date_question.h"
#include "diary/sort_keys.h"
#include "platform/base/number.h"
#include "platform/base/text.h"
#include "platform/base/translation.h"
#include "platform/windows/dialogs.h"
#include "platform/windows/wiring.h"

namespace tallyvane {

importWindow::importWindow(Listbox& days) : days_(days) {
    shape(Kind::fixed, 400, 220);
    Title(tr("Untitled"));
    place({
        {&StaticText1, {16, 14, 368, 26}},
        {&RadioButton1, {32, 50, 336, 28}},
        {&RadioButton2, {32, 84, 336, 28}},
        {&StaticText2, {16, 112, 368, 24}},
        {&ProgressBar1, {16, 138, 368, 24}},
        {&PushButton1, {278, 174, 106, 30}},
        {&PushButton2, {162, 174, 106, 30}},
        {&Timer1},
    });
    StaticText1.Text(tr("Select the format of the data to be imported:"));
    RadioButton1.Caption(tr("Comma separted (CSV) data"));
    RadioButton2.Caption(tr("Tab delimited data"));
    RadioButton::join({&RadioButton1, &RadioButton2});
    RadioButton1.Value(true);
    ProgressBar1.AccessibleName(tr("Progress of the import"));
    ProgressBar1.Visible(false);
    PushButton1.Caption(tr("OK"));
    PushButton1.Default(true);
    PushButton2.Caption(tr("Cancel"));
    PushButton2.Cancel(true);
    Timer1.Period(1);
    Wiring(*this).connect({
        {RadioButton1.Action, &importWindow::RadioButton1_Action},
        {RadioButton2.Action, &importWindow::RadioButton2_Action},
        {PushButton1.Action, &importWindow::PushButton1_Action},
        {PushButton2.Action, &importWindow::Close},
        {Timer1.Action, &importWindow::Timer1_Action},
    });
}

void importWindow::offer(const FolderItem& file) {
    offered_ = file;
    StaticText2.Text(tr("File: %1", {file.DisplayName()}));
}

void importWindow::Event_Open() { theDelim = "comma"; }

/// Cancels an import in progress; the table stays unchanged.
void importWindow::Event_Close() {
    Timer1.Mode(Timer::ModeOff);
    reader_.reset();
}

void importWindow::RadioButton1_Action() {
    if (RadioButton1.Value())
        theDelim = "comma";
}

void importWindow::RadioButton2_Action() {
    if (RadioButton2.Value())
        theDelim = "tab";
}

void importWindow::PushButton1_Action() {
    constexpr ImportReader::Milliseconds patience(500); // of the user, without seeing progress
    theDelim = theDelim == "comma" ? "," : Chr(9);
    const OpenDialog dialog{tr("Select glucose readings data file"), "txt,csv"};
    if (const std::optional<FolderItem> file = offered_ ? offered_ : dialog.ShowModal())
        reader_ = ImportReader::open(*file, theDelim);
    if (reader_)
        continueReading(patience);
    else
        Close();
}

void importWindow::Timer1_Action() {
    constexpr ImportReader::Milliseconds slice(50);
    if (reader_)
        continueReading(slice);
}

void importWindow::continueReading(ImportReader::Milliseconds time) {
    if (!reader_->readFor(time)) {
        showProgress();
        Timer1.Mode(Timer::ModeSingle);
        return;
    }
    appendRows(reader_->takeRows());
    Close();
}

/// Appends the rows and selects them, which raises Change and so updates the averages.
void importWindow::appendRows(std::vector<ImportReader::Row> rows) {
    std::vector<DateForms::DatedRow> dates;
    dates.reserve(rows.size());
    for (const ImportReader::Row& row : rows)
        dates.push_back({row.front(), ""});
    const DateForms::Findings found = DateForms::find(dates);
    const auto rewritten = found.isEmpty() ? std::vector<DateForms::MeantDay>{} : DateQuestion::ask(found);
    if (!rewritten)
        return; // the program was ended: nobody knows what the dates mean
    const int first = days_.ListCount();
    days_.beginStep(rows.size() == 1 ? tr("Import of 1 Day")
                                     : tr("Import of %1 Days", {Grouped(static_cast<int>(rows.size()))}));
    days_.AddRows(std::move(rows));
    DateForms::rewrite(days_, *rewritten, first);
    SortKeys::rebuild(days_);
    std::vector<bool> isNew(static_cast<std::size_t>(days_.ListCount()));
    std::fill(isNew.begin() + first, isNew.end(), true);
    days_.select(isNew);
    days_.ScrollPosition(first);
}

void importWindow::showProgress() {
    for (Control* choice : std::initializer_list<Control*>{&RadioButton1, &RadioButton2, &PushButton1})
        choice->Enabled(false);
    ProgressBar1.Visible(true);
    ProgressBar1.Value(static_cast<int>(reader_->progress() * ProgressBar1.Maximum()));
}

} // namespace tallyvane

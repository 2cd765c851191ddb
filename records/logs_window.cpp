#include "records/logs_window.h"

#include "platform/base/translation.h"
#include "platform/printing/print_and_save.h"
#include "platform/windows/wiring.h"
#include "settings/data_files.h"
#include "settings/globals.h"
#include "settings/log_record.h"
#include "settings/unsaved_files.h"

namespace tallyvane {

namespace {

constexpr Rect fieldFrame{30, 108, 560, 330};

UnsavedFiles::UserFile userFile() {
    return UnsavedFiles::UserFile::ofInnerFolder(tr("The logs"), DataFiles::runningLogs);
}

} // namespace

logsWindow::logsWindow() {
    shape(Kind::document, 620, 510, 330, anySize);
    Title(tr("Logs"));
    place({
        {&AutoButton1, {18, 14, 32, 32}},
        {&AutoButton2, {62, 14, 32, 32}},
        {&AutoButton3, {106, 14, 32, 32}},
        {&TabPanel1, {16, 64, 588, 390}, lockAll},
        {&FoodFld, fieldFrame, lockAll, &TabPanel1, 0},
        {&ExerciseFld, fieldFrame, lockAll, &TabPanel1, 1},
        {&MedicationFld, fieldFrame, lockAll, &TabPanel1, 2},
        {&PushButton1, {498, 466, 106, 30}, lockLeft | lockBottom},
    });
    AutoButton1.Backdrop(Picture("calendarpng_32x32.png"));
    AutoButton1.HelpTag(tr("Add date to log"));
    AutoButton2.Backdrop(Picture("printItem3.png"));
    AutoButton2.HelpTag(tr("Print log"));
    AutoButton3.Backdrop(Picture("download_pagepng_32x32.png"));
    AutoButton3.HelpTag(tr("Save log"));
    for (AutoButton* button : {&AutoButton1, &AutoButton2, &AutoButton3})
        button->AccessibleName(button->HelpTag());
    TabPanel1.Captions({tr("Food"), tr("Exercise"), tr("Medication")});
    for (const Page& page : pages()) {
        page.field->AccessibleName(page.fileName);
        page.field->TextChange = [page] { *page.log = page.field->Text(); };
    }
    PushButton1.Caption(tr("OK"));
    focusFirst(FoodFld);

    Wiring(*this).connect({
        {AutoButton1.Action, &logsWindow::AutoButton1_Action},
        {AutoButton2.Action, &logsWindow::AutoButton2_Action},
        {AutoButton3.Action, &logsWindow::AutoButton3_Action},
        {PushButton1.Action, &logsWindow::PushButton1_Action},
    });
}

std::array<logsWindow::Page, 3> logsWindow::pages() {
    return {{
        {&FoodFld, &Globals::gFood, tr("Tallyvane Food Log"), tr("Save Food Log")},
        {&ExerciseFld, &Globals::gExercise, tr("Tallyvane Exercise Log"), tr("Save Exercise Log")},
        {&MedicationFld, &Globals::gMedication, tr("Tallyvane Medication Log"), tr("Save Medical Log")},
    }};
}

void logsWindow::getLogs() {
    if (std::optional<TextInputStream> stream = UnsavedFiles::openText(userFile()))
        show(readLogRecord(*stream));
}

void logsWindow::show(const LogRecord& record) {
    // Showing a text also puts it, with its line ends, into its global; an empty one changes nothing.
    Globals::gExercise = record.exercise;
    ExerciseFld.Text(withLineEnds(record.exercise));
    Globals::gFood = record.food;
    FoodFld.Text(withLineEnds(record.food));
    Globals::gMedication = record.medication;
    MedicationFld.Text(withLineEnds(record.medication));
}

void logsWindow::bringInChanges() {
    const std::optional<std::string> joined = UnsavedFiles::joinOutside(userFile(), logRecord(), joinLogRecords);
    if (!joined)
        return;
    TextInputStream stream(*joined);
    show(readLogRecord(stream));
}

void logsWindow::Event_Open() {
    getLogs();
    UnsavedFiles::setBaseline(userFile(), logRecord());
}

void logsWindow::saveChanged() {
    bringInChanges();
    UnsavedFiles::saveIfChanged(userFile(), logRecord());
}

void logsWindow::saveLogs() {
    bringInChanges();
    UnsavedFiles::save(userFile(), logRecord());
}

void logsWindow::saveToDisk(const TextArea& field, const std::string& prompt) {
    for (const Page& candidate : pages())
        if (candidate.field == &field)
            saveText(field.Text(), {tr("Save"), prompt, candidate.fileName});
}

void logsWindow::printLog(const TextArea& field) { printText(field.Text()); }

bool logsWindow::showLine(Log log, int number, const std::string& line) {
    TabPanel1.Value(static_cast<int>(log));
    return page().field->showLine(number, line);
}

void logsWindow::AutoButton1_Action() { page().field->SelText(Date().AbbreviatedDate()); }

void logsWindow::AutoButton2_Action() { printLog(*page().field); }

void logsWindow::AutoButton3_Action() { saveToDisk(*page().field, page().prompt); }

} // namespace tallyvane

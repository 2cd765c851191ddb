#include "exchange/archive.h"

#include "diary/day_table.h"
#include "platform/base/text.h"
#include "platform/base/translation.h"
#include "platform/desktop/desktop.h"
#include "platform/printing/print_and_save.h"

namespace tallyvane {

namespace {

const std::string between(5, ' ');

std::string lineOf(const Listbox& days, int row) {
    std::string line = days.Cell(row, DayTable::dateColumn);
    for (int column = DayTable::firstReading; column <= DayTable::lastReading; ++column) {
        const std::string& reading = days.Cell(row, column);
        line += between + (reading.empty() ? "--" : reading);
    }
    return line + between + "AV: " + days.Cell(row, DayTable::averageColumn);
}

} // namespace

std::string archiveSelected(const Listbox& days) {
    std::string text;
    for (int row = 0; row < days.ListCount(); ++row)
        if (days.Selected(row))
            text.append(lineOf(days, row)).append(EndOfLine).append(EndOfLine);
    return text;
}

void FileArchiveSelectedDays_Action(const Listbox& days) {
    if (days.SelectedCount() == 0)
        MsgBox(tr("Please select 2 or more rows to archive"));
    else
        saveText(archiveSelected(days) + EndOfLine, {tr("Save archive"), tr("Enter name"), tr("untitled")});
}

} // namespace tallyvane

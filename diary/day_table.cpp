#include "diary/day_table.h"

#include "platform/base/text.h"
#include "platform/base/translation.h"
#include "platform/files/text_output_stream.h"
#include "settings/data_files.h"
#include "settings/globals.h"

namespace tallyvane::DayTable {

namespace {

UnsavedFiles::UserFile userFile() {
    const std::optional<FolderItem>& folder = StartupGlobals::gDataFolder;
    return {tr("Your days"), std::string(DataFiles::dayTable),
            folder ? DataFiles::placeIn(*folder, DataFiles::dayTable) : std::nullopt};
}

std::string textOf(const Listbox& table) {
    TextWriter rows;
    for (int row = 0; row < table.ListCount(); ++row)
        rows.WriteFields(table.cells(row).first(savedColumns), DataFiles::fieldSeparator);
    return rows.text();
}

/// In a dated file beside the table.
void keepBeside(const std::string& what, const std::string& content) {
    const std::string name = std::string(DataFiles::dayTable) + what + Date().isoDate();
    UnsavedFiles::writeNewCopy(*StartupGlobals::gDataFolder, name, content);
}

} // namespace

void setUp(Listbox& table) {
    table.ColumnAlignment(dateColumn, Listbox::AlignCenter);
    for (int column = firstReading; column <= weightColumn; ++column)
        table.ColumnAlignment(column, Listbox::AlignRight);
    for (int column = firstReading; column <= lastReading; ++column)
        table.ColumnType(column, Listbox::TypeEditable);
    table.ColumnType(weightColumn, Listbox::TypeEditable);
}

std::string columnWidths(int rows, int listHeight) {
    const bool overflow = (rows + 1) * rowHeight > listHeight; // the headings take the place of a row
    return overflow ? "82,72,72,72,72,72,72,72,72,72" : "82,72,72,72,72,72,72,72,72,87";
}

void addDay(Listbox& table, const Date& day) {
    table.beginStep(nameOfAdding(day));
    table.AddRow(day.ShortDate());
    table.ListIndex(table.LastIndex());
    table.EditCell(table.LastIndex(), firstReading);
}

std::string nameOfAdding(const Date& day) { return tr("New Day %1", {day.ShortDate()}); }

void save(const Listbox& table) { UnsavedFiles::save(userFile(), textOf(table)); }

void setBaseline(const Listbox& table) { UnsavedFiles::setBaseline(userFile(), textOf(table)); }

std::optional<UnsavedFiles::OutsideChange> changedOutside() { return UnsavedFiles::changedOutside(userFile()); }

std::vector<std::string> ancestorsOf(const std::string& version) {
    return UnsavedFiles::ancestorsOf(userFile(), version);
}

void acceptOutside(const Listbox& table, const UnsavedFiles::OutsideChange& change, bool saysTheSame) {
    UnsavedFiles::acceptOutside(userFile(), change, textOf(table), saysTheSame);
}

void keepOutside(const UnsavedFiles::OutsideChange& change) { keepBeside(" of another program ", change.there); }

void keepBefore(const UnsavedFiles::OutsideChange& change) { keepBeside(" before ", change.base); }

bool load(Listbox& table) {
    std::optional<TextInputStream> stream = UnsavedFiles::openText(userFile());
    if (stream)
        addDays(table, *stream);
    return stream.has_value();
}

void addDays(Listbox& table, TextInputStream& lines) {
    while (!lines.EndOfFile()) {
        const std::string_view line = lines.ReadLine();
        if (line.empty())
            continue;
        FieldWalk fields(line, DataFiles::fieldSeparator);
        table.AddRow(fields.next());
        for (int column = 1; column < savedColumns; ++column)
            table.Cell(table.LastIndex(), column, fields.next());
    }
}

} // namespace tallyvane::DayTable

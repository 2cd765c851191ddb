/// The day table: what its columns mean, how days come and go, and its file "7VXData".
///
/// The cells of one Listbox are the diary itself; there is no model behind them. A row is a day, a cell is the text
/// as typed, and a number is always Val of that text. A row has no identity but its place: two rows may bear one date.
#pragma once

#include "platform/base/date.h"
#include "platform/controls/listbox.h"
#include "platform/files/text_input_stream.h"
#include "settings/unsaved_files.h"

namespace tallyvane::DayTable {

inline constexpr int dateColumn = 0;
inline constexpr int firstReading = 1; // before breakfast ...
inline constexpr int lastReading = 7; // ... to before bed
inline constexpr int averageColumn = 8;
inline constexpr int weightColumn = 9;
inline constexpr int visibleColumns = 10;
/// Visible column c sorts by the hidden text in column c + firstKey.
inline constexpr int firstKey = 10;
/// The columns that the file keeps: all visible ones and the date's key.
inline constexpr int savedColumns = 11;
inline constexpr int columnCount = 20;

/// Points.
inline constexpr int rowHeight = 15;

/// Column types and alignments.
void setUp(Listbox& table);

/// Widths of the visible columns: the last one is wider while the rows need no scroll bar in a list of that height.
std::string columnWidths(int rows, int listHeight);

/// Appends a day, selects it alone and opens its first reading. A step of its own, of the name below.
void addDay(Listbox& table, const Date& day);

std::string nameOfAdding(const Date& day);

/// Replaces "7VXData" in the data folder by the table's rows in their present order. Without that folder, or when the
/// file can't be opened, the rows wait among the unsaved files; so they do when the disk fails, which throws
/// IOException and leaves the old file whole.
void save(const Listbox& table);

/// What another program has made of the file since it was read or saved.
[[nodiscard]] std::optional<UnsavedFiles::OutsideChange> changedOutside();
/// Earlier tables that a version left by a synchroniser stems from, as far as that is sure.
[[nodiscard]] std::vector<std::string> ancestorsOf(const std::string& version);
/// It is in the table now. `saysTheSame`: the table holds nothing else.
void acceptOutside(const Listbox& table, const UnsavedFiles::OutsideChange& change, bool saysTheSame);
/// Keep the file as another program wrote it, and as it was before, in a dated file beside it. Throw IOException when
/// the disk fails.
void keepOutside(const UnsavedFiles::OutsideChange& change);
void keepBefore(const UnsavedFiles::OutsideChange& change);

/// Sets the table, as it was just read, as the baseline: saving it unchanged never replaces a newer file.
void setBaseline(const Listbox& table);

/// Appends the days of "7VXData" to the table. False when there is no such file or it can't be opened.
[[nodiscard]] bool load(Listbox& table);
/// Appends the days of lines in the form of that file.
void addDays(Listbox& table, TextInputStream& lines);

} // namespace tallyvane::DayTable

/// Dates that were written on a desktop with another form of dates, and the days that they mean.
#pragma once

#include <string>
#include <vector>

#include "platform/base/date.h"
#include "platform/controls/listbox.h"

namespace tallyvane::DateForms {

/// A date as it was read from a file, with the key behind it; "" for none.
struct DatedRow {
    std::string date;
    std::string key;
};

/// A row, its date as it is written, and the day that this means.
struct MeantDay {
    int row = 0;
    std::string date;
    Date day;

    bool operator==(const MeantDay&) const = default;
};

struct Findings {
    /// Rows whose date is in another form: it reads as another day than it means, or as none. If no date at all is in
    /// the user's form, those too that can be read. If there are such rows, those too that lack or have leading zeros.
    std::vector<MeantDay> otherForm;

    /// All rows without a key, by each of the orders that fit them all; empty unless there are several.
    std::vector<std::vector<MeantDay>> ways;

    bool isEmpty() const { return otherForm.empty() && ways.empty(); }
};

/// Looks at rows with the keys that they came with. The dates without a key are taken together: what fits them all, and
/// brings their rows in order, is what they mean.
[[nodiscard]] Findings find(const std::vector<DatedRow>& rows);

/// The rows of a table.
[[nodiscard]] std::vector<DatedRow> rowsOf(const Listbox& table);

/// Writes the days in the user's form. Row 0 of the list of days is that row of the table.
void rewrite(Listbox& table, const std::vector<MeantDay>& days, int firstRow = 0);

} // namespace tallyvane::DateForms

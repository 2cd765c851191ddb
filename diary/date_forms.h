/// Dates of the table that were written on a desktop with another form of dates. A row's key tells the day that was
/// meant, whatever the desktop.
#pragma once

#include <optional>
#include <vector>

#include "platform/base/date.h"
#include "platform/controls/listbox.h"

namespace tallyvane::DateForms {

/// A row, and the day that its date means.
struct MeantDay {
    int row = 0;
    Date day;

    bool operator==(const MeantDay&) const = default;
};

struct Findings {
    /// Rows whose text is in another form: it reads as another day than it means, or as none. If no date at all is in
    /// the user's form, those too that can be read. If there are such rows, those too that lack or have leading zeros.
    std::vector<MeantDay> otherForm;

    /// Rows without a key whose texts all fit two orders, by both; empty when there are none.
    struct TwoWays {
        std::vector<MeantDay> one;
        std::vector<MeantDay> other;
    };
    TwoWays twoWays;

    bool isEmpty() const { return otherForm.empty() && twoWays.one.empty(); }
};

/// Looks at the rows from `first` on, with the keys that they came with: before keys are made anew. The texts without a
/// key are taken together: what fits them all, and brings their rows in order, is what they mean.
[[nodiscard]] Findings find(const Listbox& table, int first = 0);

/// Writes the days in the user's form.
void rewrite(Listbox& table, const std::vector<MeantDay>& days);

/// Of a list, the row whose text is most easily taken for another day: the first of which that is true, or just the
/// first. The list must not be empty.
[[nodiscard]] const MeantDay& example(const Listbox& table, const std::vector<MeantDay>& days);

} // namespace tallyvane::DateForms

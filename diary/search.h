/// Looking for a text in everything that the diary holds.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/controls/listbox.h"

namespace tallyvane::Search {

enum class Place { table, details, journal, food, exercise, medication };

struct Hit {
    Place place;
    // Of the day's row, for the table and the details; else 0
    std::uint64_t revision;
    /// Of the line in the journal or log, from 0.
    int number;
    /// The line that holds the text; for a day its date and what its cells hold.
    std::string line;
};

/// The lines that hold the text, in small or capital letters. None for an empty text.
std::vector<Hit> hits(const Listbox& table, std::string_view sought);

/// Whether it is one of the logs that stand in a window of their own.
inline bool isInLogs(Place place) { return place >= Place::food; }

/// The row of a hit in the table or the details, wherever it stands by now; nothing when it has changed.
std::optional<int> rowOf(const Listbox& table, const Hit& hit);

/// As the user calls it.
std::string nameOf(Place place);

} // namespace tallyvane::Search

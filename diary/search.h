/// Looking for a text in everything that the diary holds.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "platform/controls/listbox.h"

namespace tallyvane::Search {

enum class Place { table, details, journal, food, exercise, medication };

struct Hit {
    Place place;
    /// Of the day, for the table and the details; -1 for the others. It holds as long as the row has that revision.
    int row;
    std::uint64_t revision;
    /// The line that holds the text; for a day its date and its readings.
    std::string line;
};

/// The lines that hold the text, in small or capital letters. None for an empty text; equal lines of a log count once.
std::vector<Hit> hits(const Listbox& table, std::string_view sought);

/// As the user calls it.
std::string nameOf(Place place);

} // namespace tallyvane::Search

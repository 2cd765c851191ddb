/// How the cells of the day table show the ranges of their values.
#pragma once

#include <optional>

#include "platform/controls/listbox.h"
#include "settings/ranges.h"

namespace tallyvane::Indicators {

/// Text of the averages and of the weights, in the table and in the strip below it.
inline constexpr Color averageColor = RGB(148, 9, 16);
inline constexpr Color weightColor = RGB(0, 75, 127);

/// The range that a cell of the table shows by its light: in the columns 1 to 8 of rows that exist, for cells that are
/// not empty, while the indicators are on.
std::optional<Ranges::Range> rangeOf(const Listbox& table, int row, int column);
/// The picture of the value's range.
std::optional<Picture> getLight(double value);

/// Fills the band of the row and draws the light of the cell's range, if it shows one.
void paintCell(Graphics& g, const Listbox& table, int row, int column);
/// Sets the colour of the cell's text.
void colorText(Graphics& g, int column);

} // namespace tallyvane::Indicators

/// The five ranges of a value against the user's limits, and how the cells of the day table show them.
#pragma once

#include <optional>

#include "platform/listbox.h"

namespace tallyvane::Indicators {

enum class Range { over, caution, inZone, low, under };

inline const Picture over2{"over2.tiff"};
inline const Picture caution2{"caution2.tiff"};
inline const Picture zone2{"zone2.tiff"};
inline const Picture low3{"low3.tiff"};
inline const Picture under3{"under3.tiff"};

/// Text of the averages and of the weights, in the table and in the strip below it.
inline constexpr Color averageColor = RGB(148, 9, 16);
inline constexpr Color weightColor = RGB(0, 75, 127);

/// The range of a value by the present limits. A limit belongs to the range above it. None when the limits are out
/// of order and the value falls between them.
std::optional<Range> rangeOf(double value);
/// The range that a cell of the table shows by its light: in the columns 1 to 8 of rows that exist, for cells that are
/// not empty, while the indicators are on.
std::optional<Range> rangeOf(const Listbox& table, int row, int column);
/// The picture of the value's range.
std::optional<Picture> getLight(double value);

/// Fills the band of the row and draws the light of the cell's range, if it shows one.
void paintCell(Graphics& g, const Listbox& table, int row, int column);
/// Sets the colour of the cell's text.
void colorText(Graphics& g, int column);

} // namespace tallyvane::Indicators

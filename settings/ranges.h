/// The five ranges that the user's four personal limits make: their order, their names, their pictures.
#pragma once

#include <array>
#include <optional>
#include <string>

#include "platform/drawing/picture.h"

namespace tallyvane::Ranges {

/// From the highest to the lowest.
enum class Range { over, caution, inZone, low, under };
inline constexpr std::array<Range, 5> all{Range::over, Range::caution, Range::inZone, Range::low, Range::under};

inline const Picture over2{"over2.tiff"};
inline const Picture caution2{"caution2.tiff"};
inline const Picture zone2{"zone2.tiff"};
inline const Picture low3{"low3.tiff"};
inline const Picture under3{"under3.tiff"};

/// The range of a value by the present limits. A limit belongs to the range above it. None when the limits are out
/// of order and the value falls between them.
std::optional<Range> of(double value);

/// The light of a range.
const Picture& picture(Range range);
/// As the limits' dialog names a range: "Too High".
std::string title(Range range);
/// As a sentence does: "too high", "in target zone".
std::string words(Range range);

} // namespace tallyvane::Ranges

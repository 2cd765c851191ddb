/// The engine's one way from a number to a whole unit of the surface, as an int.
#pragma once

namespace tallyvane {

/// The whole part, towards zero; a hundred millions for a number beyond it, so that sums of a few places still fit, 0
/// for no number.
int truncated(double value);
/// The same for a place that was reached by many small steps: one that only the rounding of the steps holds back from a
/// whole number is that number.
int truncatedPlace(double steppedTo);

} // namespace tallyvane

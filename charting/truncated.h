/// The engine's one way from a number to a whole unit of the surface, as an int.
#pragma once

namespace tallyvane {

/// The whole part, towards zero; a hundred millions for a number beyond it, so that sums of a few places still fit, 0
/// for no number.
int truncated(double value);
/// What the rounding of many small steps may hold back from a whole number.
inline constexpr double mostRounding = 1e-6;
/// As truncated, for a place that was reached by many small steps and for a count of them: one that only rounding holds
/// back from a whole number is that number.
int truncatedSteps(double steppedTo);

} // namespace tallyvane

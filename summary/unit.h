/// The unit of the readings: the one that the user's limits are in.
#pragma once

#include <string>

namespace tallyvane::Summary {

enum class Unit { mmolPerLitre, mgPerDecilitre };

/// From the molar mass of glucose, 180.156 g/mol.
inline constexpr double mgPerMmol = 18.0156;

[[nodiscard]] Unit unitOfLimits();
/// "mmol/L", "mg/dL".
[[nodiscard]] std::string nameOf(Unit unit);
/// As people read it: a decimal in mmol/L, a whole number in mg/dL.
[[nodiscard]] std::string valueText(double value, Unit unit);
/// "167 mg/dL".
[[nodiscard]] std::string valueWithUnit(double value, Unit unit);
[[nodiscard]] double inMgPerDecilitre(double value, Unit unit);

} // namespace tallyvane::Summary

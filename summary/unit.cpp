#include "summary/unit.h"

#include "platform/base/number.h"
#include "settings/usual_limits.h"

namespace tallyvane::Summary {

Unit unitOfLimits() {
    return UsualLimits::areInMmol(UsualLimits::present()) ? Unit::mmolPerLitre : Unit::mgPerDecilitre;
}

std::string nameOf(Unit unit) { return unit == Unit::mmolPerLitre ? "mmol/L" : "mg/dL"; }

std::string valueText(double value, Unit unit) { return Format(value, unit == Unit::mmolPerLitre ? "-0.0" : "-0"); }

std::string valueWithUnit(double value, Unit unit) { return valueText(value, unit) + " " + nameOf(unit); }

double inMgPerDecilitre(double value, Unit unit) { return unit == Unit::mmolPerLitre ? value * mgPerMmol : value; }

} // namespace tallyvane::Summary

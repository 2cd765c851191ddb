#pragma once

#include <string>
#include <vector>

/// What the whole chart engine shares.
namespace tallyvane::GTGeneralPurpose {

/// Names of days and months for those who format dates themselves; the engine only empties them.
inline std::vector<std::string> GTDayNames;
inline std::vector<std::string> GTMonthNames;
void GTResetDateNames();

/// Units of a surface to a point of 1/72 inch, for a resolution in dots per inch.
double GTResolutionScaleFactor(int resolution);

} // namespace tallyvane::GTGeneralPurpose

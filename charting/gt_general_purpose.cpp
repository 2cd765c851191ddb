#include "charting/gt_general_purpose.h"

namespace tallyvane {

void GTGeneralPurpose::GTResetDateNames() {
    GTDayNames.clear();
    GTMonthNames.clear();
}

double GTGeneralPurpose::GTResolutionScaleFactor(int resolution) { return resolution / 72.0; }

} // namespace tallyvane

#include "settings/usual_limits.h"

#include "settings/globals.h"

namespace tallyvane::UsualLimits {

Limits present() { return {Globals::gOver, Globals::gCaution, Globals::gLow, Globals::gUnder}; }

void use(const Limits& limits) {
    Globals::gOver = limits.over;
    Globals::gCaution = limits.caution;
    Globals::gLow = limits.low;
    Globals::gUnder = limits.under;
}

bool areInMmol(const Limits& limits) {
    constexpr double mostInMmol = 30;
    return limits.over <= mostInMmol;
}

} // namespace tallyvane::UsualLimits

/// The limits that doctors have agreed on, in both units.
///
/// From the international consensus on time in range (Battelino and others, Diabetes Care 2019; 42: 1593): the target
/// is 70 to 180 mg/dL (3.9 to 10.0 mmol/L), above it is high and above 250 (13.9) very high, below it is low and below
/// 54 (3.0) very low. A limit here is the lowest value of its range, as a meter shows it.
#pragma once

namespace tallyvane::UsualLimits {

struct Limits {
    double over;
    double caution;
    double low;
    double under;

    bool operator==(const Limits&) const = default;
};

inline constexpr Limits inMmol{14.0, 10.1, 3.9, 3.0}; // mmol/L
inline constexpr Limits inMg{251, 181, 70, 54}; // mg/dL

/// The user's present ones.
Limits present();
/// Makes these the user's.
void use(const Limits& limits);

/// Whether limits are for readings in mmol/L. In that unit no value above 30 is called high, since most meters end
/// there or soon after.
bool areInMmol(const Limits& limits);

} // namespace tallyvane::UsualLimits

/// The limits that doctors have agreed on, in both units.
///
/// From the international consensus on time in range (Battelino and others, Diabetes Care 2019; 42: 1593): the target
/// is 70 to 180 mg/dL (3.9 to 10.0 mmol/L), above it is high and above 250 (13.9) very high, below it is low and below
/// 54 (3.0) very low. A value of just 180 or 250 belongs to the range above here, as it does with any limit.
#pragma once

namespace tallyvane::UsualLimits {

struct Limits {
    double over;
    double caution;
    double low;
    double under;

    bool operator==(const Limits&) const = default;
};

inline constexpr Limits inMmol{13.9, 10.0, 3.9, 3.0}; // mmol/L
inline constexpr Limits inMg{250, 180, 70, 54}; // mg/dL

/// The user's present ones.
Limits present();
/// Makes these the user's.
void use(const Limits& limits);

/// Whether limits are for readings in mmol/L: what is too high begins at 30 or below.
bool areInMmol(const Limits& limits);

} // namespace tallyvane::UsualLimits

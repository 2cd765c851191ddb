/// What HbA1c a mean of finger-stick readings suggests. It is no laboratory value.
#pragma once

#include <array>
#include <optional>

namespace tallyvane::Summary {

struct EstimatedA1c {
    double percent = 0; // NGSP
    double mmolPerMol = 0; // IFCC
};

/// From the ADAG study's relation, mean (mg/dL) = 28.7 x HbA1c - 46.7 (Nathan and others, Diabetes Care 2008; 31:
/// 1473), and the master equation NGSP = 0.09148 x IFCC + 2.152 (Hoelzel and others, Clinical Chemistry 2004; 50: 166).
[[nodiscard]] EstimatedA1c a1cOfMean(double mgPerDecilitre);

/// How the readings of a period are spread.
struct Spread {
    int daysOfPeriod = 0;
    int daysWithReadings = 0;
    std::array<int, 7> readings{}; // of each test period
    int longestGap = 0; // days without readings, one after the other
};

/// HbA1c tells of the life of a red cell: of a longer period there is none.
inline constexpr int mostDaysForA1c = 120;

/// Whether there are enough of them for an estimate. The people of that study measured seven times on three days of
/// each week, 21 times a week. Here two thirds of that are asked for, 14 a week, on three days a week, with no more
/// than a week between two days, over 14 to 120 days; and three test periods with a tenth of them each, none with more
/// than half. Fourteen days are what the consensus on continuous measuring takes for the least that tells of three
/// months (Battelino and others, Diabetes Care 2019; 42: 1593).
[[nodiscard]] bool isEnoughForA1c(const Spread& spread);

} // namespace tallyvane::Summary

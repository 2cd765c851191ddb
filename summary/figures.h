/// The figures of a sample of values. Nothing here knows what the values mean.
#pragma once

#include <optional>
#include <vector>

namespace tallyvane::Summary {

/// All are in the unit of the values. Those of an empty sample are 0.
struct Figures {
    int count = 0;
    double mean = 0;
    double median = 0; // of an even number the mean of the two in the middle
    double lowerQuartile = 0; // the middle half of the values lies between the two
    double upperQuartile = 0;
    double lowest = 0;
    double highest = 0;
    /// Of the sample, by n - 1; nothing for fewer than two values.
    std::optional<double> deviation;

    /// The deviation as a part of the mean.
    std::optional<double> variation() const;
};

/// Quartiles lie between the values that they fall between, by the distance from each (Hyndman and Fan, "Sample
/// Quantiles in Statistical Packages", The American Statistician 1996; 50: 361, definition 7).
[[nodiscard]] Figures figuresOf(std::vector<double> values);

/// 0 for no values.
[[nodiscard]] double medianOf(std::vector<double> values);

} // namespace tallyvane::Summary

#include "summary/figures.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <utility>

namespace tallyvane::Summary {

namespace {

/// The value that so large a part of the sample lies below. Reorders the values: those before the place that it
/// returns in `from` stay below it, so that larger parts can be asked for from there on.
double quantile(std::vector<double>& values, double part, std::size_t& from) {
    const double place = part * static_cast<double>(values.size() - 1);
    const auto below = static_cast<std::size_t>(place);
    const double way = place - static_cast<double>(below);
    const auto at = values.begin() + static_cast<std::ptrdiff_t>(below);
    std::nth_element(values.begin() + static_cast<std::ptrdiff_t>(from), at, values.end());
    from = below;
    if (way == 0)
        return *at;
    const double above = *std::min_element(at + 1, values.end());
    return *at + (above - *at) * way;
}

/// In a longer type and from the mean, so that no digit of a double is lost.
std::optional<double> deviationOf(const std::vector<double>& values, long double mean) {
    if (values.size() < 2)
        return std::nullopt;
    long double squares = 0;
    for (const double value : values)
        squares += (value - mean) * (value - mean);
    return static_cast<double>(std::sqrt(squares / static_cast<long double>(values.size() - 1)));
}

} // namespace

std::optional<double> Figures::variation() const {
    return deviation && mean > 0 ? std::optional(*deviation / mean) : std::nullopt;
}

Figures figuresOf(std::vector<double> values) {
    Figures figures;
    if (values.empty())
        return figures;
    figures.count = static_cast<int>(values.size());
    long double sum = 0;
    for (const double value : values)
        sum += value;
    const long double mean = sum / static_cast<long double>(values.size());
    figures.mean = static_cast<double>(mean);
    figures.deviation = deviationOf(values, mean);
    std::size_t from = 0;
    figures.lowerQuartile = quantile(values, 0.25, from);
    figures.median = quantile(values, 0.5, from);
    figures.upperQuartile = quantile(values, 0.75, from);
    const auto [lowest, highest] = std::minmax_element(values.begin(), values.end());
    figures.lowest = *lowest;
    figures.highest = *highest;
    return figures;
}

double medianOf(std::vector<double> values) {
    std::size_t from = 0;
    return values.empty() ? 0 : quantile(values, 0.5, from);
}

} // namespace tallyvane::Summary

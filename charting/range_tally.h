#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include "charting/extent.h"

namespace tallyvane {

/// The lowest and highest values at each place of many lists, kept up to date as values are appended, so that nobody
/// has to pass over all of them again for each new one. A value that is not finite stands in its list and is no
/// extreme.
class ListExtremes {
public:
    /// Counts the value that a list got at that place, from 0.
    void appended(std::size_t place, double value);
    /// The extent of the first `width` places of so many lists, where a place that a list does not reach reads 0.0.
    /// Nothing when there is no finite value.
    std::optional<Extent> extent(std::size_t width, std::size_t lists) const;

private:
    struct Place {
        std::size_t lists = 0; // that reach it
        std::optional<Extent> extent;
    };
    std::vector<Place> places_;
};

/// What a series remembers of the values of its points. The points report to it what they get; it is counted anew after
/// a point was removed or has swapped its lists.
struct RangeTally {
    ListExtremes x;
    ListExtremes y;
    bool stale = false; // values changed places: to be counted anew
};

} // namespace tallyvane

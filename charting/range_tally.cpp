#include "charting/range_tally.h"

#include <algorithm>
#include <cmath>

namespace tallyvane {

namespace {

void widen(std::optional<Extent>& extent, double value) {
    if (!extent)
        extent = Extent{value, value};
    else
        extent->widenTo(value);
}

} // namespace

void Extent::widenTo(double value) {
    low = std::min(low, value);
    high = std::max(high, value);
}

void ListExtremes::appended(std::size_t place, double value) {
    if (places_.size() <= place)
        places_.resize(place + 1);
    ++places_[place].lists;
    if (std::isfinite(value))
        widen(places_[place].extent, value);
}

std::optional<Extent> ListExtremes::extent(std::size_t width, std::size_t lists) const {
    std::optional<Extent> all;
    for (std::size_t i = 0; i < std::min(width, places_.size()); ++i) {
        const Place& place = places_[i];
        if (place.lists < lists)
            widen(all, 0.0);
        if (place.extent) {
            widen(all, place.extent->low);
            widen(all, place.extent->high);
        }
    }
    return all;
}

} // namespace tallyvane

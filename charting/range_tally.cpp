#include "charting/range_tally.h"

#include <algorithm>

namespace tallyvane {

void ListExtremes::appended(std::size_t place, double value) {
    if (places_.size() <= place)
        places_.resize(place + 1);
    ++places_[place].lists;
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

#pragma once

#include <optional>

namespace tallyvane {

/// A lowest and a highest value.
struct Extent {
    double low = 0;
    double high = 0;

    bool operator==(const Extent&) const = default;
};

/// Widens an extent, or begins one, so that it holds the value. A value that is not finite is passed over.
void widen(std::optional<Extent>& extent, double value);

} // namespace tallyvane

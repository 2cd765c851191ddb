/// Places and sizes in points, and colours. A point is a pixel at scale 1.
#pragma once

#include <algorithm>
#include <cstdint>

namespace tallyvane {

struct Rect {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;

    bool operator==(const Rect&) const = default;
};

/// 0xRRGGBB.
using Color = std::uint32_t;

/// A colour of its channels, each limited to 0 to 255.
constexpr Color RGB(int red, int green, int blue) {
    const auto channel = [](int value) { return static_cast<Color>(std::clamp(value, 0, 255)); };
    return channel(red) << 16U | channel(green) << 8U | channel(blue);
}

} // namespace tallyvane

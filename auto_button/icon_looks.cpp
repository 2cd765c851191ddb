#include "auto_button/icon_looks.h"

#include <algorithm>
#include <cmath>

namespace tallyvane {

namespace {

constexpr double most = 255;

bool isWhite(Pixel pixel) { return pixel.red == 255 && pixel.green == 255 && pixel.blue == 255; }

std::uint8_t scaled(std::uint8_t channel, double factor) {
    return static_cast<std::uint8_t>(std::lround(channel * factor));
}

} // namespace

Pixel disabledLook(Pixel pixel) {
    constexpr double mask = 125; // of a pixel that is half hidden
    pixel.alpha = isWhite(pixel) ? 0 : scaled(pixel.alpha, 1 - mask / most);
    return pixel;
}

Pixel pressedLook(Pixel pixel) {
    constexpr double darker = 0.2;
    const double value = std::max({pixel.red, pixel.green, pixel.blue}) / most;
    if (isWhite(pixel))
        pixel.alpha = 0;
    if (isWhite(pixel) || value == 0)
        return pixel;
    // With hue and saturation kept, all channels go with the value.
    const double factor = std::max(0.0, value - darker) / value;
    return {scaled(pixel.red, factor), scaled(pixel.green, factor), scaled(pixel.blue, factor), pixel.alpha};
}

} // namespace tallyvane

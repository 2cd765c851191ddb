/// The two looks that a picture button works out from its picture, pixel by pixel.
#pragma once

#include "platform/picture.h"

namespace tallyvane {

/// Half transparent; white, the colour that shows nothing in such pictures, wholly so.
Pixel disabledLook(Pixel pixel);
/// The same hue and saturation, darker by a fifth of the range of values; white stays.
Pixel pressedLook(Pixel pixel);

} // namespace tallyvane

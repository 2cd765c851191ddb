/// The two looks that a picture button works out from its picture, pixel by pixel.
#pragma once

#include "platform/drawing/picture.h"

namespace tallyvane {

// White is the colour that shows nothing in such pictures.

/// Half transparent; white wholly so.
Pixel disabledLook(Pixel pixel);
/// The same hue and saturation, darker by a fifth of the range of values; white wholly transparent.
Pixel pressedLook(Pixel pixel);

} // namespace tallyvane

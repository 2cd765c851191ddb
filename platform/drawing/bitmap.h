#pragma once

#include <cstdint>
#include <functional>
#include <memory>

#include "platform/base/service.h"

namespace tallyvane {

class Graphics;

/// One pixel of a bitmap, not premultiplied. Alpha 0 is transparent, 255 opaque.
struct Pixel {
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;
    std::uint8_t alpha = 0;

    bool operator==(const Pixel&) const = default;
};

/// Pixels and the surface that draws on them. At first they are clear.
class Bitmap {
public:
    Bitmap() = default;
    Bitmap(const Bitmap&) = delete;
    Bitmap& operator=(const Bitmap&) = delete;
    virtual ~Bitmap() = default;

    virtual Graphics& surface() = 0;
    /// Puts `change` of a pixel in place of each pixel.
    virtual void changePixels(const std::function<Pixel(Pixel)>& change) = 0;
};

/// What makes bitmaps. Those of the plain service keep nothing of what is drawn.
class Bitmaps : public Service<Bitmaps> {
public:
    /// That many points wide and high, as fine as the desktop's screens.
    virtual std::shared_ptr<Bitmap> make(int width, int height);
};

} // namespace tallyvane

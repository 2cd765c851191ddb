#include "platform/qt/qt_bitmap.h"

#include <algorithm>
#include <cmath>

namespace tallyvane {

namespace {

QImage clearPixels(int width, int height, double scale) {
    const auto pixels = [scale](int points) { return std::max(1, static_cast<int>(std::ceil(points * scale))); };
    QImage image(pixels(width), pixels(height), QImage::Format_ARGB32_Premultiplied);
    if (image.isNull()) // there is no memory for so many
        image = QImage(1, 1, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(scale);
    image.fill(Qt::transparent);
    return image;
}

} // namespace

QtBitmap::QtBitmap(int width, int height, double scale)
    : image_(clearPixels(width, height, scale)), painter_(&image_), surface_(painter_, QRect(0, 0, width, height)) {}

} // namespace tallyvane

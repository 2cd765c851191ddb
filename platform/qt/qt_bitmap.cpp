#include "platform/qt/qt_bitmap.h"

#include <QGuiApplication>

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

void QtBitmap::changePixels(const std::function<Pixel(Pixel)>& change) {
    const auto channel = [](int value) { return static_cast<std::uint8_t>(value); };
    for (int y = 0; y < image_.height(); ++y)
        for (int x = 0; x < image_.width(); ++x) {
            const QColor color = image_.pixelColor(x, y);
            const Pixel pixel =
                change({channel(color.red()), channel(color.green()), channel(color.blue()), channel(color.alpha())});
            image_.setPixelColor(x, y, QColor(pixel.red, pixel.green, pixel.blue, pixel.alpha));
        }
}

std::shared_ptr<Bitmap> QtBitmaps::make(int width, int height) {
    return std::make_shared<QtBitmap>(width, height, qGuiApp->devicePixelRatio());
}

} // namespace tallyvane

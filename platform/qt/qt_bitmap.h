#pragma once

#include <QPainter>

#include "platform/qt/image_bitmap.h"
#include "platform/qt/painter_graphics.h"

namespace tallyvane {

/// Pixels in memory, `scale` of them to a point.
class QtBitmap : public ImageBitmap {
public:
    QtBitmap(int width, int height, double scale);

    PainterGraphics& surface() override { return surface_; }
    void changePixels(const std::function<Pixel(Pixel)>& change) override;
    const QImage& image() const override { return image_; }

private:
    QImage image_;
    QPainter painter_;
    PainterGraphics surface_;
};

/// Makes bitmaps as fine as the application's screens.
class QtBitmaps : public Bitmaps {
public:
    std::shared_ptr<Bitmap> make(int width, int height) override;
};

} // namespace tallyvane

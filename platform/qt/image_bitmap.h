#pragma once

#include <QImage>

#include "platform/drawing/picture.h"

namespace tallyvane {

/// A bitmap whose pixels Qt can paint.
class ImageBitmap : public Bitmap {
public:
    virtual const QImage& image() const = 0;
};

} // namespace tallyvane

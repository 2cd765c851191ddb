#include "platform/picture.h"

#include "platform/graphics_recorder.h"
#include "platform/toolkit.h"

namespace tallyvane {

namespace {

std::shared_ptr<Bitmap> makeBitmap(int width, int height) {
    if (Toolkit* toolkit = Toolkit::inForce())
        return toolkit->makeBitmap(width, height);
    return std::make_shared<RecordedBitmap>(width, height);
}

} // namespace

Picture::Picture(int width, int height, int depth) : width_(width), height_(height) {
    if (depth != 0)
        bitmap_ = makeBitmap(width, height);
}

} // namespace tallyvane

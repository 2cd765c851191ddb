#include "platform/drawing/picture.h"

namespace tallyvane {

Picture::Picture(int width, int height, int depth) : width_(width), height_(height) {
    if (depth != 0)
        bitmap_ = Bitmaps::current().make(width, height);
}

} // namespace tallyvane

#include "platform/graphics_recorder.h"

namespace tallyvane {

void GraphicsRecorder::FillRect(double x, double y, double width, double height) {
    calls_.push_back({"FillRect", ForeColor(), {}, x, y, width, height});
}

void GraphicsRecorder::DrawPicture(const Picture& picture, double x, double y) {
    calls_.push_back({"DrawPicture", 0, picture.File(), x, y, 0, 0});
}

} // namespace tallyvane

#include "platform/drawing/graphics_recorder.h"

#include "platform/drawing/picture.h"

namespace tallyvane {

void GraphicsRecorder::DrawLine(double x1, double y1, double x2, double y2) {
    calls_.push_back({"DrawLine", ForeColor(), {}, {x1, y1, x2, y2}, {}, PenWidth(), PenHeight()});
}

void GraphicsRecorder::DrawRect(double x, double y, double width, double height) {
    calls_.push_back({"DrawRect", ForeColor(), {}, {x, y, width, height}, {}, PenWidth(), PenHeight()});
}

void GraphicsRecorder::FillRect(double x, double y, double width, double height) {
    calls_.push_back({"FillRect", ForeColor(), {}, {x, y, width, height}});
}

void GraphicsRecorder::DrawString(std::string_view text, double x, double y) {
    Call call{"DrawString", ForeColor(), std::string(text), {x, y}};
    call.textSize = TextSize();
    call.font = TextFont();
    call.style = Style();
    calls_.push_back(std::move(call));
}

void GraphicsRecorder::DrawPicture(const Picture& picture, double x, double y) {
    calls_.push_back({"DrawPicture", 0, picture.File(), {x, y}, picture.Objects()});
}

void GraphicsRecorder::DrawObject(const Object2D& shape, double x, double y) {
    Group2D alone;
    alone.Append(shape);
    calls_.push_back({"DrawObject", 0, {}, {x, y}, std::move(alone)});
}

} // namespace tallyvane

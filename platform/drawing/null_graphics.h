#pragma once

#include "platform/drawing/graphics.h"

namespace tallyvane {

/// A surface that shows nothing. Its text is of fixed pitch: of every font a character is half as wide as the text
/// size, the ascent three quarters of it, the height all of it.
class NullGraphics : public Graphics {
public:
    NullGraphics(double width, double height) : width_(width), height_(height) {}

    double Width() const override { return width_; }
    double Height() const override { return height_; }
    double TextAscent() const override { return 0.75 * static_cast<double>(TextSize()); }
    double TextHeight() const override { return TextSize(); }
    double StringWidth(std::string_view text) const override;
    void DrawLine(double /*x1*/, double /*y1*/, double /*x2*/, double /*y2*/) override {}
    void DrawRect(double /*x*/, double /*y*/, double /*width*/, double /*height*/) override {}
    void FillRect(double /*x*/, double /*y*/, double /*width*/, double /*height*/) override {}
    void DrawString(std::string_view /*text*/, double /*x*/, double /*y*/) override {}
    void DrawPicture(const Picture& /*picture*/, double /*x*/, double /*y*/) override {}
    void DrawObject(const Object2D& /*shape*/, double /*x*/, double /*y*/) override {}
    void shrinkToFit(double width, double height) override;

private:
    double width_;
    double height_;
};

} // namespace tallyvane

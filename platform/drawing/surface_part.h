#pragma once

#include "platform/drawing/graphics.h"

namespace tallyvane {

/// A rectangle of a surface as a surface of its own. What is drawn beyond its sides is not cut off.
class SurfacePart : public Graphics {
public:
    SurfacePart(Graphics& whole, double left, double top, double width, double height)
        : whole_(whole), left_(left), top_(top), width_(width), height_(height) {}

    double Width() const override { return width_; }
    double Height() const override { return height_; }
    double TextAscent() const override { return drawer().TextAscent(); }
    double TextHeight() const override { return drawer().TextHeight(); }
    double StringWidth(std::string_view text) const override { return drawer().StringWidth(text); }

    void DrawLine(double x1, double y1, double x2, double y2) override {
        drawer().DrawLine(left_ + x1, top_ + y1, left_ + x2, top_ + y2);
    }
    void DrawRect(double x, double y, double width, double height) override {
        drawer().DrawRect(left_ + x, top_ + y, width, height);
    }
    void FillRect(double x, double y, double width, double height) override {
        drawer().FillRect(left_ + x, top_ + y, width, height);
    }
    void DrawString(std::string_view text, double x, double y) override {
        drawer().DrawString(text, left_ + x, top_ + y);
    }
    void DrawPicture(const Picture& picture, double x, double y) override {
        drawer().DrawPicture(picture, left_ + x, top_ + y);
    }
    void DrawObject(const Object2D& shape, double x, double y) override {
        drawer().DrawObject(shape, left_ + x, top_ + y);
    }
    /// A part has one sheet.
    void shrinkToFit(double /*width*/, double /*height*/) override {}

private:
    /// The whole surface, with this part's pen, colour and font.
    Graphics& drawer() const;

    Graphics& whole_;
    double left_;
    double top_;
    double width_;
    double height_;
};

} // namespace tallyvane

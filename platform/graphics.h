#pragma once

#include "platform/geometry.h"
#include "platform/picture.h"

namespace tallyvane {

/// A surface to draw on, in points from its top left corner.
class Graphics {
public:
    Graphics() = default;
    Graphics(const Graphics&) = delete;
    Graphics& operator=(const Graphics&) = delete;
    virtual ~Graphics() = default;

    virtual double Width() const = 0;
    virtual double Height() const = 0;

    /// The colour of what is drawn from here on.
    Color ForeColor() const { return foreColor_; }
    void ForeColor(Color color) { foreColor_ = color; }

    virtual void FillRect(double x, double y, double width, double height) = 0;
    /// Draws a picture at its own size with its top left corner at x, y.
    virtual void DrawPicture(const Picture& picture, double x, double y) = 0;

private:
    Color foreColor_ = RGB(0, 0, 0);
};

} // namespace tallyvane

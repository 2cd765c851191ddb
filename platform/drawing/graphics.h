#pragma once

#include <string_view>

#include "platform/drawing/font_name.h"
#include "platform/drawing/geometry.h"
#include "platform/drawing/shapes.h"

namespace tallyvane {

class Picture;

/// A surface to draw on, in its own units from its top left corner: points on a screen, dots on a printer.
///
/// Lines and outlines are drawn by a pen that hangs down and to the right of the places it is led along, so that a
/// line at a whole place fills whole units. What has no place or no size, because it is no number, is not
/// drawn.
class Graphics {
public:
    Graphics() = default;
    Graphics(const Graphics&) = delete;
    Graphics& operator=(const Graphics&) = delete;
    virtual ~Graphics() = default;

    virtual double Width() const = 0;
    virtual double Height() const = 0;

    /// The colour of what is drawn from here on, shapes and pictures apart.
    Color ForeColor() const { return foreColor_; }
    void ForeColor(Color color) { foreColor_ = color; }
    double PenWidth() const { return penWidth_; }
    void PenWidth(double width) { penWidth_ = width; }
    double PenHeight() const { return penHeight_; }
    void PenHeight(double height) { penHeight_ = height; }
    /// "System" is the desktop's own font.
    FontName TextFont() const { return textFont_; }
    void TextFont(FontName name) { textFont_ = name; }
    /// In the surface's units.
    float TextSize() const { return textSize_; }
    void TextSize(double size) { textSize_ = static_cast<float>(size); }
    const TextStyle& Style() const { return style_; }
    void Bold(bool on) { style_.bold = on; }
    void Italic(bool on) { style_.italic = on; }
    void Underline(bool on) { style_.underline = on; }

    // Measures of the font and size now set
    virtual double TextAscent() const = 0;
    virtual double TextHeight() const = 0;
    virtual double StringWidth(std::string_view text) const = 0;

    virtual void DrawLine(double x1, double y1, double x2, double y2) = 0;
    /// The outline of a rectangle, all of it inside. One without width or height is drawn as a line.
    virtual void DrawRect(double x, double y, double width, double height) = 0;
    virtual void FillRect(double x, double y, double width, double height) = 0;
    /// Draws one line of text from its left edge x on the baseline y.
    virtual void DrawString(std::string_view text, double x, double y) = 0;
    /// Draws a picture at its own size with its top left corner at x, y.
    virtual void DrawPicture(const Picture& picture, double x, double y) = 0;
    /// Draws a shape, its position moved by x, y.
    virtual void DrawObject(const Object2D& shape, double x, double y) = 0;

    /// Goes on to a new sheet of paper. A screen has none.
    virtual void NextPage() {}
    /// Scales all further drawing, also on later pages, down so that `width` by `height` units fit on the surface;
    /// Width and Height grow to match. Never scales up. Pass 0 for a direction that does not matter.
    virtual void shrinkToFit(double width, double height) = 0;

private:
    Color foreColor_ = RGB(0, 0, 0);
    double penWidth_ = 1;
    double penHeight_ = 1;
    FontName textFont_;
    float textSize_ = 12;
    TextStyle style_;
};

} // namespace tallyvane

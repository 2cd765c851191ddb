#pragma once

#include <string>

#include "platform/drawing/graphics.h"

namespace tallyvane {

/// A free text on a graph, its left edge and baseline at fractions of the plot's width and height: 0.0 is the left or
/// the top, 1.0 the right or the bottom.
class GTLabel {
public:
    /// Takes the place as given, also outside of the plot.
    GTLabel(double x, double y, std::string s) : text(std::move(s)), myX(x), myY(y) {}

    double x() const { return myX; }
    /// A place outside of the plot becomes the nearest inside.
    void x(double v);
    double y() const { return myY; }
    void y(double v);
    int Resolution() const { return myResolution; }
    void Resolution(int dotsPerInch) { myResolution = dotsPerInch; }
    int textSize() const { return myTextSize; }
    void textSize(int points) { myTextSize = points; }

    FontName textFont;
    Color textColor = RGB(0, 0, 0);
    std::string text;

    void Render(Graphics& g, int left, int top, int w, int h) const;

private:
    int myTextSize = 12;
    double myX;
    double myY;
    int myResolution = 72;
};

} // namespace tallyvane

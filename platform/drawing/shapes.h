/// Shapes of vector pictures, as flat records. Places and sizes are in the picture's own units from its top left
/// corner, y downward; angles are in radians, clockwise; Fill and Border are opacities in percent.
#pragma once

#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "platform/drawing/font_name.h"
#include "platform/drawing/geometry.h"

namespace tallyvane {

/// What every shape has. X and Y are its centre, unless the shape says otherwise.
struct ShapeBase {
    double X = 0;
    double Y = 0;
    double Rotation = 0; // about X, Y
    float Fill = 100;
    Color FillColor = 0;

    bool operator==(const ShapeBase&) const = default;
};

/// What every shape with an outline has. A shape comes without one.
struct OutlinedShape : ShapeBase {
    float Border = 0;
    Color BorderColor = 0;
    double BorderWidth = 1;

    bool operator==(const OutlinedShape&) const = default;
};

struct RectShape : OutlinedShape {
    double Width = 0;
    double Height = 0;

    bool operator==(const RectShape&) const = default;
};

struct OvalShape : OutlinedShape {
    double Width = 0;
    double Height = 0;

    bool operator==(const OvalShape&) const = default;
};

/// A slice of an oval, down to its centre. Angle 0 points to the right.
struct ArcShape : OutlinedShape {
    double Width = 0;
    double Height = 0;
    double StartAngle = 0;
    double ArcAngle = 0;

    bool operator==(const ArcShape&) const = default;
};

/// A straight line from X, Y to X2, Y2: all border, so it comes with one.
struct CurveShape : OutlinedShape {
    CurveShape() { Border = 100; }

    double X2 = 0;
    double Y2 = 0;

    bool operator==(const CurveShape&) const = default;
};

/// A closed, filled outline, its sides in places relative to X, Y.
struct FigureShape : OutlinedShape {
    struct Side {
        float x1, y1, x2, y2;

        bool operator==(const Side&) const = default;
    };
    std::vector<Side> sides;

    /// Appends a side. One that does not begin where the last one ended is joined to it.
    void AddLine(double x1, double y1, double x2, double y2);

    bool operator==(const FigureShape&) const = default;
};

/// A line of text. X and Y are the middle of its baseline.
struct StringShape : ShapeBase {
    float TextSize = 12;
    FontName TextFont;
    std::string Text;

    bool operator==(const StringShape&) const = default;
};

using Object2D = std::variant<RectShape, OvalShape, ArcShape, CurveShape, FigureShape, StringShape>;
static_assert(sizeof(Object2D) <= 96, "a year of readings is thousands of shapes");

/// Shapes in the order in which they are painted.
class Group2D {
public:
    template <class Shape>
    void Append(Shape&& shape) {
        shapes_.emplace_back(std::forward<Shape>(shape));
    }
    /// Makes room for that many shapes in all.
    void reserve(std::size_t count) { shapes_.reserve(count); }

    auto begin() const { return shapes_.begin(); }
    auto end() const { return shapes_.end(); }
    std::size_t Count() const { return shapes_.size(); }
    const Object2D& Item(std::size_t index) const { return shapes_.at(index); }

    bool operator==(const Group2D&) const = default;

private:
    std::vector<Object2D> shapes_;
};

} // namespace tallyvane

#pragma once

#include <QPainter>

#include <cmath>
#include <optional>

#include "platform/drawing/shapes.h"
#include "platform/qt/font_in_use.h"

namespace tallyvane {

/// A coordinate clamped to the range that Qt can paint, -1e6 to 1e6; NaN becomes -1e6.
double reachable(double place);

/// Paints shapes one by one in their order, all moved by one origin: the way for paper, and the measure for every
/// faster one.
class ShapePainter {
public:
    ShapePainter(QPainter& painter, QPointF origin);

    void paint(const Group2D& shapes);

    /// A line's part in and near what the painter shows, or nothing. Qt takes time for what nobody sees of a line.
    std::optional<QLineF> visiblePart(const CurveShape& curve) const;
    /// Whether any of a shape that reaches so far from its place can be in or near what the painter shows.
    bool isVisible(const ShapeBase& shape, double reach) const;
    QPointF placeOf(const ShapeBase& shape) const;

    // What std::visit asks for
    void operator()(const RectShape& rect);
    void operator()(const OvalShape& oval);
    void operator()(const ArcShape& arc);
    void operator()(const CurveShape& curve);
    void operator()(const FigureShape& figure);
    void operator()(const StringShape& string);

private:
    QPainter& painter_;
    QPointF origin_;
    QRectF visible_; // with a margin for pens
    FontInUse font_{*painter_.device()};
};

/// The pen of a shape's outline on that painter.
QPen outlinePen(const OutlinedShape& shape, const QPainter& painter);
/// Whether a pen of that width paints lines so thick that the form of their ends is seen.
bool isThick(double pen, const QPainter& painter);
/// A screen or a bitmap, not paper.
bool paintsPixels(const QPainter& painter);

/// How far a rectangle or an oval, with its outline, can reach from its centre, however it is turned.
template <class Shape>
double reachOf(const Shape& shape) {
    return (std::hypot(shape.Width, shape.Height) + shape.BorderWidth) / 2;
}

} // namespace tallyvane

#include "platform/qt/shape_painter.h"

#include <QPainterPath>

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>

#include "platform/qt/convert.h"

namespace tallyvane {

namespace {

QColor seenThrough(Color color, float percent) {
    QColor result = toQt(color);
    result.setAlphaF(std::clamp(percent, 0.0F, 100.0F) / 100.0F);
    return result;
}

/// Calls `draw` with the painter's origin at a place, turned by an angle, and takes the painter back.
template <class Draw>
void turned(QPainter& painter, QPointF place, double radians, Draw draw) {
    constexpr double degreesARadian = 180 / std::numbers::pi;
    const QTransform before = painter.worldTransform();
    painter.translate(place);
    painter.rotate(radians * degreesARadian);
    draw();
    painter.setWorldTransform(before);
}

void ink(QPainter& painter, const OutlinedShape& shape) {
    painter.setBrush(shape.Fill > 0 ? QBrush(seenThrough(shape.FillColor, shape.Fill)) : QBrush(Qt::NoBrush));
    painter.setPen(outlinePen(shape));
}

/// A part of the way from one end of a line to the other: from 0 to 1 is all of it.
struct Part {
    double first = 0;
    double last = 1;
};

/// What of a part lies from `low` to `high`, on a line that goes from `from` to `to`. Beyond both ends: first > last.
Part within(Part part, double from, double to, double low, double high) {
    const double way = to - from;
    if (way == 0)
        return from < low || from > high ? Part{1, 0} : part;
    const double atLow = (low - from) / way;
    const double atHigh = (high - from) / way;
    return {std::max(part.first, std::min(atLow, atHigh)), std::min(part.last, std::max(atLow, atHigh))};
}

QRectF around(QPointF centre, double width, double height) {
    const QSizeF size(reachable(width), reachable(height));
    return {centre - QPointF(size.width(), size.height()) / 2, size};
}

} // namespace

double reachable(double place) {
    constexpr double far = 1e6;
    return place > -far ? std::min(place, far) : -far; // no number is not greater than anything
}

QPen outlinePen(const OutlinedShape& shape) {
    if (shape.Border <= 0 || shape.BorderWidth <= 0)
        return Qt::NoPen;
    return {seenThrough(shape.BorderColor, shape.Border), shape.BorderWidth, Qt::SolidLine, Qt::RoundCap,
            Qt::MiterJoin};
}

ShapePainter::ShapePainter(QPainter& painter, QPointF origin) : painter_(painter), origin_(origin) {
    const double all = reachable(std::numeric_limits<double>::infinity());
    constexpr double margin = 100;
    visible_ = painter.hasClipping() ? painter.clipBoundingRect().adjusted(-margin, -margin, margin, margin)
                                     : QRectF(-all, -all, 2 * all, 2 * all);
}

std::optional<QLineF> ShapePainter::visiblePart(const CurveShape& curve) const {
    const QLineF line(origin_.x() + curve.X, origin_.y() + curve.Y, origin_.x() + curve.X2, origin_.y() + curve.Y2);
    if (visible_.contains(line.p1()) && visible_.contains(line.p2()))
        return line;
    Part part = within({}, line.x1(), line.x2(), visible_.left(), visible_.right());
    part = within(part, line.y1(), line.y2(), visible_.top(), visible_.bottom());
    if (!(part.first <= part.last)) // also for a line that is nowhere
        return std::nullopt;
    return QLineF(line.pointAt(part.first), line.pointAt(part.last));
}

bool ShapePainter::isVisible(const ShapeBase& shape, double reach) const {
    return visible_.intersects(around(placeOf(shape), 2 * reach + 1, 2 * reach + 1));
}

void ShapePainter::paint(const Group2D& shapes) {
    for (const Object2D& shape : shapes)
        std::visit(*this, shape);
}

QPointF ShapePainter::placeOf(const ShapeBase& shape) const {
    return {reachable(origin_.x() + shape.X), reachable(origin_.y() + shape.Y)};
}

void ShapePainter::operator()(const RectShape& rect) {
    if (!isVisible(rect, reachOf(rect)))
        return;
    ink(painter_, rect);
    turned(painter_, placeOf(rect), rect.Rotation, [&] { painter_.drawRect(around({}, rect.Width, rect.Height)); });
}

void ShapePainter::operator()(const OvalShape& oval) {
    if (!isVisible(oval, reachOf(oval)))
        return;
    ink(painter_, oval);
    if (oval.Rotation == 0)
        painter_.drawEllipse(around(placeOf(oval), oval.Width, oval.Height));
    else
        turned(painter_, placeOf(oval), oval.Rotation,
               [&] { painter_.drawEllipse(around({}, oval.Width, oval.Height)); });
}

void ShapePainter::operator()(const ArcShape& arc) {
    constexpr double degreesARadian = 180 / std::numbers::pi;
    // Qt counts angles the other way round.
    const double start = -arc.StartAngle * degreesARadian;
    const double extent = -arc.ArcAngle * degreesARadian;
    QPainterPath slice;
    slice.arcTo(around({}, arc.Width, arc.Height), start, std::clamp(extent, -360.0, 360.0));
    slice.closeSubpath();
    ink(painter_, arc);
    turned(painter_, placeOf(arc), arc.Rotation, [&] { painter_.drawPath(slice); });
}

void ShapePainter::operator()(const CurveShape& curve) {
    painter_.setPen(outlinePen(curve));
    if (curve.Rotation != 0)
        turned(painter_, placeOf(curve), curve.Rotation, [&] {
            painter_.drawLine(QPointF(0, 0), QPointF(reachable(curve.X2 - curve.X), reachable(curve.Y2 - curve.Y)));
        });
    else if (const auto line = visiblePart(curve))
        painter_.drawLine(*line);
}

void ShapePainter::operator()(const FigureShape& figure) {
    QPolygonF outline;
    outline.reserve(static_cast<qsizetype>(figure.sides.size()) + 1);
    const auto add = [&](float x, float y) {
        const QPointF corner(reachable(static_cast<double>(x)), reachable(static_cast<double>(y)));
        if (outline.isEmpty() || outline.last() != corner)
            outline.append(corner);
    };
    for (const FigureShape::Side& side : figure.sides) {
        add(side.x1, side.y1);
        add(side.x2, side.y2);
    }
    ink(painter_, figure);
    turned(painter_, placeOf(figure), figure.Rotation, [&] { painter_.drawPolygon(outline); });
}

void ShapePainter::operator()(const StringShape& string) {
    const QString text = toQt(string.Text);
    const double width = font_.metrics(string.TextFont, string.TextSize).horizontalAdvance(text);
    painter_.setFont(font_.font(string.TextFont, string.TextSize));
    painter_.setPen(seenThrough(string.FillColor, string.Fill));
    turned(painter_, placeOf(string), string.Rotation, [&] { painter_.drawText(QPointF(-width / 2, 0), text); });
}

} // namespace tallyvane

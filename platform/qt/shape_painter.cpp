#include "platform/qt/shape_painter.h"

#include <QPainterPath>

#include <algorithm>
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

/// How much of the way from `from` to `to` lies from `low` to `high`: narrows the part [first, last] of it.
void narrow(double from, double to, double low, double high, double& first, double& last) {
    const double way = to - from;
    if (way == 0) {
        if (from < low || from > high)
            last = -1;
        return;
    }
    const double atLow = (low - from) / way;
    const double atHigh = (high - from) / way;
    first = std::max(first, std::min(atLow, atHigh));
    last = std::min(last, std::max(atLow, atHigh));
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
    const QPointF from = placeOf(curve);
    const QPointF to(reachable(origin_.x() + curve.X2), reachable(origin_.y() + curve.Y2));
    if (visible_.contains(from) && visible_.contains(to))
        return QLineF(from, to);
    double first = 0;
    double last = 1;
    narrow(from.x(), to.x(), visible_.left(), visible_.right(), first, last);
    narrow(from.y(), to.y(), visible_.top(), visible_.bottom(), first, last);
    if (first > last)
        return std::nullopt;
    const QLineF whole(from, to);
    return QLineF(whole.pointAt(first), whole.pointAt(last));
}

bool ShapePainter::isVisible(QPointF place, double width, double height) const {
    return visible_.intersects(around(place, width, height).adjusted(-1, -1, 1, 1));
}

void ShapePainter::paint(const Group2D& shapes) {
    for (const Object2D& shape : shapes)
        std::visit(*this, shape);
}

QPointF ShapePainter::placeOf(const ShapeBase& shape) const {
    return {reachable(origin_.x() + shape.X), reachable(origin_.y() + shape.Y)};
}

void ShapePainter::operator()(const RectShape& rect) {
    if (!isVisible(placeOf(rect), rect.Width, rect.Height))
        return;
    ink(painter_, rect);
    turned(painter_, placeOf(rect), rect.Rotation, [&] { painter_.drawRect(around({}, rect.Width, rect.Height)); });
}

void ShapePainter::operator()(const OvalShape& oval) {
    if (!isVisible(placeOf(oval), oval.Width, oval.Height))
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
    if (const auto line = visiblePart(curve)) {
        painter_.setPen(outlinePen(curve));
        painter_.drawLine(*line);
    }
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
    QPaintDevice& device = *painter_.device();
    const QString text = toQt(string.Text);
    const double width = font_.metrics(string.TextFont, string.TextSize, device).horizontalAdvance(text);
    painter_.setFont(font_.font(string.TextFont, string.TextSize, device));
    painter_.setPen(seenThrough(string.FillColor, string.Fill));
    turned(painter_, placeOf(string), string.Rotation, [&] { painter_.drawText(QPointF(-width / 2, 0), text); });
}

} // namespace tallyvane

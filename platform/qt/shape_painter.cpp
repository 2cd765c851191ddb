#include "platform/qt/shape_painter.h"

#include <QPaintEngine>
#include <QPainterPath>

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>

#include "platform/qt/convert.h"

namespace tallyvane {

namespace {

constexpr double degreesARadian = 180 / std::numbers::pi;

QColor withOpacity(Color color, float percent) {
    QColor result = toQt(color);
    result.setAlphaF(std::clamp(percent, 0.0F, 100.0F) / 100.0F);
    return result;
}

/// Calls `draw` with the painter's origin at a place, turned by an angle, and takes the painter back.
template <class Draw>
void drawRotated(QPainter& painter, QPointF place, double radians, Draw draw) {
    const QTransform before = painter.worldTransform();
    painter.translate(place);
    painter.rotate(radians * degreesARadian);
    draw();
    painter.setWorldTransform(before);
}

void setPenAndBrush(QPainter& painter, const OutlinedShape& shape) {
    painter.setBrush(shape.Fill > 0 ? QBrush(withOpacity(shape.FillColor, shape.Fill)) : QBrush(Qt::NoBrush));
    painter.setPen(outlinePen(shape, painter));
}

/// Cuts a line at two places of its first coordinate, a. False when nothing lies between them.
bool clipLine(double& a1, double& b1, double& a2, double& b2, double low, double high) {
    if (std::max(a1, a2) < low || std::min(a1, a2) > high)
        return false;
    const double slope = (b2 - b1) / (a2 - a1);
    const auto cutEnd = [=, from = a1, base = b1](double& a, double& b) {
        const double inside = std::clamp(a, low, high);
        if (inside != a)
            b = base + (inside - from) * slope;
        a = inside;
    };
    cutEnd(a1, b1);
    cutEnd(a2, b2);
    return true;
}

QRectF around(QPointF centre, double width, double height) {
    const auto known = [](double size) { return std::isnan(size) ? 0.0 : reachable(size); };
    const QSizeF size(known(width), known(height));
    return {centre - QPointF(size.width(), size.height()) / 2, size};
}

} // namespace

double reachable(double place) {
    constexpr double far = 1e6;
    return place > -far ? std::min(place, far) : -far; // no number is not greater than anything
}

QPen outlinePen(const OutlinedShape& shape, const QPainter& painter) {
    if (shape.Border <= 0 || shape.BorderWidth <= 0)
        return Qt::NoPen;
    // Round ends join well. On pixels square ones of thin lines do nearly as well, and Qt paints them ten times faster;
    // those of thick lines stick out where a line bends.
    const bool isSquare = paintsPixels(painter) && !isThick(shape.BorderWidth, painter);
    const Qt::PenCapStyle cap = isSquare ? Qt::SquareCap : Qt::RoundCap;
    return {withOpacity(shape.BorderColor, shape.Border), shape.BorderWidth, Qt::SolidLine, cap, Qt::MiterJoin};
}

bool paintsPixels(const QPainter& painter) { return painter.paintEngine()->type() == QPaintEngine::Raster; }

bool isThick(double pen, const QPainter& painter) {
    constexpr double thick = 4; // pixels
    const QTransform toPixels = painter.deviceTransform();
    return pen * std::hypot(toPixels.m11(), toPixels.m12()) > thick;
}

ShapePainter::ShapePainter(QPainter& painter, QPointF origin) : painter_(painter), origin_(origin) {
    const double all = reachable(std::numeric_limits<double>::infinity());
    constexpr double margin = 100;
    visible_ = painter.hasClipping() ? painter.clipBoundingRect().adjusted(-margin, -margin, margin, margin)
                                     : QRectF(-all, -all, 2 * all, 2 * all);
}

std::optional<QLineF> ShapePainter::visiblePart(const CurveShape& curve) const {
    double x1 = origin_.x() + curve.X;
    double y1 = origin_.y() + curve.Y;
    double x2 = origin_.x() + curve.X2;
    double y2 = origin_.y() + curve.Y2;
    if (!visible_.contains(QPointF(x1, y1)) || !visible_.contains(QPointF(x2, y2))) {
        if (!std::isfinite(x1 + y1 + x2 + y2) || !clipLine(x1, y1, x2, y2, visible_.left(), visible_.right()) ||
            !clipLine(y1, x1, y2, x2, visible_.top(), visible_.bottom()))
            return std::nullopt;
    }
    return QLineF(x1, y1, x2, y2);
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
    setPenAndBrush(painter_, rect);
    drawRotated(painter_, placeOf(rect), rect.Rotation,
                [&] { painter_.drawRect(around({}, rect.Width, rect.Height)); });
}

void ShapePainter::operator()(const OvalShape& oval) {
    if (!isVisible(oval, reachOf(oval)))
        return;
    setPenAndBrush(painter_, oval);
    if (oval.Rotation == 0)
        painter_.drawEllipse(around(placeOf(oval), oval.Width, oval.Height));
    else
        drawRotated(painter_, placeOf(oval), oval.Rotation,
                    [&] { painter_.drawEllipse(around({}, oval.Width, oval.Height)); });
}

void ShapePainter::operator()(const ArcShape& arc) {
    // Qt counts angles the other way round.
    const double start = -arc.StartAngle * degreesARadian;
    const double extent = -arc.ArcAngle * degreesARadian;
    QPainterPath slice;
    slice.arcTo(around({}, arc.Width, arc.Height), start, std::clamp(extent, -360.0, 360.0));
    slice.closeSubpath();
    setPenAndBrush(painter_, arc);
    drawRotated(painter_, placeOf(arc), arc.Rotation, [&] { painter_.drawPath(slice); });
}

void ShapePainter::operator()(const CurveShape& curve) {
    painter_.setPen(outlinePen(curve, painter_));
    if (curve.Rotation != 0)
        drawRotated(painter_, placeOf(curve), curve.Rotation, [&] {
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
    setPenAndBrush(painter_, figure);
    drawRotated(painter_, placeOf(figure), figure.Rotation, [&] { painter_.drawPolygon(outline); });
}

void ShapePainter::operator()(const StringShape& string) {
    const QString text = toQt(string.Text);
    const double width = font_.metrics(string.TextFont, string.TextSize).horizontalAdvance(text);
    painter_.setFont(font_.font(string.TextFont, string.TextSize));
    painter_.setPen(withOpacity(string.FillColor, string.Fill));
    drawRotated(painter_, placeOf(string), string.Rotation, [&] { painter_.drawText(QPointF(-width / 2, 0), text); });
}

} // namespace tallyvane

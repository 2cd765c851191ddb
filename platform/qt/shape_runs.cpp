#include "platform/qt/shape_runs.h"

#include <algorithm>
#include <cmath>

namespace tallyvane {

namespace {

/// The one colour of a symbol that has no more than one, and lets nothing shine through.
template <class Shape>
std::optional<Color> onlyColor(const Shape& shape) {
    const auto isTranslucent = [](float percent) { return percent > 0 && percent < 100; };
    if (isTranslucent(shape.Fill) || isTranslucent(shape.Border))
        return std::nullopt;
    if (shape.Fill > 0 && shape.Border > 0 && shape.FillColor != shape.BorderColor)
        return std::nullopt;
    return shape.Fill > 0 ? shape.FillColor : shape.BorderColor;
}

/// Steps finer than anybody sees, so that places that differ by rounding share a stamp.
double fraction(double ofPixel) {
    constexpr double steps = 4096;
    return std::round(ofPixel * steps) / steps;
}

QPointF wholePixel(QPointF place) { return {std::floor(place.x()), std::floor(place.y())}; }

} // namespace

ShapeRuns::ShapeRuns(QPainter& painter, QPointF origin)
    : painter_(painter), plain_(painter, origin), toPixels_(painter.deviceTransform()) {
    inRuns_ = toPixels_.type() <= QTransform::TxScale && toPixels_.m11() > 0 && toPixels_.m11() == toPixels_.m22() &&
              painter.opacity() == 1;
}

void ShapeRuns::paint(const Group2D& shapes) {
    for (const Object2D& shape : shapes)
        std::visit(*this, shape);
    flush();
}

void ShapeRuns::operator()(const CurveShape& curve) {
    if (!inRuns_ || curve.Rotation != 0 || isThick(curve.BorderWidth, painter_)) {
        paintUnbatched(curve);
        return;
    }
    const auto line = plain_.visiblePart(curve);
    if (!line)
        return;
    setRunColor(curve.BorderColor);
    if (!lines_.empty() && (curve.BorderWidth != firstLine_.BorderWidth || curve.Border != firstLine_.Border))
        flush();
    if (lines_.empty())
        firstLine_ = curve;
    lines_.push_back(*line);
}

template <class Shape>
void ShapeRuns::paintUnbatched(const Shape& shape) {
    flush();
    plain_(shape);
}

template <class Shape>
void ShapeRuns::symbol(const Shape& shape) {
    constexpr double mostPixels = 64;
    const double pixels = (std::max(shape.Width, shape.Height) + shape.BorderWidth) * toPixels_.m11();
    const auto color = onlyColor(shape);
    if (!inRuns_ || !color || shape.Rotation != 0 || !(shape.Width >= 0 && shape.Height >= 0 && pixels <= mostPixels)) {
        paintUnbatched(shape);
        return;
    }
    if (!plain_.isVisible(shape, reachOf(shape)))
        return;
    const QPointF place = toPixels_.map(plain_.placeOf(shape));
    const QPointF pixel = wholePixel(place);
    Shape key = shape;
    key.X = fraction(place.x() - pixel.x());
    key.Y = fraction(place.y() - pixel.y());
    const std::size_t stamp = stampOf(key);
    if (stamp == stamps_.size()) {
        paintUnbatched(shape);
        return;
    }
    setRunColor(*color);
    imprints_.push_back({stamp, pixel.toPoint() + stamps_[stamp].corner});
}

/// The stamp of a symbol at that fraction of a pixel; past the last one when there are too many of them.
template <class Shape>
std::size_t ShapeRuns::stampOf(const Shape& shape) {
    constexpr std::size_t mostStamps = 128; // a scale of 1.1 has a hundred places in a pixel
    const auto isIt = [&](const Stamp& stamp) {
        const auto* known = std::get_if<Shape>(&stamp.shape);
        return known != nullptr && *known == shape;
    };
    if (lastStamp_ < stamps_.size() && isIt(stamps_[lastStamp_]))
        return lastStamp_;
    const auto found = std::find_if(stamps_.begin(), stamps_.end(), isIt);
    lastStamp_ = static_cast<std::size_t>(found - stamps_.begin());
    if (found != stamps_.end() || stamps_.size() == mostStamps)
        return lastStamp_;

    const QPointF reach = QPointF(shape.Width + shape.BorderWidth, shape.Height + shape.BorderWidth) / 2;
    const QPointF centre(shape.X, shape.Y);
    const QSizeF scale(toPixels_.m11(), toPixels_.m22());
    const QRect covered = QRectF(centre.x() - reach.x() * scale.width(), centre.y() - reach.y() * scale.height(),
                                 2 * reach.x() * scale.width(), 2 * reach.y() * scale.height())
                              .toAlignedRect();
    QImage pixels(covered.size().expandedTo({1, 1}), QImage::Format_ARGB32_Premultiplied);
    pixels.fill(Qt::transparent);
    QPainter painter(&pixels);
    painter.setRenderHints(painter_.renderHints());
    painter.translate(centre - covered.topLeft());
    painter.scale(scale.width(), scale.height());
    Shape centred = shape;
    centred.X = 0;
    centred.Y = 0;
    ShapePainter(painter, {})(centred);
    stamps_.push_back({shape, pixels, covered.topLeft()});
    return stamps_.size() - 1;
}

/// Ends the run when the colour changes.
void ShapeRuns::setRunColor(Color color) {
    if (color != color_)
        flush();
    color_ = color;
}

void ShapeRuns::flush() {
    if (!lines_.empty()) {
        painter_.setPen(outlinePen(firstLine_, painter_));
        painter_.drawLines(lines_.data(), static_cast<int>(lines_.size()));
        lines_.clear();
    }
    if (!imprints_.empty())
        paintStamps();
}

void ShapeRuns::paintStamps() {
    const QTransform before = painter_.worldTransform();
    painter_.setWorldTransform(toPixels_.inverted() * before); // to the device's own pixels
    for (const Imprint& imprint : imprints_)
        painter_.drawImage(imprint.place, stamps_[imprint.stamp].pixels);
    painter_.setWorldTransform(before);
    imprints_.clear();
}

} // namespace tallyvane

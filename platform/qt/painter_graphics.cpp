#include "platform/qt/painter_graphics.h"

#include <algorithm>
#include <cmath>

#include "platform/qt/convert.h"
#include "platform/qt/image_bitmap.h"
#include "platform/qt/pictures.h"
#include "platform/qt/shape_runs.h"

namespace tallyvane {

namespace {

QColor mixed(QColor a, QColor b) {
    return {(a.red() + b.red()) / 2, (a.green() + b.green()) / 2, (a.blue() + b.blue()) / 2};
}

} // namespace

PainterGraphics::PainterGraphics(QPainter& painter, QPaintDevice& device, const QRect& area)
    : painter_(painter), area_(area), font_(device) {
    painter_.save();
    painter_.setClipRect(area, Qt::IntersectClip);
    painter_.translate(area.topLeft());
    painter_.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform |
                            QPainter::LosslessImageRendering);
}

PainterGraphics::~PainterGraphics() { painter_.restore(); }

const QFontMetricsF& PainterGraphics::metrics() const { return font_.metrics(TextFont(), TextSize(), Style()); }

double PainterGraphics::StringWidth(std::string_view string) const { return metrics().horizontalAdvance(toQt(string)); }

/// Upright rectangles end between pixels and never half way in one: lines stay sharp, and neighbours leave no seam.
void PainterGraphics::fill(const QRectF& rect, QColor color) {
    painter_.setRenderHint(QPainter::Antialiasing, false);
    painter_.fillRect(rect, color);
    painter_.setRenderHint(QPainter::Antialiasing, true);
}

void PainterGraphics::DrawLine(double x1, double y1, double x2, double y2) {
    for (const double place : {x1, y1, x2, y2})
        if (std::isnan(place))
            return;
    const QPointF from(reachable(x1), reachable(y1));
    const QPointF to(reachable(x2), reachable(y2));
    const QPointF pen(PenWidth(), PenHeight());
    if (from.x() == to.x() || from.y() == to.y()) {
        const QPointF topLeft(std::min(from.x(), to.x()), std::min(from.y(), to.y()));
        const QPointF bottomRight(std::max(from.x(), to.x()), std::max(from.y(), to.y()));
        fill(QRectF(topLeft, bottomRight + pen), toQt(ForeColor()));
        return;
    }
    CurveShape slanted;
    slanted.X = x1 + PenWidth() / 2;
    slanted.Y = y1 + PenHeight() / 2;
    slanted.X2 = x2 + PenWidth() / 2;
    slanted.Y2 = y2 + PenHeight() / 2;
    slanted.BorderColor = ForeColor();
    slanted.BorderWidth = std::max(PenWidth(), PenHeight());
    DrawObject(slanted, 0, 0);
}

void PainterGraphics::DrawRect(double x, double y, double width, double height) {
    if (std::isnan(x + y + width + height))
        return;
    const QRectF rect =
        QRectF(QPointF(reachable(x), reachable(y)), QPointF(reachable(x + width), reachable(y + height))).normalized();
    const double right = std::max(rect.left(), rect.right() - PenWidth());
    const double bottom = std::max(rect.top(), rect.bottom() - PenHeight());
    DrawLine(rect.left(), rect.top(), right, rect.top());
    DrawLine(rect.left(), bottom, right, bottom);
    DrawLine(rect.left(), rect.top(), rect.left(), bottom);
    DrawLine(right, rect.top(), right, bottom);
}

void PainterGraphics::FillRect(double x, double y, double width, double height) {
    if (std::isnan(x + y + width + height))
        return;
    const QColor color = toQt(ForeColor());
    const QRectF rect(QPointF(reachable(x), reachable(y)), QPointF(reachable(x + width), reachable(y + height)));
    fill(rect.normalized(), tint_ ? mixed(color, *tint_) : color);
}

void PainterGraphics::DrawString(std::string_view string, double x, double y) {
    painter_.setFont(font_.font(TextFont(), TextSize(), Style()));
    painter_.setPen(toQt(ForeColor()));
    painter_.drawText(QPointF(reachable(x), reachable(y)), toQt(string));
}

void PainterGraphics::DrawPicture(const Picture& picture, double x, double y) {
    const QPointF place(reachable(x), reachable(y));
    if (const auto* bitmap = dynamic_cast<ImageBitmap*>(picture.Bitmap())) {
        painter_.drawImage(place, bitmap->image());
    } else if (!picture.File().empty()) {
        const LoadedPicture& loaded = loadPicture(picture.File());
        if (loaded.size.isEmpty())
            return;
        const QPixmap pixels = loaded.icon.pixmap(loaded.size, painter_.device()->devicePixelRatioF());
        painter_.drawPixmap(QRectF(place, loaded.size), pixels, pixels.rect());
    } else {
        paintShapes(picture.Objects(), place);
    }
}

void PainterGraphics::DrawObject(const Object2D& shape, double x, double y) {
    std::visit(ShapePainter(painter_, {reachable(x), reachable(y)}), shape);
}

void PainterGraphics::shrinkToFit(double width, double height) {
    const double times = std::max({1.0, width / Width(), height / Height()});
    painter_.scale(1 / times, 1 / times);
    area_.setSize(area_.size() * times);
}

void PainterGraphics::paintShapes(const Group2D& shapes, QPointF origin) {
    if (paintsPixels(painter_))
        ShapeRuns(painter_, origin).paint(shapes);
    else
        ShapePainter(painter_, origin).paint(shapes);
}

} // namespace tallyvane

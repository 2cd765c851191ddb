#include "platform/qt/painter_graphics.h"

#include "platform/qt/convert.h"
#include "platform/qt/pictures.h"

namespace tallyvane {

namespace {

QColor mixed(QColor a, QColor b) {
    return {(a.red() + b.red()) / 2, (a.green() + b.green()) / 2, (a.blue() + b.blue()) / 2};
}

} // namespace

PainterGraphics::PainterGraphics(QPainter& painter, const QRect& area) : painter_(painter), area_(area) {
    painter_.save();
    painter_.setClipRect(area, Qt::IntersectClip);
    painter_.translate(area.topLeft());
}

PainterGraphics::~PainterGraphics() { painter_.restore(); }

void PainterGraphics::FillRect(double x, double y, double width, double height) {
    const QColor color = toQt(ForeColor());
    painter_.fillRect(QRectF(x, y, width, height), tint_ ? mixed(color, *tint_) : color);
}

void PainterGraphics::DrawPicture(const Picture& picture, double x, double y) {
    const LoadedPicture& loaded = loadPicture(picture.File());
    if (loaded.size.isEmpty())
        return;
    const QPixmap pixels = loaded.icon.pixmap(loaded.size, painter_.device()->devicePixelRatioF());
    painter_.drawPixmap(QRectF(QPointF(x, y), loaded.size), pixels, pixels.rect());
}

} // namespace tallyvane

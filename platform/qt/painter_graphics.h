#pragma once

#include <QPainter>
#include <QRect>

#include <cmath>
#include <optional>

#include "platform/drawing/graphics.h"
#include "platform/qt/font_in_use.h"

namespace tallyvane {

/// The drawing surface on a Qt painter, of a screen, a bitmap or a printer: a rectangle of it, to which all drawing is
/// moved and cut. The painter is as it was when the surface goes.
class PainterGraphics : public Graphics {
public:
    PainterGraphics(QPainter& painter, const QRect& area) : PainterGraphics(painter, *painter.device(), area) {}
    /// For a painter that may not have begun on its device; nothing is drawn then.
    PainterGraphics(QPainter& painter, QPaintDevice& device, const QRect& area);
    ~PainterGraphics() override;

    double Width() const override { return area_.width(); }
    double Height() const override { return area_.height(); }
    double TextAscent() const override { return metrics().ascent(); }
    /// In whole units: whoever cuts fractions off leaves the letters their room.
    double TextHeight() const override { return std::ceil(metrics().height()); }
    double StringWidth(std::string_view text) const override;
    void DrawLine(double x1, double y1, double x2, double y2) override;
    void DrawRect(double x, double y, double width, double height) override;
    void FillRect(double x, double y, double width, double height) override;
    void DrawString(std::string_view text, double x, double y) override;
    void DrawPicture(const Picture& picture, double x, double y) override;
    void DrawObject(const Object2D& shape, double x, double y) override;
    void shrinkToFit(double width, double height) override;

    /// From here on fills are mixed half and half with that colour; pictures are not. A list marks its selected rows
    /// so: the ground changes, the lights stay as they are.
    void tintFills(QColor color) { tint_ = color; }

private:
    const QFontMetricsF& metrics() const;
    void fill(const QRectF& rect, QColor color);
    void paintShapes(const Group2D& shapes, QPointF origin);

    QPainter& painter_;
    QRectF area_;
    std::optional<QColor> tint_;
    mutable FontInUse font_;
};

} // namespace tallyvane

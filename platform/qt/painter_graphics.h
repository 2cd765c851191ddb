#pragma once

#include <QPainter>
#include <QRect>

#include <optional>

#include "platform/graphics.h"

namespace tallyvane {

/// The drawing surface on a Qt painter: a rectangle of it, to which all drawing is moved and cut. The painter is as
/// it was when the surface goes.
class PainterGraphics : public Graphics {
public:
    PainterGraphics(QPainter& painter, const QRect& area);
    ~PainterGraphics() override;

    double Width() const override { return area_.width(); }
    double Height() const override { return area_.height(); }
    void FillRect(double x, double y, double width, double height) override;
    void DrawPicture(const Picture& picture, double x, double y) override;

    /// From here on fills are mixed half and half with that colour; pictures are not. A list marks its selected rows
    /// so: the ground changes, the lights stay as they are.
    void tintFills(QColor color) { tint_ = color; }

private:
    QPainter& painter_;
    QRect area_;
    std::optional<QColor> tint_;
};

} // namespace tallyvane

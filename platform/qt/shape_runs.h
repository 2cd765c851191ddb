#pragma once

#include <vector>

#include "platform/qt/shape_painter.h"

namespace tallyvane {

/// Paints shapes on pixels, as ShapePainter does and many times faster.
///
/// What overlaps in one colour may be painted in any order, since each layer only covers its part of what still shows
/// of the ground. So while the colour stays, lines are gathered for one call; and a symbol that comes again is painted
/// once, on a stamp, and laid down wherever it stands.
class ShapeRuns {
public:
    ShapeRuns(QPainter& painter, QPointF origin);

    void paint(const Group2D& shapes);

    // What std::visit asks for
    void operator()(const RectShape& rect) { symbol(rect); }
    void operator()(const OvalShape& oval) { symbol(oval); }
    void operator()(const ArcShape& arc) { paintUnbatched(arc); }
    void operator()(const CurveShape& curve);
    void operator()(const FigureShape& figure) { paintUnbatched(figure); }
    void operator()(const StringShape& string) { paintUnbatched(string); }

private:
    /// A symbol's pixels. It stands as far right of and below a whole pixel as the shape's X and Y say.
    struct Stamp {
        Object2D shape;
        QImage pixels;
        QPoint corner; // from that whole pixel to the top left of the pixels
    };
    struct Imprint {
        std::size_t stamp;
        QPoint place;
    };

    template <class Shape>
    void symbol(const Shape& shape);
    template <class Shape>
    void paintUnbatched(const Shape& shape);
    template <class Shape>
    std::size_t stampOf(const Shape& shape);
    void setRunColor(Color color);
    void flush();
    void paintStamps();

    QPainter& painter_;
    ShapePainter plain_;
    QTransform toPixels_;
    bool inRuns_ = false; // the painter shows upright, opaque pixels
    std::vector<Stamp> stamps_;
    std::size_t lastStamp_ = 0;

    // The run: lines of one pen and imprints, all of one colour
    Color color_ = 0;
    CurveShape firstLine_;
    std::vector<QLineF> lines_;
    std::vector<Imprint> imprints_;
};

} // namespace tallyvane

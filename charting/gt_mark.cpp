#include "charting/gt_mark.h"

#include <utility>
#include <vector>

namespace tallyvane {

namespace {

using Corner = std::pair<double, double>;

FigureShape figureOf(const std::vector<Corner>& corners, double size) {
    FigureShape figure;
    Corner last = corners.back();
    for (const Corner& corner : corners) {
        figure.AddLine(last.first * size, last.second * size, corner.first * size, corner.second * size);
        last = corner;
    }
    return figure;
}

} // namespace

void appendMark(Group2D& shapes, GTMark mark, bool isHollow, Color color, double x, double y, double size) {
    const auto append = [&](auto shape) {
        shape.X = x;
        shape.Y = y;
        shape.FillColor = isHollow ? RGB(255, 255, 255) : color;
        shape.Border = 100;
        shape.BorderColor = color;
        shapes.Append(std::move(shape));
    };
    const auto appendSized = [&](auto shape) {
        shape.Width = shape.Height = size;
        append(std::move(shape));
    };
    switch (mark) {
    case GTMark::none:
        return;
    case GTMark::circle:
        return appendSized(OvalShape());
    case GTMark::square:
        return appendSized(RectShape());
    case GTMark::triangle:
        return append(figureOf({{0, -0.6}, {0.6, 0.5}, {-0.6, 0.5}}, size));
    case GTMark::diamond:
        return append(figureOf({{0, -0.65}, {0.65, 0}, {0, 0.65}, {-0.65, 0}}, size));
    }
}

} // namespace tallyvane

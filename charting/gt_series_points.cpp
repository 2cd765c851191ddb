/// Lines, areas and scattered points, and the symbols that stand at their points.
#include "charting/gt_series.h"
#include "charting/truncated.h"

#include <cmath>

namespace tallyvane {

/// Calls `visit` with each point and its place in the plot, from the plot's top left corner.
template <class Visit>
void GTSeries::forEachPlace(int w, int h, Visit visit) const {
    const double xUnit = xScale(w);
    const double yUnit = yScale(h);
    for (const auto& point : myDataPoints) {
        const double px = (point->XValue() - myXMin) * xUnit;
        const double py = h - (point->YValue() - myYmin) * yUnit;
        if (std::isfinite(px) && std::isfinite(py))
            visit(*point, px, py);
    }
}

std::optional<GTSeries::Nearest> GTSeries::nearestPoint(double x, double y, int w, int h) const {
    std::optional<Nearest> nearest;
    int index = 0;
    const double xUnit = xScale(w);
    const double yUnit = yScale(h);
    for (const auto& point : myDataPoints) {
        const double distance =
            std::hypot((point->XValue() - myXMin) * xUnit - x, h - (point->YValue() - myYmin) * yUnit - y);
        if (std::isfinite(distance) && (!nearest || distance < nearest->distance))
            nearest = {index, distance};
        ++index;
    }
    return nearest;
}

void GTSeries::renderSymbol(Picture& p, int x, int y) const {
    if (mark != GTMark::none)
        return appendMark(p.Objects(), mark, marksAreHollow, myPenColor, x, y, myPlotSymbolSize * scale());
    const auto append = [&](auto shape, bool filled) {
        shape.X = x;
        shape.Y = y;
        shape.Width = shape.Height = myPlotSymbolSize * scale();
        shape.Fill = filled ? 100 : 0;
        if (filled)
            shape.FillColor = myPenColor;
        shape.Border = 100;
        shape.BorderColor = myPenColor;
        shape.BorderWidth = scale();
        p.Objects().Append(std::move(shape));
    };
    switch (myPlotSymbol) {
    case hollowCircle:
        return append(OvalShape(), false);
    case filledCircle:
        return append(OvalShape(), true);
    case hollowSquare:
        return append(RectShape(), false);
    case filledSquare:
        return append(RectShape(), true);
    default:
        return;
    }
}

void GTSeries::renderLine(Graphics& g, int x, int y, int w, int h) const {
    if (w == 0 || h == 0)
        return;
    Picture picture(w, h, 0);
    picture.Objects().reserve(2 * myDataPoints.size());
    CurveShape segment;
    segment.BorderColor = myPenColor;
    segment.BorderWidth = myPenSize * scale();
    bool first = true;
    forEachPlace(w, h, [&](const GTDataPoint& /*point*/, double px, double py) {
        segment.X = first ? px : segment.X2;
        segment.Y = first ? py : segment.Y2;
        segment.X2 = px;
        segment.Y2 = py;
        first = false;
        picture.Objects().Append(segment);
        renderSymbol(picture, truncated(px), truncated(py));
    });
    g.DrawPicture(picture, x, y);
    renderPointLabels(g, x, y, w, h);
}

void GTSeries::renderScatter(Graphics& g, int x, int y, int w, int h) const {
    if (w == 0 || h == 0)
        return;
    Picture picture(w, h, 0);
    picture.Objects().reserve(myDataPoints.size());
    forEachPlace(w, h, [&](const GTDataPoint& /*point*/, double px, double py) {
        renderSymbol(picture, truncated(px), truncated(py));
    });
    g.DrawPicture(picture, x, y);
    renderPointLabels(g, x, y, w, h);
}

/// The area reaches down to the bottom of the plot, whatever value stands there, and lies over its own symbols.
void GTSeries::renderArea(Graphics& g, int x, int y, int w, int h) const {
    if (w == 0 || h == 0)
        return;
    Picture picture(w, h, 0);
    FigureShape figure;
    figure.BorderColor = myPenColor;
    figure.BorderWidth = myPenSize;
    figure.FillColor = myPenColor;
    double lastX = 0;
    double lastY = 0;
    forEachPlace(w, h, [&](const GTDataPoint& point, double px, double py) {
        if (figure.sides.empty()) {
            figure.AddLine(0, h, px, py);
            figure.AddLine(px, py, px, py);
        } else {
            figure.AddLine(lastX, lastY, px, py);
        }
        lastX = px;
        lastY = py;
        renderSymbol(picture, truncated(px), truncated(py));
        point.Render(picture, truncated(px), truncated(py));
    });
    if (figure.sides.empty())
        return;
    figure.AddLine(lastX, lastY, w, h);
    figure.AddLine(w, h, 0, h);
    picture.Objects().Append(std::move(figure));
    g.DrawPicture(picture, x, y);
    renderPointLabels(g, x, y, w, h);
}

void GTSeries::renderPointLabels(Graphics& g, int x, int y, int w, int h) const {
    if (!dataLabelsVisible)
        return;
    Picture labels(w, h, 0);
    forEachPlace(w, h, [&](const GTDataPoint& point, double px, double py) {
        point.Render(labels, truncated(px), truncated(py));
    });
    g.DrawPicture(labels, x, y);
}

} // namespace tallyvane

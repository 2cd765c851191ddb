/// Columns and bars, stacked, in percent and clustered. A bar is a column on its side.
#include "charting/gt_series.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>

#include "charting/truncated.h"
#include "platform/base/number.h"
#include "platform/base/random.h"

namespace tallyvane {

namespace {

/// The extent of what `valuesOf` gives for all points; 0.0 to 0.0 when nothing of it is finite.
template <class ValuesOf>
Extent extentOf(const GTDataPoints& points, ValuesOf valuesOf) {
    std::optional<Extent> extent;
    for (const auto& point : points)
        valuesOf(*point, [&](double value) { widen(extent, value); });
    return extent.value_or(Extent());
}

const auto xTotal = [](const GTDataPoint& point, auto take) { take(point.XTotal()); };
const auto yTotal = [](const GTDataPoint& point, auto take) { take(point.YTotal()); };
const auto everyX = [](const GTDataPoint& point, auto take) {
    for (int j = 0; j < point.XValueCount(); ++j)
        take(point.XValue(j));
};
const auto everyY = [](const GTDataPoint& point, auto take) {
    for (int j = 0; j < point.YValueCount(); ++j)
        take(point.YValue(j));
};

constexpr Extent wholePercent{0, 100};

/// A value's part of the total in percent; no number when the total is 0.
double percentOf(double value, double total) {
    return total == 0 ? std::numeric_limits<double>::quiet_NaN() : value / total * 100;
}

} // namespace

/// Of all kinds only these two settle their range before the room for the axes is measured.
void GTSeries::fixColumnRange() {
    if (myType != totalColumn && myType != clusteredColumn)
        return;
    const Extent y = myType == totalColumn ? extentOf(myDataPoints, yTotal) : extentOf(myDataPoints, everyY);
    SetYRange(y.low, y.high);
}

void GTSeries::widenXRange(Extent extent) { SetXRange(std::min(extent.low, myXMin), std::max(extent.high, myXMax)); }

void GTSeries::widenYRange(Extent extent) { SetYRange(std::min(extent.low, myYmin), std::max(extent.high, myYmax)); }

Color GTSeries::pieceColor(int index) const {
    if (myColorTableProvider)
        return myColorTableProvider->getColor(index);
    Random random;
    const auto channel = [&random] { return random.InRange(0, 255); };
    return RGB(channel(), channel(), channel());
}

void GTSeries::renderPiece(Graphics& g, int index, double x, double y, double w, double h) const {
    g.ForeColor(pieceColor(index));
    g.FillRect(x, y, w, h);
    constexpr double hatchStep = 5; // points
    if (hatching)
        renderHatching(g, hatching(index), x, y, w - 2 * scale(), h - 2 * scale(),
                       hatchStep * scale()); // pens hang over
    g.ForeColor(myPenColor);
    g.DrawRect(x, y, w, h);
}

void GTSeries::setLabelFont(Graphics& g) const {
    g.TextFont(textFont);
    g.TextSize(textSize * scale());
}

/// In the middle of the piece, or at its bottom when it is too low for that.
void GTSeries::renderPieceLabel(Graphics& g, double value, double x, double top, double height) const {
    if (!dataLabelsVisible)
        return;
    setLabelFont(g);
    const bool fits = top + height / 2 - g.TextAscent() > top;
    const double baseline = fits ? top + height / 2 : top + height - g.TextHeight() + g.TextAscent();
    g.DrawString(Format(value, "#.0"), x, baseline);
}

/// Stacks the pieces of every point from the bottom of the plot. `amountOf` gives what a piece stands for, which is its
/// label; it is as high as that, counted from `from`.
template <class AmountOf>
void GTSeries::stackColumns(Graphics& g, int x, int y, int w, int h, double from, AmountOf amountOf) const {
    const double xUnit = xScale(w);
    const double yUnit = yScale(h);
    for (const auto& point : myDataPoints) {
        const double right = x + (point->XValue() - myXMin) * xUnit;
        if (!std::isfinite(right))
            continue;
        double top = y + h;
        for (int j = 0; j < point->YValueCount(); ++j) {
            const double amount = amountOf(*point, j);
            const double height = std::trunc((amount - from) * yUnit);
            if (!std::isfinite(height))
                continue;
            top -= height;
            renderPiece(g, j, right - xUnit, top, xUnit, height);
            renderPieceLabel(g, amount, right - xUnit / 2, top, height);
        }
    }
}

void GTSeries::renderTotalColumn(Graphics& g, int x, int y, int w, int h) {
    if (w == 0 || h == 0)
        return;
    widenYRange(extentOf(myDataPoints, yTotal));
    widenXRange(extentOf(myDataPoints, xTotal));
    myXAxis.tickCount(Count() + 1);
    stackColumns(g, x, y, w, h, myYmin, [](const GTDataPoint& point, int j) { return point.YValue(j); });
}

void GTSeries::renderPercentColumn(Graphics& g, int x, int y, int w, int h) {
    if (w == 0 || h == 0)
        return;
    widenYRange(wholePercent);
    widenXRange(extentOf(myDataPoints, xTotal));
    myXAxis.tickCount(Count() + 1);
    stackColumns(g, x, y, w, h, 0,
                 [](const GTDataPoint& point, int j) { return percentOf(point.YValue(j), point.YTotal()); });
}

void GTSeries::renderClusteredColumn(Graphics& g, int x, int y, int w, int h) {
    if (w == 0 || h == 0)
        return;
    widenYRange(extentOf(myDataPoints, everyY));
    widenXRange(extentOf(myDataPoints, xTotal));
    myXAxis.tickCount(Count() + 1);
    const double xUnit = xScale(w);
    const double yUnit = yScale(h);
    for (const auto& point : myDataPoints) {
        const int width = truncated(xUnit / point->YValueCount());
        double left = x + (point->XValue() - myXMin) * xUnit - xUnit;
        for (int j = 0; j < point->YValueCount(); ++j, left += width) {
            const double height = std::trunc((point->YValue(j) - myYmin) * yUnit);
            if (std::isfinite(left) && std::isfinite(height))
                renderPiece(g, j, left, y + h - height, width, height);
        }
    }
}

/// As stackColumns, from the left of the plot.
template <class AmountOf>
void GTSeries::stackBars(Graphics& g, int x, int y, int w, int h, double from, AmountOf amountOf) const {
    const double xUnit = xScale(w);
    const double yUnit = yScale(h);
    for (const auto& point : myDataPoints) {
        const double top = y + h - (point->YValue() - myYmin) * yUnit - yUnit;
        if (!std::isfinite(top))
            continue;
        double left = x;
        for (int j = 0; j < point->XValueCount(); ++j) {
            const double length = std::trunc((amountOf(*point, j) - from) * xUnit);
            if (!std::isfinite(length))
                continue;
            renderPiece(g, j, left, top, length, yUnit);
            left += length;
        }
    }
}

void GTSeries::renderTotalBar(Graphics& g, int x, int y, int w, int h) {
    if (w == 0 || h == 0)
        return;
    widenYRange(extentOf(myDataPoints, yTotal));
    widenXRange(extentOf(myDataPoints, xTotal));
    myYAxis.tickCount(Count() + 1);
    stackBars(g, x, y, w, h, myXMin, [](const GTDataPoint& point, int j) { return point.XValue(j); });
}

void GTSeries::renderPercentBar(Graphics& g, int x, int y, int w, int h) {
    if (w == 0 || h == 0)
        return;
    widenYRange(extentOf(myDataPoints, yTotal));
    widenXRange(wholePercent);
    myYAxis.tickCount(Count() + 1);
    stackBars(g, x, y, w, h, 0,
              [](const GTDataPoint& point, int j) { return percentOf(point.XValue(j), point.XTotal()); });
}

/// Unlike the other bars these hang below their Y position.
void GTSeries::renderClusteredBar(Graphics& g, int x, int y, int w, int h) {
    if (w == 0 || h == 0)
        return;
    widenYRange(extentOf(myDataPoints, yTotal));
    widenXRange(extentOf(myDataPoints, everyX));
    myYAxis.tickCount(Count() + 1);
    const double xUnit = xScale(w);
    const double yUnit = yScale(h);
    for (const auto& point : myDataPoints) {
        const double height = yUnit / point->XValueCount();
        double top = y + h - (point->YValue() - myYmin) * yUnit + yUnit;
        for (int j = 0; j < point->XValueCount(); ++j) {
            top -= height;
            const double length = std::trunc((point->XValue(j) - myXMin) * xUnit);
            if (std::isfinite(top) && std::isfinite(length))
                renderPiece(g, j, x, top, length, height);
        }
    }
}

} // namespace tallyvane

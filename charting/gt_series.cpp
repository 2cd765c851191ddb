#include "charting/gt_series.h"

#include "charting/gt_general_purpose.h"
#include "platform/base/date.h"
#include "platform/base/number.h"

namespace tallyvane {

GTSeries::GTSeries(int type) : myType(type), myName("Series " + Format(Ticks(), "#")) {
    GridPenSize(1);
    GridPenColor(RGB(0, 0, 0));
}

GTSeries::~GTSeries() {
    for (const auto& point : myDataPoints)
        point->reportNoMoreTo(tally_);
}

void GTSeries::AddDataValue(double x, double y) { AddDataPoint(std::make_shared<GTDataPoint>(x, y)); }

void GTSeries::AddDataPoint(std::shared_ptr<GTDataPoint> p) {
    if (!p)
        return;
    p->reportTo(tally_);
    myDataPoints.push_back(std::move(p));
    fixRanges();
}

void GTSeries::RemoveDataValue(int index) {
    if (index < 0 || index >= Count())
        return;
    const auto place = myDataPoints.begin() + index;
    (*place)->reportNoMoreTo(tally_);
    myDataPoints.erase(place);
    tally_.stale = true;
    fixRanges();
}

void GTSeries::SwapXY() {
    for (const auto& point : myDataPoints)
        point->swapXY();
}

void GTSeries::recountTally() {
    for (const auto& point : myDataPoints)
        point->reportNoMoreTo(tally_);
    tally_ = {};
    for (const auto& point : myDataPoints)
        point->reportTo(tally_);
}

void GTSeries::fixRanges() {
    if (tally_.stale)
        recountTally();
    if (!myDataPoints.empty()) {
        const GTDataPoint& first = *myDataPoints.front();
        if (const auto x = tally_.x.extent(static_cast<std::size_t>(first.XValueCount()), myDataPoints.size())) {
            myXMin = x->low;
            myXMax = x->high;
        }
        if (const auto y = tally_.y.extent(static_cast<std::size_t>(first.YValueCount()), myDataPoints.size())) {
            myYmin = y->low;
            myYmax = y->high;
        }
    }
    myXAxis.SetRange(myXMin, myXMax);
    myYAxis.SetRange(myYmin, myYmax);
}

void GTSeries::SetXRange(double min, double max) {
    myXMin = min;
    myXMax = max;
    myXAxis.SetRange(min, max);
}

void GTSeries::SetYRange(double min, double max) {
    myYmin = min;
    myYmax = max;
    myYAxis.SetRange(min, max);
}

void GTSeries::GridPenColor(Color color) {
    myXAxis.GridPenColor(color);
    myYAxis.GridPenColor(color);
}

void GTSeries::GridPenSize(int points) {
    myXAxis.GridPenSize(points);
    myYAxis.GridPenSize(points);
}

void GTSeries::Resolution(int dotsPerInch) {
    myResolution = dotsPerInch;
    for (const auto& point : myDataPoints)
        point->Resolution(dotsPerInch);
    myXAxis.Resolution(dotsPerInch);
    myYAxis.Resolution(dotsPerInch);
}

int GTSeries::XAxisHeight(int n) {
    fixColumnRange();
    return myXAxis.height(n);
}

int GTSeries::YAxisWidth(int n) {
    fixColumnRange();
    return myYAxis.width(n);
}

double GTSeries::scale() const { return GTGeneralPurpose::GTResolutionScaleFactor(myResolution); }

double GTSeries::xScale(int w) const { return myXMax == myXMin ? 1.0 : w / (myXMax - myXMin); }

double GTSeries::yScale(int h) const { return myYmax == myYmin ? 1.0 : h / (myYmax - myYmin); }

void GTSeries::Render(Graphics& g, int x, int y, int& left, int& top, int& right, int& bottom, int w, int h) {
    myXAxis.ClearTickValues();
    for (GTAxis* axis : {&myXAxis, &myYAxis})
        if (axis->ticksAreValues())
            axis->TickValues(myDataPoints);

    if (myXGridVisible)
        myXAxis.renderGrid(g, x, y, w, h);
    if (myYGridVisible)
        myYAxis.renderGrid(g, x, y, w, h);
    if (myXGridVisible)
        myXAxis.renderBaseline(g, x, y, w, h);
    if (myYGridVisible)
        myYAxis.renderBaseline(g, x, y, w, h);

    renderData(g, x, y, w, h);
    if (myType == pie)
        return;

    const int xAxisHeight = myXAxis.height(w);
    const int yAxisWidth = myYAxis.width(h);
    if (myXAxis.top())
        top += xAxisHeight;
    if (myYAxis.left())
        left += yAxisWidth;
    myXAxis.render(g, x, myXAxis.top() ? y - top : y + h + bottom, w);
    myYAxis.render(g, myYAxis.left() ? x - left : x + w + right, y, h);
    if (myXAxis.bottom())
        bottom += xAxisHeight;
    if (myYAxis.right())
        right += yAxisWidth;
}

void GTSeries::renderData(Graphics& g, int x, int y, int w, int h) {
    switch (myType) {
    case line:
        return renderLine(g, x, y, w, h);
    case area:
        return renderArea(g, x, y, w, h);
    case scatter:
        return renderScatter(g, x, y, w, h);
    case totalColumn:
        return renderTotalColumn(g, x, y, w, h);
    case percentColumn:
        return renderPercentColumn(g, x, y, w, h);
    case clusteredColumn:
        return renderClusteredColumn(g, x, y, w, h);
    case totalBar:
        return renderTotalBar(g, x, y, w, h);
    case percentBar:
        return renderPercentBar(g, x, y, w, h);
    case clusteredBar:
        return renderClusteredBar(g, x, y, w, h);
    case pie:
        return renderPie(g, x, y, w, h);
    case box:
        return renderBoxes(g, x, y, w, h);
    default:
        return;
    }
}

} // namespace tallyvane

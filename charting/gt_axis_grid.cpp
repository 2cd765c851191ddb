/// The lines that an axis draws across the plot: its grid and its base line.
#include "charting/gt_axis.h"
#include "charting/pen_keeper.h"

namespace tallyvane {

namespace {

void setPen(Graphics& g, Color color, double size) {
    g.ForeColor(color);
    g.PenWidth(size);
    g.PenHeight(size);
}

} // namespace

void GTAxis::renderGrid(Graphics& g, int x, int y, int w, int h) const {
    if (!isVisible)
        return;
    const PenKeeper keeper(g);
    setPen(g, myGridPenColor, myGridPenSize * scale());
    if (myType == horizontal)
        renderXGrid(g, x, y, w, h);
    else
        renderYGrid(g, x, y, w, h);
}

void GTAxis::renderXGrid(Graphics& g, int x, int y, int w, int h) const {
    if (w == 0)
        return;
    const auto line = [&](double at) { g.DrawLine(at, y, at, y + h); };
    const TickSteps steps = evenSteps(w);
    if (myTicksAreValues) {
        for (const auto& point : myTickValues)
            if (isInRange(point->XValue()))
                line(x + (point->XValue() - myMin) * steps.unit);
        return;
    }
    double position = x;
    walk(steps.increment, w, [&](double /*v*/) {
        line(position);
        position += steps.step;
    });
    line(x + w);
}

void GTAxis::renderYGrid(Graphics& g, int x, int y, int w, int h) const {
    if (h == 0)
        return;
    const auto line = [&](double at) { g.DrawLine(x, at, x + w, at); };
    const TickSteps steps = evenSteps(h);
    if (myTicksAreValues) {
        for (const auto& point : myTickValues)
            if (isInRange(point->YValue()))
                line(y + h - (point->YValue() - myMin) * steps.unit);
        return;
    }
    double position = y + h;
    walk(steps.increment, h, [&](double /*v*/) {
        line(position);
        position -= steps.step;
    });
    line(y);
}

void GTAxis::renderBaseline(Graphics& g, int x, int y, int w, int h) const {
    if (!myBaselineVisible)
        return;
    const PenKeeper keeper(g);
    setPen(g, myBaseLineColor, myBaseLinePenSize * scale());
    if (myType == horizontal)
        renderXbaseLine(g, x, y, w, h);
    else
        renderYBaseline(g, x, y, w, h);
}

void GTAxis::renderXbaseLine(Graphics& g, int x, int y, int w, int h) const {
    const double at = x + (myBaseLine - myMin) * w / (myMax - myMin);
    if (myBaselineVisible && at >= x && at <= x + w)
        g.DrawLine(at, y, at, y + h);
}

void GTAxis::renderYBaseline(Graphics& g, int x, int y, int w, int h) const {
    const double at = y + h - (myBaseLine - myMin) * h / (myMax - myMin);
    if (myBaselineVisible && at >= y && at <= y + h)
        g.DrawLine(x, at, x + w, at);
}

} // namespace tallyvane

/// An axis with its title, its line, its ticks and their labels.
#include "charting/gt_axis.h"

#include <numbers>

#include "charting/truncated.h"
#include "platform/base/number.h"

namespace tallyvane {

void GTAxis::render(Graphics& g, int x, int y, int length) const {
    if (!isVisible)
        return;
    const Color color = g.ForeColor();
    if (myType == horizontal)
        renderXAxis(g, x, y, length);
    else
        renderYAxis(g, x, y, length);
    g.ForeColor(color);
    g.PenWidth(truncated(g.PenWidth())); // the pen is the caller's; from here on in whole units
    g.PenHeight(truncated(g.PenHeight()));
}

void GTAxis::renderXTitle(Graphics& g, int x, int y, int width) const {
    if (myText.empty())
        return;
    const double titleWidth = g.StringWidth(myText);
    const double centre = x + width / 2.0;
    const double outward = onTop ? 0 : myInnerMargin * scale() + ticksRoom() + labelsRoom();
    if (myTitleIsHorizontal) {
        g.DrawString(myText, centre - titleWidth / 2, y + g.TextAscent() + outward);
        return;
    }
    renderRotated(g, myText, -std::numbers::pi / 2, g.TextAscent(), centre - g.TextHeight() / 2, y + outward);
}

void GTAxis::renderXAxis(Graphics& g, int x, int y, int width) const {
    if (width == 0)
        return;
    setFont(g);
    g.ForeColor(textColor);
    renderXTitle(g, x, y, width);

    double axisY = y + myInnerMargin * scale();
    if (onTop)
        axisY = y + (myTitleIsHorizontal ? g.TextHeight() : g.StringWidth(myText)) + ticksRoom() + labelsRoom();
    if (ticksVisible)
        g.DrawLine(x, axisY, x + width, axisY);

    const auto tick = [&](int tickX, double v, bool labelled) {
        const int anchor = renderXTick(g, tickX, axisY);
        if (labelled)
            renderXTickLabel(g, formatTickLabel(v), tickX, anchor);
    };
    const TickSteps steps = xAxisSteps(width);
    if (myTicksAreValues) {
        for (const auto& point : myTickValues)
            if (isInRange(point->XValue()))
                tick(truncated(x + (point->XValue() - myMin) * steps.unit), point->XValue(), myTickLabelsVisible);
        return;
    }
    double position = x;
    const double closing = walk(steps.increment, width, [&](double v) {
        const int tickX = truncatedSteps(position);
        if (tickX < x + width)
            tick(tickX, v, myTickLabelsVisible);
        position += steps.step;
    });
    tick(x + width - 1, closing, myTickLabelsVisible && !skipLastTickLabel);
}

int GTAxis::renderXTick(Graphics& g, int x, double axisY) const {
    const int outward = onTop ? -1 : 1;
    const int end = truncated(axisY + outward * (myMajorTickSize * scale()));
    if (ticksVisible)
        g.DrawLine(x, truncated(axisY), x, end);
    return truncated(end + outward * (myTickSpacing * scale()));
}

void GTAxis::renderYTitle(Graphics& g, int x, int y, int height) const {
    if (myText.empty())
        return;
    const double centre = y + height / 2.0;
    const double top = centre - g.StringWidth(myText) / 2;
    const double outward = onRight ? myInnerMargin * scale() + ticksRoom() + labelsRoom() : 0;
    if (myTitleIsHorizontal)
        g.DrawString(myText, x + outward, centre);
    else if (onRight)
        renderRotated(g, myText, std::numbers::pi / 2, g.TextHeight() - g.TextAscent(), x + outward, top);
    else
        renderRotated(g, myText, -std::numbers::pi / 2, g.TextAscent(), x, top);
}

void GTAxis::renderYAxis(Graphics& g, int x, int y, int height) const {
    if (height == 0)
        return;
    setFont(g);
    g.ForeColor(textColor);
    renderYTitle(g, x, y, height);

    double axisX = x + myInnerMargin * scale();
    if (!onRight)
        axisX = x + (myTitleIsHorizontal ? g.StringWidth(myText) : g.TextHeight()) + ticksRoom() + labelsRoom();
    if (ticksVisible)
        g.DrawLine(axisX, y, axisX, y + height);

    const auto tick = [&](int tickY, const std::string& label, bool labelled) {
        const int anchor = renderYTick(g, axisX, tickY);
        if (labelled)
            renderYTickLabel(g, label, anchor, tickY);
    };
    const TickSteps steps = evenSteps(height);
    if (myTicksAreValues) {
        for (const auto& point : myTickValues)
            if (isInRange(point->YValue()))
                tick(truncated(y + height - (point->YValue() - myMin) * steps.unit), formatTickLabel(point->YValue()),
                     myTickLabelsVisible);
        return;
    }
    double position = y + height;
    const double closing = walk(steps.increment, height, [&](double v) {
        const int tickY = truncatedSteps(position);
        // The closing tick stands at the top; labels near it would run into its own.
        if (tickY != y)
            tick(tickY, formatTickLabel(v), myTickLabelsVisible && tickY - g.TextHeight() > g.TextHeight());
        position -= steps.step;
    });
    tick(y, onRight ? Format(myMax, myTickLabelFormat) : formatTickLabel(closing),
         myTickLabelsVisible && !skipLastTickLabel);
}

int GTAxis::renderYTick(Graphics& g, double axisX, int y) const {
    const double size = myMajorTickSize * scale();
    const int from = truncated(onRight ? axisX : axisX - size);
    const int to = truncated(onRight ? axisX + size : axisX);
    if (ticksVisible)
        g.DrawLine(from, y, to, y);
    return truncated(onRight ? to + myTickSpacing * scale() : from - myTickSpacing * scale());
}

} // namespace tallyvane

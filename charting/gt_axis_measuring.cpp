/// The room that an axis takes beside the plot.
#include "charting/gt_axis.h"
#include "charting/truncated.h"

namespace tallyvane {

void GTAxis::setFont(Graphics& g) const {
    g.TextFont(textFont);
    g.TextSize(myTextSize * scale());
}

double GTAxis::ticksRoom() const { return ticksVisible ? myTickSpacing * scale() + myMajorTickSize * scale() : 0; }

/// The widest of the labels, or `widest` when none is wider.
int GTAxis::widestLabel(const Graphics& g, int widest, int length) const {
    walk(evenSteps(length).increment, length, [&](double v) {
        const double width = g.StringWidth(formatTickLabel(v));
        if (width > widest)
            widest = truncated(width);
    });
    return widest;
}

int GTAxis::height(int plotWidth) {
    if (!isVisible || myType != horizontal)
        return 0;
    const Picture measuring(1, 1, 32);
    Graphics& g = measuring.Graphics();
    setFont(g);
    myHeight = truncated(myTitleIsHorizontal ? g.TextHeight() : g.StringWidth(myText));
    myHeight = truncated(myHeight + ticksRoom());
    if (myTickLabelsVisible) {
        // Room once taken by vertical labels stays taken, so that the plot does not jump when the range shrinks.
        myTickLabelSize =
            myTickLabelsAreVertical ? widestLabel(g, myTickLabelSize, plotWidth) : truncated(g.TextHeight());
        myHeight += myTickLabelSize;
    }
    myHeight = truncated(myHeight + myInnerMargin * scale());
    return myHeight;
}

int GTAxis::width(int plotHeight) {
    if (!isVisible || myType != vertical)
        return 0;
    const Picture measuring(1, 1, 32);
    Graphics& g = measuring.Graphics();
    setFont(g);
    myWidth = truncated(myTitleIsHorizontal ? g.StringWidth(myText) : g.TextHeight());
    myWidth = truncated(myWidth + ticksRoom());
    if (myTickLabelsVisible) {
        myTickLabelSize = myTickLabelsAreVertical ? truncated(g.TextHeight()) : widestLabel(g, 0, plotHeight);
        myWidth += myTickLabelSize;
    }
    myWidth = truncated(myWidth + myInnerMargin * scale());
    return myWidth;
}

} // namespace tallyvane

/// The texts of tick labels, and where they stand.
#include "charting/gt_axis.h"

#include <numbers>

#include "charting/truncated.h"
#include "platform/base/date.h"
#include "platform/base/number.h"
#include "platform/base/text.h"

namespace tallyvane {

std::string GTAxis::formatTickLabel(double v) const {
    switch (myTickType) {
    case number:
        return Format(v, myTickLabelFormat);
    case shortDate:
        return Date::ofTotalSeconds(v).ShortDate();
    case shortTime:
        return Date::ofTotalSeconds(v).ShortTime();
    case longDate:
        return Date::ofTotalSeconds(v).LongDate();
    case longTime:
        return Date::ofTotalSeconds(v).LongTime();
    case percent:
        return Format(100 * v, "###.00") + "%";
    case custom:
        return myCustomFormatter ? myCustomFormatter->format(v) : "";
    default:
        return "";
    }
}

/// A line of text, turned, in a picture of its own size with its top left corner at x, y. The text's middle stands
/// `shapeX` from the left of the picture and half way down.
void GTAxis::renderRotated(Graphics& g, const std::string& s, double rotation, double shapeX, double x,
                           double y) const {
    StringShape shape;
    shape.X = shapeX;
    shape.Y = g.StringWidth(s) / 2;
    shape.Rotation = rotation;
    shape.FillColor = textColor;
    shape.TextSize = g.TextSize();
    shape.TextFont = textFont;
    shape.Text = s;
    Picture picture(truncated(g.TextHeight()), truncated(g.StringWidth(s)), 0);
    picture.Objects().Append(std::move(shape));
    g.DrawPicture(picture, x, y);
}

void GTAxis::renderTickLabel(Graphics& g, const std::string& s, int x, int y) const {
    if (myTickLabelsAreVertical)
        renderRotated(g, s, -std::numbers::pi / 2, g.TextAscent(), x, y);
    else
        g.DrawString(s, x, y);
}

/// Shows the label only up to its first ".", moved sideways where needed to stay on the surface.
void GTAxis::renderXTickLabel(Graphics& g, const std::string& s, int x, int y) const {
    const std::string shown = labelsAreWhole ? s : NthField(s, ".", 1);
    const double width = g.StringWidth(shown);
    const double across = myTickLabelsAreVertical ? g.TextHeight() : width;
    int newX = truncated(x - across / 2);
    int newY = y;
    if (onTop)
        newY = truncated(myTickLabelsAreVertical ? y - width : y - g.TextHeight() + g.TextAscent());
    else if (!myTickLabelsAreVertical)
        newY = truncated(g.TextAscent() + y);

    if (newX < 0)
        newX = 0;
    if (newX + across >= g.Width())
        newX = truncated(g.Width() - across);
    renderTickLabel(g, shown, newX, newY);
}

void GTAxis::renderYTickLabel(Graphics& g, const std::string& s, int x, int y) const {
    const double ascent = g.TextAscent();
    const double height = g.TextHeight();
    const double width = g.StringWidth(s);
    int newX = x;
    if (!onRight)
        newX = truncated(myTickLabelsAreVertical ? x - height : x - width);

    int newY = labelsAreCentred ? truncated(y + ascent * 0.36) : y; // half the height of a figure
    if (myTickLabelsAreVertical) {
        newY = truncated(y - width / 2);
        if (newY - height < 0)
            newY = truncated(onRight ? height - ascent : ascent);
        if (width + newY >= g.Height())
            newY = truncated(g.Height() - width);
    } else {
        if (y - height < 0)
            newY = truncated(ascent);
        if (height + y >= g.Height())
            newY = truncated(ascent + g.Height() - height);
    }
    renderTickLabel(g, s, newX, newY);
}

} // namespace tallyvane

#pragma once

#include <algorithm>
#include <cmath>
#include <memory>
#include <string>
#include <utility>

#include "charting/gt_custom_tick_formatter.h"
#include "charting/gt_data_point.h"
#include "charting/truncated.h"
#include "platform/drawing/graphics.h"

namespace tallyvane {

/// One axis of one series: its range, its title, ticks and tick labels, the grid and the base line that stand at its
/// values, and the room that it takes beside the plot.
///
/// An axis does not look for round numbers. Left alone it puts a tick about every 20 units of the surface, whatever the
/// range; a count of ticks or a fixed increment overrides that. Sizes are in points; lengths and places are in units of
/// the surface.
class GTAxis {
public:
    enum Types { vertical = 1, horizontal = 2 };
    /// How the value of a tick becomes the text of its label. The dates are those of Date::TotalSeconds.
    enum TickTypes { number = 0, shortDate = 1, shortTime = 2, longDate = 3, longTime = 4, percent = 5, custom = 99 };

    /// An axis of type `horizontal` is an X axis; any other paints as a Y axis, and takes room only if it is
    /// `vertical`.
    explicit GTAxis(int type) : myType(type), myTitleIsHorizontal(type == horizontal) {}
    GTAxis(const GTAxis&) = delete;
    GTAxis& operator=(const GTAxis&) = delete;

    // Place and look
    bool top() const { return onTop; }
    void top(bool on) { onTop = on; }
    bool bottom() const { return !onTop; }
    void bottom(bool on) { onTop = !on; }
    bool right() const { return onRight; }
    void right(bool on) { onRight = on; }
    bool left() const { return !onRight; }
    void left(bool on) { onRight = !on; }
    bool visible() const { return isVisible; }
    void visible(bool on) { isVisible = on; }
    int innerMargin() const { return myInnerMargin; }
    void innerMargin(int points) { myInnerMargin = points; }
    int Resolution() const { return myResolution; }
    void Resolution(int dotsPerInch) { myResolution = dotsPerInch; }
    const std::string& text() const { return myText; }
    void text(std::string title) { myText = std::move(title); }
    int textSize() const { return myTextSize; }
    void textSize(int points) { myTextSize = points; }
    bool horizontalTitle() const { return myTitleIsHorizontal; }
    void horizontalTitle(bool on) { myTitleIsHorizontal = on; }
    bool verticalTitle() const { return !myTitleIsHorizontal; }
    void verticalTitle(bool on) { myTitleIsHorizontal = !on; }

    FontName textFont; // of the title and the tick labels
    Color textColor = RGB(0, 0, 0); // of them and of the axis line and its ticks
    bool ticksVisible = true; // the axis line and its ticks
    bool skipLastTickLabel = false; // whether the tick that closes the axis has no label

    // Range
    double minimum() const { return myMin; }
    double maximum() const { return myMax; }
    /// Stands until the series settles its range anew: when a point comes or goes, when its range is set, and for
    /// columns and bars at each drawing.
    void SetRange(double min, double max);

    // Ticks

    /// Units of the surface from one automatic tick to the next, at any resolution.
    static constexpr int automaticStep = 20;

    int majorTickSize() const { return myMajorTickSize; }
    void majorTickSize(int points) { myMajorTickSize = points; }
    int tickSpacing() const { return myTickSpacing; }
    void tickSpacing(int points) { myTickSpacing = points; }
    double tickIncrement() const { return myTickIncrement; }
    /// Sets a fixed increment. One that is not above 0 is none: it clears what was set.
    void tickIncrement(double increment);
    void clearTickIncrement() { myTickIncrementIsSet = false; }
    bool hasCustomTickIncrement() const { return myTickIncrementIsSet; }
    int tickCount() const { return myTickCount; }
    /// Sets the number of ticks, both ends among them. Columns set it on their X axis and bars on their Y axis at each
    /// drawing, and it stays set after that.
    void tickCount(int count);
    void clearTickCount() { myManualTickCount = false; }
    /// Whether ticks and grid lines stand at the values of TickValues alone.
    bool ticksAreValues() const { return myTicksAreValues; }
    void ticksAreValues(bool on) { myTicksAreValues = on; }
    const GTDataPoints& TickValues() const { return myTickValues; }
    void TickValues(GTDataPoints values) { myTickValues = std::move(values); }
    void ClearTickValues() { myTickValues.clear(); }
    /// The automatic or manual ticks of a range over so many units: the increment from tick to tick, their count, and
    /// the units of the surface to a unit of the range.
    void figureIncrement(double max, double min, int pixels, double& increment, int& count, double& unit) const;

    // Tick labels
    const std::string& tickLabelFormat() const { return myTickLabelFormat; }
    void tickLabelFormat(std::string mask) { myTickLabelFormat = std::move(mask); }
    bool tickLabelsVisible() const { return myTickLabelsVisible; }
    void tickLabelsVisible(bool on) { myTickLabelsVisible = on; }
    bool tickLabelsVertical() const { return myTickLabelsAreVertical; }
    void tickLabelsVertical(bool on) { myTickLabelsAreVertical = on; }
    int tickType() const { return myTickType; }
    void tickType(int type) { myTickType = type; }
    /// Whether the middle of a Y label stands at its value, and not its baseline.
    bool labelsAreCentred = false;
    /// Whether an X label is shown whole, and not up to its first ".".
    bool labelsAreWhole = false;
    /// Also sets the tick type to `custom`.
    void CustomFormatter(std::shared_ptr<GTCustomTickFormatter> formatter);
    /// The label's text; "" for an unknown type, and for `custom` without a formatter.
    std::string formatTickLabel(double v) const;

    // Grid and base line
    Color GridPenColor() const { return myGridPenColor; }
    void GridPenColor(Color color) { myGridPenColor = color; }
    int GridPenSize() const { return myGridPenSize; }
    void GridPenSize(int points) { myGridPenSize = points; }
    double baseLine() const { return myBaseLine; }
    void baseLine(double value) { myBaseLine = value; }
    /// A series draws the base line of an axis only where that axis's grid is visible too.
    bool baseLineVisible() const { return myBaselineVisible; }
    void baseLineVisible(bool on) { myBaselineVisible = on; }
    Color baseLineColor() const { return myBaseLineColor; }
    void baseLineColor(Color color) { myBaseLineColor = color; }
    int baselinePenSize() const { return myBaseLinePenSize; }
    void baseLinePenSize(int points) { myBaseLinePenSize = points; }

    // Measuring, which the painting goes by: the room of an X axis along a plot so wide, of a Y axis along a plot so
    // high. An axis that is invisible or of the other kind takes none.
    int height(int plotWidth);
    int width(int plotHeight);

    // Painting.

    /// The axis: x, y is the top left corner of its band, which is as long as the plot.
    void render(Graphics& g, int x, int y, int length) const;
    void renderXAxis(Graphics& g, int x, int y, int width) const;
    void renderYAxis(Graphics& g, int x, int y, int height) const;
    /// The label of a tick: x, y is its anchor, beside the end of the tick and level with the tick.
    void renderXTickLabel(Graphics& g, const std::string& s, int x, int y) const;
    void renderYTickLabel(Graphics& g, const std::string& s, int x, int y) const;
    /// The text of a label: x, y is its left end on the baseline, or the top left corner of vertical text.
    void renderTickLabel(Graphics& g, const std::string& s, int x, int y) const;
    /// The lines across the plot x, y, w, h.
    void renderGrid(Graphics& g, int x, int y, int w, int h) const;
    void renderXGrid(Graphics& g, int x, int y, int w, int h) const;
    void renderYGrid(Graphics& g, int x, int y, int w, int h) const;
    void renderBaseline(Graphics& g, int x, int y, int w, int h) const;
    void renderXbaseLine(Graphics& g, int x, int y, int w, int h) const;
    void renderYBaseline(Graphics& g, int x, int y, int w, int h) const;

private:
    /// From tick to tick: in the range, and on the surface.
    struct TickSteps {
        double increment = 1;
        double step = 1; // at the least 1.0
        double unit = 0; // units of the surface to a unit of the range
    };

    double scale() const;
    void setFont(Graphics& g) const;

    TickSteps xAxisSteps(int width) const;
    TickSteps evenSteps(int length) const;
    /// Calls `visit` with each tick value from the minimum to below the maximum, `length` + 1 values at most however
    /// small the increment. Returns the first value that is not below the maximum. A value that only rounding keeps
    /// below it counts as the maximum.
    template <class Visit>
    double walk(double increment, int length, Visit visit) const {
        const auto isBelowMaximum = [&](double v) { return myMax - v > mostRounding * increment; };
        double v = myMin;
        for (int steps = 0; steps <= length && isBelowMaximum(v);) {
            visit(v);
            ++steps;
            v = myMin + steps * increment;
        }
        if (isBelowMaximum(v))
            return myMin + std::ceil((myMax - myMin) / increment - mostRounding) * increment;
        return std::max(v, myMax);
    }
    bool isInRange(double v) const { return v >= myMin && v <= myMax; }

    double ticksRoom() const;
    double labelsRoom() const { return myTickLabelsVisible ? myTickLabelSize : 0; }
    int widestLabel(const Graphics& g, int widest, int length) const;

    void renderRotated(Graphics& g, const std::string& s, double rotation, double shapeX, double x, double y) const;
    void renderXTitle(Graphics& g, int x, int y, int width) const;
    void renderYTitle(Graphics& g, int x, int y, int height) const;
    /// Draws a tick, if ticks are visible, and gives the anchor of its label across the axis.
    int renderXTick(Graphics& g, int x, double axisY) const;
    int renderYTick(Graphics& g, double axisX, int y) const;

    int myType;
    bool onRight = false;
    bool onTop = false;
    bool isVisible = true;
    std::string myText;
    int myTextSize = 12;
    int myMajorTickSize = 4;
    int myTickSpacing = 3; // from the end of a tick to its label
    double myMin = 0;
    double myMax = 0;
    int myResolution = 72;
    double myTickIncrement = 0;
    bool myTickIncrementIsSet = false;
    std::string myTickLabelFormat = "-#.0#";
    bool myTickLabelsVisible = true;
    int myTickLabelSize = 0; // units of the surface; found by measuring
    Color myGridPenColor = RGB(0, 0, 0);
    int myGridPenSize = 0;
    int myInnerMargin = 0; // between the plot and the axis
    bool myTitleIsHorizontal;
    double myBaseLine = 0;
    bool myBaselineVisible = false;
    Color myBaseLineColor = RGB(0, 0, 0);
    int myBaseLinePenSize = 1;
    int myTickType = number;
    bool myTickLabelsAreVertical = false;
    int myWidth = 0;
    int myHeight = 0;
    std::shared_ptr<GTCustomTickFormatter> myCustomFormatter;
    bool myTicksAreValues = false;
    GTDataPoints myTickValues;
    int myTickCount = 0;
    bool myManualTickCount = false;
};

} // namespace tallyvane

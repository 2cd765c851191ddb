#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "charting/gt_band.h"
#include "charting/gt_label.h"
#include "charting/gt_series.h"

namespace tallyvane {

/// A chart: series with their axes, free labels, a title and a backdrop, drawn on any surface. Sizes are in points
/// and grow with the resolution; the four margins are in units of the surface and do not.
class GTGraph {
public:
    GTGraph() = default;
    GTGraph(const GTGraph&) = delete;
    GTGraph& operator=(const GTGraph&) = delete;

    // Content, drawn in the order of adding, labels after all series
    /// Null is not added.
    void addSeries(std::shared_ptr<GTSeries> s);
    void addLabel(std::shared_ptr<GTLabel> l);
    int count() const { return static_cast<int>(mySeries.size()); }
    void addBand(const GTBand& band) { bands_.push_back(band); }
    /// Null for an index that no series has.
    std::shared_ptr<GTSeries> Series(int index) const;
    /// The first series of that name; null when there is none.
    std::shared_ptr<GTSeries> Series(const std::string& name) const;
    /// Gives all series the range that holds the ranges of all. A point added later takes its series out of it again.
    void NormalizeRanges();

    // Title
    const std::string& text() const { return myTitleText; }
    void text(std::string title) { myTitleText = std::move(title); }
    int textSize() const { return myTextSize; }
    void textSize(int points) { myTextSize = points; }
    int titleTopMargin() const { return myTopTitleMargin; }
    void titleTopMargin(int points) { myTopTitleMargin = points; }
    int titleBottomMargin() const { return myBottomTitleMargin; }
    void titleBottomMargin(int points) { myBottomTitleMargin = points; }

    /// Whether what is drawn goes on a page that is printed with a legend, so that the plot's height is that of a
    /// fixed part of the page. Whoever makes a graph for such pages sets it; without it no page is one.
    std::function<bool()> isPrintingOn;

    FontName textFont;
    Color textColor = RGB(0, 0, 0);
    bool titleVisible = false;

    // Stored only, without effect: the backdrop is always drawn in fixed colours.
    bool hasBackColor = false;
    Color backColor = RGB(212, 217, 255);
    std::optional<Picture> backdrop;

    /// Whether the ground of the plot is coloured.
    bool backdropVisible = true;

    int marginTop = 0;
    int marginBottom = 0;
    int marginLeft = 0;
    int marginRight = 0;

    // Drawing
    int Resolution() const { return myResolution; }
    /// Also sets it on every series and label.
    void Resolution(int dotsPerInch);
    /// Draws everything. Axes outside of the first series' axes lie in room that nobody keeps free for them. A surface
    /// that is too small for a plot stays as it is.
    ///
    /// What a drawing leaves behind: all series, points, axes and labels have the graph's resolution, columns and bars
    /// the range and the count of ticks that their data ask for, axes whose ticks are values have those of the points,
    /// and vertical labels of an X axis keep the most room that they have ever taken.
    void Draw(Graphics& g);
    /// The height of the plot on a surface, in its units; below 1 when there is no room for one. A whole multiple of
    /// GTAxis::automaticStep has each automatic label of a Y axis stand at its value; margins can make it one.
    /// Measuring leaves behind what a drawing does.
    int plotHeight(const Graphics& g);

    /// The plot of the last drawing, in units of the surface; without size before the first.
    const Rect& plot() const { return plot_; }
    /// A point of a series, by their indexes.
    struct Hit {
        int series = 0;
        int point = 0;
    };
    /// The point of lines, areas and scattered points that was drawn nearest to a place of the surface, if it is no
    /// farther than `reach`; of several at one place the one on top.
    [[nodiscard]] std::optional<Hit> pointAt(double x, double y, double reach) const;

    int measureMyTitleHeight() const;
    int measureMyTitleWidth() const;
    void RenderMyTitle(Graphics& g, int x, int y, int w, int h) const;

private:
    /// What a drawing keeps free on each side of the plot.
    struct Room {
        int top = 0;
        int bottom = 0;
        int left = 0;
        int right = 0;
    };
    Room roomAroundPlot(const Graphics& g);
    int usableHeight(const Graphics& g) const;
    int heightWithin(const Room& room, const Graphics& g) const;
    void setTitleFont(Graphics& g) const;
    void renderBands(Graphics& g) const;
    static void renderBackdrop(Graphics& g, int left, int top, int plotWidth, int plotHeight);

    std::string myTitleText;
    int myTextSize = 12;
    std::vector<std::shared_ptr<GTSeries>> mySeries;
    std::vector<std::shared_ptr<GTLabel>> myLabels;
    std::vector<GTBand> bands_;
    Rect plot_;
    int myResolution = 72;
    int myTopTitleMargin = 0;
    int myBottomTitleMargin = 0;
};

} // namespace tallyvane

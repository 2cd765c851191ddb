#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "charting/gt_axis.h"
#include "charting/gt_color_table_provider.h"
#include "charting/gt_data_point.h"
#include "charting/gt_hatching.h"
#include "charting/gt_mark.h"
#include "charting/range_tally.h"
#include "platform/drawing/graphics.h"

namespace tallyvane {

/// One set of data with its two axes, its look, and its way of being drawn. It keeps a range in X and in Y, which its
/// axes follow and which fills the plot; the range is that of its points until it is set.
///
/// Sizes are in points. Values that are not finite are kept, and passed over by ranges and drawing.
class GTSeries {
public:
    /// Columns stack or cluster the Y values of a point at its X value, bars its X values at its Y value. A series of
    /// any other type has axes and draws no data.
    enum Types {
        line = 0,
        area = 1,
        scatter = 2,
        totalColumn = 3,
        percentColumn = 4,
        clusteredColumn = 5,
        totalBar = 6,
        percentBar = 7,
        clusteredBar = 8,
        pie = 9,
        /// Each point has five Y values: lowest, lower quartile, median, upper quartile, highest.
        box = 10
    };
    /// Any other code draws no symbol either.
    enum PlotSymbols { noSymbol = 0, hollowCircle = 1, filledCircle = 2, hollowSquare = 3, filledSquare = 4 };

    explicit GTSeries(int type);
    ~GTSeries();
    GTSeries(const GTSeries&) = delete;
    GTSeries& operator=(const GTSeries&) = delete;

    GTAxis& XAxis() { return myXAxis; }
    GTAxis& YAxis() { return myYAxis; }

    // Points. Each change makes the ranges those of the points again.
    void AddDataValue(double x, double y);
    /// Null is not added.
    void AddDataPoint(std::shared_ptr<GTDataPoint> p);
    /// Nothing happens for an index that no point has.
    void RemoveDataValue(int index);
    int Count() const { return static_cast<int>(myDataPoints.size()); }
    const GTDataPoint& Point(int index) const { return *myDataPoints.at(static_cast<std::size_t>(index)); }
    /// The two lists of every point change places; the ranges stay until fixRanges.
    void SwapXY();

    // Ranges
    double XMax() const { return myXMax; }
    double XMin() const { return myXMin; }
    double YMax() const { return myYmax; }
    double YMin() const { return myYmin; }
    /// Makes the ranges those of the points. As many values of each point count as the first point has; a value that a
    /// point does not have reads 0.0. Without points the ranges stay.
    void fixRanges();
    void SetXRange(double min, double max);
    void SetYRange(double min, double max);

    // Look
    const std::string& Name() const { return myName; }
    void Name(std::string name) { myName = std::move(name); }
    int Type() const { return myType; }
    void Type(int type) { myType = type; }
    int PenSize() const { return myPenSize; }
    void PenSize(int points) { myPenSize = points; }
    Color PenColor() const { return myPenColor; }
    void PenColor(Color color) { myPenColor = color; }
    int PlotSymbol() const { return myPlotSymbol; }
    void PlotSymbol(int code) { myPlotSymbol = code; }
    /// Stored only; it is never drawn.
    void PlotSymbol(Picture picture) { myCustomPlotPict = std::move(picture); }
    const std::optional<Picture>& CustomPlotPict() const { return myCustomPlotPict; }
    int PlotSymbolSize() const { return myPlotSymbolSize; }
    void PlotSymbolSize(int points) { myPlotSymbolSize = points; }
    bool XGridVisible() const { return myXGridVisible; }
    void XGridVisible(bool on) { myXGridVisible = on; }
    bool YGridVisible() const { return myYGridVisible; }
    void YGridVisible(bool on) { myYGridVisible = on; }
    void GridPenColor(Color color);
    void GridPenSize(int points);
    /// Without a provider every piece of a column, bar or pie has a random colour of its own at each drawing.
    void colorTable(std::shared_ptr<GTColorTableProvider> provider) { myColorTableProvider = std::move(provider); }
    /// Whether GTGraph::pointAt finds its points.
    bool isPointable = true;
    /// The mark at each point of lines, areas and scattered points, in place of the plot symbol and as large.
    GTMark mark = GTMark::none;
    bool marksAreHollow = false;
    /// Lines over the pieces of columns and bars, by their place in the point; null for none.
    std::function<GTHatching(int index)> hatching;
    int boxWidth = 24; // points
    Color boxColor = RGB(224, 224, 224);
    Color medianColor = RGB(0, 0, 0);

    int Resolution() const { return myResolution; }
    /// Also sets it on every point and both axes.
    void Resolution(int dotsPerInch);

    bool dataLabelsVisible = false;
    FontName textFont; // of the data labels of columns and pies
    int textSize = 9;

    // Drawing
    /// The room that the axes take, in units of the surface. Stacked and clustered columns first replace their Y range,
    /// also one that was set, by that of their columns.
    int XAxisHeight(int n);
    int YAxisWidth(int n);
    /// Draws grids and base lines, the data and the axes, on the plot at x, y of size w, h. The other four are the room
    /// that axes have taken so far on each side of the plot; this series' axes stand outside of it and add theirs.
    void Render(Graphics& g, int x, int y, int& left, int& top, int& right, int& bottom, int w, int h);
    void renderLine(Graphics& g, int x, int y, int w, int h) const;
    void renderArea(Graphics& g, int x, int y, int w, int h) const;
    void renderScatter(Graphics& g, int x, int y, int w, int h) const;
    void renderTotalColumn(Graphics& g, int x, int y, int w, int h);
    void renderPercentColumn(Graphics& g, int x, int y, int w, int h);
    void renderClusteredColumn(Graphics& g, int x, int y, int w, int h);
    void renderTotalBar(Graphics& g, int x, int y, int w, int h);
    void renderPercentBar(Graphics& g, int x, int y, int w, int h);
    void renderClusteredBar(Graphics& g, int x, int y, int w, int h);
    void renderPie(Graphics& g, int x, int y, int w, int h) const;
    void renderBoxes(Graphics& g, int x, int y, int w, int h) const;
    /// The point whose place is nearest to a place of a plot of that size, and its distance; nothing without points
    /// that have a place.
    struct Nearest {
        int index = 0;
        double distance = 0;
    };
    [[nodiscard]] std::optional<Nearest> nearestPoint(double x, double y, int w, int h) const;
    /// Appends one symbol, its centre at x, y, to a picture of shapes.
    void renderSymbol(Picture& p, int x, int y) const;

private:
    double scale() const;
    void recountTally();
    void fixColumnRange();
    void widenXRange(Extent extent);
    void widenYRange(Extent extent);

    /// Units of the surface to a unit of the range; 1.0 for a range without extent.
    double xScale(int w) const;
    double yScale(int h) const;

    // Templates stand in the one source that uses them.
    void renderData(Graphics& g, int x, int y, int w, int h);
    template <class Visit>
    void forEachPlace(int w, int h, Visit visit) const;
    void renderPointLabels(Graphics& g, int x, int y, int w, int h) const;
    template <class AmountOf>
    void stackColumns(Graphics& g, int x, int y, int w, int h, double from, AmountOf amountOf) const;
    template <class AmountOf>
    void stackBars(Graphics& g, int x, int y, int w, int h, double from, AmountOf amountOf) const;
    void renderPiece(Graphics& g, int index, double x, double y, double w, double h) const;
    void renderPieceLabel(Graphics& g, double value, double x, double top, double height) const;
    Color pieceColor(int index) const;
    void setLabelFont(Graphics& g) const;

    GTAxis myXAxis{GTAxis::horizontal};
    GTAxis myYAxis{GTAxis::vertical};
    GTDataPoints myDataPoints;
    RangeTally tally_; // kept by the points as they change
    int myPenSize = 1;
    Color myPenColor = RGB(0, 0, 0);
    int myType;
    double myXMax = 0;
    double myXMin = 0;
    double myYmax = 0;
    double myYmin = 0;
    int myPlotSymbol = noSymbol;
    std::optional<Picture> myCustomPlotPict;
    int myPlotSymbolSize = 2;
    bool myXGridVisible = false;
    bool myYGridVisible = false;
    int myResolution = 72;
    std::string myName;
    std::shared_ptr<GTColorTableProvider> myColorTableProvider;
};

} // namespace tallyvane

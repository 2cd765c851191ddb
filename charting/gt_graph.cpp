#include "charting/gt_graph.h"

#include <algorithm>
#include <array>

#include "charting/gt_general_purpose.h"
#include "charting/pen_keeper.h"
#include "charting/truncated.h"
#include "platform/base/text.h"

namespace tallyvane {

namespace {

/// Height of what a graph may take of a printed page that has a legend below it.
constexpr int printedHeight = 450;
/// From the top of the surface to the ascent of the title, at any resolution.
constexpr double titleDrop = 20;
/// The row in which the backdrop ends above.
constexpr int backdropTop = 15;

constexpr std::array<int, 3> lowerColor{216, 224, 255}; // red, green, blue
constexpr std::array<int, 3> upperColor{173, 176, 255};

/// The backdrop's colour in a row of the surface: the lower colour in row `plotHeight`, the upper one in row 0.
Color backdropColor(int row, int plotHeight) {
    const double lower = static_cast<double>(row) / plotHeight;
    const double upper = static_cast<double>(plotHeight - row) / plotHeight;
    const auto channel = [&](std::size_t c) { return truncated(upperColor[c] * upper + lowerColor[c] * lower); };
    return RGB(channel(0), channel(1), channel(2));
}

void renderDotted(Graphics& g, double x, double y, double width) {
    constexpr double dot = 1;
    constexpr double step = 3;
    for (double place = 0; place < width; place += step)
        g.FillRect(x + place, y, dot, dot);
}

} // namespace

void GTGraph::addSeries(std::shared_ptr<GTSeries> s) {
    if (s)
        mySeries.push_back(std::move(s));
}

void GTGraph::addLabel(std::shared_ptr<GTLabel> l) {
    if (l)
        myLabels.push_back(std::move(l));
}

std::shared_ptr<GTSeries> GTGraph::Series(int index) const {
    return index < 0 || index >= count() ? nullptr : mySeries[static_cast<std::size_t>(index)];
}

std::shared_ptr<GTSeries> GTGraph::Series(const std::string& name) const {
    const auto found = std::find_if(mySeries.begin(), mySeries.end(),
                                    [&](const auto& s) { return compareTexts(s->Name(), name) == 0; });
    return found == mySeries.end() ? nullptr : *found;
}

void GTGraph::NormalizeRanges() {
    if (mySeries.empty())
        return;
    Extent x{mySeries.front()->XMin(), mySeries.front()->XMax()};
    Extent y{mySeries.front()->YMin(), mySeries.front()->YMax()};
    for (const auto& series : mySeries) {
        x = {std::min(x.low, series->XMin()), std::max(x.high, series->XMax())};
        y = {std::min(y.low, series->YMin()), std::max(y.high, series->YMax())};
    }
    for (const auto& series : mySeries) {
        series->SetXRange(x.low, x.high);
        series->SetYRange(y.low, y.high);
    }
}

void GTGraph::Resolution(int dotsPerInch) {
    myResolution = dotsPerInch;
    for (const auto& series : mySeries)
        series->Resolution(dotsPerInch);
    for (const auto& label : myLabels)
        label->Resolution(dotsPerInch);
}

void GTGraph::setTitleFont(Graphics& g) const {
    g.TextFont(textFont);
    g.TextSize(myTextSize * GTGeneralPurpose::GTResolutionScaleFactor(myResolution));
}

int GTGraph::measureMyTitleHeight() const {
    if (!titleVisible)
        return 0;
    const Picture measuring(1, 1, 32);
    setTitleFont(measuring.Graphics());
    const double scale = GTGeneralPurpose::GTResolutionScaleFactor(myResolution);
    const int withTop = truncated(truncated(measuring.Graphics().TextHeight()) + myTopTitleMargin * scale);
    return truncated(withTop + myBottomTitleMargin * scale);
}

int GTGraph::measureMyTitleWidth() const {
    const Picture measuring(1, 1, 32);
    setTitleFont(measuring.Graphics());
    return truncated(measuring.Graphics().StringWidth(myTitleText));
}

void GTGraph::RenderMyTitle(Graphics& g, int x, int /*y*/, int w, int /*h*/) const {
    if (!titleVisible)
        return;
    setTitleFont(g);
    g.ForeColor(textColor);
    const int baseline = truncated(g.TextAscent() + titleDrop);
    g.DrawString(myTitleText, truncated(x + w / 2.0 - g.StringWidth(myTitleText) / 2), baseline);
}

void GTGraph::renderBackdrop(Graphics& g, int left, int top, int plotWidth, int plotHeight) {
    for (int row = plotHeight + top; row >= backdropTop; --row) {
        g.ForeColor(backdropColor(row, plotHeight));
        g.DrawLine(left, row, left + plotWidth, row);
    }
}

void GTGraph::renderBands(Graphics& g) const {
    if (bands_.empty() || mySeries.empty())
        return;
    const PenKeeper keeper(g);
    const GTSeries& scale = *mySeries.front();
    const double unit = plot_.height / (scale.YMax() - scale.YMin());
    const auto level = [&](double value) {
        return plot_.top + plot_.height - (std::clamp(value, scale.YMin(), scale.YMax()) - scale.YMin()) * unit;
    };
    for (const GTBand& band : bands_) {
        g.ForeColor(band.color);
        if (band.high > band.low)
            g.FillRect(plot_.left, level(band.high), plot_.width, level(band.low) - level(band.high));
        else if (band.low > scale.YMin() && band.low < scale.YMax())
            renderDotted(g, plot_.left, level(band.low), plot_.width);
    }
}

std::optional<GTGraph::Hit> GTGraph::pointAt(double x, double y, double reach) const {
    std::optional<Hit> hit;
    for (int i = 0; i < count(); ++i) {
        const GTSeries& series = *mySeries[static_cast<std::size_t>(i)];
        if (series.Type() > GTSeries::scatter || !series.isPointable)
            continue;
        const auto nearest = series.nearestPoint(x - plot_.left, y - plot_.top, plot_.width, plot_.height);
        if (nearest && nearest->distance <= reach) {
            reach = nearest->distance;
            hit = {i, nearest->index};
        }
    }
    return hit;
}

GTGraph::Room GTGraph::roomAroundPlot(const Graphics& g) {
    Resolution(myResolution);
    Room room{marginTop + measureMyTitleHeight(), marginBottom, marginLeft, marginRight};
    if (const auto first = Series(0)) {
        (first->XAxis().top() ? room.top : room.bottom) += first->XAxisHeight(truncated(g.Height()));
        (first->YAxis().left() ? room.left : room.right) += first->YAxisWidth(truncated(g.Width()));
    }
    return room;
}

int GTGraph::usableHeight(const Graphics& g) const {
    return isPrintingOn && isPrintingOn() ? printedHeight : truncated(g.Height());
}

// Negative margins move the plot; they don't make it larger than the surface.

int GTGraph::heightWithin(const Room& room, const Graphics& g) const {
    return std::min(usableHeight(g), usableHeight(g) - room.top - room.bottom);
}

int GTGraph::plotHeight(const Graphics& g) { return heightWithin(roomAroundPlot(g), g); }

void GTGraph::Draw(Graphics& g) {
    GTGeneralPurpose::GTResetDateNames();
    const Room room = roomAroundPlot(g);
    const int height = heightWithin(room, g);
    const int width = std::min(truncated(g.Width()), truncated(g.Width()) - room.left - room.right);
    if (height < 1 || width < 1)
        return;

    plot_ = {room.left, room.top, width, height};
    if (backdropVisible)
        renderBackdrop(g, room.left, room.top, width, height);
    renderBands(g);
    RenderMyTitle(g, room.left, 0, width, height);

    Room axes{}; // that those drawn so far have taken
    for (const auto& series : mySeries)
        series->Render(g, room.left, room.top, axes.left, axes.top, axes.right, axes.bottom, width, height);
    for (const auto& label : myLabels)
        label->Render(g, axes.left, axes.top, width, height);
}

} // namespace tallyvane

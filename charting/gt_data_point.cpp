#include "charting/gt_data_point.h"

#include <cmath>
#include <numeric>
#include <optional>
#include <utility>

#include "charting/gt_general_purpose.h"
#include "charting/truncated.h"
#include "platform/drawing/graphics.h"

namespace tallyvane {

namespace {

std::optional<int> labelX(int x, double width, double room) {
    if (x >= 0 && room >= width + x)
        return x;
    if (x - width >= 0 && x <= room)
        return truncated(x - width);
    if (x - width / 2 >= 0 && room >= width / 2 + x)
        return truncated(x - width / 2);
    return std::nullopt;
}

std::optional<int> labelY(int y, double ascent, double height, double room) {
    if (y - ascent >= 0 && room >= height + y)
        return y;
    if (y - ascent >= 0 && room >= height + y - ascent)
        return truncated(y - ascent);
    if (y >= 0 && room >= height + y)
        return truncated(ascent + y);
    return std::nullopt;
}

} // namespace

double GTDataPoint::Values::at(int i) const {
    if (i == 0)
        return first;
    return i > 0 && i < count() ? (*more)[static_cast<std::size_t>(i) - 1] : 0.0;
}

double GTDataPoint::Values::total() const {
    const auto addFinite = [](double sum, double v) { return std::isfinite(v) ? sum + v : sum; };
    const double sum = addFinite(0, first);
    return more ? std::accumulate(more->begin(), more->end(), sum, addFinite) : sum;
}

void GTDataPoint::Values::append(double v) {
    if (!more)
        more = std::make_unique<std::vector<double>>();
    more->push_back(v);
}

void GTDataPoint::extraXValue(double v) {
    report([&](RangeTally& tally) { tally.x.appended(static_cast<std::size_t>(XValueCount()), v); });
    myXValue.append(v);
}

void GTDataPoint::extraYValue(double v) {
    report([&](RangeTally& tally) { tally.y.appended(static_cast<std::size_t>(YValueCount()), v); });
    myYvalue.append(v);
}

void GTDataPoint::swapXY() {
    std::swap(myXValue, myYvalue);
    report([](RangeTally& tally) { tally.stale = true; });
}

void GTDataPoint::reportTo(RangeTally& tally) {
    for (int i = 0; i < XValueCount(); ++i)
        tally.x.appended(static_cast<std::size_t>(i), XValue(i));
    for (int i = 0; i < YValueCount(); ++i)
        tally.y.appended(static_cast<std::size_t>(i), YValue(i));
    if (tally_ == nullptr)
        tally_ = &tally;
    else
        moreTallies_.push_front(&tally);
}

void GTDataPoint::reportNoMoreTo(RangeTally& tally) {
    if (tally_ == &tally)
        tally_ = nullptr;
    moreTallies_.remove(&tally);
}

void GTDataPoint::Render(Picture& p, int x, int y) const {
    if (text.empty())
        return;
    const Picture measuring(1, 1, 32);
    Graphics& g = measuring.Graphics();
    g.TextFont(textFont);
    g.TextSize(textSize * GTGeneralPurpose::GTResolutionScaleFactor(myResolution));
    const auto placeX = labelX(x, g.StringWidth(text), p.Width());
    const auto placeY = labelY(y, g.TextAscent(), g.TextHeight(), p.Height());
    if (!placeX || !placeY)
        return;
    StringShape label;
    label.X = *placeX;
    label.Y = *placeY;
    label.FillColor = textColor;
    label.TextSize = g.TextSize();
    label.TextFont = textFont;
    label.Text = text;
    p.Objects().Append(std::move(label));
}

} // namespace tallyvane

/// The chart engine: series of any doubles with any settings, drawn on the recorder.
#include <cstdlib>
#include <cstring>

#include "charting/gt_graph.h"
#include "fuzz/fuzz.h"
#include "platform/drawing/graphics_recorder.h"

namespace tallyvane {

namespace {

/// Takes values off the input; zeros once it is used up.
class Bytes {
public:
    Bytes(const std::uint8_t* data, std::size_t size) : data_(data), left_(size) {}

    template <class Value>
    Value take() {
        Value value{};
        const std::size_t count = std::min(left_, sizeof value);
        std::memcpy(&value, data_, count);
        data_ += count;
        left_ -= count;
        return value;
    }
    bool flag() { return take<std::uint8_t>() % 2 == 1; }
    int upTo(int limit) { return take<std::uint16_t>() % (limit + 1); }
    std::string text() {
        std::string text(static_cast<std::size_t>(upTo(12)), ' ');
        for (char& c : text)
            c = take<char>();
        return text;
    }

private:
    const std::uint8_t* data_;
    std::size_t left_;
};

void setUp(GTAxis& axis, Bytes& bytes) {
    axis.top(bytes.flag());
    axis.right(bytes.flag());
    axis.text(bytes.text());
    axis.verticalTitle(bytes.flag());
    axis.tickLabelsVertical(bytes.flag());
    axis.tickLabelFormat(bytes.text());
    axis.tickType(bytes.take<std::int8_t>());
    axis.innerMargin(bytes.take<int>());
    axis.majorTickSize(bytes.take<int>());
    axis.tickSpacing(bytes.take<int>());
    if (bytes.flag())
        axis.tickIncrement(bytes.take<double>());
    if (bytes.flag())
        axis.tickCount(bytes.take<int>());
    if (bytes.flag())
        axis.SetRange(bytes.take<double>(), bytes.take<double>());
    axis.baseLine(bytes.take<double>());
    axis.baseLineVisible(bytes.flag());
    axis.GridPenSize(bytes.take<int>());
    axis.textSize(bytes.upTo(300));
    if (bytes.flag()) {
        axis.ticksAreValues(true);
        GTDataPoints values;
        for (int i = bytes.upTo(8); i > 0; --i)
            values.push_back(std::make_shared<GTDataPoint>(bytes.take<double>(), bytes.take<double>()));
        axis.TickValues(std::move(values));
    }
}

std::shared_ptr<GTSeries> seriesFrom(Bytes& bytes) {
    const auto series = std::make_shared<GTSeries>(bytes.upTo(10));
    for (int i = bytes.upTo(40); i > 0; --i) {
        const auto point = std::make_shared<GTDataPoint>(bytes.take<double>(), bytes.take<double>());
        for (int more = bytes.upTo(3); more > 0; --more)
            point->extraYValue(bytes.take<double>());
        point->text = bytes.text();
        series->AddDataPoint(point);
    }
    series->PenSize(bytes.take<int>());
    series->PlotSymbol(bytes.take<std::int8_t>());
    series->PlotSymbolSize(bytes.take<int>());
    series->XGridVisible(bytes.flag());
    series->YGridVisible(bytes.flag());
    series->dataLabelsVisible = bytes.flag();
    if (bytes.flag())
        series->SetXRange(bytes.take<double>(), bytes.take<double>());
    if (bytes.flag())
        series->SetYRange(bytes.take<double>(), bytes.take<double>());
    if (bytes.flag())
        series->SwapXY();
    setUp(series->XAxis(), bytes);
    setUp(series->YAxis(), bytes);
    return series;
}

} // namespace

} // namespace tallyvane

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace tallyvane;
    constexpr std::size_t mostCalls = 100'000; // for a few dozen points on a surface of a screen's size
    Bytes bytes(data, size);
    GraphicsRecorder surface(bytes.upTo(3000), bytes.upTo(3000));
    GTGraph graph;
    for (int i = bytes.upTo(3); i >= 0; --i)
        graph.addSeries(seriesFrom(bytes));
    if (bytes.flag())
        graph.NormalizeRanges();
    graph.titleVisible = bytes.flag();
    graph.text(bytes.text());
    graph.Resolution(bytes.flag() ? 72 : bytes.upTo(2400));
    graph.Draw(surface);
    if (surface.calls().size() > mostCalls)
        std::abort();
    return 0;
}

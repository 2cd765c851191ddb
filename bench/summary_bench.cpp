/// The summary of all of 10,000 days, against reading their cells as numbers: the window opened with its figures, and
/// what follows an edit of the table, both without and with the picture on show.
#include <benchmark/benchmark.h>

#include <QImage>
#include <QPainter>

#include "big_table.h"
#include "diary/day_table.h"
#include "diary/sort_keys.h"
#include "platform/base/number.h"
#include "platform/qt/painter_graphics.h"
#include "platform/qt/qt_toolkit.h"
#include "settings/usual_limits.h"
#include "summary/summary_window.h"

namespace {

using namespace tallyvane;

constexpr int days = 10'000;

class Bench {
public:
    Bench() {
        bench::settleFolder(bench::bigFile(days));
        UsualLimits::use(UsualLimits::inMmol);
        DayTable::setUp(table);
        static_cast<void>(DayTable::load(table));
        SortKeys::rebuild(table);
    }

    QtToolkit toolkit;
    Listbox table{DayTable::columnCount};
};

Bench& theBench() {
    static Bench bench;
    return bench;
}

void read_cells(benchmark::State& state) {
    const Listbox& table = theBench().table;
    for (auto _ : state)
        for (int row = 0; row < table.ListCount(); ++row)
            for (int column = DayTable::firstReading; column <= DayTable::lastReading; ++column)
                benchmark::DoNotOptimize(Val(table.Cell(row, column)));
}

std::unique_ptr<SummaryWindow> openOnAll() {
    auto window = std::make_unique<SummaryWindow>(theBench().table);
    for (std::size_t i = 0; i < window->Periods.size(); ++i)
        window->Periods[i].Value(i == static_cast<std::size_t>(Summary::Span::all));
    window->Event_Open();
    return window;
}

void open_summary(benchmark::State& state) {
    for (auto _ : state)
        benchmark::DoNotOptimize(openOnAll());
}

/// An edit and what the window does about it; with `painted` the canvases of a page too: 0 none, 1 the figures, 2 the
/// course, 3 the day.
void follow_edit(benchmark::State& state) {
    Bench& bench = theBench();
    const auto window = openOnAll();
    QImage image(1000, 1000, QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&image);
    PainterGraphics screen(painter, QRect(0, 0, 1000, 1000));
    bool isHigh = false;
    for (auto _ : state) {
        bench.table.Cell(days / 2, 1, isHigh ? "5.5" : "6.5");
        isHigh = !isHigh;
        window->Timer1.fire();
        if (state.range(0) == 1)
            window->Canvas1.Event_Paint(screen);
        if (state.range(0) == 2)
            window->Canvas2.Event_Paint(screen);
        if (state.range(0) == 3)
            for (Canvas* canvas : {&window->Canvas3, &window->Canvas4, &window->Canvas5})
                canvas->Event_Paint(screen);
    }
}

BENCHMARK(read_cells)->Unit(benchmark::kMillisecond);
BENCHMARK(open_summary)->Unit(benchmark::kMillisecond);
BENCHMARK(follow_edit)->ArgName("painted")->DenseRange(0, 3)->Unit(benchmark::kMillisecond);

} // namespace

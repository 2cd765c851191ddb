/// A step back or forth in the history of 100,000 days, and the way to a day, in the window as it is shown.
#include <benchmark/benchmark.h>

#include <QApplication>

#include "big_table.h"
#include "diary/window1.h"
#include "platform/qt/qt_toolkit.h"

namespace {

using namespace tallyvane;

constexpr int manyDays = 100'000;

class Bench {
public:
    Bench() {
        bench::settleFolder(bench::bigFile(manyDays));
        window.Open();
        window.Show();
        QApplication::processEvents();
    }
    void choose(const char* item) {
        menuBar_.choose(item, &window);
        QApplication::processEvents(); // with the picture of it
    }

private:
    QtToolkit toolkit_;
    Toolbar toolbar_{{}};
    MenuBar menuBar_{{}};

public:
    Window1 window{toolbar_, menuBar_};
};

Bench& theBench() {
    static Bench bench;
    return bench;
}

/// Undo and redo by turns of one change, each a step.
template <class Change>
void stepBackAndForth(benchmark::State& state, Change change) {
    Bench& bench = theBench();
    change(bench.window);
    bool isDone = true;
    for (auto _ : state) {
        bench.choose(isDone ? "EditUndo" : "EditRedo");
        isDone = !isDone;
    }
    if (isDone)
        bench.choose("EditUndo");
    if (bench.window.ListBox1.ListCount() != manyDays)
        state.SkipWithError("the table is not as it was");
}

void undo_cell(benchmark::State& state) {
    stepBackAndForth(state, [](Window1& window) {
        window.ListBox1.EditCell(manyDays / 2, 3);
        window.ListBox1.userTyped("7", 1, 0);
    });
}

void undo_new_day(benchmark::State& state) {
    stepBackAndForth(state, [](Window1& window) { window.BevelButton1.Action(); });
}

void undo_removal_of_10_days(benchmark::State& state) {
    stepBackAndForth(state, [](Window1& window) {
        std::vector<bool> rows(manyDays);
        for (std::size_t row = manyDays / 10; row < manyDays; row += manyDays / 10)
            rows[row - 1] = true;
        window.ListBox1.select(rows);
        window.BevelButton2.Action();
    });
}

void undo_sort(benchmark::State& state) {
    stepBackAndForth(state, [](Window1& window) { window.ListBox1.pressHeader(3); });
}

void go_to_day(benchmark::State& state) {
    Bench& bench = theBench();
    int row = 0;
    for (auto _ : state) {
        row = (row + manyDays / 3) % manyDays;
        bench.window.CalendarControl1.SelectedDate(*ParseDate(bench.window.ListBox1.Cell(row, 0)));
        bench.window.CalendarControl1.DayClicked();
        QApplication::processEvents();
    }
}

void two_passes(benchmark::State& state) {
    Bench& bench = theBench();
    for (auto _ : state)
        benchmark::DoNotOptimize(bench::plainAverages(bench.window.ListBox1));
}

BENCHMARK(undo_cell)->Unit(benchmark::kMillisecond);
BENCHMARK(undo_new_day)->Unit(benchmark::kMillisecond);
BENCHMARK(undo_removal_of_10_days)->Unit(benchmark::kMillisecond);
BENCHMARK(undo_sort)->Unit(benchmark::kMillisecond);
BENCHMARK(go_to_day)->Unit(benchmark::kMillisecond);
BENCHMARK(two_passes)->Unit(benchmark::kMillisecond);

} // namespace

#include <benchmark/benchmark.h>

#include <cstdlib>

#include "big_table.h"
#include "diary/window1.h"

namespace {

using namespace tallyvane;

constexpr int manyDays = 100'000;

/// The main window on a day table of so many days, with nothing around it.
struct Diary {
    explicit Diary(int days) {
        static int settled = 0;
        if (settled != days)
            bench::settleFolder(bench::bigFile(days));
        settled = days;
    }

    Toolbar toolbar{{}};
    MenuBar menuBar{{}};
    Window1 window{toolbar, menuBar};
};

std::vector<std::string> stripOf(const Window1& window) {
    return {window.StaticText1.Text(),  window.StaticText2.Text(),  window.StaticText3.Text(),
            window.StaticText4.Text(),  window.StaticText5.Text(),  window.StaticText6.Text(),
            window.StaticText23.Text(), window.StaticText22.Text(), window.StaticText16.Text()};
}

/// A key in the open cell of a row in the middle, up to the filled strip. All days are selected or none, so that the
/// strip covers them all both ways.
void keystroke(benchmark::State& state) {
    Diary diary(manyDays);
    diary.window.Open();
    Listbox& table = diary.window.ListBox1;
    table.EditCell(manyDays / 2, 3);
    table.select(std::vector<bool>(manyDays, state.range(0) == 1));
    int key = 0;
    for (auto _ : state) {
        table.userTyped(++key % 2 == 0 ? "7.5" : "7", 1, 0);
        benchmark::DoNotOptimize(diary.window.StaticText3.Text());
    }
    if (stripOf(diary.window) != bench::plainAverages(table))
        state.SkipWithError("the strip differs from the plain computation");
}
BENCHMARK(keystroke)->ArgName("all_selected")->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

void keystroke_plain(benchmark::State& state) {
    Diary diary(manyDays);
    diary.window.Open();
    Listbox& table = diary.window.ListBox1;
    int key = 0;
    for (auto _ : state) {
        table.Cell(manyDays / 2, 3, ++key % 2 == 0 ? "7.5" : "7");
        benchmark::DoNotOptimize(bench::plainAverages(table));
    }
}
BENCHMARK(keystroke_plain)->Unit(benchmark::kMillisecond);

/// From the file to the table with averages and sort keys; the counter tells what the table then holds of the heap.
void load(benchmark::State& state) {
    Diary settle(manyDays);
    for (auto _ : state) {
        state.PauseTiming();
        const std::size_t before = bench::heapInUse();
        auto diary = std::make_unique<Diary>(manyDays);
        state.ResumeTiming();
        diary->window.getData();
        state.PauseTiming();
        state.counters["megabytes"] = static_cast<double>(bench::heapInUse() - before) / (1024 * 1024);
        diary.reset();
        state.ResumeTiming();
    }
}
BENCHMARK(load)->Unit(benchmark::kMillisecond);

void load_plain(benchmark::State& state) {
    Diary settle(manyDays);
    for (auto _ : state) {
        auto rows = bench::plainRead();
        benchmark::DoNotOptimize(rows.data());
        state.PauseTiming();
        rows = {};
        state.ResumeTiming();
    }
}
BENCHMARK(load_plain)->Unit(benchmark::kMillisecond);

} // namespace

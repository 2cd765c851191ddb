/// Files that come in and go out, against the plain handling of the same bytes; and the report on paper.
#include <benchmark/benchmark.h>

#include <fcntl.h>
#include <sys/resource.h>
#include <unistd.h>

#include <QPrinter>

#include <cstdint>
#include <filesystem>
#include <fstream>

#include "big_table.h"
#include "diary/day_table.h"
#include "exchange/export_data.h"
#include "exchange/import_reader.h"
#include "platform/base/text.h"
#include "platform/files/save_record.h"
#include "platform/qt/print_job.h"
#include "platform/qt/qt_toolkit.h"
#include "reports/diary_report.h"
#include "settings/globals.h"

namespace {

using namespace tallyvane;

constexpr int lines = 100'000;
constexpr std::int64_t reportDays = 10'000;

std::string pathOf(const char* name) { return SpecialFolder::ApplicationData->AbsolutePath() + "/" + name; }

/// The days as an export has them.
const std::string& exported() {
    static const std::string file = [] {
        std::string text = ReplaceAll(bench::bigFile(lines), "@#@", ",");
        bench::settleFolder("");
        std::ofstream(pathOf("import.txt"), std::ios::binary) << text;
        return text;
    }();
    return file;
}

void import_lines(benchmark::State& state) {
    exported();
    for (auto _ : state) {
        Listbox table(DayTable::columnCount);
        const auto reader = ImportReader::open(*GetFolderItem(pathOf("import.txt")), ",");
        while (!reader->readFor(ImportReader::Milliseconds(50))) {
        }
        table.AddRows(reader->takeRows());
        if (table.ListCount() != lines)
            state.SkipWithError("not all lines came in");
    }
}

/// The file read at one go, its lines split at each comma into texts.
void read_plain(benchmark::State& state) {
    exported();
    for (auto _ : state) {
        std::ifstream file(pathOf("import.txt"), std::ios::binary);
        std::vector<std::vector<std::string>> rows;
        for (std::string line; std::getline(file, line);) {
            std::vector<std::string> cells;
            std::size_t start = 0;
            for (std::size_t comma = line.find(','); comma != std::string::npos; comma = line.find(',', start)) {
                cells.push_back(line.substr(start, comma - start));
                start = comma + 1;
            }
            cells.push_back(line.substr(start));
            rows.push_back(std::move(cells));
        }
        benchmark::DoNotOptimize(rows);
    }
}

void export_lines(benchmark::State& state) {
    exported();
    Listbox table(DayTable::columnCount);
    const auto reader = ImportReader::open(*GetFolderItem(pathOf("import.txt")), ",");
    while (!reader->readFor(ImportReader::Milliseconds(50))) {
    }
    table.AddRows(reader->takeRows());
    for (auto _ : state) {
        state.PauseTiming();
        std::filesystem::remove(pathOf("export.txt"));
        state.ResumeTiming();
        ExportData(table, ",", GetFolderItem(pathOf("export.txt")));
    }
    state.counters["bytes"] = static_cast<double>(std::filesystem::file_size(pathOf("export.txt")));
}

/// The same bytes written and seen to the disk.
void write_plain(benchmark::State& state) {
    const std::string& text = exported();
    for (auto _ : state) {
        state.PauseTiming();
        std::filesystem::remove(pathOf("plain.txt"));
        state.ResumeTiming();
        const int file = ::open(pathOf("plain.txt").c_str(), O_CREAT | O_WRONLY, 0600);
        if (::write(file, text.data(), text.size()) != static_cast<ssize_t>(text.size()) || ::fsync(file) != 0)
            state.SkipWithError("the plain file could not be written");
        ::close(file);
    }
    state.counters["bytes"] = static_cast<double>(text.size());
}

/// A save of the table in which every byte behind the first day is new, with its record.
void save_days(benchmark::State& state) {
    bench::settleFolder(bench::bigFile(lines));
    SaveRecords::useFolder(SpecialFolder::ApplicationData->AbsolutePath());
    Listbox table(DayTable::columnCount);
    if (!DayTable::load(table))
        state.SkipWithError("no table");
    bool isLonger = false;
    for (auto _ : state) {
        table.Cell(0, DayTable::firstReading, std::exchange(isLonger, !isLonger) ? "5.6" : "12.6");
        DayTable::save(table);
    }
    SaveRecords::useFolder("");
}

/// The same bytes written and seen to the disk twice, in place.
void write_plain_twice(benchmark::State& state) {
    const std::string& text = bench::bigFile(lines);
    for (auto _ : state)
        for (const char* name : {"plain 1", "plain 2"}) {
            const int file = ::open(pathOf(name).c_str(), O_CREAT | O_WRONLY, 0600);
            if (::write(file, text.data(), text.size()) != static_cast<ssize_t>(text.size()) || ::fsync(file) != 0)
                state.SkipWithError("the plain file could not be written");
            ::close(file);
        }
}

std::size_t peakMemory() {
    rusage usage{};
    ::getrusage(RUSAGE_SELF, &usage);
    return static_cast<std::size_t>(usage.ru_maxrss) * 1024;
}

/// Sends what is printed into a PDF, and asks nobody.
class PdfPrinters : public QtPrinters {
public:
    std::unique_ptr<Graphics> openDialog(const Paper* /*paper*/, int resolution,
                                         const std::string& /*pdfName*/) override {
        auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
        printer->setOutputFileName(QString::fromStdString(pathOf("report.pdf")));
        std::unique_ptr<Graphics> job = PrintJob::begin(std::move(printer), resolution);
        return job;
    }
};

double pagesOf(const std::string& pdf) {
    std::ifstream file(pdf, std::ios::binary);
    const std::string text{std::istreambuf_iterator<char>(file), {}};
    double pages = 0;
    constexpr std::string_view mark = "/Type /Page\n";
    for (std::size_t at = text.find(mark); at != std::string::npos; at = text.find(mark, at + 1))
        ++pages;
    return pages;
}

/// Pages a second, and the memory that the process took beyond what it had before.
void report(benchmark::State& state) {
    bench::settleFolder("");
    const QtToolkit toolkit;
    PdfPrinters printers;
    Printers::use(&printers);
    Toolbar toolbar{{}};
    MenuBar menuBar{{}};
    Window1 window(toolbar, menuBar);
    const auto days = static_cast<int>(state.range(0));
    for (int day = 0; day < days; ++day) {
        window.ListBox1.AddRow("11/22/2026");
        for (int column = 1; column <= DayTable::averageColumn; ++column)
            window.ListBox1.Cell(day, column, "12.4");
    }
    const std::size_t before = peakMemory();
    for (auto _ : state)
        DiaryReport(window).PrintAll();
    const double pages = pagesOf(pathOf("report.pdf"));
    state.counters["pages"] = pages;
    state.counters["pages/s"] = benchmark::Counter(pages, benchmark::Counter::kIsIterationInvariantRate);
    state.counters["grown MB"] = static_cast<double>(peakMemory() - before) / 1e6;
}

// First, while the process is small: the figure of the memory is a peak.
BENCHMARK(report)
    ->Arg(reportDays / 10)
    ->Arg(reportDays)
    ->Arg(reportDays * 10)
    ->Unit(benchmark::kMillisecond)
    ->Iterations(1);
BENCHMARK(read_plain)->Unit(benchmark::kMillisecond);
BENCHMARK(import_lines)->Unit(benchmark::kMillisecond);
BENCHMARK(write_plain)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(export_lines)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(write_plain_twice)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(save_days)->Unit(benchmark::kMillisecond)->UseRealTime();

} // namespace

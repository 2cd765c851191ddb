/// The chart engine against the bare painter, on one image in one run: each series one polyline and one ellipse a
/// symbol, beside all that GTGraph::Draw draws.
#include <benchmark/benchmark.h>

#include <QGuiApplication>
#include <QImage>
#include <QPainter>

#include <malloc.h>

#include <cmath>
#include <random>

#include "charting/gt_graph.h"
#include "platform/qt/painter_graphics.h"
#include "platform/qt/qt_toolkit.h"

namespace {

using namespace tallyvane;

constexpr int width = 800;
constexpr int height = 500;
constexpr int seriesCount = 8;
constexpr int symbolSize = 5;

/// Readings as a day has them: each series around a level of its own, with the ups and downs of real ones.
std::vector<double> readings(int series, int count) {
    std::mt19937 random(static_cast<unsigned>(series));
    std::normal_distribution<double> jump(0, 0.8);
    std::vector<double> values;
    values.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i)
        values.push_back(6 + 0.4 * series + 2 * std::sin(12.0 * i / count) + jump(random));
    return values;
}

Color colorOf(int series) { return RGB(30 * series, 200 - 20 * series, 128); }

void fill(GTSeries& series, const std::vector<double>& values) {
    for (std::size_t i = 0; i < values.size(); ++i)
        series.AddDataValue(static_cast<double>(i), values[i]);
}

std::unique_ptr<GTGraph> graphOf(int count) {
    auto graph = std::make_unique<GTGraph>();
    graph->text("Readings");
    graph->titleVisible = true;
    for (int i = 0; i < seriesCount; ++i) {
        auto series = std::make_shared<GTSeries>(GTSeries::line);
        series->PenColor(colorOf(i));
        series->PlotSymbol(GTSeries::filledCircle);
        series->PlotSymbolSize(symbolSize);
        fill(*series, readings(i, count));
        graph->addSeries(series);
    }
    graph->NormalizeRanges();
    return graph;
}

QImage emptyImage() {
    QImage image(width, height, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    return image;
}

void draw_graph(benchmark::State& state) {
    const QtToolkit toolkit;
    const auto graph = graphOf(static_cast<int>(state.range(0)));
    QImage image = emptyImage();
    QPainter painter(&image);
    PainterGraphics g(painter, image.rect());
    for (auto _ : state)
        graph->Draw(g);
}

void draw_plain(benchmark::State& state) {
    const auto count = static_cast<int>(state.range(0));
    std::vector<std::vector<QPointF>> courses;
    for (int i = 0; i < seriesCount; ++i) {
        std::vector<QPointF> course;
        for (const double value : readings(i, count))
            course.emplace_back(static_cast<double>(course.size()) * width / (count - 1), height - value * height / 20);
        courses.push_back(std::move(course));
    }
    QImage image = emptyImage();
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    for (auto _ : state)
        for (int i = 0; i < seriesCount; ++i) {
            const auto& course = courses[static_cast<std::size_t>(i)];
            painter.setPen(QColor(colorOf(i)));
            painter.setBrush(Qt::NoBrush);
            painter.drawPolyline(course.data(), static_cast<int>(course.size()));
            painter.setBrush(QColor(colorOf(i)));
            for (const QPointF& point : course)
                painter.drawEllipse(QRectF(std::floor(point.x()) - symbolSize / 2.0,
                                           std::floor(point.y()) - symbolSize / 2.0, symbolSize, symbolSize));
        }
}

void fill_series(benchmark::State& state) {
    const std::vector<double> values = readings(0, static_cast<int>(state.range(0)));
    for (auto _ : state) {
        auto series = std::make_unique<GTSeries>(GTSeries::line);
        fill(*series, values);
        benchmark::DoNotOptimize(series->YMax());
        state.PauseTiming();
        series.reset();
        state.ResumeTiming();
    }
}

BENCHMARK(draw_plain)->Arg(365)->Arg(10'000)->Arg(100'000)->Unit(benchmark::kMillisecond);
BENCHMARK(draw_graph)->Arg(365)->Arg(10'000)->Arg(100'000)->Unit(benchmark::kMillisecond);
BENCHMARK(fill_series)->Arg(10'000)->Arg(100'000)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv) {
    // Memory once taken stays: what the kernel does to hand out fresh pages is not the engine's time.
    mallopt(M_MMAP_THRESHOLD, 1 << 30);
    mallopt(M_TRIM_THRESHOLD, 1 << 30);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}

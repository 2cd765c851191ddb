/// The chart engine against the bare painter, on one image in one run: each series one polyline and one ellipse a
/// symbol, beside all that GTGraph::Draw draws.
#include <benchmark/benchmark.h>

#include <QImage>
#include <QPainter>

#include <cmath>
#include <random>

#include "charting/gt_graph.h"
#include "platform/qt/painter_graphics.h"
#include "platform/qt/qt_bitmap.h"

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

/// The plot that the graph gets on the image, so that the plain ways draw at the same places.
constexpr QRect plot(43, 17, 757, 452);

QImage emptyImage(double scale) {
    QImage image(static_cast<int>(width * scale), static_cast<int>(height * scale),
                 QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(scale);
    image.fill(Qt::white);
    return image;
}

double scaleOf(const benchmark::State& state) { return static_cast<double>(state.range(1)) / 100; }

void draw_graph(benchmark::State& state) {
    static QtBitmaps bitmaps;
    Bitmaps::use(&bitmaps);
    const auto graph = graphOf(static_cast<int>(state.range(0)));
    for (int i = 0; i < seriesCount; ++i)
        graph->Series(i)->PenSize(static_cast<int>(state.range(2)));
    QImage image = emptyImage(scaleOf(state));
    QPainter painter(&image);
    PainterGraphics g(painter, QRect(0, 0, width, height));
    for (auto _ : state)
        graph->Draw(g);
    const QPoint middle(static_cast<int>(400 * scaleOf(state)), static_cast<int>(250 * scaleOf(state)));
    if (image.pixelColor(middle) == Qt::white)
        state.SkipWithError("nothing was drawn");
}

std::vector<std::vector<QPointF>> coursesOf(int count) {
    const auto graph = graphOf(count);
    const double low = graph->Series(0)->YMin();
    const double unit = plot.height() / (graph->Series(0)->YMax() - low);
    std::vector<std::vector<QPointF>> courses;
    for (int i = 0; i < seriesCount; ++i) {
        std::vector<QPointF> course;
        for (const double value : readings(i, count))
            course.emplace_back(plot.left() + static_cast<double>(course.size()) * plot.width() / (count - 1),
                                plot.bottom() - (value - low) * unit);
        courses.push_back(std::move(course));
    }
    return courses;
}

/// Draws all courses again and again: a polyline, then `drawSymbol` at each point.
template <class DrawSymbol>
void drawPlainly(benchmark::State& state, DrawSymbol drawSymbol) {
    const auto courses = coursesOf(static_cast<int>(state.range(0)));
    QImage image = emptyImage(scaleOf(state));
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    for (auto _ : state)
        for (int i = 0; i < seriesCount; ++i) {
            const auto& course = courses[static_cast<std::size_t>(i)];
            const QPen pen(QColor(colorOf(i)), static_cast<double>(state.range(2)));
            painter.setPen(pen);
            painter.setBrush(Qt::NoBrush);
            painter.drawPolyline(course.data(), static_cast<int>(course.size()));
            painter.setPen(QColor(colorOf(i)));
            painter.setBrush(QColor(colorOf(i)));
            drawSymbol(painter, course);
        }
}

QRectF symbolAt(QPointF place) {
    return {std::floor(place.x()) - symbolSize / 2.0, std::floor(place.y()) - symbolSize / 2.0, symbolSize, symbolSize};
}

void draw_plain(benchmark::State& state) {
    drawPlainly(state, [](QPainter& painter, const std::vector<QPointF>& course) {
        for (const QPointF& point : course)
            painter.drawEllipse(symbolAt(point));
    });
}

/// A painter that knows the trick as well: one image for all symbols of a series. At scale 1 only.
void draw_plain_images(benchmark::State& state) {
    drawPlainly(state, [](QPainter& painter, const std::vector<QPointF>& course) {
        QImage symbol(symbolSize + 2, symbolSize + 2, QImage::Format_ARGB32_Premultiplied);
        symbol.fill(Qt::transparent);
        {
            QPainter symbolPainter(&symbol);
            symbolPainter.setRenderHint(QPainter::Antialiasing);
            symbolPainter.setPen(painter.pen());
            symbolPainter.setBrush(painter.brush());
            symbolPainter.drawEllipse(QRectF(1, 1, symbolSize, symbolSize));
        }
        for (const QPointF& point : course)
            painter.drawImage(QPoint(static_cast<int>(point.x()) - 3, static_cast<int>(point.y()) - 3), symbol);
    });
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

// Points a series, scale in percent, pen
void sizes(benchmark::internal::Benchmark* benchmark) {
    benchmark->Unit(benchmark::kMillisecond)->ArgNames({"points", "scale", "pen"});
    for (const int points : {365, 10'000, 100'000})
        benchmark->Args({points, 100, 1});
}
void sizesOfScreens(benchmark::internal::Benchmark* benchmark) {
    sizes(benchmark);
    for (const int points : {365, 10'000})
        benchmark->Args({points, 125, 1})->Args({points, 200, 1})->Args({points, 100, 2});
}
BENCHMARK(draw_plain)->Apply(sizesOfScreens);
BENCHMARK(draw_graph)->Apply(sizesOfScreens);
BENCHMARK(draw_plain_images)->Apply(sizes);
BENCHMARK(fill_series)->Arg(10'000)->Arg(100'000)->Unit(benchmark::kMillisecond);

} // namespace

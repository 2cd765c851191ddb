/// The graph window on 10,000 selected days with all test periods, against the bare painter drawing the same lines and
/// symbols into a picture of the same size, and against a copy of the finished picture.
#include <benchmark/benchmark.h>

#include <QImage>
#include <QPainter>

#include "big_table.h"
#include "diary/averages.h"
#include "graphwindow/graf_thing_window.h"
#include "platform/drawing/graphics_recorder.h"
#include "platform/qt/painter_graphics.h"
#include "platform/qt/qt_toolkit.h"

namespace {

using namespace tallyvane;

constexpr int days = 10'000;

/// The window on its days, and the picture of a screen that it paints on.
class Bench {
public:
    Bench() {
        bench::settleFolder(bench::bigFile(days));
        DayTable::setUp(table_);
        static_cast<void>(DayTable::load(table_));
        Averages(table_).updateRows();
        table_.select(std::vector<bool>(days, true));
        for (CheckBox* box : {&window.CheckBox12, &window.CheckBox11, &window.CheckBox10, &window.CheckBox9,
                              &window.CheckBox8, &window.CheckBox7, &window.CheckBox6})
            box->Value(true);
        window.setLineDefault();
    }

    void paint() { window.Canvas1_Paint(screen_); }
    void size(int width, int height) { window.userChangedBounds({0, 0, width, height}); }
    QPainter& painter() { return painter_; }

private:
    QtToolkit toolkit_;
    Listbox table_{DayTable::columnCount};

public:
    GrafThingWindow window{table_};

private:
    QImage image_{1000, 1000, QImage::Format_ARGB32_Premultiplied};
    QPainter painter_{&image_};
    PainterGraphics screen_{painter_, QRect(0, 0, 1000, 1000)};
};

Bench& theBench() {
    static Bench bench;
    return bench;
}

/// From the press of the button to the first picture.
void press_graph(benchmark::State& state) {
    Bench& bench = theBench();
    for (auto _ : state) {
        bench.window.setLineDefault();
        bench.paint();
    }
}

void repaint_resized(benchmark::State& state) {
    Bench& bench = theBench();
    int grown = 0;
    for (auto _ : state) {
        grown = 1 - grown;
        bench.size(716 + grown, 431);
        bench.paint();
    }
    bench.size(716, 431);
}

void repaint_unchanged(benchmark::State& state) {
    Bench& bench = theBench();
    bench.paint();
    for (auto _ : state)
        bench.paint();
}

void copy_picture(benchmark::State& state) {
    const Bench& bench = theBench();
    QImage finished(bench.window.Canvas1.Width(), bench.window.Canvas1.Height(), QImage::Format_ARGB32_Premultiplied);
    finished.fill(Qt::white);
    for (auto _ : state)
        theBench().painter().drawImage(0, 0, finished);
}

/// A line and its symbols, in places of the picture.
struct Course {
    QColor color;
    double pen = 1;
    std::vector<QPointF> points;
    std::vector<QRectF> symbols;
};

/// What the graph draws of its series, read off a recorder.
std::vector<Course> courses() {
    const Bench& bench = theBench();
    GraphicsRecorder g(bench.window.Canvas1.Width(), bench.window.Canvas1.Height());
    bench.window.grafThing1->Draw(g);
    std::vector<Course> courses;
    for (const GraphicsRecorder::Call& call : g.calls()) {
        Course course;
        for (const Object2D& shape : call.shapes) {
            const QPointF origin(call.numbers[0], call.numbers[1]);
            if (const auto* segment = std::get_if<CurveShape>(&shape)) {
                course.color = QColor::fromRgb(segment->BorderColor);
                course.pen = segment->BorderWidth;
                course.points.push_back(origin + QPointF(segment->X2, segment->Y2));
            } else if (const auto* oval = std::get_if<OvalShape>(&shape)) {
                const QPointF half(oval->Width / 2, oval->Height / 2);
                course.symbols.emplace_back(origin + QPointF(oval->X, oval->Y) - half,
                                            QSizeF(oval->Width, oval->Height));
            }
        }
        if (!course.points.empty())
            courses.push_back(std::move(course));
    }
    return courses;
}

/// With the pens of the graph, or with thin ones for all: Qt takes its time for a long line of two pixels.
void draw_plain(benchmark::State& state) {
    const bool thin = state.range(0) == 1;
    const std::vector<Course> all = courses();
    const Bench& bench = theBench();
    QImage image(bench.window.Canvas1.Width(), bench.window.Canvas1.Height(), QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    std::size_t points = 0;
    for (auto _ : state) {
        points = 0;
        for (const Course& course : all) {
            painter.setPen(QPen(course.color, thin ? 1 : course.pen));
            painter.setBrush(Qt::NoBrush);
            painter.drawPolyline(course.points.data(), static_cast<int>(course.points.size()));
            painter.setPen(course.color);
            painter.setBrush(course.color);
            for (const QRectF& symbol : course.symbols)
                painter.drawEllipse(symbol);
            points += course.points.size();
        }
    }
    state.counters["courses"] = static_cast<double>(all.size());
    state.counters["points"] = static_cast<double>(points);
}

BENCHMARK(draw_plain)->ArgName("thin")->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);
BENCHMARK(press_graph)->Unit(benchmark::kMillisecond);
BENCHMARK(repaint_resized)->Unit(benchmark::kMillisecond);
BENCHMARK(repaint_unchanged)->Unit(benchmark::kMillisecond);
BENCHMARK(copy_picture)->Unit(benchmark::kMillisecond);

} // namespace

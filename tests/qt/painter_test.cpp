#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <functional>
#include <random>

#include "charting/gt_graph.h"
#include "platform/qt/qt_bitmap.h"
#include "platform/qt/qt_toolkit.h"
#include "platform/qt/shape_runs.h"
#include "support/drawn.h"

namespace tallyvane {

namespace {

QImage whiteImage(int width, int height, double scale = 1) {
    QImage image(static_cast<int>(width * scale), static_cast<int>(height * scale),
                 QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(scale);
    image.fill(Qt::white);
    return image;
}

using Draw = std::function<void(Graphics&)>;

/// What that draws on white.
QImage painted(int width, int height, const Draw& draw) {
    QImage image = whiteImage(width, height);
    {
        QPainter painter(&image);
        PainterGraphics g(painter, image.rect());
        draw(g);
    }
    return image;
}

/// The furthest that any channel of any pixel is from that of the other image.
int furthestChannel(const QImage& a, const QImage& b) {
    int furthest = 0;
    for (qsizetype i = 0; i < a.sizeInBytes(); ++i)
        furthest = std::max(furthest, std::abs(a.constBits()[i] - b.constBits()[i]));
    return furthest;
}

/// What a chart's pictures are made of: lines with symbols, in several colours and sizes, some of it far outside.
Group2D course(unsigned seed, int symbol, double symbolSize, double pen, int colors) {
    constexpr int points = 120;
    std::mt19937 random(seed);
    // Left of and above 0 Qt rounds the other way, which shows at the edges of wide pens.
    std::uniform_real_distribution<double> place(pen > 4 ? 20 : -20, 220);
    Group2D shapes;
    CurveShape line;
    line.BorderWidth = pen;
    for (int i = 0; i < points; ++i) {
        line.BorderColor = i / std::max(1, points / colors) % 2 == 0 ? RGB(200, 30, 40) : RGB(20, 80, 170);
        line.X = line.X2;
        line.Y = line.Y2;
        line.X2 = i % 50 == 49 ? 1e4 : place(random);
        line.Y2 = i % 60 == 59 ? -1e4 : place(random);
        shapes.Append(line);
        const auto append = [&](auto shape) {
            shape.X = std::trunc(line.X2);
            shape.Y = std::trunc(line.Y2);
            shape.Width = shape.Height = symbolSize;
            shape.Fill = symbol % 2 == 0 ? 0 : 100;
            shape.FillColor = i % 17 == 0 ? RGB(255, 255, 0) : line.BorderColor; // some of two colours
            shape.Border = i % 13 == 0 ? 50 : 100;
            shape.BorderColor = line.BorderColor;
            shape.Rotation = i % 19 == 0 ? 0.4 : 0;
            shapes.Append(shape);
        };
        symbol < 2 ? append(OvalShape()) : append(RectShape());
    }
    StringShape text;
    text.X = text.Y = 100;
    text.Text = "above all";
    shapes.Append(text);
    shapes.Append(line);
    return shapes;
}

TEST(Painter, RunsLookAsTheirShapesDoOneByOne) {
    struct Row {
        int symbol;
        double symbolSize;
        double pen;
        double scale;
        int colors;
        double opacity = 1;
    };
    const Row rows[] = {
        {1, 5, 1, 1, 1},    {0, 5, 1, 1, 4},        {2, 4, 1, 1, 120}, {3, 6, 2, 1, 3},     {1, 5, 1, 2, 3},
        {1, 5, 1, 1.5, 3},  {0, 20.83, 8.33, 1, 3}, {1, 5, 1, 1.1, 3}, {1, 90, 1, 1, 3},    {3, 0, 0, 1, 2},
        {1, 5, 1, 1.25, 3}, {1, -9, 1, 1, 3},       {3, 9, -1, 1, 3},  {1, 5, 1, 1, 3, .4}, {1, 5, 1, -1, 3},
    };
    unsigned seed = 1;
    for (const Row& row : rows) {
        const Group2D shapes = course(seed++, row.symbol, row.symbolSize, row.pen, row.colors);
        const double scale = std::abs(row.scale);
        const auto paintedBy = [&](auto paint) {
            QImage image = whiteImage(200, 200, scale);
            QPainter painter(&image);
            painter.setRenderHint(QPainter::Antialiasing);
            painter.setClipRect(0, 0, 200, 200); // at which both cut far lines
            painter.setOpacity(row.opacity);
            painter.translate(7, 5.5);
            if (row.scale < 0)
                painter.scale(-1, 1); // mirrored
            paint(painter);
            painter.end();
            return image;
        };
        const QImage plain = paintedBy([&](QPainter& painter) { ShapePainter(painter, {3, -2}).paint(shapes); });
        const QImage fast = paintedBy([&](QPainter& painter) { ShapeRuns(painter, {3, -2}).paint(shapes); });
        EXPECT_NE(plain, whiteImage(200, 200, scale)) << "nothing was drawn to compare";
        EXPECT_LE(furthestChannel(plain, fast), 3) << "symbol " << row.symbol << ", size " << row.symbolSize << ", pen "
                                                   << row.pen << ", scale " << row.scale << ", colours " << row.colors;
    }
}

using Pixels = std::vector<std::string>;

/// The picture's rows from the top, a letter for each pixel: "#" for black, "." for white, "?" for anything between.
Pixels pixels(const QImage& image) {
    Pixels rows;
    for (int y = 0; y < image.height(); ++y) {
        rows.emplace_back();
        for (int x = 0; x < image.width(); ++x) {
            const QRgb pixel = image.pixel(x, y) & 0xFFFFFF;
            rows.back() += pixel == 0 ? '#' : pixel == 0xFFFFFF ? '.' : '?';
        }
    }
    return rows;
}

TEST(Painter, UprightLinesAndRectanglesAreSharp) {
    const auto check = [](const char* name, const Pixels& want, const Draw& draw) {
        EXPECT_EQ(pixels(painted(6, 4, draw)), want) << name;
    };
    check("a line takes whole pixels, both ends included", {"......", ".####.", "......", "......"},
          [](Graphics& g) { g.DrawLine(1, 1, 4, 1); });
    check("from the other end", {"......", ".####.", "......", "......"}, [](Graphics& g) { g.DrawLine(4, 1, 1, 1); });
    check("also between pixels", {"..#...", "..#...", "..#...", "......"},
          [](Graphics& g) { g.DrawLine(2.4, 0, 2.4, 2); });
    check("a pen hangs down and to the right", {"......", ".####.", ".####.", "......"}, [](Graphics& g) {
        g.PenWidth(2);
        g.PenHeight(2);
        g.DrawLine(1, 1, 3, 1);
    });
    check("a pen of nothing draws nothing", {"......", "......", "......", "......"}, [](Graphics& g) {
        g.PenWidth(0);
        g.PenHeight(0);
        g.DrawLine(0, 0, 5, 3);
        g.DrawLine(0, 2, 5, 2);
    });
    check("an outline lies inside", {".####.", ".#..#.", ".####.", "......"},
          [](Graphics& g) { g.DrawRect(1, 0, 4, 3); });
    check("without height it is a line", {"......", "......", ".####.", "......"},
          [](Graphics& g) { g.DrawRect(1, 2, 4, 0); });
    check("without width too", {".#....", ".#....", ".#....", "......"}, [](Graphics& g) { g.DrawRect(1, 0, 0, 3); });
    check("a fill named from its other corner", {"......", ".###..", ".###..", "......"},
          [](Graphics& g) { g.FillRect(4, 3, -3, -2); });
    check("neighbours leave no seam", {"......", "######", "######", "......"}, [](Graphics& g) {
        g.FillRect(0, 0.5, 6, 1.2);
        g.FillRect(0, 1.7, 6, 1.3);
    });
}

TEST(Painter, ShapesStandWhereTheirPictureIsDrawn) {
    Picture picture(6, 4, 0);
    FigureShape figure; // a square of 2 x 2
    figure.AddLine(1, 1, 3, 1);
    figure.AddLine(3, 1, 3, 3);
    figure.AddLine(3, 3, 1, 3);
    picture.Objects().Append(figure);
    RectShape turned; // a bar on its side, far above but for its end
    turned.X = 5.5;
    turned.Y = -19;
    turned.Width = 40;
    turned.Height = 1;
    turned.Rotation = std::acos(0);
    picture.Objects().Append(turned);
    EXPECT_EQ(pixels(painted(8, 4, [&](Graphics& g) { g.DrawPicture(picture, 1, 0); })),
              (Pixels{"......#.", "..##....", "..##....", "........"}));
}

TEST(Painter, ALineKeepsItsDirectionHoweverLongItIs) {
    Picture picture(100, 100, 0);
    CurveShape line;
    line.X2 = 1e300;
    line.Y2 = 1e299; // one down on ten to the right
    picture.Objects().Append(line);
    line.X = -1e300; // and one that is far at both ends
    line.Y = 80;
    line.Y2 = 80.5;
    picture.Objects().Append(line);
    const QImage image = painted(100, 100, [&](Graphics& g) { g.DrawPicture(picture, 0, 0); });
    EXPECT_LT(qGray(image.pixel(90, 9)), 200);
    EXPECT_EQ(qGray(image.pixel(90, 50)), 255);
    EXPECT_LT(qGray(image.pixel(50, 80)), 200);
}

TEST(Painter, ArcsRunClockwiseFromTheRight) {
    ArcShape arc;
    arc.Width = arc.Height = 40;
    arc.ArcAngle = 1.5; // a little less than a quarter
    const Pixels shown = pixels(painted(41, 41, [&](Graphics& g) { g.DrawObject(arc, 20.5, 20.5); }));
    EXPECT_EQ(shown[30][30], '#') << "below and to the right";
    for (const char other : {shown[30][10], shown[10][30], shown[10][10]})
        EXPECT_NE(other, '#');
}

TEST(Painter, TextStandsOnItsBaseline) {
    const QtToolkit toolkit;
    StringShape text;
    text.X = text.Y = 50;
    text.TextSize = 24;
    text.Text = "HHHH";
    // `mostly` is where the ink lies, the text's middle being at 50, 50.
    const auto check = [&](const char* name, double rotation, const QRect& mostly) {
        text.Rotation = rotation;
        const QImage image = painted(100, 100, [&](Graphics& g) { g.DrawObject(text, 0, 0); });
        QRect ink;
        for (int y = 0; y < 100; ++y)
            for (int x = 0; x < 100; ++x)
                if (qGray(image.pixel(x, y)) < 128)
                    ink |= QRect(x, y, 1, 1);
        EXPECT_TRUE(mostly.contains(ink)) << name << ": " << ink.x() << ' ' << ink.y() << ' ' << ink.width();
        EXPECT_GT(std::max(ink.width(), ink.height()), 50) << name;
        return image;
    };
    check("upward", -std::acos(0), {25, 0, 28, 100});
    check("downward", std::acos(0), {47, 0, 28, 100});
    const QImage level = check("level", 0, {0, 25, 100, 28});
    const QImage direct = painted(100, 100, [](Graphics& g) {
        g.TextSize(24);
        EXPECT_NEAR(g.TextHeight(), 28, 4);
        EXPECT_LT(g.TextAscent(), g.TextHeight());
        g.DrawString("HHHH", 50 - g.StringWidth("HHHH") / 2, 50);
    });
    EXPECT_LE(furthestChannel(level, direct), 3) << "a string and a shape of the same text";
}

TEST(Painter, ABitmapIsClearUntilItIsDrawnOn) {
    const QtToolkit toolkit;
    const Picture bitmap(6, 4, 32);
    bitmap.Graphics().FillRect(1, 1, 2, 2);
    const Picture shared = bitmap;
    EXPECT_EQ(pixels(painted(6, 4, [&](Graphics& g) { g.DrawPicture(shared, 2, 1); })),
              (Pixels{"......", "......", "...##.", "...##."}));
}

TEST(Painter, HugeAndNonFiniteCoordinatesAreSafe) {
    const QtToolkit toolkit;
    const auto drawTo = [](Graphics& g, double near, double far) {
        g.DrawLine(near, 10, far, 20);
        g.DrawLine(near, 10, far, 10);
        g.DrawRect(near, near, far, far);
        g.FillRect(near, far, far, near);
        g.DrawString("text", far, near);
        GTGraph graph;
        for (int type = GTSeries::line; type <= GTSeries::pie; ++type) {
            const auto series = std::make_shared<GTSeries>(type);
            series->PlotSymbol(GTSeries::filledCircle);
            series->dataLabelsVisible = true;
            for (const double value : {1.0, near, far, -far, 2.0})
                series->AddDataValue(value, value);
            if (std::isfinite(far))
                series->SetYRange(0, 10);
            graph.addSeries(series);
        }
        graph.Draw(g);
        g.FillRect(3, 3, 1, 1);
    };
    const QImage noLine = painted(20, 20, [](Graphics& g) { g.DrawLine(notANumber, 10, 15, 10); });
    EXPECT_EQ(noLine, painted(20, 20, [](Graphics&) {})) << "a line without a place";
    for (const double far : {1e7, -1e12, 1e300, infinite, -infinite, notANumber})
        for (const double near : {10.0, far}) {
            const QImage image = painted(100, 100, [&](Graphics& g) { drawTo(g, near, far); });
            EXPECT_EQ(image.pixel(3, 3) & 0xFFFFFF, RGB(0, 0, 0)) << "the painter is of no use after " << far;
        }
}

} // namespace

} // namespace tallyvane

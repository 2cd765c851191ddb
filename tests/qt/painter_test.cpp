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

/// The furthest that any channel of any pixel is from that of the other image.
int furthestChannel(const QImage& a, const QImage& b) {
    int furthest = 0;
    for (int y = 0; y < a.height(); ++y)
        for (int x = 0; x < a.width(); ++x) {
            const QRgb p = a.pixel(x, y);
            const QRgb q = b.pixel(x, y);
            furthest = std::max({furthest, std::abs(qRed(p) - qRed(q)), std::abs(qGreen(p) - qGreen(q)),
                                 std::abs(qBlue(p) - qBlue(q)), std::abs(qAlpha(p) - qAlpha(q))});
        }
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
        QImage plain = whiteImage(200, 200, scale);
        QImage fast = whiteImage(200, 200, scale);
        const auto prepare = [&](QPainter& painter) {
            painter.setRenderHint(QPainter::Antialiasing);
            painter.setClipRect(0, 0, 200, 200); // at which both cut far lines
            painter.setOpacity(row.opacity);
            painter.translate(7, 5.5);
            if (row.scale < 0)
                painter.scale(-1, 1); // mirrored
        };
        {
            QPainter painter(&plain);
            prepare(painter);
            ShapePainter(painter, {3, -2}).paint(shapes);
        }
        {
            QPainter painter(&fast);
            prepare(painter);
            ShapeRuns(painter, {3, -2}).paint(shapes);
        }
        EXPECT_NE(plain, whiteImage(200, 200, scale)) << "nothing was drawn to compare";
        EXPECT_LE(furthestChannel(plain, fast), 3) << "symbol " << row.symbol << ", size " << row.symbolSize << ", pen "
                                                   << row.pen << ", scale " << row.scale << ", colours " << row.colors;
    }
}

/// The picture's rows from the top, a letter for each pixel: "#" for black, "." for white, "?" for anything between.
std::vector<std::string> pixels(const QImage& image) {
    std::vector<std::string> rows;
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
    struct Row {
        const char* name;
        std::function<void(Graphics&)> draw;
        std::vector<std::string> want;
    };
    const std::vector<Row> rows{
        {"a line takes whole pixels, both ends included",
         [](Graphics& g) { g.DrawLine(1, 1, 4, 1); },
         {"......", ".####.", "......", "......"}},
        {"from the other end", [](Graphics& g) { g.DrawLine(4, 1, 1, 1); }, {"......", ".####.", "......", "......"}},
        {"also between pixels",
         [](Graphics& g) { g.DrawLine(2.4, 0, 2.4, 2); },
         {"..#...", "..#...", "..#...", "......"}},
        {"a pen hangs down and to the right",
         [](Graphics& g) {
             g.PenWidth(2);
             g.PenHeight(2);
             g.DrawLine(1, 1, 3, 1);
         },
         {"......", ".####.", ".####.", "......"}},
        {"an outline lies inside",
         [](Graphics& g) { g.DrawRect(1, 0, 4, 3); },
         {".####.", ".#..#.", ".####.", "......"}},
        {"without height it is a line",
         [](Graphics& g) { g.DrawRect(1, 2, 4, 0); },
         {"......", "......", ".####.", "......"}},
        {"without width too", [](Graphics& g) { g.DrawRect(1, 0, 0, 3); }, {".#....", ".#....", ".#....", "......"}},
        {"a fill", [](Graphics& g) { g.FillRect(1, 1, 3, 2); }, {"......", ".###..", ".###..", "......"}},
        {"a fill named from its other corner",
         [](Graphics& g) { g.FillRect(4, 3, -3, -2); },
         {"......", ".###..", ".###..", "......"}},
        {"neighbours leave no seam",
         [](Graphics& g) {
             g.FillRect(0, 0.5, 6, 1.2);
             g.FillRect(0, 1.7, 6, 1.3);
         },
         {"......", "######", "######", "......"}},
    };
    for (const Row& row : rows) {
        QImage image = whiteImage(6, 4);
        {
            QPainter painter(&image);
            PainterGraphics g(painter, image.rect());
            row.draw(g);
        }
        EXPECT_EQ(pixels(image), row.want) << row.name;
    }
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
    QImage image = whiteImage(8, 4);
    {
        QPainter painter(&image);
        PainterGraphics g(painter, image.rect());
        g.DrawPicture(picture, 1, 0);
    }
    EXPECT_EQ(pixels(image), (std::vector<std::string>{"......#.", "..##....", "..##....", "........"}));
}

TEST(Painter, ALineKeepsItsDirectionHoweverLongItIs) {
    QImage image = whiteImage(100, 100);
    QPainter painter(&image);
    PainterGraphics g(painter, image.rect());
    Picture picture(100, 100, 0);
    CurveShape line;
    line.X2 = 1e300;
    line.Y2 = 1e299; // one down on ten to the right
    picture.Objects().Append(line);
    line.X = -1e300; // and one that is far at both ends
    line.Y = 80;
    line.Y2 = 80.5;
    picture.Objects().Append(line);
    g.DrawPicture(picture, 0, 0);
    EXPECT_LT(qGray(image.pixel(90, 9)), 200);
    EXPECT_EQ(qGray(image.pixel(90, 50)), 255);
    EXPECT_LT(qGray(image.pixel(50, 80)), 200);
    g.PenWidth(0);
    g.PenHeight(0);
    const QImage before = image.copy();
    g.DrawLine(0, 50, 90, 60);
    g.DrawLine(0, 70, 90, 70);
    EXPECT_EQ(image, before) << "a pen of nothing draws nothing";
}

TEST(Painter, ArcsRunClockwiseFromTheRight) {
    QImage image = whiteImage(41, 41);
    QPainter painter(&image);
    PainterGraphics g(painter, image.rect());
    ArcShape arc;
    arc.Width = arc.Height = 40;
    arc.StartAngle = 0;
    arc.ArcAngle = 1.5; // a little less than a quarter
    g.DrawObject(arc, 20.5, 20.5);
    const auto black = [&](int x, int y) { return (image.pixel(x, y) & 0xFFFFFF) == 0; };
    EXPECT_TRUE(black(30, 30)) << "below and to the right";
    EXPECT_FALSE(black(10, 30));
    EXPECT_FALSE(black(30, 10));
    EXPECT_FALSE(black(10, 10));
}

TEST(Painter, TextStandsOnItsBaseline) {
    const QtToolkit toolkit;
    struct Row {
        const char* name;
        double rotation;
        QRect mostly; // where the ink lies, the text's middle being at 50, 50
    };
    const double quarter = std::acos(0);
    const Row rows[] = {{"level", 0, {0, 25, 100, 28}},
                        {"upward", -quarter, {25, 0, 28, 100}},
                        {"downward", quarter, {47, 0, 28, 100}}};
    for (const Row& row : rows) {
        QImage image = whiteImage(100, 100);
        {
            QPainter painter(&image);
            PainterGraphics g(painter, image.rect());
            StringShape text;
            text.X = text.Y = 50;
            text.TextSize = 24;
            text.Text = "HHHH";
            text.Rotation = row.rotation;
            g.DrawObject(text, 0, 0);
            g.TextSize(24);
            QImage direct = whiteImage(100, 100);
            QPainter directPainter(&direct);
            PainterGraphics h(directPainter, direct.rect());
            h.TextSize(24);
            h.DrawString("HHHH", 50 - h.StringWidth("HHHH") / 2, 50);
            if (row.rotation == 0)
                EXPECT_LE(furthestChannel(image, direct), 3) << "a string and a shape of the same text";
            EXPECT_NEAR(g.TextHeight(), 28, 4);
            EXPECT_LT(g.TextAscent(), g.TextHeight());
            EXPECT_NEAR(g.StringWidth("HHHH"), 4 * 18, 10);
        }
        QRect ink;
        for (int y = 0; y < 100; ++y)
            for (int x = 0; x < 100; ++x)
                if (qGray(image.pixel(x, y)) < 128)
                    ink |= QRect(x, y, 1, 1);
        EXPECT_TRUE(row.mostly.contains(ink)) << row.name << ": " << ink.x() << ' ' << ink.y() << ' ' << ink.width();
        EXPECT_GT(std::max(ink.width(), ink.height()), 50) << row.name;
    }
}

TEST(Painter, ABitmapIsClearUntilItIsDrawnOn) {
    const QtToolkit toolkit;
    const Picture bitmap(6, 4, 32);
    bitmap.Graphics().FillRect(1, 1, 2, 2);
    const Picture shared = bitmap;
    QImage image = whiteImage(6, 4);
    {
        QPainter painter(&image);
        PainterGraphics g(painter, image.rect());
        g.DrawPicture(shared, 2, 1);
    }
    EXPECT_EQ(pixels(image), (std::vector<std::string>{"......", "......", "...##.", "...##."}));
    EXPECT_EQ(bitmap.Graphics().Width(), 6);
}

TEST(Painter, NoPlaceIsTooFar) {
    const QtToolkit toolkit;
    for (const double far : {1e7, -1e12, 1e300, infinite, -infinite, notANumber})
        for (const double near : {10.0, far}) {
            QImage image = whiteImage(100, 100);
            QPainter painter(&image);
            PainterGraphics g(painter, image.rect());
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
            EXPECT_EQ(image.pixel(3, 3) & 0xFFFFFF, RGB(0, 0, 0)) << "the painter is of no use after " << far;
        }
}

} // namespace

} // namespace tallyvane

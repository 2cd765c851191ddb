/// chart_gallery OUT: draws every chart of the gallery into the folder OUT, as a PNG and as a page of a PDF, each at 72
/// and at 300 dots per inch, and all together on one sheet.
#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QImage>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>

#include <cmath>
#include <cstdio>

#include "cases.h"
#include "platform/qt/painter_graphics.h"
#include "platform/qt/qt_toolkit.h"

namespace {

using namespace tallyvane;

constexpr int pointsWide = 480;
constexpr int pointsHigh = 320;
constexpr int sheetResolution = 72;
constexpr int resolutions[] = {sheetResolution, 300};
constexpr double pointsAnInch = 72;

int dots(int points, int resolution) { return static_cast<int>(std::lround(points * resolution / pointsAnInch)); }

void draw(GTGraph& graph, QPainter& painter, int resolution) {
    PainterGraphics g(painter, {0, 0, dots(pointsWide, resolution), dots(pointsHigh, resolution)});
    graph.Draw(g);
}

QImage imageOf(GTGraph& graph, int resolution) {
    QImage image(dots(pointsWide, resolution), dots(pointsHigh, resolution), QImage::Format_RGB32);
    image.fill(Qt::white);
    {
        QPainter painter(&image);
        draw(graph, painter, resolution);
    }
    return image;
}

bool writeImages(const QDir& out, int resolution) {
    bool written = true;
    for (const GalleryCase& chart : galleryCases(resolution)) {
        const QString name = QStringLiteral("%1_%2.png").arg(QString::fromStdString(chart.name)).arg(resolution);
        written = imageOf(*chart.graph, resolution).save(out.filePath(name)) && written;
    }
    return written;
}

bool writePages(const QDir& out, int resolution) {
    const std::vector<GalleryCase> cases = galleryCases(resolution);
    QPdfWriter writer(out.filePath(QStringLiteral("gallery_%1.pdf").arg(resolution)));
    writer.setResolution(resolution);
    writer.setPageSize(QPageSize(QSizeF(pointsWide, pointsHigh), QPageSize::Point));
    writer.setPageMargins({});
    QPainter painter;
    if (!painter.begin(&writer))
        return false;
    for (const GalleryCase& chart : cases) {
        if (&chart != &cases.front() && !writer.newPage())
            return false;
        draw(*chart.graph, painter, resolution);
    }
    return painter.end();
}

bool writeSheet(const QDir& out) {
    const std::vector<GalleryCase> cases = galleryCases(sheetResolution);
    constexpr int columns = 4;
    constexpr int gap = 12;
    const int rows = (static_cast<int>(cases.size()) + columns - 1) / columns;
    QImage sheet(columns * (pointsWide + gap) + gap, rows * (pointsHigh + gap) + gap, QImage::Format_RGB32);
    sheet.fill(QColor(225, 225, 225));
    QPainter painter(&sheet);
    for (int i = 0; i < static_cast<int>(cases.size()); ++i)
        painter.drawImage(gap + i % columns * (pointsWide + gap), gap + i / columns * (pointsHigh + gap),
                          imageOf(*cases[static_cast<std::size_t>(i)].graph, sheetResolution));
    painter.end();
    return sheet.save(out.filePath(QStringLiteral("contact_sheet.png")));
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fputs("usage: chart_gallery OUT\n", stderr);
        return 2;
    }
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication application(argc, argv);
    const QtToolkit toolkit;
    const QDir out(QFile::decodeName(argv[1]));
    bool written = out.mkpath(QStringLiteral(".")) && writeSheet(out);
    for (const int resolution : resolutions)
        written = written && writeImages(out, resolution) && writePages(out, resolution);
    if (!written)
        std::fprintf(stderr, "chart_gallery: cannot write into %s\n", argv[1]);
    return written ? 0 : 1;
}

/// chart_gallery OUT: draws every chart of the gallery into the folder OUT, as a PNG and as a page of a PDF, each at 72
/// and at 300 dots per inch, and all together on one sheet.
#include <cmath>
#include <cstdio>
#include <filesystem>

#include "cases.h"
#include "platform/drawing/picture.h"
#include "platform/qt/file_surfaces.h"

namespace {

using namespace tallyvane;
using std::filesystem::path;

constexpr int pointsWide = 480;
constexpr int pointsHigh = 320;
constexpr int sheetResolution = 72;
constexpr int resolutions[] = {sheetResolution, 300};

int dots(int points, int resolution) { return static_cast<int>(std::lround(points * resolution / 72.0)); }

/// Draws a chart a little lower where needed, so that automatic labels of values stand at their values.
void draw(GTGraph& graph, Graphics& g) {
    graph.marginBottom += graph.plotHeight(g) % GTAxis::automaticStep;
    graph.Draw(g);
}

bool writePictures(const FileSurfaces& surfaces, const path& out, int resolution) {
    bool written = true;
    for (const GalleryCase& chart : galleryCases(resolution)) {
        const path file = out / (chart.name + "_" + std::to_string(resolution) + ".png");
        const bool done = surfaces.writePicture(file, dots(pointsWide, resolution), dots(pointsHigh, resolution),
                                                [&](Graphics& g) { draw(*chart.graph, g); });
        written = written && done;
    }
    return written;
}

bool writePages(const FileSurfaces& surfaces, const path& out, int resolution) {
    const std::vector<GalleryCase> cases = galleryCases(resolution);
    std::vector<FileSurfaces::Drawing> pages;
    for (const GalleryCase& chart : cases)
        pages.emplace_back([&chart](Graphics& g) { draw(*chart.graph, g); });
    const path file = out / ("gallery_" + std::to_string(resolution) + ".pdf");
    return surfaces.writePdf(file, dots(pointsWide, resolution), dots(pointsHigh, resolution), resolution, pages);
}

/// A chart as a picture of its own, on white ground.
Picture pictureOf(GTGraph& graph) {
    Picture picture(pointsWide, pointsHigh, 32);
    Graphics& g = picture.Graphics();
    g.ForeColor(RGB(255, 255, 255));
    g.FillRect(0, 0, g.Width(), g.Height());
    draw(graph, g);
    return picture;
}

bool writeSheet(const FileSurfaces& surfaces, const path& out) {
    const std::vector<GalleryCase> cases = galleryCases(sheetResolution);
    constexpr int columns = 4;
    constexpr int gap = 12;
    const int rows = (static_cast<int>(cases.size()) + columns - 1) / columns;
    const auto drawAll = [&](Graphics& g) {
        g.ForeColor(RGB(225, 225, 225));
        g.FillRect(0, 0, g.Width(), g.Height());
        int place = 0;
        for (const GalleryCase& chart : cases) {
            g.DrawPicture(pictureOf(*chart.graph), gap + place % columns * (pointsWide + gap),
                          gap + place / columns * (pointsHigh + gap));
            ++place;
        }
    };
    return surfaces.writePicture(out / "contact_sheet.png", columns * (pointsWide + gap) + gap,
                                 rows * (pointsHigh + gap) + gap, drawAll);
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fputs("usage: chart_gallery OUT\n", stderr);
        return 2;
    }
    const path out = argv[1];
    const FileSurfaces surfaces(argc, argv);
    std::error_code error;
    std::filesystem::create_directories(out, error); // what can't be made can't be written into
    bool written = writeSheet(surfaces, out);
    for (const int resolution : resolutions)
        written = written && writePictures(surfaces, out, resolution) && writePages(surfaces, out, resolution);
    if (!written)
        std::fprintf(stderr, "chart_gallery: cannot write into %s\n", out.c_str());
    return written ? 0 : 1;
}

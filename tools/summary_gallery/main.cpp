/// summary_gallery TABLE TODAY OUT: draws the pictures of a summary of the last 30 and 90 days up to TODAY (2026-11-23)
/// of a table in the form of "7VXData" into the folder OUT, each alone as a PNG, and the page for the visit as a PDF.
#include <cstdio>
#include <filesystem>

#include "diary/day_table.h"
#include "diary/sort_keys.h"
#include "platform/files/system_files.h"
#include "platform/printing/printing.h"
#include "platform/qt/file_surfaces.h"
#include "settings/usual_limits.h"
#include "summary/charts.h"
#include "summary/course_chart.h"
#include "summary/visit_page.h"

using namespace tallyvane;
using std::filesystem::path;

namespace {

/// Limits for mg/dL that suit the readings of the tests.
constexpr UsualLimits::Limits limits{180, 140, 80, 60};

bool writeCharts(const FileSurfaces& surfaces, const Summary::PeriodSummary& summary, const path& out,
                 const std::string& days) {
    Summary::CourseChart course(summary);
    const auto write = [&](const char* name, int width, int height, const FileSurfaces::Drawing& draw) {
        return surfaces.writePicture(out / (std::string(name) + "_" + days + ".png"), width, height, draw);
    };
    return write("course", 760, 240, [&](Graphics& g) { course.draw(g); }) &&
           write("day", 420, 240, [&](Graphics& g) { Summary::drawDay(summary, g); }) &&
           write("shares", 420, 240, [&](Graphics& g) { Summary::drawShares(summary, g); }) &&
           write("rises", 240, 240, [&](Graphics& g) { Summary::drawRises(summary, g); });
}

} // namespace

int main(int argc, char** argv) {
    constexpr int wrongUse = 2;
    FileSurfaces surfaces(argc, argv);
    const std::optional<std::string> text = argc == 4 ? SystemFiles::read(argv[1]) : std::nullopt;
    const std::optional<Date> today = argc == 4 ? ParseDate(argv[2]) : std::nullopt;
    if (!text || !today) {
        std::fputs("usage: summary_gallery TABLE TODAY OUT\n", stderr);
        return wrongUse;
    }
    UsualLimits::use(limits);
    Listbox table(DayTable::columnCount);
    TextInputStream lines(*text);
    DayTable::addDays(table, lines);
    SortKeys::rebuild(table);
    std::filesystem::create_directories(argv[3]);
    const auto writePage = [&](Summary::Span span, const std::string& days) {
        constexpr int width = 559; // of A4, in points, less margins of a quarter of an inch
        constexpr int height = 806;
        const Summary::PeriodSummary summary = summarize(table, span, *today);
        const FileSurfaces::Drawing page = [&](Graphics& g) { drawVisitPage(g, summary, {{}, {}, *today, 1}); };
        const path file = path(argv[3]) / ("page_" + days);
        return surfaces.writePdf(file.string() + ".pdf", width, height, pointsPerInch, {page});
    };
    const bool written = writeCharts(surfaces, summarize(table, Summary::Span::last30, *today), argv[3], "30") &&
                         writeCharts(surfaces, summarize(table, Summary::Span::last90, *today), argv[3], "90") &&
                         writePage(Summary::Span::last30, "30") && writePage(Summary::Span::last90, "90");
    return written ? 0 : 1;
}

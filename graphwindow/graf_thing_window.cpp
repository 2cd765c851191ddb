#include "graphwindow/graf_thing_window.h"

#include <algorithm>

#include "platform/base/scoped_flag.h"
#include "platform/base/translation.h"
#include "platform/printing/printing.h"
#include "settings/globals.h"
#include "settings/headings.h"

namespace tallyvane {

namespace {

// The legend below a printed graph, in points of the page
constexpr int firstBaseline = 480;
constexpr int lineHeight = 20;
constexpr std::size_t linesPerColumn = 4;
constexpr int legendBottom = firstBaseline + lineHeight * static_cast<int>(linesPerColumn);

} // namespace

void GrafThingWindow::Event_Open() {
    setLineDefault();
    getheadings();
}

void GrafThingWindow::setLineDefault() {
    const SelectedDays days(days_);
    finished_.reset();
    if (graphWeight) {
        grafThing1 = DayGraph::makeWeightGraph(days);
        Canvas1.Refresh();
        return;
    }
    DayGraph::Shown shown{};
    for (std::size_t i = 0; i < shown.size(); ++i)
        shown[i] = boxes()[i]->Value();
    grafThing1 = DayGraph::makeReadingsGraph(days, shown);
}

void GrafThingWindow::getheadings() {
    const std::optional<Headings> headings = readHeadings();
    if (!headings)
        return;
    constexpr std::size_t periodsPerMeal = 2;
    constexpr std::size_t meals = 3;
    const auto captioned = boxes();
    CheckBox13.Caption(tr(DayGraph::periods.front().caption));
    for (std::size_t i = 0; i < meals * periodsPerMeal; ++i)
        captioned[i + 1]->Caption(tr("%1 %2", {(*headings)[headingGroups + i], (*headings)[i / periodsPerMeal]}));
    CheckBox6.Caption((*headings)[headingGroups + meals * periodsPerMeal]);
}

void GrafThingWindow::CheckBox_Action() {
    graphWeight = false;
    setLineDefault();
    Canvas1.Refresh();
}

void GrafThingWindow::Canvas3_Action() {
    const auto all = boxes();
    std::for_each(all.rbegin(), all.rend(), [](CheckBox* box) { box->Value(false); });
    graphWeight = true;
    setLineDefault();
}

void GrafThingWindow::Canvas1_Paint(Graphics& g) {
    const int width = Canvas1.Width();
    const int height = Canvas1.Height();
    if (!grafThing1)
        return;
    if (!finished_ || finished_->Width() != width || finished_->Height() != height) {
        finished_.emplace(width, height, 32);
        drawOnWhite(finished_->Graphics());
    }
    g.DrawPicture(*finished_, 0, 0);
}

/// Axes and titles are black, so that the graph brings a light ground along, whatever the desktop's theme.
void GrafThingWindow::drawOnWhite(Graphics& g) const {
    g.ForeColor(RGB(255, 255, 255));
    g.FillRect(0, 0, g.Width(), g.Height());
    DayGraph::draw(*grafThing1, g);
}

// Printing

void GrafThingWindow::Canvas2_Action() {
    PrinterSetup setup;
    const std::unique_ptr<Graphics> g = askForPages(setup);
    if (!g)
        return;
    g->shrinkToFit(0, legendBottom);
    {
        const ScopedFlag printing(Globals::gPrintingOn);
        DayGraph::draw(*grafThing1, *g);
    }
    if (!graphWeight)
        drawLegend(*g);
}

void GrafThingWindow::drawLegend(Graphics& g) {
    constexpr std::array<int, 2> columnLefts{70, 200};
    g.TextSize(11);
    g.TextFont("Verdana");
    for (std::size_t i = 0; i < DayGraph::periods.size(); ++i) {
        g.ForeColor(DayGraph::periods[i].color);
        g.Bold(i == 0);
        const std::string dash = i == 0 ? "-- " : "--  ";
        g.DrawString(dash + boxes()[i]->Caption(), columnLefts[i / linesPerColumn],
                     firstBaseline + lineHeight * static_cast<int>(i % linesPerColumn));
    }
}

void GrafThingWindow::filePrint_Action() {
    constexpr int unlimited = -1; // the full resolution of the paper
    constexpr int screenResolution = 72;
    PrinterSetup setup;
    setup.MaxHorizontalResolution = unlimited;
    setup.MaxVerticalResolution = unlimited;
    const std::unique_ptr<Graphics> g = askForPages(setup);
    if (!g)
        return;
    grafThing1->Resolution(setup.HorizontalResolution());
    DayGraph::draw(*grafThing1, *g);
    grafThing1->Resolution(screenResolution);
}

} // namespace tallyvane

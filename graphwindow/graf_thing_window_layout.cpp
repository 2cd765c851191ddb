#include "graphwindow/graf_thing_window.h"

#include "platform/base/translation.h"
#include "platform/windows/wiring.h"

namespace tallyvane {

namespace {

constexpr int width = 716;
constexpr int height = 431;

constexpr std::array<int, 8> boxTops{47, 69, 91, 114, 136, 159, 181, 204};

/// A box of the test periods, and the swatch beside it; 0 is the topmost.
constexpr Rect boxFrame(std::size_t i) { return {561, boxTops[i], 131, 20}; }
constexpr Rect swatchFrame(std::size_t i) { return {543, boxTops[i] + 5, 11, 10}; }

} // namespace

GrafThingWindow::GrafThingWindow(const Listbox& days) : days_(days) {
    shape(Kind::document, width, height, {width, anySize, height, anySize});
    Title(tr("Graph"));
    layOut();
    build();
    wire();
}

std::array<CheckBox*, 8> GrafThingWindow::boxes() {
    return {&CheckBox13, &CheckBox12, &CheckBox11, &CheckBox10, &CheckBox9, &CheckBox8, &CheckBox7, &CheckBox6};
}

std::array<Rectangle*, 8> GrafThingWindow::swatches() {
    return {&Rectangle1, &Rectangle2, &Rectangle3, &Rectangle4, &Rectangle5, &Rectangle6, &Rectangle7, &Rectangle8};
}

void GrafThingWindow::layOut() {
    place({
        {&Canvas1, {20, 14, 499, 397}, lockAll},           {&GroupBox3, {531, 22, 165, 212}, lockTopRight},
        {&Rectangle1, swatchFrame(0), lockTopRight},       {&CheckBox13, boxFrame(0), lockTopRight},
        {&Rectangle2, swatchFrame(1), lockTopRight},       {&CheckBox12, boxFrame(1), lockTopRight},
        {&Rectangle3, swatchFrame(2), lockTopRight},       {&CheckBox11, boxFrame(2), lockTopRight},
        {&Rectangle4, swatchFrame(3), lockTopRight},       {&CheckBox10, boxFrame(3), lockTopRight},
        {&Rectangle5, swatchFrame(4), lockTopRight},       {&CheckBox9, boxFrame(4), lockTopRight},
        {&Rectangle6, swatchFrame(5), lockTopRight},       {&CheckBox8, boxFrame(5), lockTopRight},
        {&Rectangle7, swatchFrame(6), lockTopRight},       {&CheckBox7, boxFrame(6), lockTopRight},
        {&Rectangle8, swatchFrame(7), lockTopRight},       {&CheckBox6, boxFrame(7), lockTopRight},
        {&StaticText7, {536, 242, 160, 28}, lockTopRight}, {&Canvas3, {599, 282, 30, 32}, lockTopRight},
        {&StaticText8, {563, 316, 100, 20}, lockTopRight}, {&Canvas2, {598, 338, 32, 32}, lockTopRight},
    });
}

void GrafThingWindow::build() {
    Canvas1.AccessibleName(tr("Graph of the selected days"));
    GroupBox3.Caption(tr("Test Periods"));
    for (std::size_t i = 0; i < DayGraph::periods.size(); ++i) {
        boxes()[i]->Caption(tr(DayGraph::periods[i].caption));
        boxes()[i]->TextSize(12);
        swatches()[i]->FillColor(DayGraph::periods[i].color);
    }
    CheckBox13.Value(true);
    StaticText7.Text(tr("Check Test Periods above to display in graph."));
    StaticText7.Multiline(true);
    StaticText7.TextFont("Lucida Grande");
    StaticText7.TextSize(10);
    Canvas3.Backdrop(Picture("bathroomscale3.png"));
    Canvas3.HelpTag(tr("Graph weight"));
    StaticText8.Text(tr("Weight"));
    StaticText8.Align(TextAlign::center);
    StaticText8.TextSize(11);
    Canvas2.Backdrop(Picture("printItem3.png"));
    Canvas2.HelpTag(tr("Print graph"));
    for (AutoButton* button : {&Canvas2, &Canvas3})
        button->AccessibleName(button->HelpTag());
}

void GrafThingWindow::wire() {
    Canvas1.Paint = [this](Graphics& g) { Canvas1_Paint(g); };
    for (CheckBox* box : boxes())
        box->Action = [this] { CheckBox_Action(); };
    Wiring(*this).connect({
        {Canvas3.Action, &GrafThingWindow::Canvas3_Action},
        {Canvas2.Action, &GrafThingWindow::Canvas2_Action},
    });
    menuHandlers["FilePrint"] = [this] { filePrint_Action(); };
}

} // namespace tallyvane

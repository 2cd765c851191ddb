#pragma once

#include <array>
#include <memory>
#include <optional>

#include "auto_button/auto_button.h"
#include "charting/gt_graph.h"
#include "graphwindow/day_graph.h"
#include "platform/windows/window.h"

namespace tallyvane {

/// The graph of the days that are selected in the day table: their readings by test periods, or their weights. It
/// follows the selection when the user chooses a period or the weights, and not in between.
class GrafThingWindow : public Window {
public:
    /// The days' table, which must outlive the window.
    explicit GrafThingWindow(const Listbox& days);

    Canvas Canvas1; // the plot
    GroupBox GroupBox3;
    CheckBox CheckBox13, CheckBox12, CheckBox11, CheckBox10, CheckBox9, CheckBox8, CheckBox7, CheckBox6; // periods
    Rectangle Rectangle1, Rectangle2, Rectangle3, Rectangle4, Rectangle5, Rectangle6, Rectangle7, Rectangle8;
    StaticText StaticText7; // what the boxes are for
    AutoButton Canvas3; // weight
    StaticText StaticText8;
    AutoButton Canvas2; // print

    /// The graph on show; null before the first one is built.
    std::unique_ptr<GTGraph> grafThing1;
    /// Whether it is that of the weights.
    bool graphWeight = false;

    void Event_Open() override;
    /// Builds the graph anew, of what is selected now.
    void setLineDefault();
    /// Names the test periods by the user's headings, if there are any.
    void getheadings();

    void Canvas1_Paint(Graphics& g);
    void CheckBox_Action();
    void Canvas3_Action();
    /// Prints the graph on the upper part of a page, with a legend of all test periods below.
    void Canvas2_Action();
    /// Prints the graph on a whole page, counted in the dots of the paper.
    void filePrint_Action();

private:
    void layOut();
    void build();
    void wire();
    void drawOnWhite(Graphics& g) const;
    void drawLegend(Graphics& g);
    std::array<CheckBox*, DayGraph::periods.size()> boxes();
    std::array<Rectangle*, DayGraph::periods.size()> swatches();

    const Listbox& days_;
    std::optional<Picture> finished_; // the graph as it is drawn at the canvas's size
};

} // namespace tallyvane

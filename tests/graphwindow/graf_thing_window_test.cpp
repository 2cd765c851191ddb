#include "graphwindow/graf_thing_window.h"

#include <algorithm>
#include <cmath>
#include <sstream>
#include <tuple>

#include "platform/base/number.h"
#include "settings/globals.h"
#include "support/test_desk.h"

namespace tallyvane {

namespace {

std::string hundredths(double value) { return Str(std::round(value * 100) / 100); }

/// A series' points as "x:y" with blanks between, read back from its drawing.
std::string pointsOf(const GTSeries& series) {
    if (series.Count() == 0)
        return "";
    constexpr int side = 100000;
    GraphicsRecorder g(side, side);
    series.renderLine(g, 0, 0, side, side);
    std::string points;
    for (const Object2D& shape : g.calls().at(0).shapes)
        if (const auto* segment = std::get_if<CurveShape>(&shape)) {
            const double x = series.XMin() + segment->X2 / side * (series.XMax() - series.XMin());
            const double y = series.YMax() - segment->Y2 / side * (series.YMax() - series.YMin());
            points += (points.empty() ? "" : " ") + hundredths(x) + ":" + hundredths(y);
        }
    return points;
}

class GrafThingWindowTest : public TestDesk {
protected:
    using Boxes = std::array<CheckBox*, 8>;

    /// Rows of "date, the readings and the average in the order of the columns, weight", all of them selected.
    void fill(std::vector<Texts> rows) {
        table_.DeleteAllRows();
        table_.AddRows(std::move(rows));
        table_.select(std::vector<bool>(static_cast<std::size_t>(table_.ListCount()), true));
    }
    /// The graph of two readings.
    void openWithTwoDays() {
        fill({{"11/1/2026", "5"}, {"11/2/2026", "7"}});
        window_.Open();
    }
    /// From the averages to bedtime.
    static Boxes boxesOf(GrafThingWindow& w) {
        return {&w.CheckBox13, &w.CheckBox12, &w.CheckBox11, &w.CheckBox10,
                &w.CheckBox9,  &w.CheckBox8,  &w.CheckBox7,  &w.CheckBox6};
    }
    /// Each label of the value axis stands within a unit of where its value belongs. At least `fewest` are there.
    static void expectLabelsAtTheirValues(const std::vector<GraphicsRecorder::Call>& calls, Extent range,
                                          std::size_t fewest) {
        std::vector<std::pair<double, double>> labels; // place and value
        double top = 0;
        double bottom = 0;
        for (std::size_t i = 1; i < calls.size(); ++i) {
            const auto& line = calls[i - 1];
            if (line.operation != "DrawLine")
                continue;
            const auto& [x1, y1, x2, y2] = std::tie(line.numbers[0], line.numbers[1], line.numbers[2], line.numbers[3]);
            constexpr double longestTick = 30;
            if (y1 == y2 && x2 - x1 < longestTick && calls[i].operation == "DrawString")
                labels.emplace_back(y1, Val(calls[i].text));
            if (x1 == x2 && y2 - y1 > bottom - top && labels.empty()) // the axis is the longest line before them
                std::tie(top, bottom) = std::pair(y1, y2);
        }
        ASSERT_GE(labels.size(), fewest);
        for (const auto& [place, value] : labels) {
            const double want = bottom - (value - range.low) / (range.high - range.low) * (bottom - top);
            EXPECT_NEAR(place, want, 1.01) << value << " on a plot of " << bottom - top;
        }
    }
    static void press(CheckBox& box) { box.userToggled(!box.Value()); }
    std::string points(int series) { return pointsOf(*window_.grafThing1->Series(series)); }

    Listbox table_{DayTable::columnCount};
    GrafThingWindow window_{table_};
};

TEST_F(GrafThingWindowTest, TwoPeriodsCountTheirReadingsAndTheOthersKeepTheirRows) {
    fill({{"11/1/2026", "1", "1", "1", "1", "1", "1", "1", "1"}, // not selected
          {"11/2/2026", "5", "6", "", "4", "", "", "7", "5.5"},
          {"11/3/2026", "", "", "3", "", "", "", "", ""},
          {"11/4/2026", "-3", "7.2x", "0", "", "", "", "", "8"},
          {"11/5/2026", "9", "x", "", "", "", "", "2", "abc"},
          {"11/6/2026", "20"}}); // not selected
    table_.select({false, true, true, true, true, false});
    window_.Open();
    for (CheckBox* box : boxesOf(window_))
        if (box != &window_.CheckBox13)
            press(*box);
    ASSERT_EQ(window_.grafThing1->count(), 8);
    const Texts want{"1:5.5 2:8", "1:5 2:9", "1:6 3:7.2", "2:3", "1:4", "", "", "1:7 4:2"};
    const Rectangle* swatches[] = {&window_.Rectangle1, &window_.Rectangle2, &window_.Rectangle3, &window_.Rectangle4,
                                   &window_.Rectangle5, &window_.Rectangle6, &window_.Rectangle7, &window_.Rectangle8};
    for (int i = 0; i < 8; ++i) {
        SCOPED_TRACE(i);
        GTSeries& series = *window_.grafThing1->Series(i);
        EXPECT_EQ(points(i), want[static_cast<std::size_t>(i)]);
        EXPECT_EQ(series.YMin(), 0);
        EXPECT_DOUBLE_EQ(series.YMax(), 9 * 1.15);
        EXPECT_EQ(series.PenColor(), swatches[i]->FillColor());
        EXPECT_EQ(series.PenSize(), i == 0 ? 2 : 1);
        EXPECT_EQ(series.XAxis().tickLabelsVisible(), i == 1);
        EXPECT_EQ(series.XAxis().ticksVisible, i <= 1);
        EXPECT_EQ(series.XAxis().hasCustomTickIncrement(), i == 0);
        EXPECT_EQ(series.YAxis().tickLabelsVisible(), i == 0);
        EXPECT_EQ(series.YAxis().ticksVisible, i == 0);
    }
}

TEST_F(GrafThingWindowTest, WeightsReachTwoBeyondThemselvesAndAboveTheReadings) {
    const auto check = [this](const char* name, const Texts& readings, const Texts& weights, const char* points,
                              double low, double high) {
        SCOPED_TRACE(name);
        std::vector<Texts> days;
        for (std::size_t i = 0; i < weights.size(); ++i)
            days.push_back({"11/1/2026", readings[i], "", "", "", "", "", "", "", weights[i]});
        fill(days);
        window_.Canvas3_Action();
        ASSERT_EQ(window_.grafThing1->count(), 1);
        const GTSeries& series = *window_.grafThing1->Series(0);
        EXPECT_EQ(pointsOf(series), points);
        EXPECT_DOUBLE_EQ(series.YMin(), low);
        EXPECT_DOUBLE_EQ(series.YMax(), high);
    };
    check("heavier than the readings", {"5", "6", "7"}, {"80", "", "82.5"}, "0:80 2:82.5", 78, 84.5);
    check("lighter", {"100", "200"}, {"80", "81"}, "0:80 1:81", 78, 232);
    check("none", {"10", ""}, {"", "0"}, "", 998, 13.5);
    check("below nothing: no point, and yet the lowest", {"", ""}, {"-5", "70"}, "1:70", -7, 72);
}

TEST_F(GrafThingWindowTest, TheTitleNamesTheFirstAndTheLastDay) {
    const auto title = [this](const std::vector<Texts>& days) {
        fill(days);
        window_.setLineDefault();
        return window_.grafThing1->Series(0)->XAxis().text();
    };
    EXPECT_EQ(title({{""}, {"11/2/2026"}, {"11/3/2026"}}), "Date Range: 11/2/2026 - 11/3/2026");
    EXPECT_EQ(title({{"11/1/2026"}, {""}}), "Date Range: 11/1/2026 - ");
    EXPECT_EQ(title({}), "Date Range:  - ");
}

TEST_F(GrafThingWindowTest, BoxesAndTheWeightButtonChangeTheMode) {
    fill({{"11/1/2026", "5", "6", "", "", "", "", "", "5.5", "80"},
          {"11/2/2026", "7", "8", "", "", "", "", "", "7.5", "81"}});
    window_.Open();
    EXPECT_EQ(window_.grafThing1->count(), 1) << "the averages to begin with";
    EXPECT_EQ(points(0), "1:5.5 2:7.5");

    press(window_.CheckBox13);
    EXPECT_EQ(window_.grafThing1->count(), 1) << "it carries the axes, shown or not";
    EXPECT_EQ(points(0), "");
    EXPECT_EQ(window_.grafThing1->Series(0)->YAxis().text(), "Meter Reading");

    press(window_.CheckBox11);
    window_.Canvas3_Action();
    EXPECT_TRUE(window_.graphWeight);
    EXPECT_EQ(points(0), "0:80 1:81");
    EXPECT_EQ(window_.grafThing1->Series(0)->YAxis().text(), "Weight");
    EXPECT_FALSE(window_.CheckBox11.Value());

    press(window_.CheckBox12);
    EXPECT_FALSE(window_.graphWeight);
    ASSERT_EQ(window_.grafThing1->count(), 2);
    EXPECT_EQ(points(0), "");
    EXPECT_EQ(points(1), "1:5 2:7");

    table_.select({false, false});
    EXPECT_EQ(points(1), "1:5 2:7") << "the selection alone changes nothing";
    press(window_.CheckBox11);
    EXPECT_EQ(points(1) + points(2), "");
    EXPECT_EQ(window_.grafThing1->Series(1)->YMax(), 0);
}

/// Counts how often a control wants to be painted.
struct PaintCounter : ControlObserver {
    void controlChanged(Property /*property*/) override {}
    void repaintControl() override { ++paints; }
    void controlDestroyed() override {}
    int paints = 0;
};

TEST_F(GrafThingWindowTest, WhatIsBuiltIsPainted) {
    GraphicsRecorder g(2000, 2000);
    window_.Canvas1_Paint(g);
    EXPECT_TRUE(g.calls().empty()) << "nothing is built yet";
    PaintCounter counter;
    window_.Canvas1.observe(&counter);
    window_.Canvas3_Action();
    EXPECT_EQ(counter.paints, 1);
    press(window_.CheckBox9);
    EXPECT_EQ(counter.paints, 2);
    window_.Canvas1.observe(nullptr);
}

TEST_F(GrafThingWindowTest, CaptionsFollowTheHeadings) {
    const auto captions = [this] {
        GrafThingWindow window(table_);
        window.Open();
        Texts texts;
        for (const CheckBox* box : boxesOf(window))
            texts.push_back(box->Caption());
        window.Close();
        return texts;
    };
    EXPECT_EQ(captions()[1] + ", " + captions()[7], "Before Breakfast, Bedtime") << "without a file";
    write(applicationFile("7VXHeadings"), "Dawn\nNoon\nDusk\nWeight\npre\n"); // too short
    EXPECT_EQ(captions(), (Texts{"Daily Averages", "pre Dawn", " Dawn", " Noon", " Noon", " Dusk", " Dusk", ""}));
}

TEST_F(GrafThingWindowTest, AtEveryHeightAndOnPaperEachLabelStandsAtItsValue) {
    fill({{"11/1/2026", "99", "", "", "", "", "", "", "120", "81"},
          {"11/2/2026", "160.8", "", "", "", "", "", "", "153", "82.5"}});
    window_.Open();
    constexpr int lowestWindow = 431;
    constexpr int highestWindow = 1400;
    const Extent ranges[] = {{0, 160.8 * 1.15}, {79, 160.8 * 1.15 + 2}};
    for (const Extent& range : ranges) {
        for (int height = lowestWindow; height <= highestWindow; ++height) {
            window_.Height(height);
            GraphicsRecorder g(window_.Canvas1.Width(), window_.Canvas1.Height());
            DayGraph::draw(*window_.grafThing1, g);
            expectLabelsAtTheirValues(g.calls(), range, 10);
            ASSERT_FALSE(HasFailure()) << "window height " << height;
        }
        window_.Canvas2_Action();
        expectLabelsAtTheirValues(toolkit_.printed, range, 10);
        window_.filePrint_Action();
        expectLabelsAtTheirValues(toolkit_.printed, range, 10);
        window_.Canvas3_Action(); // the weights
    }
}

// Printing

TEST_F(GrafThingWindowTest, TheButtonPrintsALegendBelowTheGraph) {
    write(applicationFile("7VXHeadings"), "Dawn\nNoon\nDusk\nWeight\npre\npost\nahead\nbehind\nfirst\nthen\nNight\n");
    openWithTwoDays();
    window_.Canvas2_Action();
    Texts legend;
    double lowest = 0;
    for (const GraphicsRecorder::Call& call : toolkit_.printed) {
        if (call.operation == "DrawString" && call.textSize == 11 && call.font == FontName("Verdana")) {
            std::ostringstream line;
            line << call.numbers[0] << ' ' << call.numbers[1] << ' ' << std::hex << call.color << ' ' << call.text;
            legend.push_back(line.str() + (call.style.bold ? " (bold)" : ""));
        }
        if (call.operation == "DrawLine")
            lowest = std::max(lowest, call.numbers[1]);
    }
    EXPECT_EQ(legend,
              (Texts{"70 480 ff0000 -- Daily Averages (bold)", "70 500 8000 --  pre Dawn",
                     "70 520 8000ff --  post Dawn", "70 540 ff8000 --  ahead Noon", "200 480 80ff --  behind Noon",
                     "200 500 ff00ff --  first Dusk", "200 520 4080 --  then Dusk", "200 540 8080 --  Night"}));
    EXPECT_LT(lowest, 450) << "the graph keeps out of the legend";
    EXPECT_FALSE(Globals::gPrintingOn);

    window_.Canvas3_Action();
    window_.Canvas2_Action();
    for (const GraphicsRecorder::Call& call : toolkit_.printed)
        EXPECT_NE(call.textSize, 11) << "weights have no legend";
}

TEST_F(GrafThingWindowTest, TheMenuPrintsAWholePage) {
    openWithTwoDays();
    window_.menuHandlers["FilePrint"]();
    double lowest = 0;
    double title = 0;
    for (const GraphicsRecorder::Call& call : toolkit_.printed) {
        if (call.operation == "DrawLine")
            lowest = std::max(lowest, call.numbers[1]);
        if (call.text == "Tallyvane\u00ae Graph")
            title = call.textSize;
        EXPECT_NE(call.text, "-- Daily Averages");
    }
    EXPECT_NEAR(title, 14 * 96 / 72.0, 0.01);
    EXPECT_GT(lowest, 950) << "of the 1008 dots of the page";
    EXPECT_EQ(window_.grafThing1->Resolution(), 72);
}

TEST_F(GrafThingWindowTest, ACancelledDialogPrintsNothing) {
    openWithTwoDays();
    std::size_t printDialogs = 0; // none after a page set-up that was cancelled
    for (bool* ready : {&toolkit_.pageSetupReady, &toolkit_.printerReady}) {
        SCOPED_TRACE(ready == &toolkit_.pageSetupReady ? "page set-up" : "print dialog");
        *ready = false;
        window_.Canvas2_Action();
        window_.filePrint_Action();
        EXPECT_TRUE(toolkit_.printed.empty());
        EXPECT_EQ(toolkit_.printDialogs.size(), printDialogs);
        printDialogs += 2;
        EXPECT_FALSE(Globals::gPrintingOn);
        EXPECT_EQ(window_.grafThing1->Resolution(), 72);
        *ready = true;
    }
}

} // namespace

} // namespace tallyvane

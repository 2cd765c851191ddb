#include "graphwindow/graf_thing_window.h"

#include <algorithm>
#include <cmath>

#include "platform/number.h"
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
    void SetUp() override {
        TestDesk::SetUp();
        GTGraph::isPrintingOn = [] { return Globals::gPrintingOn; };
    }
    void TearDown() override {
        GTGraph::isPrintingOn = [] { return false; };
        TestDesk::TearDown();
    }
    /// Rows of "date, the readings and the average in the order of the columns, weight".
    void fill(const std::vector<std::vector<std::string>>& rows) {
        table_.DeleteAllRows();
        for (const auto& cells : rows) {
            table_.AddRow("");
            for (std::size_t column = 0; column < cells.size(); ++column)
                table_.Cell(table_.LastIndex(), static_cast<int>(column), cells[column]);
        }
    }
    void select(const std::vector<bool>& rows) { table_.select(rows); }
    void selectAll() { select(std::vector<bool>(static_cast<std::size_t>(table_.ListCount()), true)); }
    void press(CheckBox& box) { box.userToggled(!box.Value()); }
    std::string points(int series) { return pointsOf(*window_.grafThing1->Series(series)); }
    std::string daysTitle() { return window_.grafThing1->Series(0)->XAxis().text(); }

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
    select({false, true, true, true, true, false});
    window_.Open();
    for (CheckBox* box : {&window_.CheckBox12, &window_.CheckBox11, &window_.CheckBox10, &window_.CheckBox9,
                          &window_.CheckBox8, &window_.CheckBox7, &window_.CheckBox6})
        press(*box);
    ASSERT_EQ(window_.grafThing1->count(), 8);
    const std::vector<std::string> want{"1:5.5 2:8", "1:5 2:9", "1:6 3:7.2", "2:3", "1:4", "", "", "1:7 4:2"};
    for (int series = 0; series < 8; ++series) {
        EXPECT_EQ(points(series), want[static_cast<std::size_t>(series)]) << series;
        EXPECT_EQ(window_.grafThing1->Series(series)->YMin(), 0) << series;
        EXPECT_DOUBLE_EQ(window_.grafThing1->Series(series)->YMax(), 9 * 1.15) << series;
    }
}

TEST_F(GrafThingWindowTest, EachSeriesHasItsLook) {
    fill(
        {{"11/1/2026", "5", "5", "5", "5", "5", "5", "5", "5"}, {"11/2/2026", "6", "6", "6", "6", "6", "6", "6", "6"}});
    selectAll();
    for (CheckBox* box : {&window_.CheckBox12, &window_.CheckBox11, &window_.CheckBox10, &window_.CheckBox9,
                          &window_.CheckBox8, &window_.CheckBox7, &window_.CheckBox6})
        box->Value(true);
    window_.Open();
    struct Row {
        const Rectangle& swatch;
        Color color;
        int pen;
        bool daysNumbered;
        bool daysTicked;
        bool scale; // the labels and ticks of the readings' axis
    };
    const std::vector<Row> rows{
        {window_.Rectangle1, 0xFF0000, 2, false, true, true},   {window_.Rectangle2, 0x008000, 1, true, true, false},
        {window_.Rectangle3, 0x8000FF, 1, false, false, false}, {window_.Rectangle4, 0xFF8000, 1, false, false, false},
        {window_.Rectangle5, 0x0080FF, 1, false, false, false}, {window_.Rectangle6, 0xFF00FF, 1, false, false, false},
        {window_.Rectangle7, 0x004080, 1, false, false, false}, {window_.Rectangle8, 0x008080, 1, false, false, false}};
    for (int i = 0; i < 8; ++i) {
        const Row& want = rows[static_cast<std::size_t>(i)];
        GTSeries& series = *window_.grafThing1->Series(i);
        EXPECT_EQ(want.swatch.FillColor(), want.color) << i;
        EXPECT_EQ(series.PenColor(), want.color) << i;
        EXPECT_EQ(series.PenSize(), want.pen) << i;
        EXPECT_EQ(series.PlotSymbol(), GTSeries::filledCircle) << i;
        EXPECT_EQ(series.PlotSymbolSize(), 5) << i;
        EXPECT_EQ(series.XAxis().tickLabelsVisible(), want.daysNumbered) << i;
        EXPECT_EQ(series.XAxis().ticksVisible, want.daysTicked) << i;
        EXPECT_EQ(series.XAxis().hasCustomTickIncrement(), i == 0) << i;
        EXPECT_EQ(series.YAxis().tickLabelsVisible(), want.scale) << i;
        EXPECT_EQ(series.YAxis().ticksVisible, want.scale) << i;
    }
    EXPECT_EQ(window_.grafThing1->textColor, 0x0000FFU);
}

TEST_F(GrafThingWindowTest, WeightsReachTwoBeyondThemselvesAndAboveTheReadings) {
    struct Row {
        const char* name;
        std::vector<std::string> readings;
        std::vector<std::string> weights;
        std::string points;
        double low;
        double high;
    };
    const std::vector<Row> rows{
        {"heavier than the readings", {"5", "6", "7"}, {"80", "", "82.5"}, "0:80 2:82.5", 78, 84.5},
        {"lighter", {"100", "200"}, {"80", "81"}, "0:80 1:81", 78, 232},
        {"none", {"10", ""}, {"", "0"}, "", 998, 13.5},
        {"no reading either", {"", ""}, {"", ""}, "", 998, 2},
        {"below nothing: no point, and yet the lowest", {"", ""}, {"-5", "70"}, "1:70", -7, 72},
    };
    for (const Row& row : rows) {
        std::vector<std::vector<std::string>> days;
        for (std::size_t i = 0; i < row.weights.size(); ++i)
            days.push_back({"11/1/2026", row.readings[i], "", "", "", "", "", "", "", row.weights[i]});
        fill(days);
        selectAll();
        window_.Canvas3_Action();
        ASSERT_EQ(window_.grafThing1->count(), 1) << row.name;
        const GTSeries& series = *window_.grafThing1->Series(0);
        EXPECT_EQ(pointsOf(series), row.points) << row.name;
        EXPECT_DOUBLE_EQ(series.YMin(), row.low) << row.name;
        EXPECT_DOUBLE_EQ(series.YMax(), row.high) << row.name;
    }
}

TEST_F(GrafThingWindowTest, TheTitleNamesTheFirstAndTheLastDay) {
    struct Row {
        const char* name;
        std::vector<std::string> dates;
        const char* want;
    };
    const std::vector<Row> rows{
        {"two days", {"11/1/2026", "11/2/2026"}, "Date Range: 11/1/2026 - 11/2/2026"},
        {"the first without a date", {"", "11/2/2026", "11/3/2026"}, "Date Range: 11/2/2026 - 11/3/2026"},
        {"the last without a date", {"11/1/2026", ""}, "Date Range: 11/1/2026 - "},
        {"no day", {}, "Date Range:  - "},
    };
    for (const Row& row : rows) {
        std::vector<std::vector<std::string>> days;
        for (const std::string& date : row.dates)
            days.push_back({date});
        fill(days);
        selectAll();
        window_.setLineDefault();
        EXPECT_EQ(daysTitle(), row.want) << row.name;
    }
}

TEST_F(GrafThingWindowTest, BoxesAndTheWeightButtonChangeTheMode) {
    fill({{"11/1/2026", "5", "6", "", "", "", "", "", "5.5", "80"},
          {"11/2/2026", "7", "8", "", "", "", "", "", "7.5", "81"}});
    selectAll();
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

    select({false, false});
    EXPECT_EQ(points(1), "1:5 2:7") << "the selection alone changes nothing";
    press(window_.CheckBox11);
    EXPECT_EQ(points(1) + points(2), "");
    EXPECT_EQ(window_.grafThing1->Series(1)->YMax(), 0);
}

/// Counts how often a control wants to be painted.
struct PaintCounter : ControlObserver {
    void controlChanged() override { ++paints; }
    void controlGone() override {}
    int paints = 0;
};

TEST_F(GrafThingWindowTest, WhatIsBuiltIsPainted) {
    PaintCounter counter;
    window_.Canvas1.observe(&counter);
    window_.Canvas3_Action();
    EXPECT_EQ(counter.paints, 1);
    press(window_.CheckBox9);
    EXPECT_EQ(counter.paints, 2);
    window_.Canvas1.observe(nullptr);
}

TEST_F(GrafThingWindowTest, CaptionsFollowTheHeadings) {
    struct Row {
        const char* name;
        const char* file;
        std::vector<std::string> want;
    };
    const std::vector<Row> rows{
        {"a user's own",
         "Dawn\nNoon\nDusk\nWeight\npre\npost\nahead\nbehind\nfirst\nthen\nNight\nMean\nkg\n",
         {"Daily Averages", "pre Dawn", "post Dawn", "ahead Noon", "behind Noon", "first Dusk", "then Dusk", "Night"}},
        {"a file that is too short",
         "Dawn\nNoon\nDusk\nWeight\npre\n",
         {"Daily Averages", "pre Dawn", " Dawn", " Noon", " Noon", " Dusk", " Dusk", ""}},
        {"no file",
         nullptr,
         {"Daily Averages", "Before Breakfast", "After Breakfast", "Before Lunch", "After Lunch", "Before Supper",
          "After Supper", "Bedtime"}},
    };
    makeApplicationFolder();
    for (const Row& row : rows) {
        std::filesystem::remove(applicationFile("7VXHeadings"));
        if (row.file != nullptr)
            write(applicationFile("7VXHeadings"), row.file);
        GrafThingWindow window(table_);
        window.Open();
        std::vector<std::string> captions;
        for (const CheckBox* box : {&window.CheckBox13, &window.CheckBox12, &window.CheckBox11, &window.CheckBox10,
                                    &window.CheckBox9, &window.CheckBox8, &window.CheckBox7, &window.CheckBox6})
            captions.push_back(box->Caption());
        EXPECT_EQ(captions, row.want) << row.name;
        window.Close();
    }
}

TEST_F(GrafThingWindowTest, ThePlotFollowsTheWindowsSize) {
    fill({{"11/1/2026"}, {"11/2/2026"}});
    selectAll();
    GraphicsRecorder g(2000, 2000);
    window_.Canvas1_Paint(g);
    EXPECT_TRUE(g.calls().empty()) << "nothing is built yet";
    window_.Open();
    window_.userChangedBounds({0, 0, 716 + 200, 431 + 100});
    EXPECT_EQ(window_.Canvas1.Width(), 699);
    EXPECT_EQ(window_.Canvas1.Height(), 497);
    window_.Canvas1_Paint(g);
    ASSERT_EQ(g.calls().size(), 1U);
    EXPECT_EQ(g.calls()[0].operation, "DrawPicture");
    window_.Width(100);
    EXPECT_EQ(window_.Width(), 716) << "no narrower than that";
}

// Printing

/// A line of text on paper.
struct Printed {
    std::string text;
    double x;
    double y;
    Color color;
    bool bold;

    bool operator==(const Printed&) const = default;
};

TEST_F(GrafThingWindowTest, TheButtonPrintsALegendBelowTheGraph) {
    fill({{"11/1/2026", "5"}, {"11/2/2026", "7"}});
    selectAll();
    makeApplicationFolder();
    write(applicationFile("7VXHeadings"), "Dawn\nNoon\nDusk\nWeight\npre\npost\nahead\nbehind\nfirst\nthen\nNight\n");
    window_.Open();
    window_.Canvas2_Action();
    std::vector<Printed> legend;
    double lowest = 0;
    for (const GraphicsRecorder::Call& call : toolkit_.printed) {
        if (call.operation == "DrawString" && call.textSize == 11 && call.font == FontName("Verdana"))
            legend.push_back({call.text, call.numbers[0], call.numbers[1], call.color, call.style.bold});
        if (call.operation == "DrawLine")
            lowest = std::max(lowest, call.numbers[1]);
    }
    const std::vector<Printed> want{
        {"-- Daily Averages", 70, 480, RGB(255, 0, 0), true},   {"--  pre Dawn", 70, 500, RGB(0, 128, 0), false},
        {"--  post Dawn", 70, 520, RGB(128, 0, 255), false},    {"--  ahead Noon", 70, 540, RGB(255, 128, 0), false},
        {"--  behind Noon", 200, 480, RGB(0, 128, 255), false}, {"--  first Dusk", 200, 500, RGB(255, 0, 255), false},
        {"--  then Dusk", 200, 520, RGB(0, 64, 128), false},    {"--  Night", 200, 540, RGB(0, 128, 128), false}};
    EXPECT_EQ(legend, want);
    EXPECT_LT(lowest, 450) << "the graph keeps out of the legend";
    EXPECT_FALSE(Globals::gPrintingOn);

    window_.Canvas3_Action();
    window_.Canvas2_Action();
    EXPECT_TRUE(std::none_of(toolkit_.printed.begin(), toolkit_.printed.end(), [](const auto& call) {
        return call.textSize == 11;
    })) << "weights have no legend";
}

TEST_F(GrafThingWindowTest, TheMenuPrintsAWholePageAsFineAsThePrinter) {
    fill({{"11/1/2026", "5"}, {"11/2/2026", "7"}});
    selectAll();
    window_.Open();
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
    EXPECT_NEAR(title, 14 * 300 / 72.0, 0.01);
    EXPECT_GT(lowest, 3000) << "of the 3150 dots of the page";
    EXPECT_EQ(window_.grafThing1->Resolution(), 72);
}

TEST_F(GrafThingWindowTest, ACancelledDialogPrintsNothing) {
    fill({{"11/1/2026", "5"}, {"11/2/2026", "7"}});
    selectAll();
    window_.Open();
    const std::vector<std::pair<const char*, bool*>> cancelled{{"page set-up", &toolkit_.pageSetupReady},
                                                               {"print dialog", &toolkit_.printerReady}};
    std::size_t printDialogs = 0; // none after a page set-up that was cancelled
    for (const auto& [name, ready] : cancelled) {
        *ready = false;
        window_.Canvas2_Action();
        window_.filePrint_Action();
        EXPECT_TRUE(toolkit_.printed.empty()) << name;
        EXPECT_EQ(toolkit_.printDialogs.size(), printDialogs) << name;
        printDialogs += 2;
        EXPECT_FALSE(Globals::gPrintingOn) << name;
        EXPECT_EQ(window_.grafThing1->Resolution(), 72) << name;
        *ready = true;
    }
}

} // namespace

} // namespace tallyvane

#include "diary/indicators.h"

#include "platform/graphics_recorder.h"
#include "settings/globals.h"
#include "support/test_desk.h"

namespace tallyvane {

namespace {

class IndicatorsTest : public DiaryDesk {};

TEST_F(IndicatorsTest, ALimitBelongsToTheRangeAboveIt) {
    struct Row {
        double value;
        const char* want;
    };
    const Row rows[] = {
        {20, "over2.tiff"},    {13, "over2.tiff"}, {12.99, "caution2.tiff"}, {9, "caution2.tiff"},
        {8.99, "zone2.tiff"},  {5, "zone2.tiff"},  {4.99, "low3.tiff"},      {3, "low3.tiff"},
        {2.99, "under3.tiff"}, {0, "under3.tiff"}, {-1, "under3.tiff"},
    };
    for (const Row& row : rows)
        EXPECT_EQ(window1_.getLight(row.value), Picture(row.want)) << row.value;
}

TEST_F(IndicatorsTest, WithLimitsOutOfOrderTheFirstTestThatHoldsWins) {
    Globals::gOver = 4;
    Globals::gCaution = 9;
    Globals::gLow = 2;
    Globals::gUnder = 6;
    EXPECT_EQ(window1_.getLight(5), Picture("over2.tiff"));
    EXPECT_EQ(window1_.getLight(3), Picture("zone2.tiff"));
    EXPECT_EQ(window1_.getLight(1), Picture("under3.tiff"));
}

TEST_F(IndicatorsTest, ACellIsItsBandAndItsLight) {
    addRow({"5", "5", "13", "9", "4", "1", "abc", "", "8", "5"});
    addRow({"1/2/2026", "7"});
    const Color even = RGB(217, 233, 255);
    const Color odd = RGB(255, 255, 255);
    struct Row {
        const char* name;
        int row;
        int column;
        Color band;
        std::string picture;
        double x;
    };
    const Row rows[] = {
        {"date", 0, 0, even, "", 0},
        {"in zone", 0, 1, even, "zone2.tiff", 3},
        {"over", 0, 2, even, "over2.tiff", 3},
        {"caution", 0, 3, even, "caution2.tiff", 2},
        {"low", 0, 4, even, "low3.tiff", 2},
        {"under", 0, 5, even, "under3.tiff", 3},
        {"no number counts as 0", 0, 6, even, "under3.tiff", 3},
        {"empty", 0, 7, even, "", 0},
        {"average", 0, 8, even, "zone2.tiff", 3},
        {"weight", 0, 9, even, "", 0},
        {"second row", 1, 1, odd, "zone2.tiff", 3},
        {"row that does not exist", 2, 1, even, "", 0},
        {"far row that does not exist", 7, 3, odd, "", 0},
        {"no row", -1, 1, odd, "", 0},
        {"no column", 0, -1, even, "", 0},
    };
    for (const bool shown : {true, false}) {
        Globals::gShowIndicators = shown;
        for (const Row& row : rows) {
            GraphicsRecorder g(72, 15);
            EXPECT_FALSE(window1_.ListBox1_CellBackgroundPaint(g, row.row, row.column));
            std::vector<GraphicsRecorder::Call> want{{"FillRect", row.band, "", {0, 0, 72, 15}}};
            if (shown && !row.picture.empty())
                want.push_back({"DrawPicture", 0, row.picture, {row.x, 2}});
            EXPECT_EQ(g.calls(), want) << row.name << (shown ? "" : ", indicators off");
        }
    }
}

TEST_F(IndicatorsTest, AveragesAndWeightsHaveTheirColours) {
    for (int column = 0; column < 10; ++column) {
        GraphicsRecorder g(72, 15);
        g.ForeColor(0x123456);
        EXPECT_FALSE(window1_.ListBox1_CellTextPaint(g, 0, column, 0, 0));
        const Color want = column == 8 ? RGB(148, 9, 16) : column == 9 ? RGB(0, 75, 127) : 0x123456;
        EXPECT_EQ(g.ForeColor(), want) << column;
    }
}

TEST_F(IndicatorsTest, TheTimerShowsAndHidesTheStripsLights) {
    for (const bool shown : {false, true}) {
        Globals::gShowIndicators = shown;
        window1_.Timer1.Mode(Timer::ModeSingle);
        window1_.Timer1.fire();
        EXPECT_EQ(window1_.Timer1.Mode(), Timer::ModeOff);
        EXPECT_EQ(window1_.Canvas4.Visible(), shown);
        EXPECT_EQ(window1_.Canvas11.Visible(), shown);
    }
}

} // namespace
} // namespace tallyvane

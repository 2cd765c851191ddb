#include "diary/indicators.h"

#include "platform/drawing/graphics_recorder.h"
#include "settings/globals.h"
#include "support/diary_desk.h"

namespace tallyvane {

namespace {

class IndicatorsTest : public DiaryDesk {};

TEST_F(IndicatorsTest, ALimitBelongsToTheRangeAboveIt) {
    const std::pair<double, const char*> rows[] = {
        {20, "over2.tiff"},    {13, "over2.tiff"}, {12.99, "caution2.tiff"}, {9, "caution2.tiff"},
        {8.99, "zone2.tiff"},  {5, "zone2.tiff"},  {4.99, "low3.tiff"},      {3, "low3.tiff"},
        {2.99, "under3.tiff"}, {0, "under3.tiff"}, {-1, "under3.tiff"},
    };
    for (const auto& [value, want] : rows)
        EXPECT_EQ(window1_.getLight(value), Picture(want)) << value;
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
    table_.AddRows({{"5", "5", "13", "9", "4", "1", "abc", "", "8", "5"}, {"1/2/2026", "7"}});
    const Color even = RGB(217, 233, 255);
    const Color odd = RGB(255, 255, 255);
    const auto check = [this](const char* name, int row, int column, Color band, const char* light = nullptr,
                              double x = 0) {
        SCOPED_TRACE(name);
        for (const bool shown : {true, false}) {
            Globals::gShowIndicators = shown;
            GraphicsRecorder g(72, 15);
            EXPECT_FALSE(window1_.ListBox1_CellBackgroundPaint(g, row, column));
            std::vector<GraphicsRecorder::Call> want{{"FillRect", band, "", {0, 0, 72, 15}}};
            if (shown && light != nullptr)
                want.push_back({"DrawPicture", 0, light, {x, 2}});
            EXPECT_EQ(g.calls(), want) << (shown ? "" : "indicators off");
        }
    };
    check("date", 0, 0, even);
    check("in zone", 0, 1, even, "zone2.tiff", 3);
    check("over", 0, 2, even, "over2.tiff", 3);
    check("caution", 0, 3, even, "caution2.tiff", 2);
    check("low", 0, 4, even, "low3.tiff", 2);
    check("under", 0, 5, even, "under3.tiff", 3);
    check("no number counts as 0", 0, 6, even, "under3.tiff", 3);
    check("empty", 0, 7, even);
    check("average", 0, 8, even, "zone2.tiff", 3);
    check("weight", 0, 9, even);
    check("second row", 1, 1, odd, "zone2.tiff", 3);
    check("row that does not exist", 2, 1, even);
    check("no row", -1, 1, odd);
    check("no column", 0, -1, even);
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

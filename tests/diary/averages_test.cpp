#include "diary/averages.h"

#include <random>

#include "platform/base/number.h"
#include "support/diary_desk.h"

namespace tallyvane {

namespace {

class AveragesTest : public DiaryDesk {};

TEST_F(AveragesTest, TheDaysOwnAverage) {
    const auto check = [this](const char* name, const Texts& readings, const char* want, const char* before = "") {
        Texts cells{"1/1/2026"};
        cells.insert(cells.end(), readings.begin(), readings.end());
        cells.resize(10);
        cells[8] = before;
        cells[9] = "180"; // the weight takes no part
        table_.AddRows({cells});
        window1_.doAverages();
        EXPECT_EQ(table_.Cell(table_.LastIndex(), 8), want) << name;
    };
    check("a fraction", {"5", "6"}, "5.5");
    check("a whole number", {"5", "7"}, "6.0");
    check("rounds up to a whole number", {"6.96"}, "7.0");
    check("text, zero and nothing do not count", {"abc", "0", "", "8"}, "8.0");
    check("a negative reading is summed, not counted", {"10", "-4"}, "6.0");
    check("all seven count", {"1", "2", "3", "4", "5", "6", "7"}, "4.0");
    check("no reading keeps what stands there", {"", "", "x"}, "9.9", "9.9");
    check("a reading replaces what stands there", {"8"}, "8.0", "9.9");
}

TEST_F(AveragesTest, TheStripCoversAllDaysOrTheSelectedOnes) {
    table_.AddRows({{"1/1/2026", "4", "", "5", "", "", "", "", "", "180"},
                    {"1/2/2026", "8", "20", "", "", "", "", "", "", "181"},
                    {"1/3/2026", "3", "", "", "", "", "", "1", "", ""}});
    window1_.doAverages();
    EXPECT_EQ(strip(), (Texts{"5.0", "20.0", "5.0", "00.0", "00.0", "00.0", "1.0", "6.8", "180.5"}));
    EXPECT_EQ(window1_.Canvas4.Backdrop(), Picture("zone2.tiff"));
    EXPECT_EQ(window1_.Canvas5.Backdrop(), Picture("over2.tiff"));
    EXPECT_EQ(window1_.Canvas7.Backdrop(), std::nullopt);
    EXPECT_EQ(window1_.Canvas10.Backdrop(), Picture("under3.tiff"));

    window1_.ListBox1_Open();
    open();
    table_.ListIndex(1);
    EXPECT_EQ(strip(), (Texts{"8.0", "20.0", "00.0", "00.0", "00.0", "00.0", "00.0", "14.0", "181.0"}));
    EXPECT_EQ(window1_.Canvas6.Backdrop(), std::nullopt);
    table_.Selected(0, true);
    EXPECT_EQ(strip()[0], "6.0");
    table_.ListIndex(-1);
    EXPECT_EQ(strip()[0], "5.0");
}

TEST_F(AveragesTest, AnEmptyTableShowsZerosAndTheWeightTheSame) {
    EXPECT_EQ(strip(), (Texts{"00.0", "00.0", "00.0", "00.0", "00.0", "00.0", "00.0", "00.0", "000"}));
    window1_.doAverages();
    EXPECT_EQ(strip().back(), "00.0");
}

TEST_F(AveragesTest, TheLightIsChosenFromTheRoundedFigure) {
    table_.AddRows({{"1/1/2026", "8.96"}}); // shown as 9.0, which is caution
    window1_.doAverages();
    EXPECT_EQ(window1_.StaticText1.Text(), "9.0");
    EXPECT_EQ(window1_.Canvas4.Backdrop(), Picture("caution2.tiff"));
}

/// The strip computed from the cells alone, with nothing remembered.
Texts plainStrip(const Listbox& table) {
    Texts texts;
    for (int column = 1; column <= 9; ++column) {
        double sum = 0;
        int count = 0;
        for (int row = 0; row < table.ListCount(); ++row) {
            const double value = Val(table.Cell(row, column));
            if ((table.SelectedCount() == 0 || table.Selected(row)) && value > 0) {
                sum += value;
                ++count;
            }
        }
        std::string text = sum > 0 ? Format(sum / count, column == 9 ? "###.#" : "##.#") : "00.0";
        texts.push_back(text.ends_with('.') ? text + "0" : text);
    }
    return texts;
}

TEST_F(AveragesTest, WhatIsRememberedIsNeverStale) {
    open();
    std::mt19937 random(7);
    const auto pick = [&](int below) {
        return below > 0 ? static_cast<int>(random() % static_cast<unsigned>(below)) : 0;
    };
    for (int step = 0; step < 3000; ++step) {
        const int rows = table_.ListCount();
        const int kind = pick(12);
        if (kind <= 1)
            window1_.BevelButton1_Action();
        else if (kind == 2 && table_.SelectedCount() < 4)
            window1_.BevelButton2_Action();
        else if (kind == 3)
            window1_.ListBox1_HeaderPressed(pick(10));
        else if (kind == 4)
            table_.Selected(pick(rows), pick(2) == 0);
        else if (kind == 5)
            window1_.doSortColumns();
        else if (kind == 6)
            table_.ListIndex(-1);
        else if (kind == 7) // a write from code, seen at the next round
            table_.Cell(pick(rows), 1 + pick(9), Str(pick(200) / 10.0));
        else if (kind == 8)
            table_.RemoveRow(rows > 30 ? pick(rows) : -1);
        else if (kind > 8) {
            table_.EditCell(pick(rows), 1 + pick(9));
            table_.userTyped(pick(9) == 0 ? "" : Str(pick(3000) / 100.0), 0, 0);
        }
        window1_.ListBox1_Change();
        ASSERT_EQ(strip(), plainStrip(table_)) << "after step " << step;
    }
}

} // namespace
} // namespace tallyvane

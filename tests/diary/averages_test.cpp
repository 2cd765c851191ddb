#include "diary/averages.h"

#include <random>

#include "platform/number.h"
#include "support/test_desk.h"

namespace tallyvane {

namespace {

class AveragesTest : public DiaryDesk {
protected:
    std::vector<std::string> strip() const {
        std::vector<std::string> texts;
        for (const StaticText* label : {&window1_.StaticText1, &window1_.StaticText2, &window1_.StaticText3,
                                        &window1_.StaticText4, &window1_.StaticText5, &window1_.StaticText6,
                                        &window1_.StaticText23, &window1_.StaticText22, &window1_.StaticText16})
            texts.push_back(label->Text());
        return texts;
    }
};

using Texts = std::vector<std::string>;

TEST_F(AveragesTest, TheDaysOwnAverage) {
    struct Row {
        const char* name;
        std::vector<std::string> readings; // columns 1 to 7
        std::string before;
        std::string want;
    };
    const Row rows[] = {
        {"a fraction", {"5", "6"}, "", "5.5"},
        {"a whole number", {"5", "7"}, "", "6.0"},
        {"rounds up to a whole number", {"6.96"}, "", "7.0"},
        {"rounds half away from zero", {"6.25"}, "", "6.3"},
        {"below one", {"0.5"}, "", ".5"},
        {"three digits", {"120", "127.8"}, "", "123.9"},
        {"text, zero and nothing do not count", {"abc", "0", "", "8"}, "", "8.0"},
        {"a negative reading is summed, not counted", {"10", "-4"}, "", "6.0"},
        {"all seven count", {"1", "2", "3", "4", "5", "6", "7"}, "", "4.0"},
        {"no reading keeps what stands there", {"", "", "x"}, "9.9", "9.9"},
        {"a reading replaces what stands there", {"8"}, "9.9", "8.0"},
    };
    for (const Row& row : rows) {
        Texts cells{"1/1/2026"};
        cells.insert(cells.end(), row.readings.begin(), row.readings.end());
        cells.resize(10);
        cells[8] = row.before;
        cells[9] = "180"; // the weight takes no part
        addRow(cells);
        window1_.doAverages();
        EXPECT_EQ(table_.Cell(table_.LastIndex(), 8), row.want) << row.name;
    }
}

TEST_F(AveragesTest, TheStripCoversAllDaysOrTheSelectedOnes) {
    addRow({"1/1/2026", "4", "", "5", "", "", "", "", "", "180"});
    addRow({"1/2/2026", "8", "20", "", "", "", "", "", "", "181"});
    addRow({"1/3/2026", "3", "", "", "", "", "", "1", "", ""});
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
    addRow({"1/1/2026", "8.96"}); // shown as 9.0, which is caution
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
        switch (pick(12)) {
        case 0:
        case 1:
            window1_.BevelButton1_Action();
            break;
        case 2:
            if (table_.SelectedCount() < 4)
                window1_.BevelButton2_Action();
            break;
        case 3:
            window1_.ListBox1_HeaderPressed(pick(10));
            break;
        case 4:
            table_.Selected(pick(rows), pick(2) == 0);
            break;
        case 5:
            window1_.doSortColumns();
            break;
        case 6:
            table_.ListIndex(-1);
            break;
        case 7: // a write from code, seen at the next round
            table_.Cell(pick(rows), 1 + pick(9), Str(pick(200) / 10.0));
            window1_.doAverages();
            break;
        case 8:
            table_.RemoveRow(rows > 30 ? pick(rows) : -1);
            window1_.doAverages();
            break;
        default:
            table_.EditCell(pick(rows), 1 + pick(9));
            table_.userTyped(pick(9) == 0 ? "" : Str(pick(3000) / 100.0), 0, 0);
        }
        window1_.ListBox1_Change();
        ASSERT_EQ(strip(), plainStrip(table_)) << "after step " << step;
    }
}

} // namespace
} // namespace tallyvane

#include "diary/cell_words.h"

#include "diary/day_table.h"
#include "support/test_desk.h"

namespace tallyvane {

namespace {

class CellWordsTest : public DiaryDesk {};

TEST_F(CellWordsTest, ACellSaysWhatItIsAndWhereItStands) {
    const auto check = [this](int column, const char* text, const char* spoken, const char* helpTag = "") {
        table_.Cell(0, column, text);
        EXPECT_EQ(table_.CellDescription(0, column), spoken) << text;
        EXPECT_EQ(table_.CellHelpTag(0, column), helpTag) << text;
    };
    open();
    table_.AddRows({{"11/22/2026"}});
    check(0, "11/22/2026", "Date, 11/22/2026");
    check(4, "12.4", "After Lunch, 11/22/2026, 12.4, high");
    check(1, "13", "Before Breakfast, 11/22/2026, 13, too high");
    check(6, "6", "After Supper, 11/22/2026, 6, in target zone");
    check(7, "4", "Before Bed, 11/22/2026, 4, low");
    check(8, "2.5", "Average, 11/22/2026, 2.5, too low");
    check(9, "80", "Weight, 11/22/2026, 80");
    check(3, "", "Before Lunch, 11/22/2026");
    check(2, "5,6", "After Breakfast, 11/22/2026, 5,6, counts as 5, in target zone", "counts as 5");
    check(5, "7.2x", "Before Supper, 11/22/2026, 7.2x, counts as 7.2, in target zone", "counts as 7.2");
    check(5, "ill", "Before Supper, 11/22/2026, ill, does not count, too low", "does not count");
    check(5, "-5x", "Before Supper, 11/22/2026, -5x, counts as -5, too low", "counts as -5");
    check(9, "80 kg", "Weight, 11/22/2026, 80 kg, counts as 80", "counts as 80");
}

} // namespace

} // namespace tallyvane

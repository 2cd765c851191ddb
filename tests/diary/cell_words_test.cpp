#include "diary/cell_words.h"

#include "diary/day_table.h"
#include "support/test_desk.h"

namespace tallyvane {

namespace {

class CellWordsTest : public DiaryDesk {};

TEST_F(CellWordsTest, ACellSaysWhatItIsAndWhereItStands) {
    struct Row {
        int column;
        const char* text;
        const char* spoken;
        const char* helpTag;
    };
    const std::vector<Row> rows{
        {4, "12.4", "After Lunch, 11/22/2026, 12.4, high", ""},
        {1, "13", "Before Breakfast, 11/22/2026, 13, too high", ""},
        {6, "6", "After Supper, 11/22/2026, 6, in target zone", ""},
        {7, "4", "Before Bed, 11/22/2026, 4, low", ""},
        {8, "2.5", "Average, 11/22/2026, 2.5, too low", ""},
        {9, "80", "Weight, 11/22/2026, 80", ""},
        {3, "", "Before Lunch, 11/22/2026", ""},
        {2, "5,6", "After Breakfast, 11/22/2026, 5,6, counts as 5, in target zone", "counts as 5"},
        {5, "7.2x", "Before Supper, 11/22/2026, 7.2x, counts as 7.2, in target zone", "counts as 7.2"},
        {5, "1O", "Before Supper, 11/22/2026, 1O, counts as 1, too low", "counts as 1"},
        {5, "ill", "Before Supper, 11/22/2026, ill, does not count, too low", "does not count"},
        {5, "-5x", "Before Supper, 11/22/2026, -5x, counts as -5, too low", "counts as -5"},
        {9, "80 kg", "Weight, 11/22/2026, 80 kg, counts as 80", "counts as 80"},
    };
    open();
    addRow({"11/22/2026"});
    for (const Row& row : rows) {
        table_.Cell(0, row.column, row.text);
        EXPECT_EQ(table_.CellDescription(0, row.column), row.spoken) << row.text;
        EXPECT_EQ(table_.CellHelpTag(0, row.column), row.helpTag) << row.text;
    }
    EXPECT_EQ(table_.CellDescription(0, 0), "Date, 11/22/2026");
}

} // namespace

} // namespace tallyvane

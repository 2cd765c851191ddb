#include "diary/cell_help.h"

#include "diary/day_table.h"
#include "settings/globals.h"
#include "support/diary_desk.h"

namespace tallyvane {

namespace {

class CellHelpTest : public DiaryDesk {};

TEST_F(CellHelpTest, ACellSaysWhatItIsAndWhereItStands) {
    const auto check = [this](int column, const char* text, const std::string& spoken,
                              const std::string& helpTag = "") {
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
    const std::string noNumber = "no number: does not count, and its light shows \u201ctoo low\u201d whatever it means";
    for (const std::string word : {"HI", "LO", "-"})
        check(5, word.c_str(), "Before Supper, 11/22/2026, " + word + ", " + noNumber, noNumber);
    check(5, "0,9", "Before Supper, 11/22/2026, 0,9, read as 0: does not count, too low", "read as 0: does not count");
    const std::string negative = "below 0: lowers the day's average without being counted";
    check(5, "-5", "Before Supper, 11/22/2026, -5, " + negative + ", too low", negative);
    check(9, "80 kg", "Weight, 11/22/2026, 80 kg, counts as 80", "counts as 80");
    check(9, "-80", "Weight, 11/22/2026, -80, does not count", "does not count");
    check(0, "22.11.2026", "Date, 22.11.2026, can't be read as a date", "can't be read as a date");
    Globals::gShowIndicators = false;
    table_.Cell(0, 0, "11/22/2026");
    check(5, "LO", "Before Supper, 11/22/2026, LO, no number: does not count", "no number: does not count");
}

} // namespace

} // namespace tallyvane

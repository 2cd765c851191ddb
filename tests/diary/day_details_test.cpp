#include "diary/day_details.h"

#include "support/diary_desk.h"

namespace tallyvane {

namespace {

class DayDetailsTest : public DiaryDesk {};

TEST_F(DayDetailsTest, OfADay) {
    const auto path = applicationFile("Details") / "11:2:2026"; // "/" is ":" on disk
    const auto check = [this](const char* name, const char* medications, int lines, const char* food = "",
                              const char* exercise = "") {
        SCOPED_TRACE(name);
        window1_.getDetails(0);
        EXPECT_EQ(window1_.theMeds, medications);
        EXPECT_EQ(window1_.medLines, lines);
        EXPECT_EQ(window1_.theFoods, food);
        EXPECT_EQ(window1_.theExercises, exercise);
    };
    std::filesystem::create_directories(path.parent_path());
    open();
    table_.AddRows({{"11/2/2026"}, {"no date"}});
    check("no file", "", 0);
    write(path, "a@@@b@@@c\nd@@@e@@@f\nendofmeds\nbread$%$milk\nwalk\n");
    check("two medications", "a     b     c\nd     e     f\n", 3, "bread\nmilk", "walk");
    write(path, "endofmeds\nbread\nwalk\n");
    check("none", "", 1, "bread", "walk");
    write(path, "a@@@b@@@c\nd\n");
    check("without the mark", "a     b     c\nd          \n", 2);
    write(path, "");
    check("an empty file", "          \n", 1);

    window1_.theMeds = "of another day";
    window1_.getDetails(1);
    EXPECT_EQ(window1_.theMeds, "");
}

} // namespace

} // namespace tallyvane

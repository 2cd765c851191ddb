#include <algorithm>

#include "diary/window1.h"
#include "settings/globals.h"
#include "support/test_desk.h"

namespace tallyvane {

namespace {

class JournalTest : public DiaryDesk {};

TEST_F(JournalTest, TheThreeButtons) {
    Window1& window = open();
    window.JournalFld.userTyped("felt well\n");
    window.AutoButton13.Action();
    EXPECT_EQ(Globals::gJournal, "felt well\n2026-11-22");

    window.AutoButton15.Action();
    EXPECT_EQ(toolkit_.dialogs.back(), "Save|Save Journal|Tallyvane Journal");
    toolkit_.answer = (folder_ / "my journal").string();
    write(folder_ / "my journal", "a longer text that stood there before");
    window.AutoButton15.Action();
    EXPECT_EQ(read(folder_ / "my journal"), "felt well\n2026-11-22") << "as it stands, no line added";
    TextArea other;
    window.SaveJournalToDisk(other, "Save Other");
    EXPECT_EQ(toolkit_.dialogs.back(), "Save|Save Other|untitled");
}

TEST_F(JournalTest, ThreePagesOfPaper) {
    Window1& window = open();
    std::string text;
    for (int line = 1; line <= 130; ++line)
        text += "line " + std::to_string(line) + "\n";
    window.JournalFld.userTyped(text);
    window.AutoButton14.Action();
    const auto pageEnds = std::count_if(toolkit_.printed.begin(), toolkit_.printed.end(),
                                        [](const auto& call) { return call.operation == "NextPage"; });
    EXPECT_EQ(pageEnds, 2) << "54 lines of 12 points to a block of 648";
    EXPECT_EQ(toolkit_.printed.size(), 132U);
    EXPECT_EQ(toolkit_.printed[54].operation, "NextPage");
    EXPECT_EQ(toolkit_.printed[55].text, "line 55");
    EXPECT_EQ(toolkit_.printed[55].numbers, (std::vector<double>{50, 59}));
}

class DetailsTest : public DiaryDesk {
protected:
    void SetUp() override {
        DiaryDesk::SetUp();
        std::filesystem::create_directories(applicationFile("Details"));
    }
};

TEST_F(DetailsTest, OfADay) {
    struct Row {
        const char* name;
        const char* file; // nil for none
        const char* medications;
        int lines;
        const char* food;
        const char* exercise;
    };
    const Row rows[] = {
        {"two medications", "a@@@b@@@c\nd@@@e@@@f\nendofmeds\nbread$%$milk\nwalk\n", "a     b     c\nd     e     f\n",
         3, "bread\nmilk", "walk"},
        {"none", "endofmeds\nbread\nwalk\n", "", 1, "bread", "walk"},
        {"without the mark", "a@@@b@@@c\nd\n", "a     b     c\nd          \n", 2, "", ""},
        {"an empty file", "", "          \n", 1, "", ""},
        {"no file", nullptr, "", 0, "", ""},
    };
    Window1& window = open();
    addRow({"11/2/2026"});
    for (const Row& row : rows) {
        const auto path = applicationFile("Details") / "11:2:2026"; // "/" is ":" on disk
        std::filesystem::remove(path);
        if (row.file != nullptr)
            write(path, row.file);
        window.getDetails(0);
        EXPECT_EQ(window.theMeds, row.medications) << row.name;
        EXPECT_EQ(window.medLines, row.lines) << row.name;
        EXPECT_EQ(window.theFoods, row.food) << row.name;
        EXPECT_EQ(window.theExercises, row.exercise) << row.name;
    }
    window.theMeds = "of another day";
    addRow({"no date"});
    window.getDetails(1);
    EXPECT_EQ(window.theMeds, "");
}

} // namespace

} // namespace tallyvane

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
    EXPECT_EQ(toolkit_.pageBreaks(), 2) << "54 lines of 12 points to a block of 648";
    EXPECT_EQ(toolkit_.printed.size(), 132U);
    EXPECT_EQ(toolkit_.printed[54].operation, "NextPage");
    EXPECT_EQ(toolkit_.printed[55].text, "line 55");
    EXPECT_EQ(toolkit_.printed[55].numbers, (std::vector<double>{50, 59}));
}

} // namespace

} // namespace tallyvane

#include "diary/window1.h"
#include "platform/printing/print_and_save.h"
#include "settings/globals.h"
#include "support/diary_desk.h"
#include "support/failing_disk.h"

namespace tallyvane {

namespace {

class JournalTest : public DiaryDesk {
protected:
    std::filesystem::path keptIn_;
};

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

TEST_F(JournalTest, OnNarrowPaperTheTitleStandsAboveTheText) {
    toolkit_.printerPaper = paperOf(384, 559);
    printText("felt well", "A title");
    ASSERT_EQ(toolkit_.printed.size(), 2U);
    EXPECT_EQ(toolkit_.printed[0].numbers[1], 50);
    EXPECT_EQ(toolkit_.printed[1].numbers[1], 60 + 9);
    EXPECT_EQ(toolkit_.lastPage.width, 525) << "both drawn smaller";
}

TEST_F(JournalTest, ANewerJournalThatAFileOverridesIsKept) {
    const auto journalAfterAStart = [this](const std::string& logged) {
        write(applicationFile("QVXLogData"), "@#@@#@" + logged + "@#@\n");
        Window1 window(toolbar_, menuBar_);
        window.Open();
        keptIn_ = window.keptJournal;
        return window.JournalFld.Text();
    };
    write(applicationFile("Tallyvane Journal"), "felt well\r\nslept\r\n");
    EXPECT_EQ(journalAfterAStart("felt well$%$slept"), "felt well\nslept\n");
    EXPECT_EQ(keptIn_, "") << "nothing of it is lost";
    EXPECT_EQ(journalAfterAStart("felt ill"), "felt well\nslept\n") << "the file wins";
    EXPECT_EQ(keptIn_, applicationFile("Tallyvane Journal 2026-11-22"));
    EXPECT_EQ(read(keptIn_), "felt ill");
    journalAfterAStart("felt ill");
    EXPECT_EQ(keptIn_, "") << "it is kept already, and was told";
    journalAfterAStart("felt better");
    EXPECT_EQ(read(applicationFile("Tallyvane Journal 2026-11-22 2")), "felt better");
    const FailingDisk disk(FailingDisk::Call::reserve, 0, false);
    EXPECT_EQ(journalAfterAStart("felt fine"), "felt fine") << "where it can't be kept it wins";
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

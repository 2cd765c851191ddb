#include "diary/running_logs.h"

#include "settings/globals.h"
#include "support/diary_desk.h"

namespace tallyvane {

namespace {

class RunningLogsTest : public DiaryDesk {};

TEST_F(RunningLogsTest, LogsComeBackAsTheyWereSaved) {
    open();
    Globals::gExercise = "walk$%$run";
    Globals::gFood = "soup";
    Globals::gMedication = "pill$%$pill";
    window1_.JournalFld.Text("one\r\ntwo\rthree\n");
    EXPECT_EQ(Globals::gJournal, "one\ntwo\nthree\n");
    window1_.saveLogs();
    const std::string file = "walk$%$run@#@soup@#@one$%$two$%$three$%$@#@pill$%$pill\n";
    EXPECT_EQ(read(applicationFile("QVXLogData")), file);

    window1_.JournalFld.Text("");
    Globals::gExercise = Globals::gFood = Globals::gMedication = "";
    window1_.getLogs();
    EXPECT_EQ(window1_.JournalFld.Text(), "one\ntwo\nthree\n");
    EXPECT_EQ(Globals::gJournal, "one\ntwo\nthree\n");
    EXPECT_EQ(Globals::gExercise, "walk$%$run");
    EXPECT_EQ(Globals::gMedication, "pill$%$pill");
    window1_.saveLogs();
    EXPECT_EQ(read(applicationFile("QVXLogData")), file);
}

TEST_F(RunningLogsTest, LinesOfAnotherProgramAreJoined) {
    write(applicationFile("QVXLogData"), "@#@@#@monday$%$tuesday@#@\n");
    open();
    window1_.JournalFld.Text("monday\ntuesday\nwednesday");
    write(applicationFile("QVXLogData"), "walk@#@@#@sunday$%$monday$%$tuesday@#@\n");
    window1_.saveChanged();
    EXPECT_EQ(window1_.JournalFld.Text(), "sunday\nmonday\ntuesday\nwednesday");
    EXPECT_EQ(read(applicationFile("QVXLogData")), "walk@#@@#@sunday$%$monday$%$tuesday$%$wednesday@#@\n");
    EXPECT_FALSE(std::filesystem::exists(applicationFile("QVXLogData before 2026-11-22")))
        << "nothing is lost: no copy";
}

TEST_F(RunningLogsTest, FewerFieldsGiveEmptyLogsAndAJournalFileWins) {
    write(applicationFile("QVXLogData"), "walk@#@soup@#@logged\nsecond line");
    write(applicationFile("Tallyvane Journal"), "from the\r\nfile");
    open();
    EXPECT_EQ(Globals::gFood, "soup");
    EXPECT_EQ(Globals::gMedication, "");
    EXPECT_EQ(Globals::gJournal, "from the\nfile");
    window1_.saveLogs();
    EXPECT_EQ(read(applicationFile("QVXLogData")), "walk@#@soup@#@from the$%$file@#@\n");
}

} // namespace
} // namespace tallyvane

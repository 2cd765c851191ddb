#include "records/logs_window.h"

#include "settings/globals.h"
#include "support/drawn.h"
#include "support/test_desk.h"

namespace tallyvane {

namespace {

class LogsWindowTest : public TestDesk {
protected:
    std::filesystem::path file() const { return applicationFile("Tallyvane") / "QVXLogData"; }

    logsWindow logs_;
};

TEST_F(LogsWindowTest, WithoutAFileItIsEmptyAndWritesTheGlobals) {
    Globals::gExercise = "walk$%$swim";
    Globals::gJournal = "well\ntired";
    logs_.Show();
    EXPECT_EQ(logs_.ExerciseFld.Text(), "");
    logs_.Close();
    EXPECT_EQ(read(file()), "walk$%$swim@#@@#@well$%$tired@#@\n");
    EXPECT_FALSE(std::filesystem::exists(applicationFile("QVXLogData"))) << "that one is the main window's";
}

TEST_F(LogsWindowTest, TextsComeBackAsTheyWereAndTheJournalIsLeftAlone) {
    Globals::gJournal = "today's";
    write(file(), "walk@#@bread$%$milk@#@an older journal@#@pills\n");
    logs_.Show();
    EXPECT_EQ(logs_.FoodFld.Text(), "bread\nmilk");
    EXPECT_EQ(logs_.ExerciseFld.Text(), "walk");
    EXPECT_EQ(logs_.MedicationFld.Text(), "pills");
    EXPECT_EQ(Globals::gJournal, "today's");
    logs_.FoodFld.userTyped("bread\nbutter");
    EXPECT_EQ(Globals::gFood, "bread\nbutter");
    logs_.PushButton1.Action();
    EXPECT_FALSE(logs_.isOpen());
    EXPECT_EQ(read(file()), "walk@#@bread$%$butter@#@today's@#@pills\n");
}

TEST_F(LogsWindowTest, LinesOfAnotherProgramAreJoined) {
    write(file(), "walk@#@bread$%$milk@#@@#@pills\n");
    logs_.Show();
    logs_.FoodFld.Text("bread\nmilk\neggs");
    write(file(), "walk$%$swim@#@tea$%$bread$%$milk@#@@#@pills\n");
    logs_.saveChanged();
    EXPECT_EQ(logs_.FoodFld.Text(), "tea\nbread\nmilk\neggs");
    EXPECT_EQ(read(file()), "walk$%$swim@#@tea$%$bread$%$milk$%$eggs@#@@#@pills\n");
}

TEST_F(LogsWindowTest, AShortRecordGivesEmptyTexts) {
    write(file(), "walk\n");
    Globals::gMedication = "before";
    logs_.Show();
    EXPECT_EQ(logs_.ExerciseFld.Text(), "walk");
    EXPECT_EQ(Globals::gMedication, "");
}

TEST_F(LogsWindowTest, TheButtonsActOnThePageInFront) {
    struct Row {
        int page;
        TextArea& field;
        const char* dialog;
    };
    const Row rows[] = {
        {0, logs_.FoodFld, "Save|Save Food Log|Tallyvane Food Log"},
        {1, logs_.ExerciseFld, "Save|Save Exercise Log|Tallyvane Exercise Log"},
        {2, logs_.MedicationFld, "Save|Save Medical Log|Tallyvane Medication Log"},
    };
    logs_.Show();
    for (const Row& row : rows) {
        logs_.TabPanel1.Value(row.page);
        row.field.userTyped("one\ntwo ");
        logs_.AutoButton1.Action();
        EXPECT_EQ(row.field.Text(), "one\ntwo 2026-11-22");

        toolkit_.answer = "";
        logs_.AutoButton3.Action();
        EXPECT_EQ(toolkit_.dialogs.back(), row.dialog);
        toolkit_.answer = (folder_ / "saved log").string();
        logs_.AutoButton3.Action();
        EXPECT_EQ(read(folder_ / "saved log"), "one\ntwo 2026-11-22");

        logs_.AutoButton2.Action();
        const Texts printed = drawn(toolkit_.printed);
        ASSERT_EQ(printed.size(), 2U);
        EXPECT_EQ(printed[0], "text 50 59 'one'") << "at 50, its ascent below 50";
        EXPECT_TRUE(printed[1].ends_with("'two 2026-11-22'"));
        toolkit_.printed.clear();
        toolkit_.printerReady = false;
        logs_.AutoButton2.Action();
        EXPECT_TRUE(toolkit_.printed.empty()) << "the print dialog was cancelled";
        toolkit_.printerReady = true;
    }
}

} // namespace

} // namespace tallyvane

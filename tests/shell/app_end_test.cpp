#include "settings/globals.h"
#include "settings/unsaved_files.h"
#include "shell/app.h"
#include "support/failing_disk.h"
#include "support/test_desk.h"

namespace tallyvane {

namespace {

/// The program with a day and a journal that no file holds yet.
class AppEndTest : public TestDesk {
protected:
    void SetUp() override {
        TestDesk::SetUp();
        app_ = std::make_unique<App>();
        app_->Event_Open();
        app_->windows().splash->Timer1.fire();
        app_->windows().main->BevelButton1_Action();
        app_->windows().main->ListBox1.userTyped("5.6", 3, 0);
        app_->windows().main->JournalFld.Text("felt well");
    }
    /// Nothing can be written where the table belongs.
    void blockTable() const { std::filesystem::create_directory(applicationFile("7VXData")); }
    void unblockTable() const { std::filesystem::remove(applicationFile("7VXData")); }
    static bool isWhole(const std::filesystem::path& table) {
        return read(table).starts_with("11/22/2026@#@5.6@#@@#@@#@@#@@#@@#@@#@5.6@#@@#@");
    }
    /// What a new start offers, and what it opens after the answer.
    std::vector<std::string> offered(std::optional<std::size_t> answer) {
        app_.reset();
        toolkit_.questions.clear();
        toolkit_.answers = {answer};
        StartupGlobals::gDataFolder.reset();
        App next;
        next.Event_Open();
        return toolkit_.questions;
    }
    std::filesystem::path kept() const { return folder_ / "state" / "Tallyvane" / "Unsaved 2026-11-22 12:00:00"; }

    std::unique_ptr<App> app_;
};

TEST_F(AppEndTest, WhatCannotBeSavedIsAskedAboutOnceAndNeverTrapsTheUser) {
    enum Choice : std::size_t { tryAgain, elsewhere, giveUp };
    blockTable();
    toolkit_.answers = {tryAgain, giveUp};
    app_->FileQuit_Action();
    ASSERT_EQ(toolkit_.questions.size(), 2U);
    EXPECT_EQ(toolkit_.questions[0],
              "Not everything could be saved.\n\nYour days: a folder of that name stands there\n" +
                  applicationFile("7VXData").string());
    EXPECT_EQ(toolkit_.quits, std::vector<int>{1}) << "an end with a loss";
    EXPECT_FALSE(app_->windows().main->isOpen());
    EXPECT_EQ(read(applicationFile("QVXLogData")), "@#@@#@felt well@#@\n") << "the others are saved";
    app_->Event_Close();
    EXPECT_TRUE(toolkit_.messages.empty()) << "one question is enough";
}

TEST_F(AppEndTest, AFullDiskIsTriedAgainAndTheWindowsPlaceNeverStopsTheEnd) {
    std::optional<FailingDisk> disk(std::in_place, FailingDisk::Call::reserve, 0, false);
    toolkit_.answers = {0};
    toolkit_.onQuestion = [&] { disk.reset(); }; // the user makes room before the answer
    app_->FileQuit_Action();
    ASSERT_EQ(toolkit_.questions.size(), 1U);
    EXPECT_NE(toolkit_.questions[0].find("Your days: No space left on device"), std::string::npos);
    EXPECT_NE(toolkit_.questions[0].find("The journal and the logs: No space"), std::string::npos);
    EXPECT_EQ(toolkit_.questions[0].find("QVXWindowData"), std::string::npos);
    EXPECT_EQ(toolkit_.quits, std::vector<int>{0});
    EXPECT_TRUE(isWhole(applicationFile("7VXData")));
    EXPECT_EQ(read(applicationFile("QVXLogData")), "@#@@#@felt well@#@\n");
}

TEST_F(AppEndTest, UnsavedTextIsShownWhenItsWindowOpensAgain) {
    app_->windows().main->showLogs();
    std::filesystem::create_directory(applicationFile("Tallyvane"));
    std::filesystem::create_directory(applicationFile("Tallyvane") / "QVXLogData");
    app_->windows().logs->FoodFld.userTyped("bread");
    app_->windows().logs->Close();
    app_->windows().main->showLogs();
    EXPECT_EQ(app_->windows().logs->FoodFld.Text(), "bread");
    toolkit_.answers = {2};
    app_->FileQuit_Action();
    ASSERT_EQ(toolkit_.questions.size(), 1U);
    EXPECT_NE(toolkit_.questions[0].find("The logs: a folder"), std::string::npos);
}

TEST_F(AppEndTest, WhatCouldNotBeReadIsNotReplacedUnseen) {
    const auto startBlocked = [this] {
        app_.reset();
        StartupGlobals::gDataFolder.reset();
        UnsavedFiles::forgetAll();
        std::filesystem::create_directories(applicationFile("7VXData"));
        app_ = std::make_unique<App>();
        app_->Event_Open();
        unblockTable(); // the user brings the real file back
        write(applicationFile("7VXData"), "11/21/2026@#@7\n");
    };
    startBlocked();
    app_->FileQuit_Action();
    EXPECT_EQ(read(applicationFile("7VXData")), "11/21/2026@#@7\n") << "nothing was typed";
    std::filesystem::remove(applicationFile("7VXData"));

    startBlocked();
    app_->windows().main->BevelButton1_Action();
    app_->FileQuit_Action();
    EXPECT_EQ(read(applicationFile("7VXData before 2026-11-22")), "11/21/2026@#@7\n");
    EXPECT_TRUE(toolkit_.questions.empty());
}

TEST_F(AppEndTest, SavedElsewhereNothingIsLostAndNothingReplaced) {
    blockTable();
    std::filesystem::create_directories(folder_ / "stick" / "Tallyvane unsaved 2026-11-22");
    toolkit_.answer = folder_ / "stick";
    toolkit_.answers = {1};
    app_->FileQuit_Action();
    const std::filesystem::path saved = folder_ / "stick" / "Tallyvane unsaved 2026-11-22 2";
    EXPECT_TRUE(isWhole(saved / "7VXData"));
    EXPECT_EQ(read(saved / "Places"), "Your days@#@7VXData@#@" + applicationFile("7VXData").string() + "\n");
    EXPECT_EQ(toolkit_.quits, std::vector<int>{0});
    EXPECT_NE(toolkit_.messages.back().find(saved.string()), std::string::npos);
}

TEST_F(AppEndTest, ASignalKeepsWhatIsUnsavedForTheNextStart) {
    blockTable();
    app_->Event_EndRequested();
    EXPECT_TRUE(toolkit_.questions.empty()) << "nobody is there to ask";
    EXPECT_EQ(toolkit_.quits, std::vector<int>{0});
    EXPECT_TRUE(isWhole(kept() / "7VXData"));
    EXPECT_EQ(std::filesystem::status(kept() / "7VXData").permissions(), std::filesystem::perms(0600));

    unblockTable();
    write(applicationFile("7VXData"), "11/21/2026@#@7\n"); // from somewhere else
    EXPECT_EQ(offered(std::nullopt).size(), 1U);
    EXPECT_TRUE(isWhole(kept() / "7VXData")) << "nobody has answered";
    EXPECT_EQ(offered(0).size(), 1U);
    EXPECT_TRUE(isWhole(applicationFile("7VXData")));
    EXPECT_EQ(read(applicationFile("7VXData before 2026-11-22")), "11/21/2026@#@7\n");
    EXPECT_FALSE(std::filesystem::exists(kept()));
    EXPECT_TRUE(offered(0).empty());
}

TEST_F(AppEndTest, OfEachFileTheLastThatWasKeptIsOfferedAndNothingTwice) {
    blockTable();
    app_->Event_EndRequested();
    const std::filesystem::path older = folder_ / "state" / "Tallyvane" / "Unsaved 2026-11-20 09:00:00";
    write(older / "7VXData", "11/20/2026@#@4\n");
    write(older / "QVXLogData", "@#@@#@an older journal@#@\n");
    write(older / "Places", "Your days@#@7VXData@#@" + applicationFile("7VXData").string() +
                                "\nThe journal and the logs@#@QVXLogData@#@" + applicationFile("QVXLogData").string() +
                                "\n");
    EXPECT_EQ(offered(0).size(), 1U);
    EXPECT_NE(toolkit_.messages.back().find("Your days: a folder of that name stands there"), std::string::npos);
    EXPECT_EQ(read(applicationFile("QVXLogData")), "@#@@#@an older journal@#@\n") << "what can be is put in place";
    EXPECT_EQ(UnsavedFiles::all().size(), 1U) << "what can't be waits";
    unblockTable();
    UnsavedFiles::tryAgain();
    EXPECT_TRUE(isWhole(applicationFile("7VXData"))) << "the newer one";
    EXPECT_TRUE(offered(0).empty());
    EXPECT_EQ(read(older / "7VXData not taken"), "11/20/2026@#@4\n");
}

TEST_F(AppEndTest, RescuedDaysThatCannotBePutInPlaceAreShownAndSavedLater) {
    blockTable();
    app_->Event_EndRequested();
    app_.reset();
    toolkit_.answers = {0};
    StartupGlobals::gDataFolder.reset();
    app_ = std::make_unique<App>();
    app_->Event_Open();
    EXPECT_EQ(app_->windows().main->ListBox1.Cell(0, 1), "5.6");
    app_->windows().main->BevelButton1_Action();
    app_->windows().main->ListBox1.userTyped("7", 1, 0);
    unblockTable();
    app_->FileQuit_Action();
    EXPECT_TRUE(isWhole(applicationFile("7VXData")));
    EXPECT_NE(read(applicationFile("7VXData")).find("@#@7@#@"), std::string::npos) << "with what was typed since";
    EXPECT_EQ(toolkit_.questions.size(), 1U);
}

TEST_F(AppEndTest, DaysThatWereSavedAndWhosePlaceIsGoneAreNotSafe) {
    app_->Event_Deactivate();
    ASSERT_TRUE(isWhole(applicationFile("7VXData")));
    std::filesystem::remove(applicationFile("7VXData"));
    blockTable();
    app_->Event_EndRequested();
    EXPECT_TRUE(isWhole(kept() / "7VXData")) << "though nothing was typed since";
}

TEST_F(AppEndTest, WhatAnotherProgramHasWrittenIsNotReplacedUnseen) {
    app_->Event_Deactivate();
    const auto writeElsewhere = [this] { write(applicationFile("7VXData"), "11/21/2026@#@7\n"); };
    writeElsewhere(); // an older table that a synchronised folder puts back, say
    app_->FileQuit_Action();
    EXPECT_TRUE(isWhole(applicationFile("7VXData"))) << "what was typed here, though it was saved before";
    EXPECT_EQ(read(applicationFile("7VXData before 2026-11-22")), "11/21/2026@#@7\n");

    app_.reset();
    StartupGlobals::gDataFolder.reset();
    app_ = std::make_unique<App>();
    app_->Event_Open();
    writeElsewhere();
    app_->FileQuit_Action();
    EXPECT_EQ(read(applicationFile("7VXData")), "11/21/2026@#@7\n") << "nothing was typed here";
}

TEST_F(AppEndTest, ATableThatAppearsLaterIsNotEmptied) {
    app_.reset();
    StartupGlobals::gDataFolder.reset();
    app_ = std::make_unique<App>();
    app_->Event_Open(); // as on a folder that is not synchronised yet
    write(applicationFile("7VXData"), "11/21/2026@#@7\n");
    app_->FileQuit_Action();
    EXPECT_EQ(read(applicationFile("7VXData")), "11/21/2026@#@7\n");
}

TEST_F(AppEndTest, WhatTheUserDoesNotWantBackIsKeptAndNotOfferedAgain) {
    blockTable();
    app_->Event_EndRequested();
    unblockTable();
    EXPECT_EQ(offered(1).size(), 1U);
    EXPECT_NE(toolkit_.messages.back().find((kept() / "7VXData not taken").string()), std::string::npos);
    EXPECT_TRUE(offered(1).empty());
    EXPECT_FALSE(std::filesystem::exists(applicationFile("7VXData")));
    EXPECT_TRUE(isWhole(kept() / "7VXData not taken"));
}

} // namespace

} // namespace tallyvane

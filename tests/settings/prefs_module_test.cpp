#include "settings/prefs_module.h"

#include "settings/data_files.h"
#include "settings/globals.h"
#include "settings/unsaved_files.h"
#include "support/test_desk.h"

namespace tallyvane {

namespace {

class PrefsTest : public TestDesk {
protected:
    void SetUp() override {
        TestDesk::SetUp();
        makeApplicationFolder();
        PrefsModule::createMainWindow = [this] { ++windowsCreated_; };
    }
    void TearDown() override {
        EXPECT_EQ(windowsCreated_, reads_) << "the main window comes on every path";
        PrefsModule::createMainWindow = nullptr;
        TestDesk::TearDown();
    }

    void readPreferences(const std::string& content) {
        write(applicationFile("Brindlemarks Preferences"), content);
        getPrefs();
    }
    void getPrefs() {
        ++reads_;
        PrefsModule::getPrefs();
    }
    static std::string dataFolder() { return StartupGlobals::gDataFolder->AbsolutePath(); }

    int reads_ = 0;
    int windowsCreated_ = 0;
};

TEST_F(PrefsTest, WithoutAFileTheDefaultsStand) {
    for (const bool folderInItsPlace : {false, true}) {
        SCOPED_TRACE(folderInItsPlace);
        if (folderInItsPlace)
            std::filesystem::create_directory(applicationFile("Brindlemarks Preferences"));
        StartupGlobals::gDataFolder.reset();
        getPrefs();
        EXPECT_EQ(Globals::gOver, 13.0);
        EXPECT_TRUE(Globals::gShowIndicators);
        EXPECT_FALSE(Globals::gIncludeMeds);
        EXPECT_EQ(dataFolder(), (folder_ / "Tallyvane").string());
        EXPECT_EQ(PrefsModule::gDataLocation, "ApplicationSupport");
        EXPECT_EQ(std::filesystem::exists(applicationFile("Brindlemarks Preferences")), folderInItsPlace);
    }
}

TEST_F(PrefsTest, WhatTheDiskDidNotTakeIsReadBeforeWhatItHolds) {
    write(applicationFile("Brindlemarks Preferences"), "true\n13\n");
    const auto place = GetFolderItem(applicationFile("Brindlemarks Preferences").string());
    UnsavedFiles::addUnsaved({"The preferences", "Brindlemarks Preferences", place}, "true\n180\n", "the disk is full");
    getPrefs();
    EXPECT_EQ(Globals::gOver, 180);
    PrefsModule::savePrefs();
    EXPECT_TRUE(read(applicationFile("Brindlemarks Preferences")).starts_with("true\n180\n"));
}

TEST_F(PrefsTest, EachLineIsReadByItsOwnRule) {
    Globals::gIncludeFood = true;
    readPreferences("false\n180\n140.5\n80\nx\ntrue\nTRUE\nfalse\n\nSomewhere\nmore");
    EXPECT_FALSE(Globals::gShowIndicators);
    EXPECT_EQ(Globals::gOver, 180);
    EXPECT_EQ(Globals::gCaution, 140.5);
    EXPECT_EQ(Globals::gLow, 80);
    EXPECT_EQ(Globals::gUnder, 0) << "no number reads as 0";
    EXPECT_TRUE(Globals::gIncludeMeds);
    EXPECT_FALSE(Globals::gIncludeExercise) << "only the exact word turns a switch on";
    EXPECT_TRUE(Globals::gIncludeFood) << "these lines turn nothing off";
    EXPECT_EQ(dataFolder(), (folder_ / "Tallyvane").string());
    EXPECT_EQ(PrefsModule::gDataLocation, "Somewhere");
}

TEST_F(PrefsTest, AShortFileGivesEmptyLines) {
    readPreferences("anything else\r\n12");
    EXPECT_FALSE(Globals::gShowIndicators);
    EXPECT_EQ(Globals::gOver, 12);
    EXPECT_EQ(Globals::gCaution, 0);
    EXPECT_EQ(PrefsModule::gDataLocation, "ApplicationSupport");
}

TEST_F(PrefsTest, TheSecondPlaceIsSearchedOnlyWithoutAnApplicationFolder) {
    write(folder_ / "Dropbox" / "Tallyvane" / "Brindlemarks Preferences", "true\n99\n");
    getPrefs();
    EXPECT_EQ(Globals::gOver, 13.0);
    std::filesystem::remove_all(folder_ / "Tallyvane");
    getPrefs();
    EXPECT_EQ(Globals::gOver, 99);
}

TEST_F(PrefsTest, WithoutAnyPlaceNothingIsSettled) {
    SpecialFolder::ApplicationData.reset();
    SpecialFolder::UserHome.reset();
    getPrefs();
    EXPECT_FALSE(StartupGlobals::gDataFolder);
    PrefsModule::savePrefs();
    EXPECT_EQ(PrefsModule::gDataLocation, "");
}

TEST_F(PrefsTest, AMissingDataFolderIsReplacedByTheApplicationFolder) {
    write(folder_ / "file", "");
    std::filesystem::create_directory(folder_ / "days");
    const auto check = [this](const std::string& path, bool isThere) {
        SCOPED_TRACE(path);
        StartupGlobals::gMissingDataFolder.clear();
        readPreferences("true\n1\n2\n3\n4\n\n\n\n" + path + "\nword\n");
        EXPECT_EQ(dataFolder(), isThere ? path : (folder_ / "Tallyvane").string());
        EXPECT_EQ(StartupGlobals::gMissingDataFolder, isThere ? "" : path);
        PrefsModule::savePrefs();
        const std::string saved = read(std::filesystem::path(dataFolder()) / "Brindlemarks Preferences");
        EXPECT_NE(saved.find("\n" + path + "\n"), std::string::npos) << "the folder is forgotten";
    };
    check(folder_ / "days", true);
    check(folder_ / "gone", false);
    check(folder_ / "file", false);
    check("days", false); // no path

    // Files that were brought from a computer where the user's home is another.
    const std::filesystem::path home = folder_.parent_path();
    SpecialFolder::UserHome = GetFolderItem(folder_.string());
    StartupGlobals::gMissingDataFolder.clear();
    readPreferences("true\n1\n2\n3\n4\n\n\n\n" + (home / "once" / "Tallyvane").string() + "\nword\n");
    EXPECT_EQ(dataFolder(), (folder_ / "Tallyvane").string());
    EXPECT_EQ(StartupGlobals::gMissingDataFolder, "");
}

TEST_F(PrefsTest, SavesTenLinesIntoTheDataFolderAndReadsThemBack) {
    std::filesystem::create_directory(folder_ / "days");
    StartupGlobals::gDataFolder = GetFolderItem((folder_ / "days").string());
    Globals::gOver = 10.55;
    Globals::gShowIndicators = false;
    Globals::gIncludeExercise = true;
    PrefsModule::savePrefs();
    const std::string saved = read(folder_ / "days" / "Brindlemarks Preferences");
    EXPECT_EQ(saved, "false\n10.55\n9\n5\n3\nfalse\ntrue\nfalse\n" + dataFolder() + "\nApplicationSupport\n");

    Globals::gOver = 0;
    Globals::gIncludeExercise = false;
    readPreferences(saved);
    EXPECT_EQ(Globals::gOver, 10.55);
    EXPECT_TRUE(Globals::gIncludeExercise);
    EXPECT_EQ(dataFolder(), (folder_ / "days").string());
}

} // namespace
} // namespace tallyvane

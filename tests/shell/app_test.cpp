#include "shell/app.h"

#include <random>

#include "diary/window1.h"
#include "platform/windows/quit.h"
#include "settings/globals.h"
#include "settings/prefs_module.h"
#include "shell/command_line.h"
#include "support/failing_disk.h"
#include "support/test_desk.h"

namespace tallyvane {

namespace {

class AppTest : public TestDesk {
protected:
    /// What the menu bar offers while that window is in front.
    Texts enabledItems(Window* front) {
        app_.menuBar.enableItems(front);
        Texts names;
        for (const Menu& menu : app_.menuBar.menus())
            for (const MenuItem& item : menu.items)
                if (item.Enabled)
                    names.push_back(item.Name);
        return names;
    }
    /// Preferences that name a folder for the days.
    void preferFolder(const std::string& folder) {
        write(applicationFile("Brindlemarks Preferences"), "true\n13\n9\n5\n3\n\n\n\n" + folder + "\n");
    }
    void press(const char* button) { app_.windows().main->Toolbar11_Action({button, "", "", "icon"}); }

    App app_;
};

TEST_F(AppTest, AFirstStartMakesItsFolderAndShowsTheDiaryAfterTheSplash) {
    app_.Event_Open();
    EXPECT_TRUE(std::filesystem::is_directory(folder_ / "Tallyvane"));
    EXPECT_FALSE(app_.windows().main->Visible());
    EXPECT_EQ(app_.windows().main->Timer1.Mode(), Timer::ModeSingle);
    EXPECT_TRUE(app_.windows().splash->Visible());
    app_.windows().splash->Timer1.fire();
    EXPECT_TRUE(app_.windows().main->Visible());
    EXPECT_FALSE(app_.windows().splash->isOpen());
    EXPECT_TRUE(toolkit_.messages.empty());
}

TEST_F(AppTest, EveryLossOfFocusSavesAndTheEndSavesTwiceTheSame) {
    app_.Event_Deactivate(); // before there is a window
    app_.Event_Open();
    app_.Event_Deactivate(); // while the splash window is up
    EXPECT_EQ(read(applicationFile("7VXData")), "");
    app_.windows().main->BevelButton1_Action();
    app_.windows().main->ListBox1.userTyped("5.6", 3, 0);
    app_.Event_Deactivate();
    const std::string saved = read(applicationFile("7VXData"));
    EXPECT_TRUE(saved.starts_with("11/22/2026@#@5.6@#@@#@")) << saved;
    app_.FileQuit_Action();
    EXPECT_EQ(read(applicationFile("7VXData")), saved);
    app_.Event_Close();
    EXPECT_EQ(read(applicationFile("7VXData")), saved);
    EXPECT_EQ(toolkit_.quits, std::vector<int>{0});
}

TEST_F(AppTest, AMissingDataFolderIsToldOnceWhenTheDiaryIsShown) {
    preferFolder("/no/such/folder");
    app_.Event_Open();
    EXPECT_TRUE(toolkit_.messages.empty());
    app_.windows().splash->Timer1.fire();
    ASSERT_EQ(toolkit_.messages.size(), 1U);
    EXPECT_NE(toolkit_.messages[0].find("/no/such/folder"), std::string::npos);
    EXPECT_NE(toolkit_.messages[0].find((folder_ / "Tallyvane").string()), std::string::npos);
    app_.comeToFront();
    EXPECT_EQ(toolkit_.messages.size(), 1U);
}

TEST_F(AppTest, ASecondStartWakesTheFirstAndEndsWithoutAWindow) {
    makeApplicationFolder();
    const auto first = SystemFiles::FolderLock::acquire((folder_ / "Tallyvane").string());
    bool woken = false;
    app_.wakeRunningProgram = [&] { woken = true; };
    app_.Event_Open();
    EXPECT_TRUE(woken);
    EXPECT_EQ(app_.windows().main, nullptr);
    EXPECT_EQ(toolkit_.quits, std::vector<int>{0});
    app_.Event_Deactivate();
    app_.Event_Close();
    EXPECT_FALSE(std::filesystem::exists(applicationFile("7VXData")));
}

TEST_F(AppTest, DaysThatAnotherProgramHoldsAreNotOpenedTwice) {
    std::filesystem::create_directory(folder_ / "days");
    preferFolder(folder_ / "days");
    const auto other = SystemFiles::FolderLock::acquire((folder_ / "days").string());
    app_.Event_Open();
    EXPECT_EQ(app_.windows().main, nullptr);
    ASSERT_EQ(toolkit_.messages.size(), 1U);
    EXPECT_EQ(toolkit_.quits, std::vector<int>{0});
}

TEST_F(AppTest, TheApplicationFolderByAnotherNameIsNoOtherProgram) {
    preferFolder(folder_ / "link");
    std::filesystem::create_directory_symlink(folder_ / "Tallyvane", folder_ / "link");
    app_.Event_Open();
    EXPECT_NE(app_.windows().main, nullptr);
    EXPECT_TRUE(toolkit_.messages.empty());
}

TEST_F(AppTest, AFailedSaveBetweenTimesIsToldOnceAndMadeGoodLater) {
    app_.Event_Open();
    app_.windows().main->JournalFld.Text("felt well");
    app_.windows().main->BevelButton1_Action();
    {
        const FailingDisk disk(FailingDisk::Call::reserve, 0, false);
        for (int looks = 0; looks < 3; ++looks)
            app_.run([&] { app_.Event_Deactivate(); });
    }
    EXPECT_EQ(toolkit_.messages, Texts{"An error has occured. You should quit Tallyvane now to save your data."})
        << "told once";
    EXPECT_FALSE(std::filesystem::exists(applicationFile("7VXData")));
    app_.windows().main->AutosaveTimer.fire();
    EXPECT_TRUE(std::filesystem::exists(applicationFile("7VXData"))) << "five minutes later";
    EXPECT_EQ(read(applicationFile("QVXLogData")), "@#@@#@felt well@#@\n");
    EXPECT_FALSE(app_.Event_UnhandledException());
}

TEST_F(AppTest, LogsThatHaveNotChangedAreNotWritten) {
    app_.Event_Open();
    press("LogsBtn");
    app_.Event_Deactivate();
    EXPECT_FALSE(std::filesystem::exists(applicationFile("QVXLogData")));
    EXPECT_FALSE(std::filesystem::exists(applicationFile("Tallyvane") / "QVXLogData"));
    app_.windows().logs->FoodFld.userTyped("bread");
    app_.Event_Deactivate();
    EXPECT_EQ(read(applicationFile("QVXLogData")), "@#@bread@#@@#@\n");
    EXPECT_EQ(read(applicationFile("Tallyvane") / "QVXLogData"), "@#@bread@#@@#@\n");
}

TEST_F(AppTest, WhatIsNoFileIsToldAtTheStart) {
    std::filesystem::create_directories(applicationFile("7VXData"));
    std::filesystem::create_directories(applicationFile("Tallyvane") / "QVXFileData");
    app_.Event_Open();
    app_.windows().splash->Timer1.fire();
    ASSERT_EQ(toolkit_.messages.size(), 1U);
    for (const auto& path : {applicationFile("7VXData"), applicationFile("Tallyvane") / "QVXFileData"})
        EXPECT_NE(toolkit_.messages[0].find(path.string()), std::string::npos);
}

TEST_F(AppTest, AnyBytesInAnyFileStartAndEnd) {
    std::mt19937 random(20261122);
    const char* files[] = {"7VXData", "Brindlemarks Preferences", "7VXHeadings", "QVXWindowData", "QVXLogData"};
    const std::string zero(1, '\0');
    const std::string endless(300000, 'x');
    const Texts pieces{"\n", "\r", "@#@", "$%$",  "true", "-",    "1e9", "99999999999999999999",
                       "/",  ".",  zero,  "\xFF", "\xC3", endless};
    toolkit_.answers.assign(40, 1); // go on with what is there
    for (int round = 0; round < 40; ++round) {
        for (const char* file : files) {
            std::string content;
            for (auto piece = random() % 25; piece > 0; --piece)
                content += pieces[random() % pieces.size()];
            write(applicationFile(file), content);
        }
        App app;
        app.Event_Open();
        ASSERT_NE(app.windows().main, nullptr) << "round " << round;
        app.windows().splash->Timer1.fire();
        app.windows().main->BevelButton1_Action();
        app.FileQuit_Action();
        StartupGlobals::gDataFolder.reset();
    }
    EXPECT_EQ(toolkit_.quits, std::vector<int>(40, 0));
}

TEST_F(AppTest, AnUnwritableFolderIsReportedOnlyAtTheEnd) {
    preferFolder("/proc/self/task");
    app_.Event_Open();
    EXPECT_EQ(StartupGlobals::gDataFolder->AbsolutePath(), "/proc/self/task");
    app_.windows().main->BevelButton1_Action();
    app_.Event_Deactivate();
    PrefsModule::savePrefs();
    EXPECT_TRUE(toolkit_.messages.empty());
    toolkit_.answers = {2}; // quit without saving
    app_.FileQuit_Action();
    EXPECT_EQ(toolkit_.questions.size(), 1U) << "until the end";
    EXPECT_EQ(toolkit_.quits, std::vector<int>{1});
}

TEST_F(AppTest, AFileOfTheCommandLineIsOfferedForImport) {
    const std::string path = (folder_ / "meter.csv").string();
    write(path, "11/13/2026,5\n11/14/2026,7\n");
    app_.offerForImport(path);
    app_.Event_Open();
    EXPECT_EQ(app_.windows().importing, nullptr) << "until the main window is there";
    app_.windows().splash->Timer1.fire();
    ASSERT_NE(app_.windows().importing, nullptr);
    EXPECT_EQ(app_.windows().importing->StaticText2.Text(), "File: meter.csv");
    app_.windows().importing->PushButton1.Action();
    EXPECT_TRUE(toolkit_.dialogs.empty());
    EXPECT_EQ(app_.windows().main->ListBox1.ListCount(), 2);
    app_.offerForImport("/no/such/file");
    EXPECT_EQ(toolkit_.messages, Texts{"\u201c/no/such/file\u201d can't be imported: there is no such file."});
}

TEST(CommandLine, OptionsAndAFile) {
    const auto check = [](const std::vector<std::string>& arguments, const std::string& file, const char* error) {
        const CommandLine line(arguments);
        EXPECT_EQ(line.file, file);
        EXPECT_EQ(line.error.find(error) == std::string::npos, false) << line.error;
        EXPECT_EQ(line.error.empty(), *error == '\0') << line.error;
    };
    check({}, "", "");
    check({"/a/b.csv"}, "/a/b.csv", "");
    check({"--", "--help"}, (std::filesystem::current_path() / "--help").string(), "");
    check({"--hlep"}, "", "--hlep");
    check({"/a", "/b"}, "/a", "one file");
    EXPECT_TRUE(CommandLine({"--version", "/a"}).version);
    const CommandLine early = CommandLine::beforeToolkit({"-platform", "xcb", "--help", "/a", "--", "--b"});
    EXPECT_TRUE(early.help && early.error.empty() && early.file.empty());
    EXPECT_FALSE(CommandLine::beforeToolkit({"--version", "--bogus"}).error.empty());
}

TEST_F(AppTest, MenuItemsWithoutAHandlerAreDisabled) {
    app_.Event_Open();
    EXPECT_EQ(enabledItems(nullptr), (Texts{"FileQuit", "FileExportData", "FileAboutBrindlemarks", "FilePreferences",
                                            "HelpUsersGuide", "HelpSupportForum"}));
    const std::size_t withoutDays = enabledItems(app_.windows().main.get()).size();
    app_.windows().main->BevelButton1_Action(); // selects the day that it adds
    EXPECT_EQ(enabledItems(app_.windows().main.get()).size(), withoutDays + 3) << "undo, and those for selected days";
}

TEST_F(AppTest, MenuItemsReachTheirWindows) {
    app_.Event_Open();
    Window1& window1 = *app_.windows().main;
    const auto choose = [&](const char* item) { app_.menuBar.choose(item, &window1); };
    window1.BevelButton1_Action();
    choose("FileImportData");
    EXPECT_TRUE(app_.windows().importing->isOpen());
    choose("FileExportData");
    EXPECT_TRUE(app_.windows().exporting->isOpen());
    choose("FileArchiveSelectedDays");
    choose("FileOpenArchivedDays");
    EXPECT_EQ(toolkit_.dialogs, (Texts{"Save archive|Enter name|untitled", "Select an archive file|text"}));
    for (const char* item : {"FilePrint", "FilePrintSelected", "FileSaveAsPDF"}) {
        toolkit_.printed.clear();
        choose(item);
        EXPECT_FALSE(toolkit_.printed.empty()) << item;
    }
    choose("FilePrintSetup");
    EXPECT_NE(Globals::ps, nullptr);
}

TEST_F(AppTest, TheWindowsAreJoined) {
    app_.Event_Open();
    Window1& window1 = *app_.windows().main;
    window1.Timer1.Mode(Timer::ModeOff);
    app_.FilePreferences_Action();
    window1.Timer1.Mode(Timer::ModeOff);
    app_.windows().prefs->EditField1.userChanged("12", 0, 0);
    EXPECT_EQ(window1.Timer1.Mode(), Timer::ModeSingle);

    press("HeadingsBtn");
    app_.windows().headings->TextField1.userChanged("Dawn", 0, 0);
    app_.windows().headings->PushButton2.Action();
    EXPECT_EQ(window1.StaticText13.Text(), "Breakfast");
    press("HeadingsBtn");
    EXPECT_EQ(app_.windows().headings->TextField1.Text(), "Dawn") << "made anew, from the file";
    app_.windows().headings->PushButton1.Action();
    EXPECT_EQ(window1.StaticText13.Text(), "Dawn");

    press("LogsBtn");
    app_.windows().logs->FoodFld.userTyped("bread\nmilk");
    app_.windows().logs->Close();
    press("LogsBtn");
    press("LogsBtn"); // it is there already
    EXPECT_EQ(app_.windows().logs->FoodFld.Text(), "bread\nmilk");
    press("TeamMedBtn");
    EXPECT_EQ(app_.windows().info->ListBox1.ListCount(), 3);
    press("GraphBtn");
    EXPECT_EQ(toolkit_.messages.back(), "Please select 2 or more days to graph.");
    EXPECT_EQ(app_.windows().graph, nullptr);
    window1.ListBox1.AddRows({{"11/1/2026"}, {"11/2/2026"}});
    window1.ListBox1.select({true, true});
    press("GraphBtn");
    const GTGraph* graph = app_.windows().graph->grafThing1.get();
    press("GraphBtn");
    EXPECT_EQ(app_.windows().graph->grafThing1.get(), graph) << "the window that is there, as it is";
    app_.windows().graph->Canvas3_Action();
    app_.windows().graph->Close();
    press("GraphBtn");
    EXPECT_FALSE(app_.windows().graph->graphWeight);
    EXPECT_TRUE(app_.windows().graph->CheckBox13.Value());
    for (const bool shown : {true, false}) {
        press("ResourcesBtn");
        EXPECT_EQ(app_.windows().files->isOpen(), shown);
        EXPECT_EQ(Globals::gFilesOpen, shown);
    }
}

TEST_F(AppTest, WhatIsOpenIsSavedWhenTheDisplayGoes) {
    app_.Event_Open();
    press("LogsBtn");
    app_.windows().logs->FoodFld.userTyped("bread");
    app_.Event_DisplayLost();
    EXPECT_EQ(read(applicationFile("Tallyvane") / "QVXLogData"), "@#@bread@#@@#@\n");
}

TEST_F(AppTest, AFailedSaveDoesNotPreventTheOthers) {
    app_.Event_Open();
    press("HeadingsBtn");
    press("LogsBtn");
    app_.windows().headings->TextField1.userChanged("Dawn", 0, 0);
    app_.windows().logs->FoodFld.userTyped("bread");
    {
        const FailingDisk disk(FailingDisk::Call::reserve); // once: under the main window
        Quit(0);
    }
    EXPECT_TRUE(toolkit_.questions.empty()) << "it is tried once more before anybody is asked";
    EXPECT_EQ(read(applicationFile("7VXHeadings")).substr(0, 5), "Dawn\n");
    EXPECT_EQ(read(applicationFile("Tallyvane") / "QVXLogData"), "@#@bread@#@@#@\n");
    EXPECT_EQ(toolkit_.quits, std::vector<int>{0});
}

TEST_F(AppTest, HelpAndAboutItems) {
    app_.Event_Open();
    for (const char* item : {"HelpUsersGuide", "HelpSupportForum", "FileAboutBrindlemarks"})
        app_.menuBar.choose(item, nullptr);
    ASSERT_EQ(toolkit_.addresses.size(), 2U);
    EXPECT_TRUE(toolkit_.addresses[0].ends_with("/docs/TallyvaneGuide.pdf"));
    EXPECT_EQ(app_.windows().about->StaticText2.Text(), "v1.1.7");
    app_.windows().about->Close();
    app_.menuBar.choose("FileAboutBrindlemarks", nullptr);
    EXPECT_TRUE(app_.windows().about->isOpen());
}

} // namespace
} // namespace tallyvane

#include "shell/app.h"

#include <random>

#include "settings/data_files.h"
#include "settings/globals.h"
#include "settings/prefs_module.h"
#include "shell/menu_bar1.h"
#include "support/failing_disk.h"
#include "support/test_desk.h"

namespace tallyvane {

namespace {

using Lines = std::vector<std::string>;

class AppTest : public TestDesk {
protected:
    std::vector<std::string> enabledItems(App& app, Window* front) {
        app.menuBar.enableItems(front);
        std::vector<std::string> names;
        for (const Menu& menu : app.menuBar.menus())
            for (const MenuItem& item : menu.items)
                if (item.Enabled)
                    names.push_back(item.Name);
        return names;
    }
};

TEST_F(AppTest, AFirstStartMakesItsFolderAndShowsTheDiaryAfterTheSplash) {
    App app;
    app.Event_Open();
    EXPECT_TRUE(std::filesystem::is_directory(folder_ / "Tallyvane"));
    EXPECT_EQ(StartUpManager::primaryWindow, app.window1());
    EXPECT_FALSE(app.window1()->Visible());
    EXPECT_EQ(app.window1()->Timer1.Mode(), Timer::ModeSingle);
    EXPECT_TRUE(app.splashWindow()->Visible());
    EXPECT_EQ(app.splashWindow()->Timer1.Period(), 1000);
    EXPECT_EQ(app.splashWindow()->AppNameLabel.Text(), "Tallyvane");

    app.splashWindow()->Timer1.fire();
    EXPECT_TRUE(app.window1()->Visible());
    EXPECT_FALSE(app.splashWindow()->isOpen());
    EXPECT_TRUE(toolkit_.messages.empty());
    EXPECT_EQ(app.window1()->StaticText16.Text(), "000");
}

TEST_F(AppTest, EveryLossOfFocusSavesAndTheEndSavesTwiceTheSame) {
    App app;
    app.Event_Deactivate(); // before there is a window
    app.Event_Open();
    app.Event_Deactivate(); // while the splash window is up
    EXPECT_EQ(read(applicationFile("7VXData")), "");
    app.window1()->BevelButton1_Action();
    app.window1()->ListBox1.userTyped("5.6", 3, 0);
    app.Event_Deactivate();
    const std::string saved = read(applicationFile("7VXData"));
    EXPECT_TRUE(saved.starts_with("11/22/2026@#@5.6@#@@#@")) << saved;
    app.FileQuit_Action();
    EXPECT_EQ(read(applicationFile("7VXData")), saved);
    app.Event_Close();
    EXPECT_EQ(read(applicationFile("7VXData")), saved);
    EXPECT_EQ(toolkit_.quits, std::vector<int>{0});
}

TEST_F(AppTest, AMissingDataFolderIsToldOnceWhenTheDiaryIsShown) {
    makeApplicationFolder();
    write(applicationFile("Brindlemarks Preferences"), "true\n13\n9\n5\n3\n\n\n\n/no/such/folder\n");
    App app;
    app.Event_Open();
    EXPECT_TRUE(toolkit_.messages.empty());
    app.splashWindow()->Timer1.fire();
    ASSERT_EQ(toolkit_.messages.size(), 1U);
    EXPECT_NE(toolkit_.messages[0].find("/no/such/folder"), std::string::npos);
    EXPECT_NE(toolkit_.messages[0].find((folder_ / "Tallyvane").string()), std::string::npos);
    app.comeToFront();
    EXPECT_EQ(toolkit_.messages.size(), 1U);
}

TEST_F(AppTest, ASecondStartWakesTheFirstAndEndsWithoutAWindow) {
    makeApplicationFolder();
    const auto first = SystemFiles::FolderClaim::take((folder_ / "Tallyvane").string());
    App second;
    bool woken = false;
    second.wakeRunningProgram = [&] { woken = true; };
    second.Event_Open();
    EXPECT_TRUE(woken);
    EXPECT_EQ(second.window1(), nullptr);
    EXPECT_EQ(toolkit_.quits, std::vector<int>{0});
    second.Event_Deactivate();
    second.Event_Close();
    EXPECT_FALSE(std::filesystem::exists(applicationFile("7VXData")));
}

TEST_F(AppTest, DaysThatAnotherProgramHoldsAreNotOpenedTwice) {
    makeApplicationFolder();
    std::filesystem::create_directory(folder_ / "days");
    write(applicationFile("Brindlemarks Preferences"),
          "true\n13\n9\n5\n3\n\n\n\n" + (folder_ / "days").string() + "\n");
    const auto other = SystemFiles::FolderClaim::take((folder_ / "days").string());
    App app;
    app.Event_Open();
    EXPECT_EQ(app.window1(), nullptr);
    ASSERT_EQ(toolkit_.messages.size(), 1U);
    EXPECT_EQ(toolkit_.quits, std::vector<int>{0});
}

TEST_F(AppTest, TheApplicationFolderByAnotherNameIsNoOtherProgram) {
    makeApplicationFolder();
    std::filesystem::create_directory_symlink(folder_ / "Tallyvane", folder_ / "link");
    write(applicationFile("Brindlemarks Preferences"),
          "true\n13\n9\n5\n3\n\n\n\n" + (folder_ / "link").string() + "\n");
    App app;
    app.Event_Open();
    EXPECT_NE(app.window1(), nullptr);
    EXPECT_TRUE(toolkit_.messages.empty());
}

TEST_F(AppTest, WhatFailsOneFileDoesNotCostTheOthers) {
    App app;
    app.Event_Open();
    app.window1()->JournalFld.Text("felt well");
    app.window1()->BevelButton1_Action();
    {
        const FailingDisk disk(FailingDisk::Call::reserve); // once: under the day table
        app.run([&] { app.FileQuit_Action(); });
    }
    EXPECT_FALSE(std::filesystem::exists(applicationFile("7VXData")));
    EXPECT_EQ(read(applicationFile("QVXLogData")), "@#@@#@felt well@#@\n");
    EXPECT_TRUE(std::filesystem::exists(applicationFile("QVXWindowData")));
}

TEST_F(AppTest, AFailedSaveReachesTheCatchAllAndTheProgramGoesOn) {
    App app;
    app.Event_Open();
    app.window1()->BevelButton1_Action();
    {
        const FailingDisk disk(FailingDisk::Call::reserve);
        app.run([&] { app.FileQuit_Action(); });
    }
    EXPECT_EQ(toolkit_.messages,
              std::vector<std::string>{"An error has occured. You should quit Tallyvane now to save your data."});
    EXPECT_TRUE(app.window1()->isOpen());
    EXPECT_TRUE(toolkit_.quits.empty());
    app.run([&] { app.FileQuit_Action(); });
    EXPECT_FALSE(app.window1()->isOpen());
    EXPECT_FALSE(app.Event_UnhandledException());
}

TEST_F(AppTest, AnyBytesInAnyFileStartAndEnd) {
    std::mt19937 random(20261122);
    const std::vector<std::string> files{"7VXData", "Brindlemarks Preferences", "7VXHeadings", "QVXWindowData",
                                         "QVXLogData"};
    const std::vector<std::string> pieces{"\n",
                                          "\r",
                                          "@#@",
                                          "$%$",
                                          "true",
                                          "-",
                                          "1e9",
                                          "99999999999999999999",
                                          "/",
                                          ".",
                                          std::string(1, '\0'),
                                          "\xFF",
                                          "\xC3",
                                          std::string(300000, 'x')};
    for (int round = 0; round < 40; ++round) {
        for (const std::string& file : files) {
            std::string content;
            for (unsigned piece = random() % 25; piece > 0; --piece)
                content += pieces[random() % pieces.size()];
            write(applicationFile(file), content);
        }
        App app;
        app.Event_Open();
        ASSERT_NE(app.window1(), nullptr) << "round " << round;
        app.splashWindow()->Timer1.fire();
        app.window1()->BevelButton1_Action();
        app.FileQuit_Action();
        StartupGlobals::gDataFolder.reset();
    }
    EXPECT_EQ(toolkit_.quits, std::vector<int>(40, 0));
}

TEST_F(AppTest, AFolderThatTakesNoFilesIsBorneInSilence) {
    makeApplicationFolder();
    write(applicationFile("Brindlemarks Preferences"), "true\n13\n9\n5\n3\n\n\n\n/proc/self/task\n");
    App app;
    app.Event_Open();
    EXPECT_EQ(StartupGlobals::gDataFolder->AbsolutePath(), "/proc/self/task");
    app.window1()->BevelButton1_Action();
    app.Event_Deactivate();
    PrefsModule::savePrefs();
    app.FileQuit_Action();
    EXPECT_TRUE(toolkit_.messages.empty());
    EXPECT_EQ(toolkit_.quits, std::vector<int>{0});
}

TEST_F(AppTest, MenuItemsAnswerOrAreOff) {
    App app;
    app.Event_Open();
    const Lines everywhere{"FileQuit",        "FileExportData", "FileAboutBrindlemarks",
                           "FilePreferences", "HelpUsersGuide", "HelpSupportForum"};
    const Lines mainWindow{"FileQuit",       "FileImportData",        "FileExportData",
                           "FileSaveAsPDF",  "FileOpenArchivedDays",  "FilePrintSetup",
                           "FilePrint",      "FileAboutBrindlemarks", "FilePreferences",
                           "HelpUsersGuide", "HelpSupportForum"};
    EXPECT_EQ(enabledItems(app, nullptr), everywhere);
    EXPECT_EQ(enabledItems(app, app.splashWindow()), everywhere);
    EXPECT_EQ(enabledItems(app, app.window1()), mainWindow);
    app.window1()->BevelButton1_Action(); // selects the day that it adds
    EXPECT_EQ(enabledItems(app, app.window1()).size(), mainWindow.size() + 2) << "those for selected days";
}

TEST_F(AppTest, MenuItemsReachTheirWindows) {
    App app;
    app.Event_Open();
    Window1& window1 = *app.window1();
    const auto choose = [&](const char* item) { app.menuBar.choose(item, &window1); };
    window1.ListBox1.AddRow("11/1/2026");
    window1.ListBox1.ListIndex(0);
    choose("FileImportData");
    EXPECT_TRUE(app.importing()->isOpen());
    choose("FileExportData");
    EXPECT_TRUE(app.exporting()->isOpen());
    choose("FileArchiveSelectedDays");
    choose("FileOpenArchivedDays");
    EXPECT_EQ(toolkit_.dialogs, (Lines{"Save archive|Enter name|untitled", "Select an archive file|text"}));
    for (const char* item : {"FilePrint", "FilePrintSelected", "FileSaveAsPDF"}) {
        toolkit_.printed.clear();
        choose(item);
        EXPECT_FALSE(toolkit_.printed.empty()) << item;
    }
    choose("FilePrintSetup");
    EXPECT_NE(Globals::ps, nullptr);
}

TEST_F(AppTest, TheWindowsAreJoined) {
    App app;
    app.Event_Open();
    Window1& window1 = *app.window1();
    window1.Timer1.Mode(Timer::ModeOff);
    app.FilePreferences_Action();
    window1.Timer1.Mode(Timer::ModeOff);
    app.prefsWindow()->EditField1.userChanged("12", 0, 0);
    EXPECT_EQ(window1.Timer1.Mode(), Timer::ModeSingle);

    const auto press = [&](const char* button) { window1.Toolbar11_Action({button, "", "", "icon"}); };
    press("HeadingsBtn");
    app.editHeadings()->TextField1.userChanged("Dawn", 0, 0);
    app.editHeadings()->PushButton2.Action();
    EXPECT_EQ(window1.StaticText13.Text(), "Breakfast");
    press("HeadingsBtn");
    EXPECT_EQ(app.editHeadings()->TextField1.Text(), "Dawn") << "made anew, from the file";
    app.editHeadings()->PushButton1.Action();
    EXPECT_EQ(window1.StaticText13.Text(), "Dawn");

    press("LogsBtn");
    app.logs()->FoodFld.userTyped("bread\nmilk");
    app.logs()->Close();
    press("LogsBtn");
    press("LogsBtn"); // it is there already
    EXPECT_EQ(app.logs()->FoodFld.Text(), "bread\nmilk");
    press("TeamMedBtn");
    EXPECT_EQ(app.infoWindow()->ListBox1.ListCount(), 3);
    press("GraphBtn");
    EXPECT_EQ(toolkit_.messages.back(), "Please select 2 or more days to graph.");
    EXPECT_EQ(app.graph(), nullptr);
    window1.ListBox1.AddRow("11/1/2026");
    window1.ListBox1.AddRow("11/2/2026");
    window1.ListBox1.select({true, true});
    press("GraphBtn");
    const GTGraph* graph = app.graph()->grafThing1.get();
    press("GraphBtn");
    EXPECT_EQ(app.graph()->grafThing1.get(), graph) << "the window that is there, as it is";
    app.graph()->Canvas3_Action();
    app.graph()->Close();
    press("GraphBtn");
    EXPECT_FALSE(app.graph()->graphWeight);
    EXPECT_TRUE(app.graph()->CheckBox13.Value());
    press("ResourcesBtn");
    EXPECT_TRUE(app.files()->isOpen());
    press("ResourcesBtn");
    EXPECT_FALSE(app.files()->isOpen());
}

TEST_F(AppTest, WhatIsOpenIsSavedWhenTheDisplayGoes) {
    App app;
    app.Event_Open();
    app.window1()->Toolbar11_Action({"LogsBtn", "", "", "icon"});
    app.logs()->FoodFld.userTyped("bread");
    app.Event_DisplayLost();
    EXPECT_EQ(read(applicationFile("Tallyvane") / "QVXLogData"), "@#@bread@#@@#@\n");
}

TEST_F(AppTest, AWindowThatCannotBeSavedDoesNotCostTheOthers) {
    App app;
    app.Event_Open();
    app.window1()->Toolbar11_Action({"HeadingsBtn", "", "", "icon"});
    app.window1()->Toolbar11_Action({"LogsBtn", "", "", "icon"});
    app.editHeadings()->TextField1.userChanged("Dawn", 0, 0);
    app.logs()->FoodFld.userTyped("bread");
    {
        const FailingDisk disk(FailingDisk::Call::reserve); // once: under the main window
        EXPECT_THROW(Quit(0), IOException);
    }
    EXPECT_TRUE(app.window1()->isOpen());
    EXPECT_EQ(read(applicationFile("7VXHeadings")).substr(0, 5), "Dawn\n");
    EXPECT_EQ(read(applicationFile("Tallyvane") / "QVXLogData"), "@#@bread@#@@#@\n");
    EXPECT_TRUE(toolkit_.quits.empty()) << "the program goes on";
}

TEST_F(AppTest, HelpAndAboutItems) {
    App app;
    app.Event_Open();
    for (const char* item : {"HelpUsersGuide", "HelpSupportForum", "FileAboutBrindlemarks"})
        app.menuBar.choose(item, nullptr);
    ASSERT_EQ(toolkit_.addresses.size(), 2U);
    EXPECT_TRUE(toolkit_.addresses[0].ends_with("/docs/TallyvaneGuide.pdf"));
    EXPECT_EQ(app.aboutWindow()->Title(), "About Tallyvane");
    EXPECT_EQ(app.aboutWindow()->StaticText2.Text(), "v1.1.7");
    app.aboutWindow()->Close();
    app.menuBar.choose("FileAboutBrindlemarks", nullptr);
    EXPECT_TRUE(app.aboutWindow()->isOpen());
}

} // namespace
} // namespace tallyvane

#include "shell/app.h"

#include "platform/toolkit.h"
#include "settings/data_files.h"
#include "settings/globals.h"
#include "settings/prefs_module.h"
#include "shell/menu_bar1.h"

namespace tallyvane {

Window1* StartUpManager::primaryWindow = nullptr;

namespace {

/// Shows the one window of its kind; one that was closed is made anew.
template <class W>
W& showSingle(std::unique_ptr<W>& window) {
    if (!window || !window->isOpen())
        window = std::make_unique<W>();
    window->Show();
    return *window;
}

} // namespace

App::App() : menuBar(MenuBar1()) {
    PrefsModule::bringUpMainWindow = [this] { bringUpMainWindow(); };
    menuBar.handlers = {
        {"FileQuit", [this] { FileQuit_Action(); }},
        {"FileAboutBrindlemarks", [this] { FileAboutBrindlemarks_Action(); }},
        {"HelpUsersGuide", [this] { HelpUsersGuide_Action(); }},
        {"HelpSupportForum", [this] { HelpSupportForum_Action(); }},
    };
}

App::~App() {
    PrefsModule::bringUpMainWindow = nullptr;
    StartUpManager::primaryWindow = nullptr;
}

// Start

void App::Event_Open() {
    const std::optional<FolderItem> folder = DataFiles::applicationFolder();
    if (!StartupGlobals::gDataFolder && folder && !folder->Exists())
        static_cast<void>(folder->CreateAsFolder()); // without it the diary runs, and has nowhere to save
    if (!claim(folder)) {
        giveWay();
        return;
    }
    PrefsModule::getPrefs();
    if (!window1_)
        return;
    StartUpManager::primaryWindow = window1_.get();
    splash_ = std::make_unique<SplashWindow>();
    splash_->showPrimaryWindow = [this] { showMainWindow(); };
    splash_->Show();
}

/// Holds a folder for this program, once. False when another program holds it.
bool App::claim(const std::optional<FolderItem>& folder) {
    if (!folder || !folder->Directory())
        return true;
    claims_.push_back(SystemFiles::FolderClaim::take(folder->AbsolutePath()));
    return claims_.back() != nullptr;
}

void App::giveWay() {
    if (wakeRunningProgram)
        wakeRunningProgram();
    Quit(0);
}

void App::bringUpMainWindow() {
    const bool elsewhere = StartupGlobals::gDataFolder != DataFiles::applicationFolder();
    if (elsewhere && !claim(StartupGlobals::gDataFolder)) {
        MsgBox("The days in \u201c" + StartupGlobals::gDataFolder->AbsolutePath() +
               "\u201d are open in another Tallyvane. Close that one first, then start again.");
        giveWay();
        return;
    }
    window1_ = std::make_unique<Window1>(toolbar_, menuBar);
    enableToolbar();
    window1_->Open();
    window1_->Visible(false);
    window1_->Timer1.Mode(Timer::ModeSingle);
}

/// A button whose window there is none of is off rather than dead.
void App::enableToolbar() {
    toolbar_.enable("ResourcesBtn", window1_->showResources != nullptr);
    toolbar_.enable("HeadingsBtn", window1_->showHeadingsEditor != nullptr);
    toolbar_.enable("LogsBtn", window1_->showLogs != nullptr);
    toolbar_.enable("TeamMedBtn", window1_->showTeamAndMedications != nullptr);
    toolbar_.enable("GraphBtn", window1_->showGraph != nullptr);
}

void App::showMainWindow() {
    StartUpManager::primaryWindow->Show();
    tellMissingDataFolder();
}

void App::tellMissingDataFolder() {
    const std::string missing = std::exchange(StartupGlobals::gMissingDataFolder, "");
    if (missing.empty() || !StartupGlobals::gDataFolder)
        return;
    MsgBox("The folder with your days is not there: \u201c" + missing + "\u201d. Until it is back, your days are kept in \u201c" +
           StartupGlobals::gDataFolder->AbsolutePath() + "\u201d.");
}

void App::comeToFront() {
    if (splash_ && splash_->isOpen())
        splash_->Show();
    else if (window1_ && window1_->isOpen())
        window1_->Show();
}

// Run and end

void App::run(const std::function<void()>& event) {
    try {
        event();
    } catch (...) {
        Event_UnhandledException();
    }
}

bool App::Event_UnhandledException() {
    MsgBox("An error has occured. You should quit Tallyvane now to save your data.");
    return false;
}

void App::Event_Deactivate() {
    if (window1_)
        window1_->saveData();
}

void App::Event_Close() {
    if (window1_)
        window1_->saveData();
}

// Menu items that hold for every window

void App::FileQuit_Action() {
    if (window1_)
        window1_->Close();
}

void App::FileAboutBrindlemarks_Action() { showSingle(about_); }

void App::HelpUsersGuide_Action() { ShowURL(TALLYVANE_GUIDE_URL); }

void App::HelpSupportForum_Action() { ShowURL(TALLYVANE_SUPPORT_URL); }

} // namespace tallyvane

#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "diary/window1.h"
#include "exchange/archive_window.h"
#include "exchange/export_window.h"
#include "exchange/import_window.h"
#include "graphwindow/graf_thing_window.h"
#include "platform/files/folder_item.h"
#include "platform/files/system_files.h"
#include "platform/windows/menus.h"
#include "records/file_window.h"
#include "records/info_window.h"
#include "records/logs_window.h"
#include "settings/edit_headings.h"
#include "settings/prefs_window.h"
#include "shell/about_window.h"
#include "shell/new_version_window.h"
#include "shell/outside_changes.h"
#include "shell/splash_window.h"
#include "shell/toolbar1.h"
#include "summary/summary_window.h"

namespace tallyvane {

/// The main window, kept for the splash window; null until it is there.
namespace StartUpManager {
extern Window1* primaryWindow;
}

/// The application: the order of start and end, the menu items that hold for every window, and the one catch-all.
class App {
public:
    App();
    App(const App&) = delete;
    App& operator=(const App&) = delete;
    ~App();

    /// What a second start does instead of starting: it asks the running program to come to the front.
    std::function<void()> wakeRunningProgram;
    /// What the first start does once it holds the application's folder: from here on it hears a second one.
    std::function<void()> listenForSecondStart;

    void Event_Open();
    void Event_Close();
    void Event_Deactivate();
    /// A signal, or the end of the desktop session: ends the program without a question.
    void Event_EndRequested();
    /// Saves all that closing would save; no window can be closed any more.
    void Event_DisplayLost();
    /// Shows the message of last resort. False: the exception counts as not handled.
    bool Event_UnhandledException();

    void HelpUsersGuide_Action();
    void HelpSupportForum_Action();
    void FileAboutBrindlemarks_Action();
    void FilePreferences_Action();
    void FileExportData_Action();
    void FileImportData_Action();
    void FileQuit_Action();

    /// Runs an event to its end, or to the catch-all. Every event of the program comes this way.
    void run(const std::function<void()>& event);
    /// Brings the main window, or the splash window while that is up, before all others.
    void comeToFront();
    /// Opens the import for a file of that path, once the main window is there; "" for none.
    void offerForImport(const std::string& path);

    /// All windows; each is null until it is first shown. The main window is null before Event_Open, and in a second
    /// start.
    struct Windows {
        std::unique_ptr<Window1> main;
        std::unique_ptr<SplashWindow> splash;
        std::unique_ptr<newVersionWindow> newVersion;
        std::unique_ptr<AboutWindow> about;
        std::unique_ptr<PrefsWindow> prefs;
        std::unique_ptr<EditHeadings> headings;
        std::unique_ptr<logsWindow> logs;
        std::unique_ptr<InfoWindow> info;
        std::unique_ptr<fileWindow> files;
        std::unique_ptr<GrafThingWindow> graph;
        std::unique_ptr<SummaryWindow> summary;
        std::unique_ptr<exportWindow> exporting;
        std::unique_ptr<importWindow> importing;
        std::unique_ptr<archiveWindow> archive;
    };
    const Windows& windows() const { return windows_; }

    MenuBar menuBar;

private:
    bool lock(const std::optional<FolderItem>& folder);
    bool prepareFiles();
    void createMainWindow();
    int resolveUnsaved(int code);
    void reportMissingDataFolder();
    void reportKeptJournal();
    void askAboutDates();
    void offerNewVersion(std::function<void()> done);
    void showOffer();
    void wakeFirstAndQuit();
    void wireWindows(Window1& window);
    void wireMenus(Window1& window);
    void showHeadingsEditor();

    Toolbar1 toolbar_;
    bool showingException_ = false;
    bool failedSaveReported_ = false; // since the last save that succeeded
    bool askingAboutUnsaved_ = false;
    bool endsWithoutQuestion_ = false;
    std::vector<std::unique_ptr<SystemFiles::FolderLock>> folderLocks_;
    std::string fileToImport_; // a path that waits for the main window; "" for none
    bool startMessagesShown_ = false; // the splash window, with all that had to be told
    std::function<void()> offerDone_; // of an offer that waits for the main window; empty for none
    Windows windows_;
    std::unique_ptr<OutsideChanges> outsideChanges_; // null until the splash window has gone
};

} // namespace tallyvane

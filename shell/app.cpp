#include "shell/app.h"

#include <exception>
#include <utility>

#include "diary/date_question.h"
#include "exchange/archive.h"
#include "platform/base/scoped_flag.h"
#include "platform/base/translation.h"
#include "platform/desktop/desktop.h"
#include "platform/files/save_each.h"
#include "platform/files/save_record.h"
#include "platform/windows/quit.h"
#include "reports/diary_report.h"
#include "settings/damaged_files.h"
#include "settings/data_files.h"
#include "settings/globals.h"
#include "settings/prefs_module.h"
#include "settings/rescued_files.h"
#include "settings/snapshots.h"
#include "settings/unfinished_saves.h"
#include "settings/unsaved_files.h"
#include "shell/menu_bar1.h"
#include "shell/unsaved_work.h"

namespace tallyvane {

Window1* StartUpManager::primaryWindow = nullptr;

namespace {

/// Shows the one window of its kind; one that was closed is made anew.
template <class W>
void showSingle(
    std::unique_ptr<W>& window,
    const std::function<std::unique_ptr<W>()>& make = [] { return std::make_unique<W>(); }) {
    if (!window || !window->isOpen())
        window = make();
    window->Show();
}

/// The page of the logs' window that shows a log.
logsWindow::Log pageOf(Search::Place log) {
    switch (log) {
    case Search::Place::food:
        return logsWindow::Log::food;
    case Search::Place::exercise:
        return logsWindow::Log::exercise;
    default:
        return logsWindow::Log::medication;
    }
}

} // namespace

App::App() : menuBar(MenuBar1()) {
    PrefsModule::createMainWindow = [this] { createMainWindow(); };
    beforeEnd = [this](int code) { return resolveUnsaved(code); };
    menuBar.handlers = {
        {"FileQuit", [this] { FileQuit_Action(); }},
        {"FileAboutBrindlemarks", [this] { FileAboutBrindlemarks_Action(); }},
        {"FilePreferences", [this] { FilePreferences_Action(); }},
        {"FileExportData", [this] { FileExportData_Action(); }},
        {"HelpUsersGuide", [this] { HelpUsersGuide_Action(); }},
        {"HelpSupportForum", [this] { HelpSupportForum_Action(); }},
    };
}

App::~App() {
    PrefsModule::createMainWindow = nullptr;
    beforeEnd = nullptr;
    UnsavedFiles::beforeWriting = nullptr;
    StartUpManager::primaryWindow = nullptr;
    SaveRecords::useFolder("");
}

// Start

void App::Event_Open() {
    const std::optional<FolderItem> folder = DataFiles::applicationFolder();
    if (!StartupGlobals::gDataFolder && folder && !folder->Exists())
        static_cast<void>(folder->CreateAsFolder()); // without it the diary runs, and has nowhere to save
    if (!lock(folder)) {
        wakeFirstAndQuit();
        return;
    }
    if (listenForSecondStart)
        listenForSecondStart();
    if (folder) {
        SystemFiles::closeToOthers(folder->AbsolutePath());
        SaveRecords::useFolder(folder->AbsolutePath());
    }
    const auto mayWriteIn = [this](const std::optional<FolderItem>& place) { return lock(place); };
    const std::vector<UnfinishedSaves::Finished> finished = UnfinishedSaves::finishAll(mayWriteIn);
    if (!UnsavedWork::offerRescued(mayWriteIn)) { // before anything is read
        Quit(1);
        return;
    }
    PrefsModule::getPrefs();
    if (!windows_.main)
        return;
    StartUpManager::primaryWindow = windows_.main.get();
    windows_.splash = std::make_unique<SplashWindow>();
    windows_.splash->showPrimaryWindow = [] { StartUpManager::primaryWindow->Show(); };
    windows_.splash->VersionCheckSocket1.offer = [this](std::function<void()> done) {
        offerNewVersion(std::move(done));
    };
    windows_.splash->handedOver = [this, finished] {
        reportMissingDataFolder();
        UnsavedWork::reportFinished(finished);
        UnsavedWork::reportUnreadable();
        reportKeptJournal();
        askAboutDates();
        outsideChanges_ = std::make_unique<OutsideChanges>(*windows_.main);
        outsideChanges_->watch();
        startMessagesShown_ = true;
        showOffer();
        offerForImport(std::exchange(fileToImport_, ""));
    };
    windows_.splash->Show();
}

/// Holds a folder for this program. False when another program holds it.
bool App::lock(const std::optional<FolderItem>& folder) {
    if (!folder || !folder->Directory())
        return true;
    for (const auto& held : folderLocks_)
        if (held->holds(folder->AbsolutePath()))
            return true;
    auto folderLock = SystemFiles::FolderLock::acquire(folder->AbsolutePath());
    if (!folderLock)
        return false;
    folderLocks_.push_back(std::move(folderLock));
    return true;
}

void App::wakeFirstAndQuit() {
    if (wakeRunningProgram)
        wakeRunningProgram();
    Quit(0);
}

/// Checks the files before they are loaded. False when the program must end: the table can't be read (an empty one must
/// not replace it), or a question was not answered.
bool App::prepareFiles() {
    if (DamagedFiles::tableIsUnreadable()) {
        MsgBox(
            tr("The file with your days is there and can't be read, in \u201c%1\u201d. Nothing is opened, so that it "
               "stays as it is.",
               {StartupGlobals::gDataFolder->AbsolutePath()}));
        return false;
    }
    return UnsavedWork::mayReadHuge() && UnsavedWork::offerCopies();
}

void App::createMainWindow() {
    if (!lock(StartupGlobals::gDataFolder)) {
        MsgBox(tr("The days in \u201c%1\u201d are open in another Tallyvane. Close that one first, then start again.",
                  {StartupGlobals::gDataFolder->AbsolutePath()}));
        wakeFirstAndQuit();
        return;
    }
    if (!prepareFiles()) {
        Quit(1);
        return;
    }
    UnsavedFiles::beforeWriting = [] { Snapshots::take(Date()); };
    UnsavedFiles::beforeWriting();
    auto window = std::make_unique<Window1>(toolbar_, menuBar);
    wireWindows(*window);
    wireMenus(*window);
    window->Open();
    window->Visible(false);
    window->Timer1.Mode(Timer::ModeSingle);
    windows_.main = std::move(window); // only now: a table that could not be loaded must never be saved
}

void App::wireWindows(Window1& window) {
    window.showHeadingsEditor = [this] { showHeadingsEditor(); };
    window.offerLimits = [this](const UsualLimits::Limits& limits) {
        FilePreferences_Action();
        windows_.prefs->useLimits(limits);
    };
    window.autosave = [this] { Event_Deactivate(); };
    window.logsBroughtIn = [this] {
        if (windows_.logs && windows_.logs->isOpen())
            windows_.logs->showGlobals();
    };
    window.showLogs = [this] { showSingle(windows_.logs); };
    window.showLogLine = [this](const Search::Hit& hit) {
        showSingle(windows_.logs);
        return windows_.logs->showLine(pageOf(hit.place), hit.number, hit.line);
    };
    window.showResources = [this] { showSingle(windows_.files); };
    window.closeResources = [this] {
        if (windows_.files)
            windows_.files->Close();
    };
    window.showTeamAndMedications = [this] { showSingle(windows_.info); };
    window.showGraph = [this, &table = window.ListBox1] {
        showSingle<GrafThingWindow>(windows_.graph, [&table] { return std::make_unique<GrafThingWindow>(table); });
    };
    window.showSummary = [this, &window] {
        showSingle<SummaryWindow>(windows_.summary, [&window] {
            auto summary = std::make_unique<SummaryWindow>(window.ListBox1);
            summary->selectRows = [&window](const std::vector<bool>& rows) {
                window.Show();
                window.selectRows(rows);
            };
            return summary;
        });
    };
    window.daysChanged = [this] {
        if (windows_.summary && windows_.summary->isOpen())
            windows_.summary->daysChanged();
    };
}

/// The items that hold only while the main window is in front.
void App::wireMenus(Window1& window) {
    const Listbox& days = window.ListBox1;
    window.menuHandlers.insert({
        {"FileImportData", [this] { FileImportData_Action(); }},
        {"FileArchiveSelectedDays", [&days] { FileArchiveSelectedDays_Action(days); }},
        {"FileOpenArchivedDays", [this] { FileOpenArchivedDays_Action(windows_.archive); }},
        {"FileSaveAsPDF", [&window] { DiaryReport(window).FileSaveAsPDF_Action(); }},
        {"FilePrintSetup", [] { FilePrintSetup_Action(); }},
        {"FilePrint", [&window] { DiaryReport(window).FilePrint_Action(); }},
        {"FilePrintSelected", [&window] { static_cast<void>(DiaryReport(window).FilePrintSelected_Action()); }},
    });
}

void App::showHeadingsEditor() {
    showSingle<EditHeadings>(windows_.headings, [this] {
        auto editor = std::make_unique<EditHeadings>();
        editor->showHeadings = [this](const Headings& headings) { windows_.main->showHeadings(headings); };
        return editor;
    });
}

void App::reportMissingDataFolder() {
    const std::string& missing = StartupGlobals::gMissingDataFolder;
    if (missing.empty() || !StartupGlobals::gDataFolder)
        return;
    MsgBox(tr("The folder with your days is not there: \u201c%1\u201d. Until it is back, your days are kept in "
              "\u201c%2\u201d.",
              {missing, StartupGlobals::gDataFolder->AbsolutePath()}));
}

void App::reportKeptJournal() {
    if (!windows_.main->keptJournal.empty())
        MsgBox(
            tr("The journal shows the file \u201cTallyvane Journal\u201d, as it does at every start while that file is "
               "there. What the journal held before is kept in \u201c%1\u201d.",
               {windows_.main->keptJournal}));
}

/// Dates that another desktop has written. Until there is an answer the table is not saved.
void App::askAboutDates() {
    const DateForms::Findings& dates = windows_.main->datesInQuestion();
    if (const auto days = dates.isEmpty() ? std::nullopt : DateQuestion::ask(dates))
        windows_.main->answerDates(*days);
}

/// The offer belongs to the main window, and waits until that is there.
void App::offerNewVersion(std::function<void()> done) {
    offerDone_ = std::move(done);
    if (startMessagesShown_)
        showOffer();
}

void App::showOffer() {
    const std::function<void()> done = std::exchange(offerDone_, nullptr);
    if (!done)
        return;
    if (!windows_.main->isOpen()) {
        done();
        return;
    }
    windows_.newVersion = std::make_unique<newVersionWindow>(*windows_.main, VersionCheck::theAppName);
    windows_.newVersion->closed = done;
    windows_.newVersion->Show();
}

void App::comeToFront() {
    if (windows_.splash && windows_.splash->isOpen())
        windows_.splash->Show();
    else if (windows_.main && windows_.main->isOpen())
        windows_.main->Show();
}

void App::offerForImport(const std::string& path) {
    if (path.empty())
        return;
    if (!startMessagesShown_) {
        fileToImport_ = path;
        return;
    }
    const SystemFiles::Kind kind = SystemFiles::kindOf(path);
    if (kind == SystemFiles::Kind::none) {
        MsgBox(tr("\u201c%1\u201d can't be imported: there is no such file.", {path}));
    } else if (kind != SystemFiles::Kind::file) {
        MsgBox(tr("\u201c%1\u201d can't be imported: it is no file.", {path}));
    } else if (windows_.importing && windows_.importing->isReading()) {
        MsgBox(tr("\u201c%1\u201d can't be imported while another import is going on.", {path}));
    } else {
        FileImportData_Action();
        windows_.importing->offer(*GetFolderItem(path));
    }
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
    // While the message is up, each switch to another program saves again and may fail again: one message is enough.
    if (showingException_)
        return false;
    const ScopedFlag showing(showingException_);
    MsgBox(tr("An error has occured. You should quit Tallyvane now to save your data."));
    return false;
}

void App::Event_Deactivate() {
    if (!windows_.main || askingAboutUnsaved_)
        return;
    const auto saveOpenLogs = [this] {
        if (windows_.logs && windows_.logs->isOpen())
            windows_.logs->saveChanged();
    };
    const auto saveVisitTexts = [this] {
        if (windows_.summary && windows_.summary->isOpen())
            windows_.summary->saveTexts();
    };
    std::exception_ptr failure;
    try {
        saveEach({[this] { windows_.main->saveChanged(); }, saveOpenLogs, saveVisitTexts});
    } catch (const IOException&) {
        failure = std::current_exception();
    }
    UnsavedFiles::tryAgain();
    if (UnsavedFiles::all().empty())
        failedSaveReported_ = false;
    else if (failure && !std::exchange(failedSaveReported_, true))
        std::rethrow_exception(failure); // once until everything is saved, not at every switch to another program
}

void App::Event_EndRequested() {
    endsWithoutQuestion_ = true;
    if (askingAboutUnsaved_)
        Desktop::current().quit(1); // closes the question; resolveUnsaved then keeps the files for the next start
    else
        FileQuit_Action();
}

/// Asks the user about unsaved files, or keeps them for the next start when nobody can be asked. Returns the exit code.
int App::resolveUnsaved(int code) {
    UnsavedFiles::tryAgain(); // an hour after a full disk there may be room
    if (UnsavedFiles::all().empty())
        return code;
    if (!endsWithoutQuestion_) {
        const ScopedFlag asking(askingAboutUnsaved_);
        switch (UnsavedWork::ask()) {
        case UnsavedWork::Outcome::saved:
            return code;
        case UnsavedWork::Outcome::givenUp:
            return 1;
        case UnsavedWork::Outcome::unanswered:
            break;
        }
    }
    RescuedFiles::keep();
    return UnsavedFiles::all().empty() ? code : 1;
}

void App::Event_DisplayLost() {
    const std::vector<Window*> windows = Window::openWindows();
    for (Window* window : windows)
        if (window != windows_.main.get())
            run([window] { window->Event_Close(); });
    if (windows_.main && windows_.main->isOpen())
        run([this] { windows_.main->saveAll(); });
    RescuedFiles::keep();
}

void App::Event_Close() {
    try {
        if (windows_.main)
            windows_.main->saveData();
    } catch (const IOException&) { // the user has decided about it
    }
}

// Menu items that hold for every window

void App::FileQuit_Action() {
    if (windows_.main)
        windows_.main->Close();
    else
        Quit(0);
}

void App::FileAboutBrindlemarks_Action() { showSingle(windows_.about); }

void App::FilePreferences_Action() {
    showSingle<PrefsWindow>(windows_.prefs, [this] {
        auto prefs = std::make_unique<PrefsWindow>();
        prefs->startIndicatorTimer = [this] {
            if (windows_.main)
                windows_.main->Timer1.Mode(Timer::ModeSingle);
        };
        return prefs;
    });
}

void App::FileExportData_Action() {
    if (windows_.main)
        showSingle<exportWindow>(windows_.exporting,
                                 [this] { return std::make_unique<exportWindow>(windows_.main->ListBox1); });
}

void App::FileImportData_Action() {
    if (windows_.main)
        showSingle<importWindow>(windows_.importing,
                                 [this] { return std::make_unique<importWindow>(windows_.main->ListBox1); });
}

void App::HelpUsersGuide_Action() { ShowURL(TALLYVANE_GUIDE_URL); }

void App::HelpSupportForum_Action() { ShowURL(TALLYVANE_SUPPORT_URL); }

} // namespace tallyvane

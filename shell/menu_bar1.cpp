#include "shell/menu_bar1.h"

#include "platform/base/translation.h"

namespace tallyvane {

namespace {

/// Stays disabled until the window in front enables it.
constexpr bool manual = false;

Menu editMenu() {
    return {"EditMenu",
            tr("&Edit"),
            {
                {"EditUndo", tr("&Undo"), "Cmd+Z", MenuRole::undo, manual},
                {"EditRedo", tr("&Redo"), "Cmd+Shift+Z; Cmd+Y", MenuRole::redo, manual},
                {"UntitledMenu1", ""},
                {"EditCut", tr("Cu&t"), "Cmd+X", MenuRole::cut},
                {"EditCopy", tr("&Copy"), "Cmd+C", MenuRole::copy},
                {"EditPaste", tr("&Paste"), "Cmd+V", MenuRole::paste},
                {"EditClear", tr("&Delete"), "", MenuRole::clear},
                {"UntitledMenu0", ""},
                {"EditSelectAll", tr("Select &All"), "Cmd+A", MenuRole::selectAll},
            }};
}

Menu fileMenu() {
    return {"FileMenu",
            tr("&File"),
            {
                {"FileQuit", tr("Quit"), "Cmd+Q", MenuRole::quit},
                {"FileImportData", tr("Import Data..."), "", MenuRole::none, manual},
                {"FileExportData", tr("Export Data...")},
                {"File", ""},
                {"FileSaveAsPDF", tr("Save As PDF..."), "Cmd+S", MenuRole::none, manual},
                {"UntitledSeparator", ""},
                {"FileArchiveSelectedDays", tr("Archive Selected Days..."), "", MenuRole::none, manual},
                {"FileOpenArchivedDays", tr("Open Archived Days..."), "", MenuRole::none, manual},
                {"UntitledItem1", ""},
                {"FilePrintSetup", tr("Print Setup..."), "Cmd+Shift+P"},
                {"FilePrint", tr("Print All..."), "Cmd+P"},
                {"FilePrintSelected", tr("Print Selected..."), "", MenuRole::none, manual},
                {"FileAboutBrindlemarks", tr("About Tallyvane"), "", MenuRole::about},
                {"FilePreferences", tr("Preferences"), "Cmd+,", MenuRole::preferences},
            }};
}

Menu daysMenu() {
    return {"DaysMenu",
            tr("&Days"),
            {
                {"DaysGoTo", tr("&Go to Day..."), "Cmd+G"},
                {"DaysToday", tr("&Today"), "Cmd+T"},
                {"DaysFind", tr("&Find..."), "Cmd+F"},
                {"DaysSummary", tr("&Summary..."), "Cmd+Shift+S"},
                {"DaysSeparator1", ""},
                {"DaysSelectLast7", tr("Select Last &7 Days")},
                {"DaysSelectLast14", tr("Select Last &14 Days")},
                {"DaysSelectLast30", tr("Select Last &30 Days")},
                {"DaysSelectLast90", tr("Select Last &90 Days")},
                {"DaysSelectThisMonth", tr("Select This &Month")},
                {"DaysSelectLastMonth", tr("Select &Last Month")},
                {"DaysSeparator2", ""},
                {"DaysSelectAll", tr("Select &All Days")},
                {"DaysSelectNone", tr("Select &None")},
            }};
}

Menu helpMenu() {
    return {"HelpMenu",
            tr("Help"),
            {
                {"HelpUsersGuide", tr("User's Guide"), "Cmd+?"},
                {"HelpSupportForum", tr("Support")},
            }};
}

} // namespace

MenuBar MenuBar1() { return MenuBar({editMenu(), fileMenu(), daysMenu(), helpMenu()}); }

} // namespace tallyvane

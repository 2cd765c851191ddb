#include "shell/menu_bar1.h"

namespace tallyvane {

namespace {

/// Stays disabled until the window in front enables it.
constexpr bool manual = false;

Menu editMenu() {
    return {"EditMenu",
            "&Edit",
            {
                {"EditUndo", "&Undo", "Cmd+Z", MenuRole::undo},
                {"UntitledMenu1", ""},
                {"EditCut", "Cu&t", "Cmd+X", MenuRole::cut},
                {"EditCopy", "&Copy", "Cmd+C", MenuRole::copy},
                {"EditPaste", "&Paste", "Cmd+V", MenuRole::paste},
                {"EditClear", "&Delete", "", MenuRole::clear},
                {"UntitledMenu0", ""},
                {"EditSelectAll", "Select &All", "Cmd+A", MenuRole::selectAll},
            }};
}

Menu fileMenu() {
    return {"FileMenu",
            "&File",
            {
                {"FileQuit", "Quit", "Cmd+Q", MenuRole::quit},
                {"FileImportData", "Import Data...", "", MenuRole::none, manual},
                {"FileExportData", "Export Data..."},
                {"File", ""},
                {"FileSaveAsPDF", "Save As PDF...", "Cmd+S", MenuRole::none, manual},
                {"UntitledSeparator", ""},
                {"FileArchiveSelectedDays", "Archive Selected Days...", "", MenuRole::none, manual},
                {"FileOpenArchivedDays", "Open Archived Days...", "", MenuRole::none, manual},
                {"UntitledItem1", ""},
                {"FilePrintSetup", "Print Setup...", "Cmd+Shift+P"},
                {"FilePrint", "Print All...", "Cmd+P"},
                {"FilePrintSelected", "Print Selected...", "", MenuRole::none, manual},
                {"FileAboutBrindlemarks", "About Tallyvane", "", MenuRole::about},
                {"FilePreferences", "Preferences", "Cmd+,", MenuRole::preferences},
            }};
}

Menu helpMenu() {
    return {"HelpMenu",
            "Help",
            {
                {"HelpUsersGuide", "User's Guide", "Cmd+?"},
                {"HelpSupportForum", "Support"},
            }};
}

} // namespace

MenuBar MenuBar1() { return MenuBar({editMenu(), fileMenu(), helpMenu()}); }

} // namespace tallyvane

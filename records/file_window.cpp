#include "records/file_window.h"

#include <array>

#include "platform/base/text.h"
#include "platform/base/translation.h"
#include "platform/desktop/desktop.h"
#include "platform/files/text_output_stream.h"
#include "platform/windows/dialogs.h"
#include "platform/windows/wiring.h"
#include "settings/data_files.h"
#include "settings/globals.h"
#include "settings/line_merge.h"
#include "settings/list_colors.h"
#include "settings/unsaved_files.h"

namespace tallyvane {

namespace {

constexpr int nameColumn = 0;
constexpr int targetColumn = 1;

bool isWebAddress(std::string_view text) { return InStr(text, "www") > 0; }
bool isMailAddress(std::string_view text) { return InStr(text, "@") > 0; }
bool isLink(std::string_view text) { return isWebAddress(text) || isMailAddress(text); }

UnsavedFiles::UserFile userFile() {
    return UnsavedFiles::UserFile::ofInnerFolder(tr("The links"), DataFiles::resources);
}

constexpr std::array separators{DataFiles::subfieldSeparator, DataFiles::entrySeparator};

/// The separator that a text holds, and that would split its entry in the file; "" for none.
std::string_view separatorIn(std::string_view text) {
    for (const std::string_view separator : separators)
        if (InStr(text, separator) > 0)
            return separator;
    return "";
}

void reportSeparator(const std::string& name, std::string_view separator) {
    MsgBox(tr("\u201c%1\u201d can't be kept in this list, since the file of the list puts \u201c%2\u201d between its "
              "entries.",
              {name, std::string(separator)}));
}

/// Adds a blank after a final "@", which would otherwise merge with the "@@@" that follows the name in the file.
std::string storableName(const std::string& name) { return name.ends_with('@') ? name + ' ' : name; }

/// Removes "#" at the end: it points nowhere, and would merge with the "###" that follows the link in the file.
std::string withoutEmptyFragment(std::string_view link) {
    return std::string(link.substr(0, link.find_last_not_of('#') + 1));
}

/// What is dropped may hold line ends; the list and its file have lines of one.
std::string droppedLine(std::string_view text) { return Trim(ReplaceLineEndings(text, " ")); }

} // namespace

fileWindow::fileWindow() {
    shape(Kind::document, 330, 420, 260, anySize);
    Title(tr("Files"));
    place({
        {&StaticText1, {16, 12, 220, 28}},
        {&UtilityButton1, {290, 14, 24, 24}},
        {&ListBox1, {16, 46, 298, 320}, lockAll},
        {&BevelButton1, {16, 378, 28, 28}, lockLeft | lockBottom},
        {&BevelButton2, {50, 378, 28, 28}, lockLeft | lockBottom},
        {&PushButton1, {208, 376, 106, 30}, lockLeft | lockBottom},
    });
    StaticText1.Text(tr("Resource Links:"));
    ListBox1.ColumnWidths("100%");
    ListBox1.HasHeading(false);
    ListBox1.Colors(listColors);
    ListBox1.Border(true);
    ListBox1.AcceptFileDrop("all");
    ListBox1.AcceptTextDrop();
    ListBox1.DefaultRowHeight(22);
    ListBox1.TextSize(14);
    ListBox1.AccessibleName(tr("Resources"));
    BevelButton1.Caption("+");
    BevelButton1.HelpTag(tr("Add a file"));
    BevelButton2.Caption("\u2212");
    BevelButton2.HelpTag(tr("Remove the selected entry"));
    BevelButton2.Enabled(false);
    UtilityButton1.ButtonType = AutoButton::addButton;
    UtilityButton1.HelpTag(tr("Add a file"));
    for (Control* button : std::initializer_list<Control*>{&BevelButton1, &BevelButton2, &UtilityButton1})
        button->AccessibleName(button->HelpTag());
    PushButton1.Caption(tr("Close"));
    focusFirst(ListBox1);

    ListBox1.CellBackgroundPaint = [this](Graphics& g, int row, int column) {
        return ListBox1_CellBackgroundPaint(g, row, column);
    };
    ListBox1.CellCommandClick = [this](int row, int column) { ListBox1_CellCommandClick(row, column); };
    ListBox1.CellTextChange = [this](int row, int column) { ListBox1_CellTextChange(row, column); };
    ListBox1.DropObject = [this](const DragItem& item) { ListBox1_DropObject(item); };
    handleUndoItems(
        *this, [this]() -> ListHistory& { return history_; }, [this] { showListAnew(); });
    Wiring(*this).connect({
        {ListBox1.Change, &fileWindow::ListBox1_Change},
        {ListBox1.DoubleClick, &fileWindow::ListBox1_DoubleClick},
        {BevelButton1.Action, &fileWindow::BevelButton1_Action},
        {BevelButton2.Action, &fileWindow::BevelButton2_Action},
        {UtilityButton1.Action, &fileWindow::BevelButton1_Action},
        {PushButton1.Action, &fileWindow::PushButton1_Action},
    });
}

// Opening and closing

void fileWindow::Event_Open() {
    getFileList();
    UnsavedFiles::setBaseline(userFile(), textOfList());
    Globals::gFileWindowOpen = true;
}

void fileWindow::Event_Close() {
    Globals::gFileWindowOpen = false;
    try {
        saveFileList();
    } catch (const IOException&) {
        Globals::gFileWindowOpen = true; // the window stays
        throw;
    }
}

void fileWindow::getFileList() {
    const std::optional<FolderItem> file = DataFiles::innerFile(DataFiles::resources);
    if (file && file->Exists())
        listFile = file;
    std::optional<TextInputStream> stream = UnsavedFiles::openText(userFile());
    if (!stream)
        return;
    appendEntries(stream->ReadAll());
}

void fileWindow::appendEntries(std::string_view text) {
    text = text.substr(0, text.find_last_not_of("\r\n") + 1); // the line end behind the last target
    for (FieldWalk entries(text, DataFiles::entrySeparator); !entries.atEnd();) {
        FieldWalk parts(entries.next(), DataFiles::subfieldSeparator);
        ListBox1.AddRow(parts.next());
        const int row = ListBox1.LastIndex();
        ListBox1.Cell(row, targetColumn, parts.next());
        if (isLink(ListBox1.Cell(row, targetColumn)))
            ListBox1.RowPicture(row, Picture("webFileIcon.png"));
    }
}

std::string fileWindow::textOfList() const {
    TextWriter list;
    for (int row = 0; row < ListBox1.ListCount(); ++row) {
        if (row > 0)
            list.Write(DataFiles::entrySeparator);
        list.Write(storableName(ListBox1.Cell(row, nameColumn)));
        list.Write(DataFiles::subfieldSeparator);
        list.Write(ListBox1.Cell(row, targetColumn));
    }
    list.WriteLine("");
    return list.text();
}

/// Joins the entries with what another program has made of their file.
void fileWindow::bringInChanges() {
    const auto join = [](const std::string& base, const std::string& here, const std::string& there) {
        const auto entriesOf = [](std::string_view text) { return text.substr(0, text.find_last_not_of("\r\n") + 1); };
        return joinParts(entriesOf(base), entriesOf(here), entriesOf(there), DataFiles::entrySeparator) + EndOfLine;
    };
    const std::optional<std::string> joined = UnsavedFiles::joinOutside(userFile(), textOfList(), join);
    if (!joined)
        return;
    ListBox1.beginStep(tr("Changes of Another Program"));
    ListBox1.DeleteAllRows();
    appendEntries(*joined);
}

bool fileWindow::saveFileList() {
    bringInChanges();
    if (ListBox1.ListCount() == 0) {
        UnsavedFiles::forget(userFile()); // what waits has been removed since
        return false;
    }
    return UnsavedFiles::save(userFile(), textOfList());
}

// Adding and removing

void fileWindow::addFile(const FolderItem& file) {
    const std::string name = droppedLine(file.DisplayName());
    if (const std::string_view separator = separatorIn(name); !separator.empty()) {
        reportSeparator(name, separator);
        return;
    }
    ListBox1.beginStep(tr("Addition of %1", {name}));
    ListBox1.AddRow(name);
    ListBox1.Cell(ListBox1.LastIndex(), targetColumn, file.GetSaveInfo());
    saveFileList();
}

void fileWindow::addLink(const std::string& link) {
    if (const std::string_view separator = separatorIn(link); !separator.empty()) {
        reportSeparator(link, separator);
        return;
    }
    ListBox1.beginStep(tr("Addition of %1", {link}));
    ListBox1.AddRow(link);
    ListBox1.Cell(ListBox1.LastIndex(), targetColumn, link);
    if (saveFileList()) {
        ListBox1.DeleteAllRows();
        getFileList();
    }
    ListBox1.RowPicture(ListBox1.ListCount() - 1, Picture("webFileIcon.png"));
}

void fileWindow::BevelButton1_Action() {
    if (const std::optional<FolderItem> file = OpenDialog{tr("Select a file")}.ShowModal())
        addFile(*file);
}

void fileWindow::ListBox1_DropObject(const DragItem& item) {
    if (item.file)
        addFile(*item.file);
    else if (!item.text)
        Beep();
    else if (isLink(*item.text))
        addLink(withoutEmptyFragment(droppedLine(*item.text)));
    else
        MsgBox(tr("\u201c%1\u201d is not added: a web address has \u201cwww\u201d in it, and an e-mail address "
                  "\u201c@\u201d.",
                  {droppedLine(*item.text)}));
}

void fileWindow::BevelButton2_Action() {
    ListBox1.beginStep(tr("Removal of %1", {ListBox1.Cell(ListBox1.ListIndex(), nameColumn)}));
    ListBox1.RemoveRow(ListBox1.ListIndex());
    deleteEmptyList();
}

/// An empty list leaves no file, once there was one; but what another program has put there stays.
void fileWindow::deleteEmptyList() {
    if (ListBox1.ListCount() == 0 && listFile && !UnsavedFiles::changedOutside(userFile()))
        listFile->Delete();
}

/// After a step was undone or redone.
void fileWindow::showListAnew() {
    ListBox1_Change();
    if (const std::optional<FolderItem> file = DataFiles::innerFile(DataFiles::resources); file && file->Exists())
        listFile = file; // also one that came with what is undone now
    deleteEmptyList();
    saveFileList();
}

// The list

bool fileWindow::ListBox1_CellBackgroundPaint(Graphics& g, int /*row*/, int /*column*/) {
    g.ForeColor(RGB(240, 240, 240));
    g.FillRect(0, 0, g.Width(), g.Height());
    return false;
}

void fileWindow::ListBox1_Change() { BevelButton2.Enabled(ListBox1.ListIndex() >= 0); }

void fileWindow::ListBox1_DoubleClick() {
    const std::string& target = ListBox1.Cell(ListBox1.ListIndex(), targetColumn);
    if (const std::optional<FolderItem> file = FolderItem::GetRelative(target))
        file->Launch();
    else if (isMailAddress(target))
        ShowMail(target);
    else if (isWebAddress(target))
        ShowURL(target);
    else if (!target.empty())
        MsgBox(tr(target.starts_with("file:") ? "\u201c%1\u201d can't be opened: the file is not there any more."
                                              : "\u201c%1\u201d can't be opened: it is no file, web or e-mail address.",
                  {ListBox1.Cell(ListBox1.ListIndex(), nameColumn)}));
}

/// A separator that is being typed into a name is refused, as it would split the entry in the file.
void fileWindow::ListBox1_CellTextChange(int row, int column) {
    std::string name = ListBox1.Cell(row, column);
    if (separatorIn(name).empty())
        return;
    Beep();
    while (!separatorIn(name).empty())
        name = ReplaceAll(name, separatorIn(name), separatorIn(name).substr(1));
    ListBox1.Cell(row, column, name);
}

void fileWindow::ListBox1_CellCommandClick(int row, int column) { ListBox1.EditCell(row, column); }

} // namespace tallyvane

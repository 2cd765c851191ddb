#include "records/file_window.h"

#include "platform/dialogs.h"
#include "platform/text.h"
#include "platform/toolkit.h"
#include "platform/translation.h"
#include "settings/data_files.h"
#include "settings/globals.h"

namespace tallyvane {

namespace {

constexpr int nameColumn = 0;
constexpr int targetColumn = 1;
constexpr unsigned lockAll = lockLeft | lockTop | lockRight | lockBottom;

bool isWebAddress(std::string_view text) { return InStr(text, "www") > 0; }
bool isMailAddress(std::string_view text) { return InStr(text, "@") > 0; }
bool isLink(std::string_view text) { return isWebAddress(text) || isMailAddress(text); }

/// A name that no separator can be found in, nor at its end together with the separator that follows.
std::string storableName(std::string name) {
    for (const std::string_view separator : {DataFiles::subfieldSeparator, DataFiles::entrySeparator})
        while (InStr(name, separator) > 0)
            name = ReplaceAll(name, separator, separator.substr(1));
    if (name.ends_with('@') || name.ends_with('#'))
        name += ' ';
    return name;
}

/// A target in which no separator can be found: inside, its characters are encoded as addresses allow it. A "#" at its
/// end leads nowhere, and would become part of the separator that follows; line ends there are not kept.
std::string storableTarget(std::string_view target) {
    target = target.substr(0, target.find_last_not_of("#\r\n") + 1);
    return ReplaceAll(ReplaceAll(target, DataFiles::entrySeparator, "%23%23%23"), DataFiles::subfieldSeparator,
                      "%40%40%40");
}

/// What is dropped may hold line ends; the list and its file have lines of one.
std::string inOneLine(std::string_view text) { return Trim(ReplaceLineEndings(text, " ")); }

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

    ListBox1.CellBackgroundPaint = [this](Graphics& g, int row, int column) {
        return ListBox1_CellBackgroundPaint(g, row, column);
    };
    ListBox1.Change = [this] { ListBox1_Change(); };
    ListBox1.DoubleClick = [this] { ListBox1_DoubleClick(); };
    ListBox1.CellCommandClick = [this](int row, int column) { ListBox1_CellCommandClick(row, column); };
    ListBox1.DropObject = [this](const DragItem& item) { ListBox1_DropObject(item); };
    BevelButton1.Action = [this] { BevelButton1_Action(); };
    BevelButton2.Action = [this] { BevelButton2_Action(); };
    UtilityButton1.Action = [this] { BevelButton1_Action(); };
    PushButton1.Action = [this] { PushButton1_Action(); };
}

// Opening and closing

void fileWindow::Event_Open() {
    getFileList();
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
    if (!file || !file->Exists())
        return;
    listFile = file;
    std::optional<TextInputStream> stream = file->OpenAsTextFile();
    if (!stream)
        return;
    std::string_view text = stream->ReadAll();
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

bool fileWindow::saveFileList() {
    if (ListBox1.ListCount() == 0)
        return false;
    std::optional<TextOutputStream> stream = DataFiles::createText(DataFiles::innerFileToWrite(DataFiles::resources));
    if (!stream)
        return false;
    for (int row = 0; row < ListBox1.ListCount(); ++row) {
        if (row > 0)
            stream->Write(DataFiles::entrySeparator);
        stream->Write(storableName(ListBox1.Cell(row, nameColumn)));
        stream->Write(DataFiles::subfieldSeparator);
        stream->Write(storableTarget(ListBox1.Cell(row, targetColumn)));
    }
    stream->WriteLine("");
    stream->Close();
    return true;
}

// Adding and removing

void fileWindow::addFile(const FolderItem& file) {
    ListBox1.AddRow(inOneLine(file.DisplayName()));
    ListBox1.Cell(ListBox1.LastIndex(), targetColumn, file.GetSaveInfo());
    saveFileList();
}

void fileWindow::addLink(const std::string& link) {
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
        addLink(inOneLine(*item.text));
}

void fileWindow::BevelButton2_Action() {
    ListBox1.RemoveRow(ListBox1.ListIndex());
    if (ListBox1.ListCount() == 0 && listFile)
        listFile->Delete();
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
}

void fileWindow::ListBox1_CellCommandClick(int row, int column) { ListBox1.EditCell(row, column); }

} // namespace tallyvane

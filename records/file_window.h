#pragma once

#include <optional>

#include "auto_button/auto_button.h"
#include "platform/controls/list_history.h"
#include "platform/windows/undo_items.h"
#include "platform/windows/window.h"

namespace tallyvane {

/// What the user wants at hand: files, web pages, e-mail addresses. Each entry has a name, which shows, and a target.
/// It is saved at every addition and at every way of closing.
class fileWindow : public Window {
public:
    fileWindow();

    StaticText StaticText1; // "Resource Links:"
    Listbox ListBox1{2}; // name; unseen, the target
    BevelButton BevelButton1, BevelButton2; // "+", "-"
    AutoButton UtilityButton1; // as "+"
    PushButton PushButton1; // Close

    /// The file that keeps the list, once it was found on disk.
    std::optional<FolderItem> listFile;

    void Event_Open() override;
    void Event_Close() override;
    void Event_EnableMenuItems(MenuBar& menuBar) override { enableUndoItems(menuBar, history_); }

    /// Adds the entries of the file to the list.
    void getFileList();
    /// Saves the list; true when it was written. False when the list is empty (the file keeps its entries) or the file
    /// can't be opened. Throws IOException when the disk fails.
    bool saveFileList();

    bool ListBox1_CellBackgroundPaint(Graphics& g, int row, int column);
    void ListBox1_Change();
    void ListBox1_DoubleClick();
    void ListBox1_CellCommandClick(int row, int column);
    void ListBox1_CellTextChange(int row, int column);
    void ListBox1_DropObject(const DragItem& item);
    void BevelButton1_Action();
    void BevelButton2_Action();
    void PushButton1_Action() { Close(); }

private:
    void appendEntries(std::string_view text);
    void bringInChanges();
    void addFile(const FolderItem& file);
    void addLink(const std::string& link);
    std::string textOfList() const;
    void showListAnew();
    void deleteEmptyList();

    ListHistory history_{ListBox1};
};

} // namespace tallyvane

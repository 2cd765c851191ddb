#include "records/info_window.h"

#include <optional>
#include <utility>

#include "platform/base/text.h"
#include "platform/base/translation.h"
#include "platform/controls/keys.h"
#include "platform/desktop/desktop.h"
#include "platform/files/save_each.h"
#include "platform/windows/undo_items.h"
#include "records/row_file.h"
#include "reports/listbox_print_all.h"
#include "settings/data_files.h"

namespace tallyvane {

namespace {

constexpr int addressColumn = 4;

std::string team() { return tr("The care team"); }
std::string schedule() { return tr("The medication schedule"); }

struct CellPlace {
    int row;
    int column;
};

/// The cell beside the open one that a key leads to; the open one itself at the edge. Nothing for a key that does not
/// move.
std::optional<CellPlace> cellBeside(const Listbox& list, CellPlace cell, const std::string& key) {
    CellPlace next = cell;
    if (key == Keys::up)
        --next.row;
    else if (key == Keys::down)
        ++next.row;
    else if (key == Keys::left)
        --next.column;
    else if (key == Keys::right || key == Keys::tab)
        ++next.column;
    else
        return std::nullopt;
    const bool exists =
        next.row >= 0 && next.row < list.ListCount() && next.column >= 0 && next.column < list.ColumnCount();
    return exists ? next : cell;
}

void editCellWithAllSelected(Listbox& list, CellPlace cell) {
    list.EditCell(cell.row, cell.column);
    list.ActiveCell().SelectAll();
}

} // namespace

// Opening and closing

void InfoWindow::Event_Open() {
    getContacts();
    getMeds();
    RowFile::setBaseline(ListBox1, team(), DataFiles::contacts);
    RowFile::setBaseline(ListBox2, schedule(), DataFiles::medications);
}

void InfoWindow::Event_Close() { saveBoth(); }

void InfoWindow::saveBoth() {
    saveEach({[this] { saveContacts(); }, [this] { saveMeds(); }});
}

void InfoWindow::getContacts() {
    if (RowFile::load(ListBox1, DataFiles::contacts, true))
        ListBox1.ListIndex(0);
}

void InfoWindow::getMeds() { RowFile::load(ListBox2, DataFiles::medications, false); }

void InfoWindow::saveContacts() { RowFile::save(ListBox1, team(), DataFiles::contacts); }

void InfoWindow::saveMeds() { RowFile::save(ListBox2, schedule(), DataFiles::medications); }

void InfoWindow::PushButton1_Action() {
    saveBoth();
    Close();
}

// Contacts

void InfoWindow::enableDetails(bool on) {
    BevelButton2.Enabled(on);
    for (TextField* field : {&EditField2, &EditField3, &EditField4})
        field->Enabled(on);
    EditField5.Enabled(on);
}

void InfoWindow::clearDetails() {
    ignoreIt = true;
    for (TextField* field : {&EditField2, &EditField3, &EditField4})
        field->Text("");
    EditField5.Text("");
    ignoreIt = false;
}

void InfoWindow::ListBox1_Change() {
    detailColumn_ = 0;
    const int row = ListBox1.ListIndex();
    enableDetails(row >= 0);
    if (row < 0) {
        clearDetails();
        return;
    }
    EditField2.Text(ListBox1.Cell(row, 1));
    EditField3.Text(ListBox1.Cell(row, 2));
    EditField4.Text(ListBox1.Cell(row, 3));
    EditField5.Text(ReplaceAll(ListBox1.Cell(row, addressColumn), DataFiles::lineEndMark, EndOfLine));
}

void InfoWindow::storeDetail(int column, const std::string& text) {
    const int row = ListBox1.ListIndex();
    const std::string stored = ReplaceAll(text, EndOfLine, DataFiles::lineEndMark);
    if (ignoreIt || stored == ListBox1.Cell(row, column))
        return;
    if (std::exchange(detailColumn_, column) != column)
        ListBox1.beginTyping(row);
    ListBox1.Cell(row, column, stored);
}

void InfoWindow::BevelButton1_Action() {
    ListBox1.beginStep(tr("New Contact"));
    ListBox1.AddRow(tr("new contact"));
    ListBox1.ListIndex(ListBox1.LastIndex());
    clearDetails();
    EditField2.SetFocus();
}

void InfoWindow::BevelButton2_Action() {
    ListBox1.beginStep(tr("Removal of %1", {ListBox1.Cell(ListBox1.ListIndex(), 0)}));
    ListBox1.RemoveRow(ListBox1.ListIndex());
    clearDetails();
}

void InfoWindow::Canvas2_Action() {
    const std::string& address = EditField4.Text();
    if (InStr(address, "@") == 0)
        MsgBox(tr("Not a valid email address"));
    else
        ShowMail(address);
}

// Medications

void InfoWindow::ListBox2_Change() {
    const bool selected = ListBox2.ListIndex() >= 0;
    AutoButton4.Enabled(selected);
    AutoButton4.Backdrop(selected ? AutoButton4.enabledIcon : AutoButton4.disabledIcon);
}

bool InfoWindow::ListBox2_CellKeyDown(int row, int column, const std::string& key) {
    const std::optional<CellPlace> cell = cellBeside(ListBox2, {row, column}, key);
    if (!cell)
        return false;
    editCellWithAllSelected(ListBox2, *cell);
    if (cell->row == row && cell->column == column)
        Beep(); // the whole text is selected: the next key would replace it
    return true;
}

void InfoWindow::AutoButton3_Action() {
    ListBox2.beginStep(tr("New Medication"));
    ListBox2.AddRow(tr("medication"));
    editCellWithAllSelected(ListBox2, {ListBox2.LastIndex(), 0});
}

void InfoWindow::AutoButton4_Action() {
    ListBox2.beginStep(tr("Removal of %1", {ListBox2.Cell(ListBox2.ListIndex(), 0)}));
    ListBox2.RemoveRow(ListBox2.ListIndex());
}

void InfoWindow::Canvas1_Action() { ListboxPrintAll().print(ListBox2, true); }

// Undo

void InfoWindow::Event_EnableMenuItems(MenuBar& menuBar) { enableUndoItems(menuBar, historyInFront()); }

ListHistory& InfoWindow::historyInFront() { return TabPanel1.Value() == 0 ? contactHistory_ : medicationHistory_; }

void InfoWindow::showListsAnew() {
    ListBox1_Change();
    ListBox2_Change();
}

} // namespace tallyvane

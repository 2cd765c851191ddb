#include "platform/controls/listbox.h"

#include <algorithm>

#include "platform/base/text.h"

namespace tallyvane {

namespace {

/// A cell holds no line end. One behind a pasted text, as spreadsheets leave it, goes; others become blanks.
std::string cellText(std::string_view text) {
    const std::size_t end = text.find_last_not_of("\r\n");
    return ReplaceLineEndings(text.substr(0, end + 1), " ");
}

} // namespace

void Listbox::EditCell(int row, int column) {
    if (!contains(row, column))
        return;
    ListIndex(row);
    confirmCell();
    if (row == openRow_ && column == openColumn_)
        return;
    closeCell();
    openRow_ = row;
    openColumn_ = column;
    activeCell_.userChanged(Cell(row, column), 0, Len(Cell(row, column)));
    if (list_ != nullptr)
        list_->openCellChanged();
}

void Listbox::confirmCell() {
    if (cellsBeforeTyping_.empty())
        return;
    cellsBeforeTyping_.clear();
    if (openRow_ >= 0)
        activeCell_.Text(std::string(activeCell_.Text())); // its field forgets what could be undone
}

void Listbox::userTyped(std::string_view text, int selStart, int selLength) {
    if (openRow_ < 0)
        return;
    const int row = openRow_;
    const int column = openColumn_;
    if (cellsBeforeTyping_.empty()) {
        cellsBeforeTyping_ = rows_[index(row)].cells;
        beginTyping(row);
    }
    const std::string line = cellText(text);
    write(row, column, line);
    activeCell_.userChanged(line, selStart, selLength);
    raiseTextChange(row, column);
}

void Listbox::closeCell() {
    if (openRow_ < 0)
        return;
    openRow_ = -1;
    openColumn_ = -1;
    if (list_ != nullptr)
        list_->openCellChanged();
}

void Listbox::revertCell() {
    const int row = openRow_;
    const int column = openColumn_;
    closeCell();
    restoreRow(row, column);
}

void Listbox::revertTyping() { restoreRow(openRow_, openColumn_); }

/// Puts the cells of a row back as they were before something was typed in one of them.
void Listbox::restoreRow(int row, int column) {
    if (row < 0 || cellsBeforeTyping_.empty())
        return;
    for (int followed = 0; followed < ColumnCount(); ++followed)
        Cell(row, followed, cellsBeforeTyping_[index(followed)]);
    raiseTextChange(row, column);
}

void Listbox::moveCell(int rows) {
    if (openRow_ < 0)
        return;
    EditCell(std::clamp(openRow_ + rows, 0, ListCount() - 1), openColumn_);
    activeCell_.SelectAll();
}

bool Listbox::clearCell(int row, int column) {
    if (Cell(row, column).empty() || ColumnType(column) != TypeEditable)
        return false;
    closeCell();
    beginTyping(row);
    Cell(row, column, "");
    raiseTextChange(row, column);
    return true;
}

void Listbox::showHint(const std::string& hint) {
    if (list_ != nullptr && openRow_ >= 0)
        list_->showHint(hint);
}

void Listbox::raiseTextChange(int row, int column) {
    if (CellTextChange)
        CellTextChange(row, column);
}

} // namespace tallyvane

#include "platform/listbox.h"
#include "platform/text.h"

namespace tallyvane {

void Listbox::EditCell(int row, int column) {
    if (!contains(row, column) || (row == openRow_ && column == openColumn_))
        return;
    closeCell();
    ListIndex(row);
    openRow_ = row;
    openColumn_ = column;
    textAtOpening_ = Cell(row, column);
    activeCell_.userChanged(textAtOpening_, 0, Len(textAtOpening_));
    if (list_ != nullptr)
        list_->openCellChanged();
}

void Listbox::userTyped(std::string text, int selStart, int selLength) {
    if (openRow_ < 0)
        return;
    const int row = openRow_;
    const int column = openColumn_;
    write(row, column, text);
    activeCell_.userChanged(std::move(text), selStart, selLength);
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
    if (row < 0 || Cell(row, column) == textAtOpening_)
        return;
    write(row, column, textAtOpening_);
    raiseTextChange(row, column);
}

void Listbox::raiseTextChange(int row, int column) {
    if (CellTextChange)
        CellTextChange(row, column);
}

} // namespace tallyvane

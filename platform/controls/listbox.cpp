#include "platform/controls/listbox.h"

#include <algorithm>

#include "platform/base/number.h"
#include "platform/base/text.h"
#include "platform/drawing/picture.h"

namespace tallyvane {

Listbox::Listbox(int columnCount) : columns_(index(columnCount)) {}

const std::string& Listbox::Cell(int row, int column) const {
    static const std::string outside;
    return contains(row, column) ? rows_[index(row)].cells[index(column)] : outside;
}

void Listbox::write(int row, int column, std::string_view text) {
    Row& owner = rows_[index(row)];
    owner.cells[index(column)] = text;
    owner.revision = ++lastRevision_;
    if (list_ != nullptr)
        list_->cellChanged(row, column);
}

void Listbox::Cell(int row, int column, std::string_view text) {
    if (!contains(row, column) || Cell(row, column) == text)
        return;
    write(row, column, text);
    if (row == openRow_ && column == openColumn_)
        activeCell_.Text(std::string(text));
}

void Listbox::AddRow(std::string_view text) {
    Row row{std::vector<std::string>(columns_.size()), ++lastRevision_, false, nullptr};
    row.cells.front() = text;
    rows_.push_back(std::move(row));
    lastIndex_ = ListCount() - 1;
    if (list_ != nullptr)
        list_->rowAdded(lastIndex_);
}

void Listbox::AddRows(std::vector<std::vector<std::string>> rows) {
    if (rows.empty())
        return;
    rows_.reserve(rows_.size() + rows.size());
    for (std::vector<std::string>& cells : rows) {
        cells.resize(columns_.size());
        rows_.push_back({std::move(cells), ++lastRevision_, false, nullptr});
    }
    lastIndex_ = ListCount() - 1;
    if (list_ != nullptr)
        list_->rowsReplaced();
}

std::string Listbox::selectedText(int columns) const {
    std::string text;
    for (const Row& row : rows_) {
        if (!row.selected)
            continue;
        for (int column = 0; column < columns; ++column) {
            if (column > 0)
                text += '\t';
            text += ReplaceAll(row.cells[index(column)], "\t", " ");
        }
        text += EndOfLine;
    }
    return text;
}

void Listbox::RemoveRow(int row) {
    if (!contains(row, 0))
        return;
    closeCell();
    const bool wasSelected = rows_[index(row)].selected;
    rows_.erase(rows_.begin() + row);
    if (lastIndex_ == row)
        lastIndex_ = -1;
    else if (lastIndex_ > row)
        --lastIndex_;
    if (list_ != nullptr)
        list_->rowRemoved(row);
    if (wasSelected) {
        --selectedCount_;
        raiseChange();
    }
}

void Listbox::RemoveSelectedRows() {
    if (selectedCount_ == 0)
        return;
    closeCell();
    std::erase_if(rows_, [](const Row& row) { return row.selected; });
    lastIndex_ = -1;
    selectedCount_ = 0;
    if (list_ != nullptr)
        list_->rowsReplaced();
    raiseChange();
}

void Listbox::DeleteAllRows() {
    closeCell();
    rows_.clear();
    lastIndex_ = -1;
    const bool wasSelected = selectedCount_ > 0;
    selectedCount_ = 0;
    if (list_ != nullptr)
        list_->rowsReplaced();
    if (wasSelected)
        raiseChange();
}

int Listbox::WidthActual(int column) const {
    const std::string field = NthField(columnWidths_, ",", column + 1);
    constexpr int whole = 100; // percent
    const double width = Val(field);
    return static_cast<int>(field.ends_with('%') ? width * Width() / whole : width);
}

Listbox::RowLook& Listbox::lookOf(int row) {
    std::unique_ptr<RowLook>& look = rows_[index(row)].look;
    if (!look)
        look = std::make_unique<RowLook>();
    return *look;
}

TextStyle Listbox::styleOf(int row, int column) const {
    if (!contains(row, column) || !rows_[index(row)].look)
        return {};
    const auto& styles = rows_[index(row)].look->styles;
    const auto found = styles.find(column);
    return found == styles.end() ? TextStyle() : found->second;
}

void Listbox::setStyle(int row, int column, bool TextStyle::*part, bool on) {
    if (!contains(row, column))
        return;
    lookOf(row).styles[column].*part = on;
    changed(Property::appearance);
}

std::optional<Picture> Listbox::RowPicture(int row) const {
    return contains(row, 0) && rows_[index(row)].look ? rows_[index(row)].look->picture : std::nullopt;
}

void Listbox::RowPicture(int row, Picture picture) {
    if (!contains(row, 0))
        return;
    lookOf(row).picture = std::move(picture);
    changed(Property::appearance);
}

int Listbox::ListIndex() const {
    if (selectedCount_ == 0)
        return -1;
    const auto selected = [](const Row& row) { return row.selected; };
    return static_cast<int>(std::find_if(rows_.begin(), rows_.end(), selected) - rows_.begin());
}

void Listbox::ListIndex(int row) {
    std::vector<bool> rows(rows_.size());
    if (contains(row, 0))
        rows[index(row)] = true;
    select(rows);
}

void Listbox::Selected(int row, bool value) {
    if (!contains(row, 0) || rows_[index(row)].selected == value)
        return;
    if (value && selectionType_ == SelectionTypes::single) {
        ListIndex(row);
        return;
    }
    rows_[index(row)].selected = value;
    selectedCount_ += value ? 1 : -1;
    closeCellBesideSelection();
    raiseChange();
}

void Listbox::select(const std::vector<bool>& rows) {
    bool differs = false;
    selectedCount_ = 0;
    for (std::size_t i = 0; i < rows_.size(); ++i) {
        const bool value = i < rows.size() && rows[i];
        differs = differs || rows_[i].selected != value;
        rows_[i].selected = value;
        selectedCount_ += value ? 1 : 0;
    }
    closeCellBesideSelection();
    if (differs)
        raiseChange();
}

void Listbox::closeCellBesideSelection() {
    if (openRow_ >= 0 && (selectedCount_ != 1 || !Selected(openRow_)))
        closeCell();
}

void Listbox::bringIntoView(int row) {
    if (list_ != nullptr && contains(row, 0))
        list_->bringIntoView(row);
}

void Listbox::raiseChange() {
    if (list_ != nullptr)
        list_->selectionChanged();
    if (Change)
        Change();
}

void Listbox::Sort() {
    if (!contains(0, sortedColumn_))
        return;
    closeCell();
    const std::size_t column = index(sortedColumn_);
    const bool descending = columns_[column].sortDirection < 0;
    std::stable_sort(rows_.begin(), rows_.end(), [&](const Row& a, const Row& b) {
        const int order = compareTexts(a.cells[column], b.cells[column]);
        return descending ? order > 0 : order < 0;
    });
    lastIndex_ = -1;
    if (list_ != nullptr)
        list_->rowsReplaced();
}

void Listbox::pressHeader(int column) {
    if (HeaderPressed && HeaderPressed(column))
        return;
    ColumnSortDirection(column, ColumnSortDirection(column) == 1 ? -1 : 1);
    SortedColumn(column);
    Sort();
}

} // namespace tallyvane

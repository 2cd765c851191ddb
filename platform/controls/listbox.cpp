#include "platform/controls/listbox.h"

#include <algorithm>
#include <numeric>
#include <utility>

#include "platform/base/number.h"
#include "platform/base/text.h"
#include "platform/base/translation.h"
#include "platform/drawing/picture.h"

namespace tallyvane {

Listbox::Listbox(int columnCount) : columns_(index(columnCount)) {}

const std::string& Listbox::Cell(int row, int column) const {
    static const std::string outside;
    return contains(row, column) ? rows_[index(row)].cells[index(column)] : outside;
}

void Listbox::write(int row, int column, std::string_view text) {
    Row& owner = rows_[index(row)];
    std::string before = std::exchange(owner.cells[index(column)], std::string(text));
    if (recorder_ != nullptr && before != text)
        recorder_->cellWritten(row, column, std::move(before));
    if (column == sortArrow_)
        SortArrow(-1);
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
    noteAdded(lastIndex_);
    if (list_ != nullptr)
        list_->rowAdded(lastIndex_);
}

void Listbox::AddRows(std::vector<std::vector<std::string>> rows) {
    if (rows.empty())
        return;
    const int first = ListCount();
    rows_.reserve(rows_.size() + rows.size());
    for (std::vector<std::string>& cells : rows) {
        cells.resize(columns_.size());
        rows_.push_back({std::move(cells), ++lastRevision_, false, nullptr});
    }
    lastIndex_ = ListCount() - 1;
    noteAdded(first);
    if (list_ != nullptr)
        list_->rowsReplaced();
}

void Listbox::noteAdded(int first) {
    if (sortArrow_ >= 0)
        SortArrow(-1);
    if (recorder_ != nullptr)
        recorder_->rowsAdded(first);
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

Listbox::TakenRows Listbox::takeRows(std::vector<int> places) {
    closeCell();
    markRow(-1);
    TakenRows taken{std::move(places), {}};
    taken.rows.reserve(taken.places.size());
    auto next = taken.places.begin();
    std::size_t kept = 0;
    for (std::size_t row = 0; row < rows_.size(); ++row) {
        if (next == taken.places.end() || index(*next) != row) {
            if (kept != row)
                rows_[kept] = std::move(rows_[row]);
            ++kept;
            continue;
        }
        ++next;
        selectedCount_ -= rows_[row].selected ? 1 : 0;
        rows_[row].selected = false;
        taken.rows.push_back(std::move(rows_[row]));
    }
    rows_.resize(kept);
    const auto place = std::lower_bound(taken.places.begin(), taken.places.end(), lastIndex_);
    const bool lastIsTaken = place != taken.places.end() && *place == lastIndex_;
    lastIndex_ = lastIsTaken ? -1 : lastIndex_ - static_cast<int>(place - taken.places.begin());
    raiseRowsChanged(taken.places, &ListboxObserver::rowRemoved);
    return taken;
}

void Listbox::putRows(TakenRows taken) {
    closeCell();
    markRow(-1);
    std::size_t from = rows_.size();
    rows_.resize(rows_.size() + taken.rows.size());
    std::size_t left = taken.rows.size();
    for (std::size_t row = rows_.size(); left > 0;) {
        --row;
        rows_[row] = index(taken.places[left - 1]) == row ? std::move(taken.rows[--left]) : std::move(rows_[--from]);
    }
    lastIndex_ = -1;
    raiseRowsChanged(taken.places, &ListboxObserver::rowAdded);
}

void Listbox::reorder(const std::vector<int>& order) {
    closeCell();
    markRow(-1);
    std::vector<Row> rows;
    rows.reserve(rows_.size());
    for (const int place : order)
        rows.push_back(std::move(rows_[index(place)]));
    rows_ = std::move(rows);
    lastIndex_ = -1;
    if (list_ != nullptr)
        list_->rowsReplaced();
}

/// Tells the observer of the one row that came or went, or of all rows where there were several.
void Listbox::raiseRowsChanged(const std::vector<int>& places, void (ListboxObserver::*one)(int row)) {
    if (list_ == nullptr)
        return;
    if (places.size() == 1)
        (list_->*one)(places.front());
    else
        list_->rowsReplaced();
}

void Listbox::removeRows(std::vector<int> places) {
    const int selectedBefore = selectedCount_;
    TakenRows taken = takeRows(std::move(places));
    if (recorder_ != nullptr)
        recorder_->rowsTaken(std::move(taken));
    if (selectedCount_ != selectedBefore)
        raiseChange();
}

void Listbox::RemoveRow(int row) {
    if (contains(row, 0))
        removeRows({row});
}

void Listbox::RemoveSelectedRows() {
    std::vector<int> places;
    for (int row = 0; row < ListCount(); ++row)
        if (Selected(row))
            places.push_back(row);
    if (!places.empty())
        removeRows(std::move(places));
}

void Listbox::DeleteAllRows() {
    std::vector<int> places(rows_.size());
    std::iota(places.begin(), places.end(), 0);
    removeRows(std::move(places));
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

void Listbox::ScrollPosition(int row) {
    if (!contains(row, 0))
        return;
    scrollPosition_ = row;
    if (list_ != nullptr)
        list_->scrolled(row);
}

void Listbox::bringIntoView(int row) {
    if (list_ != nullptr && contains(row, 0))
        list_->bringIntoView(row);
}

void Listbox::markRow(int row) {
    const int marked = contains(row, 0) ? row : -1;
    if (marked == markedRow_ && marked < 0)
        return;
    markedRow_ = marked;
    if (list_ != nullptr)
        list_->rowMarked();
}

void Listbox::raiseChange() {
    markRow(-1);
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
    std::vector<int> order(rows_.size());
    std::iota(order.begin(), order.end(), 0);
    std::stable_sort(order.begin(), order.end(), [&](int a, int b) {
        const int compared = compareTexts(rows_[index(a)].cells[column], rows_[index(b)].cells[column]);
        return descending ? compared > 0 : compared < 0;
    });
    arrange(std::move(order));
    bringIntoView(ListIndex());
}

void Listbox::arrange(std::vector<int> order) {
    const bool isSorted = std::is_sorted(order.begin(), order.end());
    reorder(order);
    if (recorder_ != nullptr && !isSorted)
        recorder_->rowsReordered(std::move(order));
}

void Listbox::pressHeader(int column) {
    if (HeaderPressed && HeaderPressed(column))
        return;
    beginStep(tr("Sort by %1", {Heading(column)}));
    ColumnSortDirection(column, ColumnSortDirection(column) == 1 ? -1 : 1);
    SortedColumn(column);
    Sort();
    SortArrow(column);
}

} // namespace tallyvane

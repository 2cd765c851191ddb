#include "platform/controls/list_history.h"

#include <algorithm>
#include <iterator>
#include <numeric>

#include "platform/base/scoped_flag.h"
#include "platform/base/translation.h"

namespace tallyvane {

// Recording

void ListHistory::beginStep(std::string name) {
    dropIdleSteps();
    done_.push_back({std::move(name), view(), {}});
    if (done_.size() > mostSteps)
        done_.pop_front();
    forgetPlaces();
}

void ListHistory::beginTyping(int row) { beginStep(tr("Change of %1", {list_.Cell(row, 0)})); }

void ListHistory::forgetPlaces() {
    written_.clear();
    firstAdded_ = noRow;
}

void ListHistory::record(Change change) {
    if (isChanging_)
        return;
    undone_.clear(); // the places in it do not hold any more
    if (done_.empty())
        return;
    done_.back().changes.push_back(std::move(change));
}

void ListHistory::cellWritten(int row, int column, std::string before) {
    if (!isChanging_ && row < firstAdded_ && written_.emplace(row, column).second)
        record(CellText{row, column, std::move(before)});
}

void ListHistory::rowsAdded(int first) {
    std::vector<int> places(static_cast<std::size_t>(list_.ListCount() - first));
    std::iota(places.begin(), places.end(), first);
    record(AddedRows{std::move(places)});
    firstAdded_ = std::min(firstAdded_, first);
}

void ListHistory::rowsTaken(Listbox::TakenRows rows) {
    forgetPlaces();
    if (!rows.places.empty())
        record(std::move(rows));
}

void ListHistory::rowsReordered(std::vector<int> order) {
    forgetPlaces();
    record(RowOrder{std::move(order)});
}

/// How many steps there are up to the last that makes a difference. What was typed and taken back makes none.
std::size_t ListHistory::lastEffective() const {
    std::size_t count = done_.size();
    while (count > 0 && !isEffective(done_[count - 1]))
        --count;
    return count;
}

/// Drops the steps after the last that makes a difference; what they changed unseen goes with that one.
void ListHistory::dropIdleSteps() {
    const std::size_t count = lastEffective();
    for (std::size_t idle = count; count > 0 && idle < done_.size(); ++idle)
        std::move(done_[idle].changes.begin(), done_[idle].changes.end(), std::back_inserter(done_[count - 1].changes));
    done_.erase(done_.begin() + static_cast<std::ptrdiff_t>(count), done_.end());
}

bool ListHistory::isEffective(const Step& step) const {
    return std::any_of(step.changes.begin(), step.changes.end(), [this](const Change& change) {
        const auto* cell = std::get_if<CellText>(&change);
        return cell == nullptr || (cell->column < columns_ && list_.Cell(cell->row, cell->column) != cell->text);
    });
}

// Undo and redo

void ListHistory::undo() {
    dropIdleSteps();
    if (done_.empty())
        return;
    Step step = std::move(done_.back());
    done_.pop_back();
    undone_.push_back(reversed(std::move(step)));
}

void ListHistory::redo() {
    if (undone_.empty())
        return;
    Step step = std::move(undone_.back());
    undone_.pop_back();
    dropIdleSteps();
    done_.push_back(reversed(std::move(step)));
}

/// Makes the changes of a step, from its last one on, and returns what leads back.
ListHistory::Step ListHistory::reversed(Step step) {
    const ScopedFlag changing(isChanging_);
    list_.closeCell();
    Step back{std::move(step.name), view(), {}};
    back.changes.reserve(step.changes.size());
    std::reverse(step.changes.begin(), step.changes.end());
    for (Change& change : step.changes)
        back.changes.push_back(std::visit([this](auto& each) { return reversed(std::move(each)); }, change));
    show(step.view);
    forgetPlaces();
    return back;
}

ListHistory::Change ListHistory::reversed(const CellText& change) {
    std::string text = list_.Cell(change.row, change.column);
    list_.Cell(change.row, change.column, change.text);
    return CellText{change.row, change.column, std::move(text)};
}

ListHistory::Change ListHistory::reversed(AddedRows change) { return list_.takeRows(std::move(change.places)); }

ListHistory::Change ListHistory::reversed(Listbox::TakenRows change) {
    std::vector<int> places = change.places;
    list_.putRows(std::move(change));
    return AddedRows{std::move(places)};
}

ListHistory::Change ListHistory::reversed(const RowOrder& change) {
    std::vector<int> inverse(change.order.size());
    for (std::size_t row = 0; row < inverse.size(); ++row)
        inverse[static_cast<std::size_t>(change.order[row])] = static_cast<int>(row);
    list_.reorder(inverse);
    return RowOrder{std::move(inverse)};
}

// The view

ListHistory::View ListHistory::view() const {
    View now{{}, list_.ScrollPosition(), list_.SortedColumn(), list_.SortArrow(), {}};
    for (int column = 0; column < list_.ColumnCount(); ++column)
        now.sortDirections.push_back(list_.ColumnSortDirection(column));
    const int rows = list_.SelectedCount() > 0 ? list_.ListCount() : 0;
    for (int row = 0; row < rows; ++row) {
        const int first = row;
        while (list_.Selected(row))
            ++row;
        if (row > first)
            now.selected.emplace_back(first, row);
    }
    return now;
}

void ListHistory::show(const View& view) {
    list_.SortedColumn(view.sortedColumn);
    list_.SortArrow(view.sortArrow);
    for (int column = 0; column < list_.ColumnCount(); ++column)
        list_.ColumnSortDirection(column, view.sortDirections[static_cast<std::size_t>(column)]);
    std::vector<bool> selected(static_cast<std::size_t>(list_.ListCount()));
    for (const auto& [first, end] : view.selected)
        std::fill(selected.begin() + first, selected.begin() + end, true);
    list_.select(selected);
    list_.ScrollPosition(view.scrollPosition);
}

} // namespace tallyvane

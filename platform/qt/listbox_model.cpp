#include "platform/qt/listbox_model.h"

#include <algorithm>

#include "platform/qt/convert.h"

namespace tallyvane {

namespace {

std::vector<int> widthsOf(const Listbox& list) {
    std::vector<int> widths;
    const int shown = std::min(CountFields(list.ColumnWidths(), ","), list.ColumnCount());
    for (int column = 0; column < shown; ++column)
        widths.push_back(list.WidthActual(column));
    return widths;
}

} // namespace

ListboxModel::ListboxModel(const Listbox& list, QObject* parent)
    : QAbstractTableModel(parent), list_(list), rows_(list.ListCount()), widths_(widthsOf(list)) {}

int ListboxModel::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : rows_; }

int ListboxModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(widths_.size());
}

QVariant ListboxModel::data(const QModelIndex& index, int role) const {
    const auto shown = [](const std::string& text) { return Left(text, mostCharacters); };
    const std::string text = shown(list_.Cell(index.row(), index.column()));
    if (role == Qt::DisplayRole)
        return toQt(text);
    if (role == Qt::AccessibleTextRole)
        return toQt(shown(list_.Heading(index.column())) + ", " + shown(list_.Cell(index.row(), 0)) + ", " + text);
    return {};
}

QVariant ListboxModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation == Qt::Horizontal && role == Qt::DisplayRole)
        return toQt(Left(list_.Heading(section), mostCharacters));
    return {};
}

Qt::ItemFlags ListboxModel::flags(const QModelIndex& /*index*/) const {
    return Qt::ItemIsSelectable | Qt::ItemIsEnabled;
}

void ListboxModel::tellRowAdded(int row) {
    beginInsertRows({}, row, row);
    ++rows_;
    endInsertRows();
}

void ListboxModel::tellRowRemoved(int row) {
    beginRemoveRows({}, row, row);
    --rows_;
    endRemoveRows();
}

void ListboxModel::tellRowsReplaced() {
    beginResetModel();
    rows_ = list_.ListCount();
    endResetModel();
}

void ListboxModel::tellCellChanged(int row, int column) {
    const QModelIndex cell = index(row, column);
    if (cell.isValid())
        Q_EMIT dataChanged(cell, cell);
}

void ListboxModel::tellColumnsChanged() {
    std::vector<int> widths = widthsOf(list_);
    const bool reset = widths.size() != widths_.size();
    if (reset)
        beginResetModel();
    widths_ = std::move(widths);
    if (reset)
        endResetModel();
    Q_EMIT headerDataChanged(Qt::Horizontal, 0, columnCount() - 1);
}

} // namespace tallyvane

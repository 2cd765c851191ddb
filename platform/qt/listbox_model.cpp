#include "platform/qt/listbox_model.h"

#include <algorithm>

#include "platform/qt/convert.h"

namespace tallyvane {

namespace {

std::vector<int> widthsOf(const Listbox& list) {
    std::vector<int> widths;
    const int shown = std::min(CountFields(list.ColumnWidths(), ","), list.ColumnCount());
    widths.reserve(static_cast<std::size_t>(shown));
    for (int column = 0; column < shown; ++column)
        widths.push_back(list.WidthActual(column));
    return widths;
}

std::string shown(const std::string& text) { return Left(text, mostCharacters); }

} // namespace

ListboxModel::ListboxModel(const Listbox& list, QObject* parent)
    : QAbstractTableModel(parent), list_(list), rows_(list.ListCount()), widths_(widthsOf(list)) {}

int ListboxModel::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : rows_; }

int ListboxModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(widths_.size());
}

QVariant ListboxModel::data(const QModelIndex& index, int role) const {
    switch (role) {
    case Qt::DisplayRole:
        return toQt(shown(list_.Cell(index.row(), index.column())));
    case Qt::AccessibleTextRole:
        return toQt(accessibleText(index.row(), index.column()));
    case Qt::ToolTipRole:
        return toQt(tip(index.row(), index.column()));
    default:
        return {};
    }
}

std::string ListboxModel::accessibleText(int row, int column) const {
    if (list_.CellDescription)
        return shown(list_.CellDescription(row, column));
    const std::string heading = list_.Heading(column).empty() ? "" : shown(list_.Heading(column)) + ", ";
    const std::string name = column == 0 ? "" : shown(list_.Cell(row, 0)) + ", ";
    return heading + name + shown(list_.Cell(row, column));
}

std::string ListboxModel::tip(int row, int column) const {
    const std::string help = list_.CellHelpTag ? list_.CellHelpTag(row, column) : "";
    return help.empty() && isCellCut && isCellCut(row, column) ? shown(list_.Cell(row, column)) : help;
}

QVariant ListboxModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal)
        return {};
    const QString whole = toQt(shown(list_.Heading(section)));
    const auto fits = [&] { return shownHeading ? shownHeading(section, whole) : whole; };
    switch (role) {
    case Qt::DisplayRole:
        return fits();
    case Qt::AccessibleTextRole:
        return whole;
    case Qt::ToolTipRole:
        return fits() == whole ? QVariant() : whole;
    default:
        return {};
    }
}

Qt::ItemFlags ListboxModel::flags(const QModelIndex& /*index*/) const {
    return Qt::ItemIsSelectable | Qt::ItemIsEnabled;
}

void ListboxModel::notifyRowAdded(int row) {
    beginInsertRows({}, row, row);
    ++rows_;
    endInsertRows();
}

void ListboxModel::notifyRowRemoved(int row) {
    beginRemoveRows({}, row, row);
    --rows_;
    endRemoveRows();
}

void ListboxModel::notifyRowsReplaced() {
    beginResetModel();
    rows_ = list_.ListCount();
    endResetModel();
}

void ListboxModel::notifyCellChanged(int row, int column) {
    const QModelIndex cell = index(row, column);
    if (cell.isValid())
        Q_EMIT dataChanged(cell, cell);
}

void ListboxModel::notifyColumnsChanged() {
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

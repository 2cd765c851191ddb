#pragma once

#include <QAbstractTableModel>

#include <functional>

#include "platform/controls/listbox.h"

namespace tallyvane {

/// Qt's item model of a list. It stores no cells, only the row count and the column widths that the views were last
/// notified of.
class ListboxModel : public QAbstractTableModel {
public:
    ListboxModel(const Listbox& list, QObject* parent);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

    void notifyRowAdded(int row);
    void notifyRowRemoved(int row);
    void notifyRowsReplaced();
    void notifyCellChanged(int row, int column);
    /// Widths, their number and the headings.
    void notifyColumnsChanged();
    /// What shows of a heading. One that does not show whole has a tool tip.
    std::function<QString(int column, const QString& heading)> shownHeading;
    /// Whether a text does not show whole. It has a tool tip then, if there is no other for its cell.
    std::function<bool(int row, int column)> isCellCut;
    /// Of the columns that are shown.
    const std::vector<int>& widths() const { return widths_; }

private:
    std::string accessibleText(int row, int column) const;
    std::string tip(int row, int column) const;

    const Listbox& list_;
    int rows_ = 0;
    std::vector<int> widths_;
};

} // namespace tallyvane

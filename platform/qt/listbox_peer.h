#pragma once

#include <QTableView>

#include "platform/controls/listbox.h"
#include "platform/qt/cell_editor.h"
#include "platform/qt/listbox_model.h"
#include "platform/qt/peer.h"

namespace tallyvane {

/// Shows a list as a table. It keeps light colours of its own in every theme, since its cells are painted on light
/// bands.
class ListboxPeer : public Peer<QTableView, Listbox, ListboxObserver> {
public:
    ListboxPeer(Listbox& list, QWidget* parent);

    void detach() override;

    void rowAdded(int row) override;
    void rowRemoved(int row) override;
    void rowsReplaced() override;
    void cellChanged(int row, int column) override;
    void selectionChanged() override;
    void openCellChanged() override;
    void showHint(const std::string& hint) override;
    void scrolled(int row) override;
    void bringIntoView(int row) override;
    void rowMarked() override;
    void repaintControl() override { viewport()->update(); }

    /// Copies the selected rows with their visible columns to the clipboard; nothing without a selection.
    void copyRows() const;
    /// Takes what is on the clipboard as if it were dropped here.
    void paste();
    bool canPaste() const;

    /// Paints a cell, also of a row that does not exist.
    void paintCell(QPainter& painter, const QRect& area, int row, int column);

protected:
    void apply(Property property) override;
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    /// Nothing: a digit typed while no cell is open must not take the selection elsewhere.
    void keyboardSearch(const QString& /*search*/) override {}
    void updateGeometries() override;
    void resizeEvent(QResizeEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;
    void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;
    /// Shows a cell's tool tip (what a doubtful text counts as) also when the keyboard enters or leaves the cell.
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    /// Ctrl+Shift+Home and Ctrl+Shift+End select the rows up to the first and last; Qt alone only goes there.
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index, const QEvent* event) const override;

private:
    void setUpLook();
    void applyAppearance();
    void applyColumns();
    void applySortArrow();
    void setListFont();
    void describeEmptyList();
    void fitLastColumn();
    QString shownHeading(int column, const QString& heading) const;
    bool isCellCut(int row, int column) const;
    QFont fontOfCell(int row, int column) const;
    Qt::Alignment alignmentOf(int column) const;
    void applySelection();
    void click(const QModelIndex& cell, const QPoint& place);
    void commandClick(const QModelIndex& cell);
    bool takesDrop(QDropEvent& event) const;
    bool takes(const QMimeData& content) const;
    void drop(const QMimeData& content);
    void drop(const DragItem& item);
    void pressKey(int key, const QModelIndex& cell);
    bool writeByKey(QKeyEvent& key, const QModelIndex& cell);
    void nameEditor();
    void placeEditor();
    void drawEmptyText(QPainter& painter) const;
    void drawMark(QPainter& painter, const QRect& area, int column);
    void drawText(QPainter& painter, const QRect& area, int row, int column);

    ListboxModel* model_;
    CellEditor* editor_;
    QModelIndex pressed_;
    bool pressedWithCommand_ = false;
    bool applyingSelection_ = false; // from the list to the view, not the other way
    bool userSelects_ = false;
};

} // namespace tallyvane

#include "platform/qt/listbox_peer.h"

#include <QApplication>
#include <QClipboard>
#include <QDropEvent>
#include <QFile>
#include <QGuiApplication>
#include <QHeaderView>
#include <QMimeData>
#include <QMouseEvent>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QTimer>
#include <QToolTip>
#include <QUrl>

#include <algorithm>
#include <utility>

#include "platform/qt/event_guard.h"
#include "platform/qt/key_names.h"

namespace tallyvane {

ListboxPeer::ListboxPeer(Listbox& list, QWidget* parent)
    : Peer(list, parent), model_(new ListboxModel(list, this)), editor_(new CellEditor(list, viewport())) {
    {
        const QScopedValueRollback applying(applyingSelection_, true); // a new model clears the view's selection
        setModel(model_);
    }
    setUpLook();
    model_->shownHeading = [this](int column, const QString& heading) { return shownHeading(column, heading); };
    model_->isCellCut = [this](int row, int column) { return isCellCut(row, column); };
    setEditTriggers(NoEditTriggers);
    setSelectionBehavior(SelectRows);
    setTabKeyNavigation(false);
    setAcceptDrops(true);
    horizontalHeader()->setSectionsClickable(true);
    const auto press = [this](int column) {
        if (control_ != nullptr)
            deliver([&] { control_->pressHeader(column); });
    };
    connect(horizontalHeader(), &QHeaderView::sectionClicked, this, press);
    connect(horizontalHeader(), &QHeaderView::sectionDoubleClicked, this, press); // the second of two quick clicks
    applyAll();
    selectionChanged();
    const int row = control_->ScrollPosition(); // where the keys start, too
    selectionModel()->setCurrentIndex(model_->index(row, 0), QItemSelectionModel::NoUpdate);
    scrolled(row);
}

void ListboxPeer::detach() {
    editor_->detach();
    Peer::detach();
    setModel(nullptr); // it reads the list
}

void ListboxPeer::apply(Property property) {
    if (property == Property::appearance)
        applyAppearance();
    else if (property == Property::columns)
        applyColumns();
    else
        return;
    fitLastColumn();
    viewport()->update();
    placeEditor();
}

void ListboxPeer::applyAppearance() {
    const bool several = control_->SelectionType() == Listbox::SelectionTypes::multiple;
    setSelectionMode(several ? ExtendedSelection : SingleSelection);
    verticalHeader()->setDefaultSectionSize(control_->DefaultRowHeight());
    setListFont();
    setFrameShape(control_->Border() ? StyledPanel : NoFrame);
    describeEmptyList();
}

void ListboxPeer::applyColumns() {
    horizontalHeader()->setVisible(control_->HasHeading());
    model_->notifyColumnsChanged();
    const std::vector<int>& widths = model_->widths();
    for (std::size_t column = 0; column < widths.size(); ++column)
        horizontalHeader()->resizeSection(static_cast<int>(column), widths[column]);
    applySortArrow();
}

void ListboxPeer::applySortArrow() {
    const int column = control_->SortArrow();
    horizontalHeader()->setSortIndicatorShown(column >= 0);
    if (column < 0)
        return;
    const bool descending = control_->ColumnSortDirection(control_->SortedColumn()) < 0;
    horizontalHeader()->setSortIndicator(column, descending ? Qt::DescendingOrder : Qt::AscendingOrder);
}

// Notifications from the list

void ListboxPeer::rowAdded(int row) {
    {
        const QScopedValueRollback applying(applyingSelection_, true);
        model_->notifyRowAdded(row);
    }
    describeEmptyList();
    applySelection(); // Qt selects a neighbour of a row that goes
}

void ListboxPeer::rowRemoved(int row) {
    {
        const QScopedValueRollback applying(applyingSelection_, true);
        model_->notifyRowRemoved(row);
    }
    describeEmptyList();
    applySelection();
}

void ListboxPeer::rowsReplaced() {
    {
        const QScopedValueRollback applying(applyingSelection_, true);
        const int scrolled = verticalScrollBar()->value();
        const QModelIndex current = currentIndex();
        const int column = std::max(0, current.column());
        const int row = control_->SelectedCount() > 0 ? control_->ListIndex() : current.row();
        model_->notifyRowsReplaced();
        const int nearest = std::min(row, model_->rowCount() - 1);
        selectionModel()->setCurrentIndex(model_->index(nearest, column), QItemSelectionModel::NoUpdate);
        verticalScrollBar()->setValue(scrolled);
    }
    describeEmptyList();
    applySelection();
}

void ListboxPeer::cellChanged(int row, int column) {
    model_->notifyCellChanged(row, column);
    if (row != control_->openRow() || column != control_->openColumn())
        return;
    scrollTo(model_->index(row, column)); // typed out of sight
    nameEditor();
}

void ListboxPeer::selectionChanged() {
    applySelection();
    if (!userSelects_ && control_->SelectedCount() > 0 && !control_->Selected(currentIndex().row())) {
        // The keys of the list are for what is marked, not for where the user has been before.
        const QModelIndex first = model_->index(control_->ListIndex(), std::max(0, currentIndex().column()));
        selectionModel()->setCurrentIndex(first, QItemSelectionModel::NoUpdate);
    }
    if (control_->SelectedCount() == 1)
        scrollTo(model_->index(control_->ListIndex(), std::max(0, currentIndex().column())));
}

void ListboxPeer::applySelection() {
    const QScopedValueRollback applying(applyingSelection_, true);
    QItemSelection rows;
    for (int row = 0; row < control_->ListCount(); ++row) {
        const int first = row;
        while (control_->Selected(row))
            ++row;
        if (row > first)
            rows.select(model_->index(first, 0), model_->index(row - 1, model_->columnCount() - 1));
    }
    selectionModel()->select(rows, QItemSelectionModel::ClearAndSelect);
    viewport()->update();
}

void ListboxPeer::showHint(const std::string& hint) {
    editor_->setAccessibleDescription(tallyvane::toQt(hint));
    QToolTip::showText(editor_->mapToGlobal(editor_->rect().bottomLeft()), tallyvane::toQt(hint), viewport());
}

void ListboxPeer::scrolled(int row) { scrollTo(model_->index(row, 0), PositionAtTop); }

void ListboxPeer::bringIntoView(int row) { scrollTo(model_->index(row, std::max(0, currentIndex().column()))); }

void ListboxPeer::rowMarked() {
    if (const int row = control_->MarkedRow(); row >= 0) {
        const QModelIndex cell = model_->index(row, std::max(0, currentIndex().column()));
        selectionModel()->setCurrentIndex(cell, QItemSelectionModel::NoUpdate);
        scrollTo(cell);
    }
    viewport()->update();
}

void ListboxPeer::openCellChanged() {
    if (!editor_->accessibleDescription().isEmpty()) {
        editor_->setAccessibleDescription({});
        QToolTip::hideText();
    }
    const QModelIndex cell = model_->index(control_->openRow(), control_->openColumn());
    if (!cell.isValid()) {
        if (editor_->hasFocus())
            setFocus();
        editor_->hide();
        return;
    }
    selectionModel()->setCurrentIndex(cell, QItemSelectionModel::NoUpdate);
    scrollTo(cell);
    editor_->setAlignment(alignmentOf(cell.column()));
    nameEditor();
    editor_->controlChanged(Property::text);
    placeEditor();
    editor_->show();
    editor_->setFocus();
    editor_->controlChanged(Property::selection); // taking the focus moves the selection
}

/// The open cell is read as the cell is.
void ListboxPeer::nameEditor() {
    const QModelIndex cell = model_->index(control_->openRow(), control_->openColumn());
    editor_->setAccessibleName(cell.data(Qt::AccessibleTextRole).toString());
}

void ListboxPeer::placeEditor() {
    const QModelIndex cell = model_->index(control_->openRow(), control_->openColumn());
    if (cell.isValid())
        editor_->setGeometry(visualRect(cell));
}

// The user's doing

void ListboxPeer::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) {
    QTableView::selectionChanged(selected, deselected);
    if (control_ == nullptr || applyingSelection_)
        return;
    std::vector<bool> rows(static_cast<std::size_t>(control_->ListCount()));
    for (const QItemSelectionRange& range : selectionModel()->selection())
        for (int row = range.top(); row <= range.bottom(); ++row)
            rows[static_cast<std::size_t>(row)] = true;
    const QScopedValueRollback selecting(userSelects_, true);
    deliver([&] { control_->select(rows); });
    viewport()->update();
}

void ListboxPeer::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
    QTableView::currentChanged(current, previous);
    const bool isLeft = !previous.data(Qt::ToolTipRole).toString().isEmpty();
    const QModelIndex& doubtful = isLeft ? previous : current;
    const QString help = doubtful.data(Qt::ToolTipRole).toString();
    const QPoint place = viewport()->mapToGlobal(visualRect(doubtful).bottomLeft());
    if (!help.isEmpty()) // shown once the focus has gone where it goes, which would hide it
        QTimer::singleShot(0, this, [=, this] { QToolTip::showText(place, help, viewport()); });
}

QItemSelectionModel::SelectionFlags ListboxPeer::selectionCommand(const QModelIndex& index, const QEvent* event) const {
    if (event == nullptr || event->type() != QEvent::KeyPress)
        return QTableView::selectionCommand(index, event);
    const auto& key = static_cast<const QKeyEvent&>(*event);
    if (!(key.modifiers() & Qt::ShiftModifier))
        return QTableView::selectionCommand(index, event);
    const QKeyEvent withoutCommand(key.type(), key.key(), key.modifiers() & ~Qt::ControlModifier);
    return QTableView::selectionCommand(index, &withoutCommand);
}

void ListboxPeer::mousePressEvent(QMouseEvent* event) {
    // Presses with Ctrl or Shift extend the selection; they are no clicks in a cell.
    const bool plain = event->button() == Qt::LeftButton && event->modifiers() == Qt::NoModifier;
    pressedWithCommand_ = event->button() == Qt::LeftButton && event->modifiers() == Qt::ControlModifier &&
                          control_ != nullptr && control_->CellCommandClick;
    pressed_ = plain || pressedWithCommand_ ? indexAt(event->pos()) : QModelIndex();
    QTableView::mousePressEvent(event);
}

void ListboxPeer::mouseReleaseEvent(QMouseEvent* event) {
    QTableView::mouseReleaseEvent(event);
    const QModelIndex cell = std::exchange(pressed_, QModelIndex());
    if (control_ == nullptr || !cell.isValid() || cell != indexAt(event->pos()))
        return;
    if (pressedWithCommand_)
        commandClick(cell);
    else
        click(cell, event->pos() - visualRect(cell).topLeft());
}

void ListboxPeer::mouseDoubleClickEvent(QMouseEvent* event) {
    QTableView::mouseDoubleClickEvent(event);
    const bool onRow = event->button() == Qt::LeftButton && indexAt(event->pos()).isValid();
    if (onRow && control_ != nullptr && control_->DoubleClick)
        deliver([this] { control_->DoubleClick(); });
}

void ListboxPeer::commandClick(const QModelIndex& cell) {
    deliver([&] { control_->CellCommandClick(cell.row(), cell.column()); });
}

bool ListboxPeer::takes(const QMimeData& content) const {
    return control_ != nullptr && control_->DropObject &&
           (content.hasUrls() ? control_->acceptsFiles() : control_->acceptsTexts());
}

/// A drop is a copy, whatever the other side proposes: it would take a moved text or file away from where it was.
bool ListboxPeer::takesDrop(QDropEvent& event) const {
    const bool isTaken = takes(*event.mimeData()) && (event.possibleActions() & Qt::CopyAction) != 0;
    event.setDropAction(isTaken ? Qt::CopyAction : Qt::IgnoreAction);
    event.setAccepted(isTaken);
    return isTaken;
}

void ListboxPeer::dragEnterEvent(QDragEnterEvent* event) { takesDrop(*event); }

void ListboxPeer::dragMoveEvent(QDragMoveEvent* event) { takesDrop(*event); }

void ListboxPeer::dropEvent(QDropEvent* event) {
    if (takesDrop(*event))
        drop(*event->mimeData());
}

void ListboxPeer::drop(const QMimeData& content) {
    bool anyFile = false;
    for (const QUrl& url : content.urls())
        if (url.isLocalFile()) {
            anyFile = true;
            const QString path = url.adjusted(QUrl::StripTrailingSlash).toLocalFile();
            drop(DragItem{GetFolderItem(QFile::encodeName(path).toStdString()), std::nullopt});
        }
    if (anyFile)
        return;
    if (content.hasText())
        drop(DragItem{std::nullopt, fromQt(content.text())});
    else
        drop(DragItem{});
}

void ListboxPeer::drop(const DragItem& item) {
    if (control_ != nullptr && control_->DropObject)
        deliver([&] { control_->DropObject(item); });
}

void ListboxPeer::copyRows() const {
    if (control_ != nullptr && control_->SelectedCount() > 0)
        QGuiApplication::clipboard()->setText(tallyvane::toQt(control_->selectedText(model_->columnCount())));
}

bool ListboxPeer::canPaste() const {
    return control_ != nullptr && control_->DropObject && (control_->acceptsFiles() || control_->acceptsTexts());
}

void ListboxPeer::paste() {
    const QMimeData* content = QGuiApplication::clipboard()->mimeData();
    if (content != nullptr && (content->hasText() || content->hasUrls()) && takes(*content))
        drop(*content);
}

void ListboxPeer::click(const QModelIndex& cell, const QPoint& place) {
    bool done = false;
    deliver([&] {
        if (control_->CellClick)
            done = control_->CellClick(cell.row(), cell.column(), place.x(), place.y());
    });
    if (!done && control_ != nullptr && control_->ColumnType(cell.column()) == Listbox::TypeEditable)
        deliver([&] { control_->EditCell(cell.row(), cell.column()); });
}

/// Return is for the marked row where that has a use for it, and not for the window's button.
bool ListboxPeer::event(QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride && control_ != nullptr && control_->DoubleClick) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            event->accept();
            return true;
        }
    }
    return QTableView::event(event);
}

void ListboxPeer::keyPressEvent(QKeyEvent* event) {
    const QModelIndex cell = currentIndex();
    const bool isOurs = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter || event->key() == Qt::Key_F2 ||
                        event->key() == Qt::Key_F3;
    if (event->key() == Qt::Key_Escape && control_ != nullptr && selectionMode() == ExtendedSelection &&
        control_->SelectedCount() > 0) {
        deliver([this] { control_->select({}); });
        return;
    }
    const bool isCell = control_ != nullptr && cell.isValid();
    if (isOurs && isCell)
        pressKey(event->key(), cell);
    else if (!isCell || !writeByKey(*event, cell))
        QTableView::keyPressEvent(event);
}

/// Writes into the cell with the focus, without opening it first. False for a key that writes nothing.
bool ListboxPeer::writeByKey(QKeyEvent& key, const QModelIndex& cell) {
    if (isShortcut(key) || (key.modifiers() & Qt::AltModifier) != 0)
        return false;
    if (control_->ColumnType(cell.column()) != Listbox::TypeEditable)
        return false;
    if (key.key() == Qt::Key_Delete) {
        if (control_->SelectedCount() > 1)
            return false; // it might be meant for the days
        if (!viewport()->rect().contains(visualRect(cell))) {
            scrollTo(cell); // nothing is emptied unseen
            return true;
        }
        bool isCleared = false;
        deliver([&] { isCleared = control_->clearCell(cell.row(), cell.column()); });
        return isCleared;
    }
    const QString text = key.text();
    const bool isDigit = text.size() == 1 && text.front() >= u'0' && text.front() <= u'9';
    if (!isDigit)
        return false;
    deliver([&] { control_->EditCell(cell.row(), cell.column()); });
    QApplication::sendEvent(editor_, &key); // in place of the text, which is all selected
    return true;
}

/// Return stands for a click or a double click, F2 for a click with Ctrl, F3 for one on the heading.
void ListboxPeer::pressKey(int key, const QModelIndex& cell) {
    if (key == Qt::Key_F3) {
        if (control_->HasHeading())
            deliver([&] { control_->pressHeader(cell.column()); });
        return;
    }
    deliver([&] { control_->ListIndex(cell.row()); }); // as a click does
    if (control_ == nullptr)
        return;
    if (key == Qt::Key_F2 && control_->CellCommandClick)
        commandClick(cell);
    else if (key != Qt::Key_F2 && control_->DoubleClick)
        deliver([this] { control_->DoubleClick(); });
    else
        click(cell, QPoint());
}

/// No horizontal scrolling: the columns stay aligned with the labels above the list and the averages below it.
void ListboxPeer::updateGeometries() {
    QTableView::updateGeometries();
    horizontalScrollBar()->setRange(0, 0);
}

void ListboxPeer::resizeEvent(QResizeEvent* event) {
    QTableView::resizeEvent(event);
    fitLastColumn();
}

void ListboxPeer::scrollContentsBy(int dx, int dy) {
    QTableView::scrollContentsBy(dx, dy);
    if (control_ == nullptr)
        return;
    control_->userScrolled(rowAt(0));
    placeEditor();
}

} // namespace tallyvane

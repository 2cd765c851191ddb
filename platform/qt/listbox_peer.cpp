#include "platform/qt/listbox_peer.h"

#include <QDropEvent>
#include <QFile>
#include <QHeaderView>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <QUrl>

#include "platform/qt/event_guard.h"
#include "platform/qt/painter_graphics.h"

namespace tallyvane {

namespace {

constexpr int fontPixels = 12;
constexpr int headingHeight = 19;
constexpr int scrollBarWidth = 15;
constexpr int textMargin = 6;

constexpr Color ground = RGB(255, 255, 255);
constexpr Color text = RGB(16, 20, 26);
constexpr Color headingGround = RGB(232, 236, 242);
constexpr Color columnLine = RGB(186, 200, 220);
constexpr Color selection = RGB(92, 152, 236);
constexpr Color selectionLine = RGB(38, 92, 170);

QPalette lightColors() {
    QPalette colors(toQt(headingGround), toQt(headingGround));
    colors.setColor(QPalette::Base, toQt(ground));
    for (const auto role : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText})
        colors.setColor(role, toQt(text));
    colors.setColor(QPalette::Highlight, toQt(selection));
    colors.setColor(QPalette::HighlightedText, toQt(text));
    return colors;
}

Qt::Alignment toQt(int alignment) {
    if (alignment == Listbox::AlignCenter)
        return Qt::AlignHCenter;
    return alignment == Listbox::AlignRight ? Qt::AlignRight : Qt::AlignLeft;
}

/// Has the list paint its cells.
class CellPainter : public QStyledItemDelegate {
public:
    explicit CellPainter(ListboxPeer* peer) : QStyledItemDelegate(peer), peer_(peer) {}

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        peer_->paintCell(*painter, option.rect, index.row(), index.column());
    }

private:
    ListboxPeer* peer_;
};

} // namespace

ListboxPeer::ListboxPeer(Listbox& list, QWidget* parent)
    : Peer(list, parent), model_(new ListboxModel(list, this)), editor_(new CellEditor(list, viewport())) {
    setModel(model_);
    setItemDelegate(new CellPainter(this));
    setUpLook();
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
    controlChanged();
    selectionChanged();
}

void ListboxPeer::setUpLook() {
    setPalette(lightColors());
    setShowGrid(false);
    setCornerButtonEnabled(false);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    verticalScrollBar()->setFixedWidth(scrollBarWidth);
    QFont font = this->font();
    font.setPixelSize(fontPixels);
    setFont(font);
    verticalHeader()->hide();
    verticalHeader()->setMinimumSectionSize(1);
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    horizontalHeader()->setFixedHeight(headingHeight);
    horizontalHeader()->setMinimumSectionSize(1);
    horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setFont(font);
    editor_->setFont(font);
}

void ListboxPeer::detach() {
    editor_->detach();
    Peer::detach();
    setModel(nullptr); // it reads the list
}

void ListboxPeer::sync() {
    const bool several = control_->SelectionType() == Listbox::SelectionTypes::multiple;
    setSelectionMode(several ? ExtendedSelection : SingleSelection);
    verticalHeader()->setDefaultSectionSize(control_->DefaultRowHeight());
    horizontalHeader()->setVisible(control_->HasHeading());
    setFrameShape(control_->Border() ? StyledPanel : NoFrame);
    model_->tellColumnsChanged();
    const std::vector<int>& widths = model_->widths();
    for (std::size_t column = 0; column < widths.size(); ++column)
        horizontalHeader()->resizeSection(static_cast<int>(column), widths[column]);
    viewport()->update();
    placeEditor();
}

// News of the list

void ListboxPeer::rowAdded(int row) {
    const QScopedValueRollback bringing(bringingSelection_, true);
    model_->tellRowAdded(row);
}

void ListboxPeer::rowRemoved(int row) {
    const QScopedValueRollback bringing(bringingSelection_, true);
    model_->tellRowRemoved(row);
}

void ListboxPeer::rowsReplaced() {
    {
        const QScopedValueRollback bringing(bringingSelection_, true);
        const int scrolled = verticalScrollBar()->value();
        const QModelIndex current = currentIndex();
        const int column = std::max(0, current.column());
        const int row = control_->SelectedCount() > 0 ? control_->ListIndex() : current.row();
        model_->tellRowsReplaced();
        const int nearest = std::min(row, model_->rowCount() - 1);
        selectionModel()->setCurrentIndex(model_->index(nearest, column), QItemSelectionModel::NoUpdate);
        verticalScrollBar()->setValue(scrolled);
    }
    selectionChanged();
}

void ListboxPeer::cellChanged(int row, int column) {
    model_->tellCellChanged(row, column);
    if (row == control_->openRow() && column == control_->openColumn())
        scrollTo(model_->index(row, column)); // typed out of sight
}

void ListboxPeer::selectionChanged() {
    const QScopedValueRollback bringing(bringingSelection_, true);
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

void ListboxPeer::openCellChanged() {
    const QModelIndex cell = model_->index(control_->openRow(), control_->openColumn());
    if (!cell.isValid()) {
        if (editor_->hasFocus())
            setFocus();
        editor_->hide();
        return;
    }
    selectionModel()->setCurrentIndex(cell, QItemSelectionModel::NoUpdate);
    scrollTo(cell);
    editor_->setAlignment(toQt(control_->ColumnAlignment(cell.column())) | Qt::AlignVCenter);
    editor_->setAccessibleName(model_->data(cell, Qt::AccessibleTextRole).toString());
    editor_->controlChanged();
    placeEditor();
    editor_->show();
    editor_->setFocus();
    editor_->controlChanged(); // taking the focus moves the selection
}

void ListboxPeer::placeEditor() {
    const QModelIndex cell = model_->index(control_->openRow(), control_->openColumn());
    if (cell.isValid())
        editor_->setGeometry(visualRect(cell));
}

// The user's doing

void ListboxPeer::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) {
    QTableView::selectionChanged(selected, deselected);
    if (control_ == nullptr || bringingSelection_)
        return;
    std::vector<bool> rows(static_cast<std::size_t>(control_->ListCount()));
    for (const QItemSelectionRange& range : selectionModel()->selection())
        for (int row = range.top(); row <= range.bottom(); ++row)
            rows[static_cast<std::size_t>(row)] = true;
    deliver([&] { control_->select(rows); });
    viewport()->update();
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

/// A drop is a copy, whatever the other side proposes: it would take a moved text or file away from where it was.
bool ListboxPeer::takesDrop(QDropEvent& event) const {
    const bool wanted = control_ != nullptr && control_->DropObject &&
                        (event.mimeData()->hasUrls() ? control_->acceptsFiles() : control_->acceptsTexts());
    const bool takes = wanted && (event.possibleActions() & Qt::CopyAction) != 0;
    event.setDropAction(takes ? Qt::CopyAction : Qt::IgnoreAction);
    event.setAccepted(takes);
    return takes;
}

void ListboxPeer::dragEnterEvent(QDragEnterEvent* event) { takesDrop(*event); }

void ListboxPeer::dragMoveEvent(QDragMoveEvent* event) { takesDrop(*event); }

void ListboxPeer::dropEvent(QDropEvent* event) {
    if (!takesDrop(*event))
        return;
    bool anyFile = false;
    for (const QUrl& url : event->mimeData()->urls())
        if (url.isLocalFile()) {
            anyFile = true;
            const QString path = url.adjusted(QUrl::StripTrailingSlash).toLocalFile();
            drop({GetFolderItem(QFile::encodeName(path).toStdString()), std::nullopt});
        }
    if (anyFile)
        return;
    if (event->mimeData()->hasText())
        drop({std::nullopt, fromQt(event->mimeData()->text())});
    else
        drop({});
}

void ListboxPeer::drop(const DragItem& item) {
    if (control_ != nullptr && control_->DropObject)
        deliver([&] { control_->DropObject(item); });
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

void ListboxPeer::keyPressEvent(QKeyEvent* event) {
    const bool opens = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter || event->key() == Qt::Key_F2;
    const QModelIndex cell = currentIndex();
    if (!opens || control_ == nullptr || !cell.isValid()) {
        QTableView::keyPressEvent(event);
        return;
    }
    deliver([&] { control_->ListIndex(cell.row()); }); // as a click does
    if (control_ == nullptr)
        return;
    if (event->key() == Qt::Key_F2 && control_->CellCommandClick)
        commandClick(cell);
    else if (event->key() != Qt::Key_F2 && control_->DoubleClick)
        deliver([this] { control_->DoubleClick(); });
    else
        click(cell, QPoint());
}

/// The columns stay under their group labels and over their averages, whatever their widths.
void ListboxPeer::updateGeometries() {
    QTableView::updateGeometries();
    horizontalScrollBar()->setRange(0, 0);
}

void ListboxPeer::scrollContentsBy(int dx, int dy) {
    QTableView::scrollContentsBy(dx, dy);
    if (control_ != nullptr)
        placeEditor();
}

// Painting

void ListboxPeer::paintCell(QPainter& painter, const QRect& area, int row, int column) {
    if (control_ == nullptr)
        return;
    const bool selected = control_->Selected(row);
    {
        PainterGraphics g(painter, area);
        if (selected)
            g.tintFills(tallyvane::toQt(selection));
        deliver([&] {
            if (control_->CellBackgroundPaint)
                control_->CellBackgroundPaint(g, row, column);
        });
    }
    painter.fillRect(area.right(), area.top(), 1, area.height(), tallyvane::toQt(columnLine));
    if (selected)
        painter.fillRect(area.left(), area.bottom(), area.width(), 1, tallyvane::toQt(selectionLine));
    if (row < control_->ListCount())
        drawText(painter, area, row, column);
    if (hasFocus() && row < control_->ListCount() && currentIndex() == model_->index(row, column)) {
        painter.setPen(tallyvane::toQt(selectionLine));
        painter.drawRect(area.adjusted(0, 0, -1, -1));
    }
}

void ListboxPeer::drawText(QPainter& painter, const QRect& area, int row, int column) {
    const QRect inner = area.adjusted(textMargin, 0, -textMargin, 0);
    bool drawn = false;
    PainterGraphics g(painter, area);
    g.ForeColor(text);
    deliver([&] {
        if (control_->CellTextPaint)
            drawn = control_->CellTextPaint(g, row, column, inner.left() - area.left(), area.height());
    });
    if (drawn)
        return;
    painter.setPen(tallyvane::toQt(g.ForeColor()));
    const TextStyle style = control_->styleOf(row, column);
    QFont cellFont = font();
    cellFont.setBold(style.bold);
    cellFont.setItalic(style.italic);
    cellFont.setUnderline(style.underline);
    painter.setFont(cellFont);
    QRect place = inner.translated(-area.topLeft());
    if (const auto picture = control_->RowPicture(row); picture && column == 0) {
        constexpr int pictureWidth = 16;
        g.DrawPicture(*picture, place.left(), (area.height() - pictureWidth) / 2.0);
        place.setLeft(place.left() + pictureWidth + textMargin);
    }
    const QString whole = tallyvane::toQt(Left(control_->Cell(row, column), mostCharacters));
    const QString shown = QFontMetrics(cellFont).elidedText(whole, Qt::ElideRight, place.width());
    painter.drawText(place, toQt(control_->ColumnAlignment(column)) | Qt::AlignVCenter, shown);
}

void ListboxPeer::paintEvent(QPaintEvent* event) {
    QTableView::paintEvent(event);
    if (control_ == nullptr)
        return;
    QPainter painter(viewport());
    painter.setFont(font());
    const int rowHeight = control_->DefaultRowHeight();
    const int rows = control_->ListCount();
    int row = rows;
    int top = rows == 0 ? 0 : rowViewportPosition(rows - 1) + rowHeight;
    for (; top < viewport()->height(); top += rowHeight, ++row)
        for (int column = 0; column < model_->columnCount(); ++column)
            paintCell(painter, {columnViewportPosition(column), top, columnWidth(column), rowHeight}, row, column);
}

} // namespace tallyvane

/// How a list looks: its colours, fonts and widths, and the painting of its cells.
#include <QApplication>
#include <QHeaderView>
#include <QPainter>
#include <QScrollBar>
#include <QStyledItemDelegate>

#include "platform/qt/event_guard.h"
#include "platform/qt/listbox_peer.h"
#include "platform/qt/painter_graphics.h"

namespace tallyvane {

namespace {

constexpr int headingHeight = 19;
constexpr int headingFontPixels = 12;
constexpr int scrollBarWidth = 15;
constexpr int textMargin = 6;
constexpr int pictureWidth = 16;

QPalette paletteOf(const ListColors& list) {
    QPalette colors(toQt(list.headingBackground), toQt(list.headingBackground));
    colors.setColor(QPalette::Base, toQt(list.background));
    for (const auto role : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText})
        colors.setColor(role, toQt(list.text));
    colors.setColor(QPalette::Highlight, toQt(list.selection));
    colors.setColor(QPalette::HighlightedText, toQt(list.text));
    return colors;
}

void drawDots(QPainter& painter, int left, int right, int y, Color color) {
    constexpr int step = 2; // from dot to dot
    for (int x = left; x < right; x += step)
        painter.fillRect(x, y, 1, 1, toQt(color));
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

void ListboxPeer::setUpLook() {
    setItemDelegate(new CellPainter(this));
    setPalette(paletteOf(control_->Colors()));
    setShowGrid(false);
    setCornerButtonEnabled(false);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    verticalScrollBar()->setFixedWidth(scrollBarWidth);
    verticalHeader()->hide();
    verticalHeader()->setMinimumSectionSize(1);
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    horizontalHeader()->setFixedHeight(headingHeight);
    horizontalHeader()->setMinimumSectionSize(1);
    horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    horizontalHeader()->setHighlightSections(false);
    QFont headings = font();
    headings.setPixelSize(headingFontPixels);
    horizontalHeader()->setFont(headings);
}

void ListboxPeer::setListFont() {
    QFont listFont = QApplication::font();
    if (const std::string& family = control_->TextFont(); family != "System")
        listFont.setFamily(tallyvane::toQt(family));
    listFont.setPixelSize(control_->TextSize());
    if (listFont == font())
        return;
    setFont(listFont);
    editor_->setFont(listFont);
}

/// A heading as far as its column has room for it; dots at the end stand for the rest.
QString ListboxPeer::shownHeading(int column, const QString& heading) const {
    const int margins = 2 * style()->pixelMetric(QStyle::PM_HeaderMargin, nullptr, horizontalHeader());
    return horizontalHeader()->fontMetrics().elidedText(heading, Qt::ElideRight, columnWidth(column) - margins);
}

bool ListboxPeer::isCellCut(int row, int column) const {
    const int picture = column == 0 && control_->RowPicture(row) ? pictureWidth + textMargin : 0;
    const QString whole = tallyvane::toQt(Left(control_->Cell(row, column), mostCharacters));
    return QFontMetrics(fontOfCell(row, column)).horizontalAdvance(whole) >
           columnWidth(column) - 2 * textMargin - picture;
}

QFont ListboxPeer::fontOfCell(int row, int column) const {
    const TextStyle style = control_->styleOf(row, column);
    QFont cellFont = font();
    cellFont.setBold(style.bold);
    cellFont.setItalic(style.italic);
    cellFont.setUnderline(style.underline);
    return cellFont;
}

/// The last column leaves the scroll bar its room, whatever widths were set.
void ListboxPeer::fitLastColumn() {
    const int last = model_->columnCount() - 1;
    if (control_ == nullptr || last < 0)
        return;
    const int room = viewport()->width() - horizontalHeader()->sectionPosition(last);
    horizontalHeader()->resizeSection(last, std::min(control_->WidthActual(last), room));
}

Qt::Alignment ListboxPeer::alignmentOf(int column) const {
    switch (control_->ColumnAlignment(column)) {
    case Listbox::AlignCenter:
        return Qt::AlignHCenter | Qt::AlignVCenter;
    case Listbox::AlignRight:
        return Qt::AlignRight | Qt::AlignVCenter;
    default:
        return Qt::AlignLeft | Qt::AlignVCenter;
    }
}

void ListboxPeer::paintCell(QPainter& painter, const QRect& area, int row, int column) {
    if (control_ == nullptr)
        return;
    const bool selected = control_->Selected(row);
    {
        PainterGraphics g(painter, area);
        if (selected)
            g.tintFills(tallyvane::toQt(control_->Colors().selection));
        deliver([&] {
            if (control_->CellBackgroundPaint)
                control_->CellBackgroundPaint(g, row, column);
        });
    }
    painter.fillRect(area.right(), area.top(), 1, area.height(), tallyvane::toQt(control_->Colors().columnLine));
    if (selected)
        painter.fillRect(area.left(), area.bottom(), area.width(), 1,
                         tallyvane::toQt(control_->Colors().selectionLine));
    if (row < control_->ListCount())
        drawText(painter, area, row, column);
    if (row >= 0 && row == control_->MarkedRow())
        drawMark(painter, area, column);
    if (hasFocus() && row < control_->ListCount() && currentIndex() == model_->index(row, column)) {
        painter.setPen(tallyvane::toQt(control_->Colors().selectionLine));
        painter.drawRect(area.adjusted(0, 0, -1, -1));
    }
}

/// The part of the frame around a row that runs through one of its cells.
void ListboxPeer::drawMark(QPainter& painter, const QRect& area, int column) {
    constexpr int line = 2;
    const QColor color = tallyvane::toQt(control_->Colors().mark);
    painter.fillRect(area.left(), area.top(), area.width(), line, color);
    painter.fillRect(area.left(), area.bottom() + 1 - line, area.width(), line, color);
    if (column == 0)
        painter.fillRect(area.left(), area.top(), line, area.height(), color);
    if (column == model_->columnCount() - 1)
        painter.fillRect(area.right() + 1 - line, area.top(), line, area.height(), color);
}

void ListboxPeer::drawText(QPainter& painter, const QRect& area, int row, int column) {
    const QRect inner = area.adjusted(textMargin, 0, -textMargin, 0);
    bool drawn = false;
    PainterGraphics g(painter, area);
    g.ForeColor(control_->Colors().text);
    deliver([&] {
        if (control_->CellTextPaint)
            drawn = control_->CellTextPaint(g, row, column, inner.left() - area.left(), area.height());
    });
    if (drawn)
        return;
    painter.setPen(tallyvane::toQt(g.ForeColor()));
    const QFont cellFont = fontOfCell(row, column);
    painter.setFont(cellFont);
    QRect place = inner.translated(-area.topLeft());
    if (const auto picture = column == 0 ? control_->RowPicture(row) : std::nullopt) {
        g.DrawPicture(*picture, place.left(), (area.height() - pictureWidth) / 2.0);
        place.setLeft(place.left() + pictureWidth + textMargin);
    }
    const QString whole = tallyvane::toQt(Left(control_->Cell(row, column), mostCharacters));
    const QString shown = QFontMetrics(cellFont).elidedText(whole, Qt::ElideRight, place.width());
    painter.setLayoutDirection(layoutDirection()); // the list's, which is not always the application's
    QRect drawnAt;
    painter.drawText(place, static_cast<int>(alignmentOf(column)), shown, &drawnAt);
    if (control_->CellHelpTag && !control_->CellHelpTag(row, column).empty())
        drawDots(painter, drawnAt.left(), drawnAt.right(), area.height() - 2, control_->Colors().helpDots);
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
    if (rows == 0)
        drawEmptyText(painter);
}

void ListboxPeer::drawEmptyText(QPainter& painter) const {
    constexpr double largerThanCells = 1.25;
    QFont large = font();
    large.setPixelSize(static_cast<int>(font().pixelSize() * largerThanCells));
    painter.setFont(large);
    painter.setPen(tallyvane::toQt(control_->Colors().text));
    const QRect middle = viewport()->rect().adjusted(viewport()->width() / 6, 0, -viewport()->width() / 6, 0);
    painter.drawText(middle, Qt::AlignCenter | Qt::TextWordWrap, tallyvane::toQt(control_->EmptyText()));
}

/// The text of an empty list is read aloud, too.
void ListboxPeer::describeEmptyList() {
    setAccessibleDescription(control_->ListCount() == 0 ? tallyvane::toQt(control_->EmptyText()) : QString());
}

} // namespace tallyvane

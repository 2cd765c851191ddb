#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/controls/text_controls.h"
#include "platform/drawing/graphics.h"
#include "platform/drawing/picture.h"
#include "platform/files/folder_item.h"

namespace tallyvane {

/// Hears what happens in a list, row by row. The peer that shows the list is one.
class ListboxObserver : public ControlObserver {
public:
    virtual void rowAdded(int row) = 0;
    virtual void rowRemoved(int row) = 0;
    /// Rows have other places or are others altogether.
    virtual void rowsReplaced() = 0;
    virtual void cellChanged(int row, int column) = 0;
    virtual void selectionChanged() = 0;
    /// A cell was opened, or the open one was closed.
    virtual void openCellChanged() = 0;
    /// A line is to show at the open cell.
    virtual void showHint(const std::string& hint) = 0;
    /// That row is to be the first that can be seen, as far as there are rows below it.
    virtual void scrolled(int row) = 0;
    /// The row is to be seen, with as little scrolling as it takes.
    virtual void bringIntoView(int row) = 0;
    virtual void rowMarked() = 0;
};

/// The colours of a list, the same on every theme: its cells are painted on backgrounds of the window's own.
struct ListColors {
    Color background = RGB(255, 255, 255);
    Color text = RGB(0, 0, 0);
    Color headingBackground = RGB(224, 224, 224);
    Color columnLine = RGB(192, 192, 192);
    Color selection = RGB(128, 128, 128);
    /// Below a selected row, around the cell with the focus and around the open one.
    Color selectionLine = RGB(0, 0, 0);
    /// Around a marked row.
    Color mark = RGB(0, 70, 160);
    /// Below a text that has a help tag.
    Color helpDots = RGB(0, 0, 0);
};

/// What the user drops: a file, a text, or neither of them.
struct DragItem {
    std::optional<FolderItem> file;
    std::optional<std::string> text;
};

/// A grid of text cells with headings, a selection of rows and one cell at most open for typing. Rows and columns
/// count from 0. Outside of the grid a cell reads as "" and a write does nothing.
///
/// Every row bears a revision: a number that belongs to its present cells alone. Each write gives the row another
/// one, and no number is given twice, so whoever remembers something of a row can tell whether it still holds.
class Listbox : public Control {
private:
    struct Row;

public:
    /// Rows outside of the list, with the places that they had in it, in ascending order.
    struct TakenRows {
        std::vector<int> places;
        std::vector<Row> rows;
    };

    /// Hears of every change, with what it takes to undo it.
    class Recorder {
    public:
        virtual ~Recorder() = default;
        /// The changes that follow are one step of the user's; the name says what it does, as "Removal of 10 Days".
        virtual void beginStep(std::string name) = 0;
        /// The same for what the user types into a row from here on.
        virtual void beginTyping(int row) = 0;
        virtual void cellWritten(int row, int column, std::string before) = 0;
        /// The rows from this one to the last are new.
        virtual void rowsAdded(int first) = 0;
        virtual void rowsTaken(TakenRows rows) = 0;
        /// Row i stood at order[i] before.
        virtual void rowsReordered(std::vector<int> order) = 0;
    };

    enum ColumnTypes { TypeDefault = 0, TypeEditable = 3 };
    enum ColumnAlignments { AlignDefault = 0, AlignLeft = 1, AlignCenter = 2, AlignRight = 3 };
    enum class SelectionTypes { single, multiple };

    explicit Listbox(int columnCount);

    // Columns

    int ColumnCount() const { return static_cast<int>(columns_.size()); }
    /// Points of each column, or parts of the list's width with "%", with "," between them. A column past the last
    /// width is not shown.
    const std::string& ColumnWidths() const { return columnWidths_; }
    void ColumnWidths(std::string value) { set(columnWidths_, std::move(value), Property::columns); }
    /// Points of a column as the list was laid out; 0 for one that is not shown.
    int WidthActual(int column) const;
    /// Whether the headings are shown.
    bool HasHeading() const { return hasHeading_; }
    void HasHeading(bool value) { set(hasHeading_, value, Property::columns); }
    /// Whether a frame is drawn around the list.
    bool Border() const { return border_; }
    void Border(bool value) { set(border_, value, Property::appearance); }
    const std::string& Heading(int column) const { return columns_[index(column)].heading; }
    void Heading(int column, std::string text) {
        set(columns_[index(column)].heading, std::move(text), Property::columns);
    }
    int ColumnType(int column) const { return columns_[index(column)].type; }
    void ColumnType(int column, int type) { set(columns_[index(column)].type, type, Property::columns); }
    int ColumnAlignment(int column) const { return columns_[index(column)].alignment; }
    void ColumnAlignment(int column, int alignment) {
        set(columns_[index(column)].alignment, alignment, Property::columns);
    }
    int DefaultRowHeight() const { return rowHeight_; }
    void DefaultRowHeight(int points) { set(rowHeight_, points, Property::appearance); }
    /// Of the cells, in points of the screen; also in print.
    int TextSize() const { return textSize_; }
    void TextSize(int points) { set(textSize_, points, Property::appearance); }
    /// "System" is the desktop's own font.
    FontName TextFont() const { return textFont_; }
    void TextFont(FontName name) { set(textFont_, name, Property::appearance); }
    /// What the list says in place of rows while it has none.
    const std::string& EmptyText() const { return emptyText_; }
    void EmptyText(std::string text) { set(emptyText_, std::move(text), Property::appearance); }
    /// Fixed once it is shown.
    const ListColors& Colors() const { return colors_; }
    void Colors(const ListColors& value) { colors_ = value; }
    SelectionTypes SelectionType() const { return selectionType_; }
    void SelectionType(SelectionTypes value) { set(selectionType_, value, Property::appearance); }

    // Rows and cells

    int ListCount() const { return static_cast<int>(rows_.size()); }
    /// The row that was added last; -1 before that, and once it was removed or rows have come back or moved.
    int LastIndex() const { return lastIndex_; }
    const std::string& Cell(int row, int column) const;
    /// The texts of a row that exists, for those who want them all; valid until the row changes.
    std::span<const std::string> cells(int row) const { return rows_[index(row)].cells; }
    /// A write from code raises no event.
    void Cell(int row, int column, std::string_view text);
    /// Appends a row whose column 0 holds the text; its other cells are empty.
    void AddRow(std::string_view text);
    /// Appends rows at one go, each with its texts from column 0; texts past the last column are dropped.
    void AddRows(std::vector<std::vector<std::string>> rows);
    void RemoveRow(int row);
    void DeleteAllRows();
    // How a cell's text is set off, also in print
    bool CellBold(int row, int column) const { return styleOf(row, column).bold; }
    void CellBold(int row, int column, bool on) { setStyle(row, column, &TextStyle::bold, on); }
    bool CellItalic(int row, int column) const { return styleOf(row, column).italic; }
    void CellItalic(int row, int column, bool on) { setStyle(row, column, &TextStyle::italic, on); }
    bool CellUnderline(int row, int column) const { return styleOf(row, column).underline; }
    void CellUnderline(int row, int column, bool on) { setStyle(row, column, &TextStyle::underline, on); }
    TextStyle styleOf(int row, int column) const;
    /// A small picture before the text of column 0; empty for none.
    std::optional<Picture> RowPicture(int row) const;
    void RowPicture(int row, Picture picture);
    /// Removes all selected rows at one go, and raises Change once if there were any.
    void RemoveSelectedRows();
    /// Takes rows out of the list; places in ascending order. The selection loses them without an event.
    [[nodiscard]] TakenRows takeRows(std::vector<int> places);
    /// Puts rows back to the places that they were taken from, unselected.
    void putRows(TakenRows taken);
    /// Gives row i the place of row order[i]; each row stands once in the order.
    void reorder(const std::vector<int>& order);
    /// The same as a change that can be undone.
    void arrange(std::vector<int> order);
    std::uint64_t revision(int row) const { return rows_[index(row)].revision; }

    // Selection

    /// The first selected row, or -1.
    int ListIndex() const;
    /// Selects that row alone; -1 selects none. Raises Change when the selection differs.
    void ListIndex(int row);
    bool Selected(int row) const { return contains(row, 0) && rows_[index(row)].selected; }
    /// Closes an open cell as `select` does.
    void Selected(int row, bool value);
    int SelectedCount() const { return selectedCount_; }
    /// The selected rows as lines, their first so many cells with tabs between them; a tab in a cell is a blank.
    std::string selectedText(int columns) const;
    /// Selects these rows and no other. Raises Change once when the selection differs. An open cell is closed unless
    /// its row alone is selected: nobody types into a row while another is marked.
    void select(const std::vector<bool>& rows);
    /// The first row that can be seen. Set: as far as there are rows below it.
    int ScrollPosition() const { return scrollPosition_; }
    void ScrollPosition(int row);
    /// The user has scrolled so that this row is the first that can be seen.
    void userScrolled(int row) { scrollPosition_ = row; }
    /// Scrolls as little as it takes to see the row.
    void bringIntoView(int row);
    /// A row with a frame around it, which is where the keys start from; -1 for none. It is no selection, and goes with
    /// the next one, and when rows go, come back or move.
    int MarkedRow() const { return markedRow_; }
    /// Brings the row into view, too. One that does not exist takes the mark away.
    void markRow(int row);

    // Changes as steps that can be undone

    /// The one recorder; null for none. The list does not own it.
    void record(Recorder* recorder) { recorder_ = recorder; }
    // Tell the recorder what the changes that follow do together
    void beginStep(std::string name) {
        if (recorder_ != nullptr)
            recorder_->beginStep(std::move(name));
    }
    void beginTyping(int row) {
        if (recorder_ != nullptr)
            recorder_->beginTyping(row);
    }

    // What may be dropped on the list

    /// Files of any type; "all" is the only kind there is.
    void AcceptFileDrop(std::string_view /*kind*/) { acceptsFiles_ = true; }
    void AcceptTextDrop() { acceptsTexts_ = true; }
    bool acceptsFiles() const { return acceptsFiles_; }
    bool acceptsTexts() const { return acceptsTexts_; }

    // Editing in place

    /// Opens a cell, whatever its column's type, with its row selected alone; for the open cell this is confirmCell. A
    /// row or column that does not exist leaves things as they are.
    void EditCell(int row, int column);
    /// The field of the open cell; it keeps its last state when none is open.
    TextField& ActiveCell() { return activeCell_; }
    /// The open cell's place; -1 when none is open.
    int openRow() const { return openRow_; }
    int openColumn() const { return openColumn_; }
    /// The user has typed in the open cell: the cell takes the text at once, in one line, then CellTextChange is
    /// raised.
    void userTyped(std::string_view text, int selStart, int selLength);
    /// Ends the editing; the cell keeps what was typed.
    void closeCell();
    /// The cell stays open and keeps what was typed, also if it is reverted later. An undo is for the table then.
    void confirmCell();
    /// Ends the editing and puts the text back as it was when the cell was opened or confirmed last, and with it the
    /// other cells of the row, which may have followed what was typed. CellTextChange if anything was typed.
    void revertCell();
    /// The user has undone all that was typed: the other cells of the row follow. The cell stays open. Nothing when
    /// that was confirmed.
    void revertTyping();
    /// Moves the editing by so many rows, down if positive, as far as there are rows, and selects the whole text.
    void moveCell(int rows);
    /// Empties an editable cell, then CellTextChange. False when there was nothing to empty.
    bool clearCell(int row, int column);
    /// Shows a line at the open cell, for a few seconds or until another cell is opened.
    void showHint(const std::string& hint);

    // Sorting

    /// 1 ascending, -1 descending, 0 before a direction was set.
    int ColumnSortDirection(int column) const { return columns_[index(column)].sortDirection; }
    void ColumnSortDirection(int column, int direction) { columns_[index(column)].sortDirection = direction; }
    int SortedColumn() const { return sortedColumn_; }
    void SortedColumn(int column) { sortedColumn_ = column; }
    /// The column whose heading shows the direction of the sorted column by an arrow; -1 for none. The arrow goes when
    /// a row is added or a text in that column changes, and the order need not hold any more.
    int SortArrow() const { return sortArrow_; }
    void SortArrow(int column) {
        sortArrow_ = column;
        changed(Property::columns);
    }
    /// Sorts by the texts of the sorted column in its direction. Rows with equal texts keep their order, and the
    /// selection stays with its rows. An open cell is closed.
    void Sort();
    /// The user has pressed a heading: sorts by that column, unless HeaderPressed says that it has done its own.
    void pressHeader(int column);

    // Events

    std::function<void()> Open;
    std::function<void()> Change;
    /// A click, x, y in points from the cell's top left corner. True keeps an editable cell from being opened.
    std::function<bool(int row, int column, int x, int y)> CellClick;
    /// A key in the open cell; true when it was consumed. Those that type no text come as `Keys` (controls/keys.h)
    /// names them.
    std::function<bool(int row, int column, const std::string& key)> CellKeyDown;
    std::function<void(int row, int column)> CellTextChange;
    std::function<bool(int column)> HeaderPressed;
    /// On a row; also Return, when no cell is open.
    std::function<void()> DoubleClick;
    /// A click with the platform's key for shortcuts held down; also F2.
    std::function<void(int row, int column)> CellCommandClick;
    /// A file or a text was dropped on the list.
    std::function<void(const DragItem& item)> DropObject;
    /// What is read aloud for a cell; without it heading, first cell and text.
    std::function<std::string(int row, int column)> CellDescription;
    /// The line that shows while the pointer rests on a cell; "" for none. A text with such a line has dots under it.
    std::function<std::string(int row, int column)> CellHelpTag;
    /// Paints a cell's background; the surface is the cell. Also called for rows past the last. The result is ignored.
    std::function<bool(Graphics& g, int row, int column)> CellBackgroundPaint;
    /// Called before the text is drawn: may set ForeColor, or draw the text itself and return true. x is the left edge
    /// of the text and y the bottom of the cell, in points from the cell's top left corner.
    std::function<bool(Graphics& g, int row, int column, int x, int y)> CellTextPaint;

    void observe(ListboxObserver* observer) {
        Control::observe(observer);
        list_ = observer;
    }

private:
    struct Column {
        std::string heading;
        int type = TypeDefault;
        int alignment = AlignDefault;
        int sortDirection = 0;
    };
    struct RowLook {
        std::map<int, TextStyle> styles; // by column
        std::optional<Picture> picture;
    };
    struct Row {
        std::vector<std::string> cells;
        std::uint64_t revision = 0;
        bool selected = false;
        std::unique_ptr<RowLook> look; // null for a row like all others
    };

    static std::size_t index(int i) { return static_cast<std::size_t>(i); }
    bool contains(int row, int column) const {
        return row >= 0 && row < ListCount() && column >= 0 && column < ColumnCount();
    }
    RowLook& lookOf(int row);
    void setStyle(int row, int column, bool TextStyle::*part, bool on);
    void raiseChange();
    void closeCellBesideSelection();
    void noteAdded(int first);
    void removeRows(std::vector<int> places);
    void raiseRowsChanged(const std::vector<int>& places, void (ListboxObserver::*one)(int row));
    void write(int row, int column, std::string_view text);
    void raiseTextChange(int row, int column);
    void restoreRow(int row, int column);

    std::vector<Column> columns_;
    std::string columnWidths_;
    bool hasHeading_ = true;
    bool border_ = false;
    bool acceptsFiles_ = false;
    bool acceptsTexts_ = false;
    int rowHeight_ = 15;
    int textSize_ = 12;
    FontName textFont_;
    std::string emptyText_;
    ListColors colors_;
    SelectionTypes selectionType_ = SelectionTypes::single;
    std::vector<Row> rows_;
    std::uint64_t lastRevision_ = 0;
    int lastIndex_ = -1;
    int selectedCount_ = 0;
    int sortedColumn_ = -1;
    int sortArrow_ = -1;
    int scrollPosition_ = 0;
    int markedRow_ = -1;
    TextField activeCell_;
    int openRow_ = -1;
    int openColumn_ = -1;
    std::vector<std::string> cellsBeforeTyping_; // of the open cell's row; empty while there is nothing to revert
    ListboxObserver* list_ = nullptr;
    Recorder* recorder_ = nullptr;
};

} // namespace tallyvane

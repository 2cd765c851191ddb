#pragma once

#include <deque>
#include <limits>
#include <set>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "platform/controls/listbox.h"

namespace tallyvane {

/// The changes of a list, step by step, so that the user can undo and redo them.
///
/// A step holds what it takes to change the list back, and no more: texts that cells had, rows that were removed,
/// places of rows that were added, an order. Undoing it turns it into what it takes to redo it. Everything that is
/// written belongs to the step that was begun last, also what the program computes in consequence: a computed text may
/// depend on what stood in its cell before, and then nothing but that text brings the list back as it was. With the
/// cells come the selection, the scroll position and the directions of sorting.
///
/// What is written before the first step is where the history begins.
class ListHistory : public Listbox::Recorder {
public:
    static constexpr std::size_t mostSteps = 5000;

    /// Records the list from here on. The list must outlive the history. A step that changes texts only past so many
    /// columns is none to the user, and goes with the one before it.
    explicit ListHistory(Listbox& list, int columns) : list_(list), columns_(columns) { list.record(this); }
    explicit ListHistory(Listbox& list) : ListHistory(list, list.ColumnCount()) {}
    ListHistory(const ListHistory&) = delete;
    ListHistory& operator=(const ListHistory&) = delete;
    ~ListHistory() override { list_.record(nullptr); }

    bool canUndo() const { return lastEffective() != 0; }
    bool canRedo() const { return !undone_.empty(); }
    /// What the step does; "" when there is none.
    std::string undoName() const { return canUndo() ? done_[lastEffective() - 1].name : ""; }
    std::string redoName() const { return canRedo() ? undone_.back().name : ""; }
    /// Changes the list back by a step, and forth again. Without a step nothing happens.
    void undo();
    void redo();

    void beginStep(std::string name) override;
    void beginTyping(int row) override;
    void cellWritten(int row, int column, std::string before) override;
    void rowsAdded(int first) override;
    void rowsTaken(Listbox::TakenRows rows) override;
    void rowsReordered(std::vector<int> order) override;

private:
    struct CellText {
        int row;
        int column;
        std::string text;
    };
    struct AddedRows {
        std::vector<int> places;
    };
    struct RowOrder {
        std::vector<int> order; // as Listbox::reorder takes it
    };
    using Change = std::variant<CellText, AddedRows, Listbox::TakenRows, RowOrder>;

    /// How the list is looked at, beside its cells.
    struct View {
        std::vector<std::pair<int, int>> selected; // first rows, and those after the last
        int scrollPosition = 0;
        int sortedColumn = -1;
        int sortArrow = -1;
        std::vector<int> sortDirections; // of each column
    };
    struct Step {
        std::string name;
        View view; // that the step brings back
        std::vector<Change> changes; // in the order in which they are to be made
    };

    static constexpr int noRow = std::numeric_limits<int>::max();

    std::size_t lastEffective() const;
    void dropIdleSteps();
    bool isEffective(const Step& step) const;
    View view() const;
    void show(const View& view);
    void record(Change change);
    void forgetPlaces();
    Change reversed(const CellText& change);
    Change reversed(AddedRows change);
    Change reversed(Listbox::TakenRows change);
    Change reversed(const RowOrder& change);
    Step reversed(Step step);

    Listbox& list_;
    int columns_;
    std::deque<Step> done_; // the changes of each in the order of their making, so they are undone from the last on
    std::vector<Step> undone_; // these are made again from the last on, too
    // Of the last step done, since rows of it came or went:
    std::set<std::pair<int, int>> written_; // cells whose text before is known
    int firstAdded_ = noRow; // rows from here on are new, and what is written into them needs no record
    bool isChanging_ = false; // the list, by undo or redo
};

} // namespace tallyvane

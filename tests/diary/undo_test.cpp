/// Undo and redo of what the user does to the days.
#include <algorithm>
#include <fstream>
#include <random>

#include "diary/date_window.h"
#include "diary/sort_keys.h"
#include "support/diary_desk.h"

namespace tallyvane {

namespace {

/// All that undo brings back.
struct Copy {
    std::vector<Texts> rows;
    Texts strip;
    std::vector<bool> selected;
    int scrollPosition = 0;
    std::vector<int> sorting;

    bool operator==(const Copy&) const = default;
};

class UndoTest : public DiaryDesk {
protected:
    Copy copy() const {
        Copy now{{}, strip(), {}, table_.ScrollPosition(), {table_.SortedColumn()}};
        for (int row = 0; row < table_.ListCount(); ++row) {
            now.rows.emplace_back(table_.cells(row).begin(), table_.cells(row).end());
            now.selected.push_back(table_.Selected(row));
        }
        for (int column = 0; column < table_.ColumnCount(); ++column)
            now.sorting.push_back(table_.ColumnSortDirection(column));
        return now;
    }
    std::vector<std::uint64_t> revisions() const {
        std::vector<std::uint64_t> all;
        for (int row = 0; row < table_.ListCount(); ++row)
            all.push_back(table_.revision(row));
        return all;
    }
    std::string savedFile() {
        window1_.saveData();
        return read(applicationFile("7VXData"));
    }
    void type(int row, int column, const std::string& text) {
        table_.EditCell(row, column);
        table_.userTyped(text, 0, 0);
    }
    void choose(const char* item) { menuBar_.choose(item, &window1_); }
    void press(const BevelButton& button) { button.Action(); }
    /// Of the selected day, by the dialog.
    void changeDate(const Date& date) {
        window1_.ListBox1_CellClick(table_.ListIndex(), 0, 0, 0);
        auto& dialog = dynamic_cast<DateWindow&>(*Window::openWindows().back());
        dialog.CalendarControl1.SelectedDate(date);
        dialog.PushButton1.Action();
    }
    /// What the items for undo and redo say; "-" for one that is disabled.
    Texts items() {
        MenuBar bar(
            {{"EditMenu",
              "",
              {{"EditUndo", "&Undo", "", MenuRole::undo, false}, {"EditRedo", "&Redo", "", MenuRole::redo, false}}}});
        bar.enableItems(&window1_);
        Texts texts;
        for (const MenuItem& item : bar.menus().front().items)
            texts.push_back(item.Enabled ? item.textNow : "-");
        return texts;
    }
};

/// The bytes of the file that holds these rows.
std::string fileOf(const std::vector<Texts>& rows) {
    std::string file;
    for (const Texts& cells : rows) {
        for (std::size_t column = 0; column < 11; ++column)
            file += (column == 0 ? "" : "@#@") + cells[column];
        file += '\n';
    }
    return file;
}

/// What the user sees of the rows.
std::vector<Texts> seen(Copy copy) {
    for (Texts& cells : copy.rows)
        cells.resize(10);
    return copy.rows;
}

TEST_F(UndoTest, RandomChangesAreUndoneAndRedoneToTheLastByte) {
    std::ifstream source(TEST_DATA "/patient-20.csv");
    std::string file;
    for (std::string line; std::getline(source, line);)
        file += ReplaceAll(line, ",", "@#@") + "@#@\n";
    write(applicationFile("7VXData"), file);
    open();
    std::mt19937 random(20); // the same changes each time
    const auto below = [&random](int end) { return static_cast<int>(random() % static_cast<unsigned>(end)); };
    const auto anyRow = [&] { return below(table_.ListCount()); };
    const auto anyDay = [&] { return Date(1991, 1 + below(12), 1 + below(28)); };
    const auto anyText = [&]() -> std::string {
        const Texts odd{"", "HI", "5,6", "0", "-3", "5.65"};
        return below(4) == 0 ? odd[static_cast<std::size_t>(below(6))] : std::to_string(40 + below(300));
    };
    const auto selectSome = [&](int percent) {
        std::vector<bool> rows(static_cast<std::size_t>(table_.ListCount()));
        for (auto&& row : rows)
            row = below(100) < percent;
        table_.select(rows);
    };
    struct Way {
        std::function<void()> prepare; // looks elsewhere, and changes nothing
        std::function<void()> change;
    };
    const auto typeText = [&] { table_.userTyped(anyText(), 0, 0); };
    const auto openCell = [&] { table_.EditCell(anyRow(), 1 + below(9)); };
    const std::vector<Way> ways{
        {openCell, typeText},
        {openCell, [&] { typeText(), typeText(); }},
        {openCell, [&] { typeText(), table_.revertCell(); }},
        {[&] { window1_.CalendarControl1.SelectedDate(anyDay()); }, window1_.BevelButton1.Action},
        {[&] { selectSome(table_.ListCount() > 150 ? 40 : 2); }, window1_.BevelButton2.Action},
        {[&] { selectSome(10); }, [&] { table_.pressHeader(below(10)); }},
        {[&] { table_.ListIndex(anyRow()); }, [&] { changeDate(anyDay()); }},
        {[&] { selectSome(0); },
         [&] {
             const int first = table_.ListCount();
             table_.beginStep("Import");
             table_.AddRows({{anyDay().ShortDate(), anyText()}, {anyDay().ShortDate(), "", anyText()}, {"no day"}});
             SortKeys::rebuild(table_);
             table_.ListIndex(first);
             table_.ScrollPosition(first);
         }},
    };
    std::vector<Copy> done;
    std::vector<Copy> undone;
    const auto change = [&] {
        const Way& way = ways[static_cast<std::size_t>(below(static_cast<int>(ways.size())))];
        way.prepare();
        table_.ScrollPosition(anyRow());
        const Copy before = copy();
        const std::vector<std::uint64_t> order = revisions();
        way.change();
        // Rows of the same texts may have changed places.
        const std::vector<std::uint64_t> now = revisions();
        const bool isSorted = now != order && std::is_permutation(now.begin(), now.end(), order.begin(), order.end());
        if (seen(copy()) != seen(before) || isSorted)
            done.push_back(before);
        if (items()[1] == "-") // also after a change that was taken back at once
            undone.clear();
        ASSERT_EQ(items()[0] == "-", done.empty());
    };
    int taken = 0;
    const auto step = [&](std::vector<Copy>& from, std::vector<Copy>& to, const auto& take) {
        if (from.empty())
            return;
        to.push_back(copy());
        take();
        const Copy now = copy();
        ASSERT_EQ(now.rows, from.back().rows);
        ASSERT_EQ(now.strip, from.back().strip);
        ASSERT_EQ(now.selected, from.back().selected);
        ASSERT_EQ(now.scrollPosition, from.back().scrollPosition);
        ASSERT_EQ(now.sorting, from.back().sorting);
        if (++taken % 50 == 0)
            ASSERT_EQ(savedFile(), fileOf(from.back().rows));
        from.pop_back();
    };
    for (int i = 0; i < 3000 && !HasFatalFailure(); ++i) {
        SCOPED_TRACE(i);
        const int what = below(10);
        if (what < 5)
            change();
        else if (what < 8)
            step(done, undone, [this] { choose("EditUndo"); });
        else
            step(undone, done, [this] { choose("EditRedo"); });
    }
    EXPECT_GT(taken, 1000);
}

TEST_F(UndoTest, AStepIsNamedByWhatItDid) {
    write(applicationFile("7VXData"), "1/2/2026@#@5\n1/1/2026@#@7\n1/3/2026@#@8\n");
    open();
    EXPECT_EQ(items(), (Texts{"-", "-"})); // what was loaded is no change
    window1_.CalendarControl1.SelectedDate(Date(2026, 1, 4));
    press(window1_.BevelButton1);
    EXPECT_EQ(items(), (Texts{"&Undo New Day 1/4/2026", "-"}));
    type(0, 3, "6");
    EXPECT_EQ(items()[0], "&Undo Change of 1/2/2026");
    table_.revertCell();
    EXPECT_EQ(items()[0], "&Undo New Day 1/4/2026"); // nothing is left of the other
    table_.ListIndex(1);
    press(window1_.BevelButton2);
    EXPECT_EQ(items()[0], "&Undo Removal of 1/1/2026");
    table_.select({true, true});
    press(window1_.BevelButton2);
    EXPECT_EQ(items()[0], "&Undo Removal of 2 Days");
    choose("EditUndo");
    EXPECT_EQ(items(), (Texts{"&Undo Removal of 1/1/2026", "&Redo Removal of 2 Days"}));
    table_.Heading(2, "Fish & Chips");
    table_.pressHeader(2);
    EXPECT_EQ(items(), (Texts{"&Undo Removal of 1/1/2026", "&Redo Removal of 2 Days"})); // already in that order
    table_.pressHeader(0);
    table_.pressHeader(0);
    EXPECT_EQ(items(), (Texts{"&Undo Sort by Date", "-"}));
    table_.ListIndex(0);
    changeDate(Date(2026, 2, 1));
    EXPECT_EQ(items()[0], "&Undo Change of Date to 2/1/2026");
}

} // namespace

} // namespace tallyvane

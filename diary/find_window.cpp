#include "diary/find_window.h"

#include <algorithm>

#include "platform/base/number.h"
#include "platform/base/text.h"
#include "platform/base/translation.h"
#include "platform/windows/wiring.h"
#include "settings/list_colors.h"

namespace tallyvane {

namespace {

constexpr std::size_t mostShown = 1000; // hits; nobody reads more

std::string countText(int count) {
    if (count == 0)
        return tr("Nothing was found.");
    if (constexpr int most = mostShown; count > most)
        return tr("%1 places, the first %2 are shown", {Grouped(count), Grouped(most)});
    return count == 1 ? tr("1 place") : tr("%1 places", {Grouped(count)});
}

} // namespace

FindWindow::FindWindow(const Listbox& table) : table_(table) {
    shape(Kind::document, 520, 360, {520, 520, 260, anySize});
    Title(tr("Find"));
    place({
        {&EditField1, {16, 16, 380, 28}},
        {&PushButton1, {408, 15, 96, 30}},
        {&ListBox1, {16, 56, 488, 250}, lockAll},
        {&StaticText1, {16, 318, 380, 26}, lockLeft | lockBottom},
        {&PushButton2, {408, 316, 96, 30}, lockLeft | lockBottom},
    });
    EditField1.AccessibleName(tr("Text to find"));
    PushButton1.Caption(tr("Find"));
    PushButton1.Default(true);
    PushButton2.Caption(tr("Close"));
    PushButton2.Cancel(true);
    ListBox1.ColumnWidths("25%,75%");
    ListBox1.Heading(0, tr("Where"));
    ListBox1.Heading(1, tr("Text"));
    ListBox1.CellClick = [this](int row, int, int, int) { return ListBox1_CellClick(row); };
    ListBox1.HeaderPressed = [](int) { return true; }; // the order of the hits stays
    ListBox1.Colors(listColors);
    ListBox1.Border(true);
    ListBox1.DefaultRowHeight(22);
    ListBox1.TextSize(14);
    ListBox1.AccessibleName(tr("Places"));
    ListBox1.EmptyText(tr("Days, their details, the journal and the logs are searched."));
    focusFirst(EditField1);
    Wiring(*this).connect({
        {ListBox1.Change, &FindWindow::ListBox1_Change},
        {ListBox1.DoubleClick, &FindWindow::ListBox1_DoubleClick},
        {PushButton1.Action, &FindWindow::PushButton1_Action},
        {PushButton2.Action, &FindWindow::Close},
    });
}

void FindWindow::startAnew() {
    EditField1.SelectAll();
    EditField1.SetFocus();
}

void FindWindow::PushButton1_Action() {
    ListBox1.DeleteAllRows();
    hits_ = Search::hits(table_, Trim(EditField1.Text()));
    count_ = countText(static_cast<int>(hits_.size()));
    hits_.resize(std::min(hits_.size(), mostShown));
    std::vector<std::vector<std::string>> rows;
    for (const Search::Hit& hit : hits_)
        rows.push_back({Search::nameOf(hit.place), Trim(hit.line)});
    ListBox1.AddRows(std::move(rows));
    StaticText1.Text(count_);
}

void FindWindow::goToHit(int row) {
    if (row < 0 || !goTo)
        return;
    const bool isThere = goTo(hits_[static_cast<std::size_t>(row)]);
    StaticText1.Text(isThere ? count_ : tr("It has changed since. Press Find once more."));
}

/// On the way through the list. A log opens a window of its own, which would take the keys away.
void FindWindow::ListBox1_Change() {
    const int row = ListBox1.ListIndex();
    if (row >= 0 && !Search::isInLogs(hits_[static_cast<std::size_t>(row)].place))
        goToHit(row);
}

bool FindWindow::ListBox1_CellClick(int row) {
    goToHit(row);
    return true;
}

void FindWindow::ListBox1_DoubleClick() { goToHit(ListBox1.ListIndex()); }

} // namespace tallyvane

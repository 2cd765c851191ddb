#include "diary/conflict_window.h"

#include <algorithm>

#include "platform/base/translation.h"
#include "platform/desktop/desktop.h"
#include "platform/windows/wiring.h"
#include "settings/list_colors.h"

namespace tallyvane {

ConflictWindow::ConflictWindow() {
    shape(Kind::document, 560, 320, {560, 560, 260, anySize});
    Title(tr("Two Values for One Reading"));
    place({
        {&StaticText1, {16, 12, 528, 44}, lockLeft | lockTop | lockRight},
        {&ListBox1, {16, 60, 528, 200}, lockAll},
        {&PushButton1, {16, 274, 182, 30}, lockLeft | lockBottom},
        {&PushButton2, {208, 274, 206, 30}, lockLeft | lockBottom},
        {&PushButton3, {438, 274, 106, 30}, lockBottomRight},
    });
    StaticText1.Multiline(true);
    StaticText1.Text(
        tr("These were changed here and by another program. What is here stands until you take the other value."));
    ListBox1.ColumnWidths("25%,35%,20%,20%");
    const std::vector<std::string> headings{tr("Date"), tr("Test period"), tr("Here"), tr("Other program")};
    for (int column = 0; column < ListBox1.ColumnCount(); ++column)
        ListBox1.Heading(column, headings[static_cast<std::size_t>(column)]);
    ListBox1.HeaderPressed = [](int) { return true; }; // the order stays
    ListBox1.Colors(listColors);
    ListBox1.Border(true);
    ListBox1.DefaultRowHeight(22);
    ListBox1.TextSize(14);
    ListBox1.AccessibleName(tr("Values"));
    PushButton1.Caption(tr("Keep What Is Here"));
    PushButton2.Caption(tr("Take the Other Value"));
    PushButton3.Caption(tr("Later"));
    PushButton3.Cancel(true);
    focusFirst(ListBox1);
    Wiring(*this).connect({
        {PushButton1.Action, &ConflictWindow::PushButton1_Action},
        {PushButton2.Action, &ConflictWindow::PushButton2_Action},
        {PushButton3.Action, &ConflictWindow::Close},
    });
}

void ConflictWindow::add(const std::vector<DayMerge::Conflict>& conflicts) {
    for (const DayMerge::Conflict& conflict : conflicts) {
        if (std::find(conflicts_.begin(), conflicts_.end(), conflict) != conflicts_.end())
            continue;
        conflicts_.push_back(conflict);
        ListBox1.AddRows({{conflict.date, nameOfColumn(conflict.column), conflict.here, conflict.there}});
    }
    ListBox1.ListIndex(0);
}

void ConflictWindow::PushButton1_Action() { settle(false); }

void ConflictWindow::PushButton2_Action() { settle(true); }

/// The selected conflict goes; with the last one the window closes.
void ConflictWindow::settle(bool isOtherTaken) {
    const int row = ListBox1.ListIndex();
    if (row < 0)
        return;
    const DayMerge::Conflict conflict = conflicts_[static_cast<std::size_t>(row)];
    if (isOtherTaken && !takeOther(conflict))
        MsgBox(tr("%1, %2 has been changed since. It stays as it is; the other value was %3.",
                  {conflict.date, nameOfColumn(conflict.column), conflict.there}));
    conflicts_.erase(conflicts_.begin() + row);
    ListBox1.RemoveRow(row);
    if (conflicts_.empty())
        Close();
    else
        ListBox1.ListIndex(std::min(row, ListBox1.ListCount() - 1));
}

} // namespace tallyvane

#include "diary/date_window.h"

#include "diary/date_key.h"
#include "diary/day_table.h"
#include "platform/base/translation.h"
#include "platform/windows/wiring.h"

namespace tallyvane {

DateWindow::DateWindow(Window& owner, Listbox& days) : days_(days) {
    shape(Kind::dialog, 289, 186);
    setOwner(&owner);
    Title(tr("Change Date"));
    place({
        {&Canvas1, {14, 14, 64, 64}},
        {&CalendarControl1, {92, 8, 189, 138}},
        {&PushButton2, {108, 152, 80, 26}},
        {&PushButton1, {200, 152, 80, 26}},
    });
    Canvas1.Backdrop(Picture("7VXiconMed3.png"));
    CalendarControl1.AccessibleName(tr("New date"));
    PushButton1.Caption(tr("OK"));
    PushButton1.Default(true);
    PushButton2.Caption(tr("Cancel"));
    PushButton2.Cancel(true);

    Wiring(*this).connect({
        {CalendarControl1.Open, &DateWindow::CalendarControl1_Open},
        {PushButton1.Action, &DateWindow::PushButton1_Action},
        {PushButton2.Action, &DateWindow::PushButton2_Action},
    });
}

void DateWindow::CalendarControl1_Open() {
    if (const std::optional<Date> date = ParseDate(days_.Cell(days_.ListIndex(), DayTable::dateColumn)))
        CalendarControl1.SelectedDate(*date);
}

void DateWindow::PushButton1_Action() {
    const std::string date = CalendarControl1.SelectedDate().ShortDate();
    days_.beginStep(tr("Change of Date to %1", {date}));
    days_.Cell(days_.ListIndex(), DayTable::dateColumn, date);
    days_.Cell(days_.ListIndex(), DayTable::firstKey, DateKey::of(CalendarControl1.SelectedDate()));
    if (dateChanged)
        dateChanged();
    Close();
}

void DateWindow::PushButton2_Action() { Close(); }

} // namespace tallyvane

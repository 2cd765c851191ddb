#include "diary/go_to_day_window.h"

#include "platform/base/translation.h"
#include "platform/windows/wiring.h"

namespace tallyvane {

GoToDayWindow::GoToDayWindow(Window& owner, const Date& proposal) {
    shape(Kind::dialog, 360, 150);
    setOwner(&owner);
    Title(tr("Go to Day"));
    place({
        {&StaticText1, {16, 18, 70, 26}},
        {&EditField1, {92, 18, 160, 26}},
        {&StaticText2, {16, 52, 328, 44}},
        {&PushButton2, {142, 108, 96, 28}},
        {&PushButton1, {248, 108, 96, 28}},
    });
    StaticText1.Text(tr("Date:"));
    EditField1.Text(proposal.ShortDate());
    EditField1.AccessibleName(tr("Date"));
    EditField1.SelectAll();
    StaticText2.Multiline(true);
    PushButton1.Caption(tr("Go"));
    PushButton1.Default(true);
    PushButton2.Caption(tr("Cancel"));
    PushButton2.Cancel(true);
    focusFirst(EditField1);
    Wiring(*this).connect({
        {PushButton1.Action, &GoToDayWindow::PushButton1_Action},
        {PushButton2.Action, &GoToDayWindow::Close},
    });
}

void GoToDayWindow::PushButton1_Action() {
    const std::optional<Date> day = ParseDate(EditField1.Text());
    if (!day)
        StaticText2.Text(
            tr("\u201c%1\u201d can't be read as a date. Write it like %2.", {EditField1.Text(), Date().ShortDate()}));
    else if (goTo && goTo(*day))
        Close();
    else
        StaticText2.Text(tr("There is no day %1 in the table.", {day->ShortDate()}));
}

} // namespace tallyvane

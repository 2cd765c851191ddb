#pragma once

#include <functional>

#include "platform/windows/window.h"

namespace tallyvane {

/// The dialog that changes the date of the selected day.
class DateWindow : public Window {
public:
    /// The days' table must outlive the dialog, which belongs to the owner.
    DateWindow(Window& owner, Listbox& days);

    CalendarControl CalendarControl1;
    Canvas Canvas1; // decoration
    PushButton PushButton1; // OK
    PushButton PushButton2; // Cancel

    /// The date has been changed.
    std::function<void()> dateChanged;

    void CalendarControl1_Open();
    void PushButton1_Action();
    void PushButton2_Action();

private:
    Listbox& days_;
};

} // namespace tallyvane

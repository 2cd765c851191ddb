#pragma once

#include "platform/window.h"

namespace tallyvane {

class Window1;

/// The dialog that changes the date of the selected day.
class DateWindow : public Window {
public:
    explicit DateWindow(Window1& diary);

    CalendarControl CalendarControl1;
    Canvas Canvas1; // decoration
    PushButton PushButton1; // OK
    PushButton PushButton2; // Cancel

    void CalendarControl1_Open();
    void PushButton1_Action();
    void PushButton2_Action();

private:
    Window1& diary_;
};

} // namespace tallyvane

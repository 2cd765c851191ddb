#pragma once

#include <functional>

#include "platform/base/date.h"
#include "platform/windows/window.h"

namespace tallyvane {

/// Asks for a date, and goes to that day of the table.
class GoToDayWindow : public Window {
public:
    /// The date that the field begins with.
    GoToDayWindow(Window& owner, const Date& proposal);

    StaticText StaticText1; // "Date:"
    TextField EditField1;
    StaticText StaticText2; // what is wrong with what was typed
    PushButton PushButton1, PushButton2; // Go, Cancel

    /// Goes to a day; false when the table has no such day.
    std::function<bool(const Date& day)> goTo;

    void PushButton1_Action();
};

} // namespace tallyvane

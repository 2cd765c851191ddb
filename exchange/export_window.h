#pragma once

#include "platform/windows/window.h"

namespace tallyvane {

/// Asks for the format of an export and for its file, exports all days and closes. When the disk fails it stays, so
/// that another file can be chosen.
class exportWindow : public Window {
public:
    /// The days' table, which must outlive the window.
    explicit exportWindow(const Listbox& days);

    GroupBox GroupBox1;
    RadioButton RadioButton1, RadioButton2; // commas, tabs
    PushButton PushButton1, PushButton2; // OK, Cancel

    void PushButton1_Action();

private:
    const Listbox& days_;
};

} // namespace tallyvane

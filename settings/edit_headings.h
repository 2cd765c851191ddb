#pragma once

#include <array>
#include <functional>

#include "platform/windows/window.h"
#include "settings/headings.h"

namespace tallyvane {

/// The editor of the names of meal groups and columns. Whatever way it is closed, what stands in its fields is saved;
/// only "Apply" and "Restore Default Headings" show it at once.
class EditHeadings : public Window {
public:
    EditHeadings();

    StaticText StaticText1; // what to do
    TextField TextField1, TextField2, TextField3, TextField4; // the groups
    Canvas Canvas1; // the table's heading bar
    TextField TextField5, TextField6, TextField7, TextField8, TextField9; // the columns
    TextField TextField10, TextField11, TextField12, TextField13;
    PushButton PushButton1; // Apply
    PushButton PushButton2; // Cancel
    PushButton PushButton3; // Restore Default Headings

    /// Shows headings in the main window.
    std::function<void(const Headings& headings)> showHeadings;

    void Event_Open() override;
    void Event_Close() override { SaveHeadings(); }

    void getHeadings();
    void SaveHeadings();
    void PushButton1_Action();
    void PushButton2_Action() { Close(); }
    void PushButton3_Action();

private:
    std::array<TextField*, 13> fields();
    void fill(const Headings& headings);
    Headings texts();
    void showAndClose();
};

} // namespace tallyvane

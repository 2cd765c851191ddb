#include "exchange/export_window.h"

#include "exchange/export_data.h"
#include "platform/base/text.h"
#include "platform/base/translation.h"
#include "platform/windows/dialogs.h"
#include "platform/windows/wiring.h"

namespace tallyvane {

exportWindow::exportWindow(const Listbox& days) : days_(days) {
    shape(Kind::fixed, 350, 190);
    Title(tr("Untitled"));
    place({
        {&GroupBox1, {16, 12, 318, 116}},
        {&RadioButton1, {32, 50, 290, 28}},
        {&RadioButton2, {32, 84, 290, 28}},
        {&PushButton1, {228, 144, 106, 30}},
        {&PushButton2, {112, 144, 106, 30}},
    });
    GroupBox1.Caption(tr("Export Format"));
    RadioButton1.Caption(tr("CSV (Comma separated)"));
    RadioButton2.Caption(tr("Tab separated"));
    RadioButton::join({&RadioButton1, &RadioButton2});
    RadioButton1.Value(true);
    PushButton1.Caption(tr("OK"));
    PushButton1.Default(true);
    PushButton2.Caption(tr("Cancel"));
    PushButton2.Cancel(true);
    Wiring(*this).connect({
        {PushButton1.Action, &exportWindow::PushButton1_Action},
        {PushButton2.Action, &exportWindow::Close},
    });
}

void exportWindow::PushButton1_Action() {
    const SaveAsDialog dialog{tr("Save your data"), tr("Enter a filename"), tr("Tallyvane Data"), exportExtension};
    const std::optional<FolderItem> file = dialog.ShowModal();
    ExportData(days_, RadioButton1.Value() ? "," : Chr(9), file);
    Close();
}

} // namespace tallyvane

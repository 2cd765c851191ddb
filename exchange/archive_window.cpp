#include "exchange/archive_window.h"

#include "platform/base/text_decoding.h"
#include "platform/base/translation.h"
#include "platform/printing/print_and_save.h"
#include "platform/windows/dialogs.h"
#include "platform/windows/wiring.h"

namespace tallyvane {

archiveWindow::archiveWindow() {
    shape(Kind::document, 700, 500, {400, anySize, 260, anySize});
    Title(tr("Tallyvane Archive"));
    place({
        {&EditField1, {16, 16, 668, 424}, lockAll},
        {&PushButton1, {462, 454, 106, 30}, lockBottomRight},
        {&PushButton2, {578, 454, 106, 30}, lockBottomRight},
    });
    EditField1.ReadOnly(true);
    EditField1.AccessibleName(tr("Archived days"));
    PushButton1.Caption(tr("Print"));
    PushButton2.Caption(tr("OK"));
    PushButton2.Cancel(true); // Escape closes a window that can only be read
    Wiring(*this).connect({
        {PushButton1.Action, &archiveWindow::PushButton1_Action},
        {PushButton2.Action, &archiveWindow::Close},
    });
}

void archiveWindow::PushButton1_Action() { printText(EditField1.Text(), Title()); }

void FileOpenArchivedDays_Action(std::unique_ptr<archiveWindow>& window) {
    const std::optional<FolderItem> file = OpenDialog{tr("Select an archive file"), "text"}.ShowModal();
    std::optional<TextInputStream> stream = file ? file->OpenAsTextFile() : std::nullopt;
    if (!stream)
        return;
    if (!window || !window->isOpen())
        window = std::make_unique<archiveWindow>();
    window->Title(file->DisplayName());
    window->EditField1.Text(withoutByteOrderMark(std::string(stream->ReadAll())));
    window->Show();
}

} // namespace tallyvane

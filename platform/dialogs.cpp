#include "platform/dialogs.h"

#include "platform/toolkit.h"

namespace tallyvane {

std::optional<FolderItem> SaveAsDialog::ShowModal() const {
    Toolkit* toolkit = Toolkit::inForce();
    return toolkit == nullptr ? std::nullopt : GetFolderItem(toolkit->askWhereToSave(*this));
}

std::optional<FolderItem> OpenDialog::ShowModal() const {
    Toolkit* toolkit = Toolkit::inForce();
    return toolkit == nullptr ? std::nullopt : GetFolderItem(toolkit->askForFile(*this));
}

std::optional<FolderItem> SelectFolderDialog::ShowModal() const {
    Toolkit* toolkit = Toolkit::inForce();
    return toolkit == nullptr ? std::nullopt : GetFolderItem(toolkit->askForFolder(*this));
}

} // namespace tallyvane

#include "platform/windows/dialogs.h"

namespace tallyvane {

std::optional<FolderItem> SaveAsDialog::ShowModal() const {
    return GetFolderItem(FileDialogs::inUse().askWhereToSave(*this));
}

std::optional<FolderItem> OpenDialog::ShowModal() const {
    return GetFolderItem(FileDialogs::inUse().askForFile(*this));
}

std::optional<FolderItem> SelectFolderDialog::ShowModal() const {
    return GetFolderItem(FileDialogs::inUse().askForFolder(*this));
}

} // namespace tallyvane

#include "platform/windows/dialogs.h"

namespace tallyvane {

std::optional<FolderItem> SaveAsDialog::ShowModal() const {
    return GetFolderItem(FileDialogs::current().askWhereToSave(*this));
}

std::optional<FolderItem> OpenDialog::ShowModal() const {
    return GetFolderItem(FileDialogs::current().askForFile(*this));
}

std::optional<FolderItem> SelectFolderDialog::ShowModal() const {
    return GetFolderItem(FileDialogs::current().askForFolder(*this));
}

} // namespace tallyvane

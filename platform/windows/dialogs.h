/// The dialogs that ask for a file.
#pragma once

#include <optional>
#include <string>

#include "platform/base/service.h"
#include "platform/files/folder_item.h"

namespace tallyvane {

/// Asks where to save. The user is asked before a file that exists is replaced.
struct SaveAsDialog {
    std::string Title;
    std::string PromptText;
    std::string SuggestedFileName;
    /// What the name ends in, such as ".txt": it is put behind a name without it. "" leaves names as they are.
    std::string Suffix = {};

    /// Empty when the user cancelled.
    [[nodiscard]] std::optional<FolderItem> ShowModal() const;
};

/// Asks for a file that exists.
struct OpenDialog {
    std::string Title;
    /// The endings of the names that are offered first, with "," between them ("txt,csv"); "all" and "text" stand for
    /// all files, since a text can have any name.
    std::string Filter = "all";

    /// Empty when the user cancelled.
    [[nodiscard]] std::optional<FolderItem> ShowModal() const;
};

/// Asks for a folder that exists.
struct SelectFolderDialog {
    std::string Title;

    /// Empty when the user cancelled.
    [[nodiscard]] std::optional<FolderItem> ShowModal() const;
};

/// What shows these dialogs. Each gives the absolute path that the user chose; "" when the dialog was cancelled.
class FileDialogs : public Service<FileDialogs> {
public:
    virtual std::string askWhereToSave(const SaveAsDialog& /*dialog*/) { return {}; }
    virtual std::string askForFile(const OpenDialog& /*dialog*/) { return {}; }
    virtual std::string askForFolder(const SelectFolderDialog& /*dialog*/) { return {}; }
};

} // namespace tallyvane

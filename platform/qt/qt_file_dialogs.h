#pragma once

#include "platform/windows/dialogs.h"

namespace tallyvane {

/// The file dialogs of Qt. Their paths are those of the disk, byte for byte.
class QtFileDialogs : public FileDialogs {
public:
    std::string askWhereToSave(const SaveAsDialog& dialog) override;
    std::string askForFile(const OpenDialog& dialog) override;
    std::string askForFolder(const SelectFolderDialog& dialog) override;
};

/// The path with that ending, which is put behind it if need be; "" stays empty.
std::string withEnding(std::string path, const std::string& ending);
/// Whether nothing stands there, or the user agrees that it goes.
bool mayReplace(const std::string& path);

} // namespace tallyvane

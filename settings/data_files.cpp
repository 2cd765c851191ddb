#include "settings/data_files.h"

namespace tallyvane::DataFiles {

std::optional<FolderItem> applicationFolder() {
    if (!SpecialFolder::ApplicationData)
        return std::nullopt;
    return SpecialFolder::ApplicationData->Child(applicationName);
}

std::optional<FolderItem> applicationFile(std::string_view name) {
    const std::optional<FolderItem> folder = applicationFolder();
    return folder ? folder->Child(name) : std::nullopt;
}

std::optional<FolderItem> applicationFileToWrite(std::string_view name) {
    const std::optional<FolderItem> folder = applicationFolder();
    if (!folder || (!folder->Exists() && !folder->CreateAsFolder()))
        return std::nullopt;
    return folder->Child(name);
}

std::optional<TextInputStream> openText(const std::optional<FolderItem>& file) {
    return file ? file->OpenAsTextFile() : std::nullopt;
}

std::optional<TextOutputStream> createText(const std::optional<FolderItem>& file) {
    return file ? TextOutputStream::Create(*file) : std::nullopt;
}

} // namespace tallyvane::DataFiles

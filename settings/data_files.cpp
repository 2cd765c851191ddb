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

namespace {

/// A child of a folder that is made first where it is missing.
std::optional<FolderItem> childToWrite(const std::optional<FolderItem>& folder, std::string_view name) {
    if (!folder || (!folder->Exists() && !folder->CreateAsFolder()))
        return std::nullopt;
    return folder->Child(name);
}

} // namespace

std::optional<FolderItem> applicationFileToWrite(std::string_view name) {
    return childToWrite(applicationFolder(), name);
}

std::optional<FolderItem> innerFile(std::string_view name) {
    const std::optional<FolderItem> folder = applicationFile(applicationName);
    return folder ? folder->Child(name) : std::nullopt;
}

std::optional<FolderItem> innerFileToWrite(std::string_view name) {
    return childToWrite(applicationFileToWrite(applicationName), name);
}

std::optional<TextInputStream> openText(const std::optional<FolderItem>& file) {
    return file ? file->OpenAsTextFile() : std::nullopt;
}

std::optional<TextOutputStream> createText(const std::optional<FolderItem>& file) {
    return file ? TextOutputStream::Create(*file) : std::nullopt;
}

} // namespace tallyvane::DataFiles

#include "settings/data_files.h"

#include "platform/files/text_output_stream.h"

namespace tallyvane::DataFiles {

std::optional<FolderItem> placeIn(const FolderItem& folder, std::string_view name) {
    const std::string& path = folder.AbsolutePath();
    return GetFolderItem(path + (path.ends_with('/') ? "" : "/") + std::string(name));
}

std::string numbered(const std::string& name, int number) {
    return number == 1 ? name : name + " " + std::to_string(number);
}

std::optional<FolderItem> freePlace(const FolderItem& folder, const std::string& name) {
    for (int number = 1;; ++number) {
        std::optional<FolderItem> place = folder.Child(numbered(name, number));
        if (!place || !place->Exists())
            return place;
    }
}

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

/// The place of a child in a folder that is made first where it is missing.
std::optional<FolderItem> childToWrite(const std::optional<FolderItem>& folder, std::string_view name) {
    if (!folder)
        return std::nullopt;
    if (!folder->Exists())
        static_cast<void>(folder->CreateAsFolder()); // else whoever writes there learns why not
    return placeIn(*folder, name);
}

} // namespace

std::optional<FolderItem> applicationFileToWrite(std::string_view name) {
    return childToWrite(applicationFolder(), name);
}

std::optional<FolderItem> innerFile(std::string_view name) {
    const std::optional<FolderItem> folder = applicationFile(applicationName);
    return folder ? folder->Child(name) : std::nullopt;
}

std::optional<TextInputStream> openText(const std::optional<FolderItem>& file) {
    return file ? file->OpenAsTextFile() : std::nullopt;
}

std::optional<TextOutputStream> createText(const std::optional<FolderItem>& file) {
    return file ? TextOutputStream::Create(*file, Replacement::Recorded::always) : std::nullopt;
}

} // namespace tallyvane::DataFiles

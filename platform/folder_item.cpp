#include "platform/folder_item.h"

#include <algorithm>

#include "platform/system_files.h"

namespace tallyvane {

std::optional<FolderItem> FolderItem::Child(std::string_view name) const {
    if (!Directory() || name.empty() || name == "." || name == "..")
        return std::nullopt;
    std::string path = path_;
    if (!path.ends_with('/'))
        path += '/';
    const auto start = static_cast<std::ptrdiff_t>(path.size());
    path += name;
    std::replace(path.begin() + start, path.end(), '/', ':');
    return FolderItem(std::move(path));
}

bool FolderItem::Exists() const { return SystemFiles::kindOf(path_) != SystemFiles::Kind::none; }

bool FolderItem::Directory() const { return SystemFiles::kindOf(path_) == SystemFiles::Kind::folder; }

bool FolderItem::CreateAsFolder() const { return SystemFiles::makeFolder(path_); }

std::optional<TextInputStream> FolderItem::OpenAsTextFile() const {
    std::optional<std::string> content = SystemFiles::read(path_);
    if (!content)
        return std::nullopt;
    return TextInputStream(std::move(*content));
}

std::optional<FolderItem> GetFolderItem(std::string_view path, int /*pathType*/) {
    if (!path.starts_with('/'))
        return std::nullopt;
    return FolderItem(std::string(path));
}

} // namespace tallyvane

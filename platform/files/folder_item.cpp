#include "platform/files/folder_item.h"

#include <algorithm>
#include <charconv>

#include "platform/base/translation.h"
#include "platform/desktop/desktop.h"
#include "platform/files/system_files.h"

namespace tallyvane {

namespace {

constexpr std::string_view fileScheme = "file://";

} // namespace

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

bool FolderItem::Name(std::string_view name) const {
    return SystemFiles::rename(path_, path_.substr(0, path_.rfind('/') + 1) + std::string(name));
}

std::string FolderItem::GetSaveInfo() const {
    constexpr std::string_view plain = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789/-._~";
    constexpr std::string_view hexDigits = "0123456789ABCDEF";
    std::string address(fileScheme);
    for (std::size_t i = 0; i < path_.size(); ++i) {
        const char c = path_[i];
        const bool secondOfWww = c == 'w' && i > 0 && path_[i - 1] == 'w' && path_.compare(i + 1, 1, "w") == 0;
        if (plain.find(c) != std::string_view::npos && !secondOfWww) {
            address += c;
            continue;
        }
        const auto byte = static_cast<unsigned char>(c);
        address += '%';
        address += hexDigits[byte >> 4U];
        address += hexDigits[byte & 0xFU];
    }
    return address;
}

std::optional<FolderItem> FolderItem::GetRelative(std::string_view saveInfo) {
    if (!saveInfo.starts_with(fileScheme))
        return std::nullopt;
    saveInfo.remove_prefix(fileScheme.size());
    std::string path;
    for (std::size_t i = 0; i < saveInfo.size(); ++i) {
        unsigned byte = 0;
        const char* digits = saveInfo.data() + i + 1;
        const bool coded = saveInfo[i] == '%' && i + 2 < saveInfo.size() &&
                           std::from_chars(digits, digits + 2, byte, 16).ptr == digits + 2;
        path += coded ? static_cast<char>(byte) : saveInfo[i];
        i += coded ? 2 : 0;
    }
    const std::optional<FolderItem> file = GetFolderItem(path);
    return file && file->Exists() ? file : std::nullopt;
}

void FolderItem::Launch() const {
    if (Exists() && !Desktop::current().openFile(path_))
        MsgBox(tr("\u201c%1\u201d can't be opened: this desktop has no program for it.", {path_}));
}

void FolderItem::Delete() const {
    static_cast<void>(SystemFiles::remove(path_)); // what can't go stays
}

std::optional<FolderItem> GetFolderItem(std::string_view path, int /*pathType*/) {
    if (!path.starts_with('/'))
        return std::nullopt;
    return FolderItem(std::string(path));
}

} // namespace tallyvane

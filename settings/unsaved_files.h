/// The user's files are written through here, so that what a disk did not take is not forgotten: it waits in memory
/// until a later save of the same file succeeds. At the end of the program the user decides about what still waits.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/folder_item.h"

namespace tallyvane::UnsavedFiles {

/// One of the user's files.
struct UserFile {
    /// As the user knows it: "Your days".
    std::string what;
    /// Its path within a folder that holds all of them: "7VXData", "Tallyvane/QVXFileData".
    std::string name;
    /// Where it belongs; nil where the desktop has no place for it.
    std::optional<FolderItem> place;

    /// A file of the application's folder, or of the folder inside it; folders that are missing are made.
    static UserFile ofApplication(std::string what, std::string_view name);
    static UserFile ofInnerFolder(std::string what, std::string_view name);
};

/// The name of a file of the folder inside the application's.
std::string innerName(std::string_view name);

/// A file that the disk did not take.
struct Unsaved {
    UserFile file;
    std::string text;
    std::string why; // for the user: "No space left on device"
};

/// Takes down what was read: `text` is what a save would write if nothing is changed from here on. If something stands
/// at the place that could not be read, the file is not written before something is changed, and what stands there then
/// is kept beside it.
void wasRead(const UserFile& file, const std::string& text);

/// Makes the text the content of the file. False, and the text waits, when the file can't be had; also when writing
/// fails, which throws IOException. Nothing waits that has not changed since it was read.
bool save(const UserFile& file, const std::string& text);

/// The text that waits for that file, or else the file; nil for a file that is nil, missing or unreadable.
std::optional<TextInputStream> openText(std::string_view name, const std::optional<FolderItem>& place);

/// What waits, in the order in which it first failed.
const std::vector<Unsaved>& all();

/// Tries each of them once more.
void tryAgain();

/// Writes them into a new folder inside that one, with a list of the places where they belong, and forgets those that
/// are safe there. The new folder is named `name`, or "name 2" and so on where that is taken; nil when it or the list
/// can't be written. A file that can't be written goes on waiting.
std::optional<FolderItem> saveInto(const FolderItem& folder, const std::string& name);
/// In such a folder: a line for each file, with what it is, its name and its place.
inline constexpr std::string_view listName = "Places";

/// The file is no more, or the user gives its text up: nothing of it waits.
void forget(const std::string& name);
/// Of all files nothing waits, and nothing is known of what was read.
void forgetAll();

/// Keeps what stands at a place under another name beside it, such as "7VXData before 2026-11-23", if it is anything
/// else than that text. Throws IOException when it can't be kept.
void keepPresent(const std::string& place, const std::string& newText);

} // namespace tallyvane::UnsavedFiles

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
};

/// A file that the disk did not take.
struct Unsaved {
    UserFile file;
    std::string text;
    std::string why; // for the user: "No space left on device"
};

/// Makes the text the content of the file. False, and the text waits, when the file can't be had; also when writing
/// fails, which throws IOException. A file that holds the text already is not written, and an empty text is no loss
/// where there is no file.
bool save(const UserFile& file, const std::string& text);

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

/// Nothing waits any more.
void forgetAll();

} // namespace tallyvane::UnsavedFiles

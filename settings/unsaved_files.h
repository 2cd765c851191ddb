/// The user's files are written through here, so that what a disk did not take is not forgotten: it waits in memory
/// until a later save of the same file succeeds. At the end of the program the user decides about what still waits.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/files/folder_item.h"

namespace tallyvane::UnsavedFiles {

/// One of the user's files.
struct UserFile {
    /// As the user knows it: "Your days".
    std::string what;
    /// Its path within a folder that holds all of them: "7VXData", "Tallyvane/QVXFileData".
    std::string name;
    /// Where it belongs; empty where the desktop has no place for it.
    std::optional<FolderItem> place;

    /// Whether a save makes the folders that are missing.
    bool makesFolders = false;

    /// A file of the application's folder, or of the folder inside it; a save makes both.
    static UserFile ofApplication(std::string what, std::string_view name);
    static UserFile ofInnerFolder(std::string what, std::string_view name);
};

/// A file that the disk did not take.
struct Unsaved {
    UserFile file;
    std::string text;
    std::string why; // for the user: "No space left on device"
};

/// Takes down what the program starts from: `text` is what a save would write if nothing is changed from here on. What
/// comes to stand at the place in another way is never replaced unseen: it stays as long as nothing is changed here,
/// and is kept beside the file otherwise.
void startedFrom(const UserFile& file, const std::string& text);

/// Makes the text the content of the file. False, and the text waits, when the file can't be had; also when writing
/// fails, which throws IOException. Nothing waits that has not changed, as long as its place has not changed either.
bool save(const UserFile& file, const std::string& text);
/// The same, but nothing for a text that has not changed since it was read or saved.
bool saveIfChanged(const UserFile& file, const std::string& text);

/// The text that waits for that file, or else the file; none where nothing waits and there is no file to read.
std::optional<TextInputStream> openText(const UserFile& file);

/// Has a text wait that no disk has.
void wait(const UserFile& file, const std::string& text, const std::string& why);

/// What waits, in the order in which it first failed.
const std::vector<Unsaved>& all();

/// Tries each of them once more.
void tryAgain();

/// Writes them into a new folder inside that one, with a list of the places where they belong, and forgets those that
/// are safe there. The new folder is named `name`, or "name 2" and so on where that is taken; empty when it, the list
/// or all of the files can't be written. A file that can't be written goes on waiting.
std::optional<FolderItem> saveInto(const FolderItem& folder, const std::string& name);
/// In such a folder: a line for each file, with what it is, its name and its place.
inline constexpr std::string_view listName = "Places";

/// The file is no more, or the user gives its text up: nothing of it waits.
void forget(const UserFile& file);
/// Of all files nothing waits, and nothing is known of what was read.
void forgetAll();

/// Writes a text into a file of that name, or "name 2" and so on where others are, unless one of them holds it already.
/// The path; "" when it was there. Throws IOException when the disk fails.
std::string keepCopy(const FolderItem& folder, const std::string& name, const std::string& text);
/// Keeps what stands at a place beside it, such as "7VXData before 2026-11-23", if it is anything else than that text.
/// Throws IOException when it can't be kept.
void keepPresent(const std::string& place, const std::string& newText);

} // namespace tallyvane::UnsavedFiles

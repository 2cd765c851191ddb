/// The user's files are written through here, so that what a disk did not take is not forgotten: it waits in memory
/// until a later save of the same file succeeds. At the end of the program the user decides about what still waits.
#pragma once

#include <functional>
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

/// Sets the baseline of a file that was just read: `text` is what a save would write as long as the user changes
/// nothing. What another program writes later can be brought in (changedOutside). Where it was not, a save leaves it
/// alone while nothing has been changed here, and otherwise keeps it in a copy beside the file.
void setBaseline(const UserFile& file, const std::string& text);

/// What another program has made of a file since it was read or saved here.
struct OutsideChange {
    std::string base; // what was read or saved
    std::string there; // what stands there now
};
/// Nothing for a file that stands as it was, is away, empty or can't be read, or of which nobody knows what it was. One
/// that was not there began as "".
[[nodiscard]] std::optional<OutsideChange> changedOutside(const UserFile& file);
/// What stands there was brought in. `text` is what a save would write now; where that says nothing but what stands
/// there, in whatever form, it is not written.
void acceptOutside(const UserFile& file, const OutsideChange& change, const std::string& text, bool saysTheSame);

/// Earlier texts of the file that a version which a synchroniser has left beside it stems from, as far as that is sure:
/// of the version that stood here itself, until the last text of another program came, those that had come before. None
/// for a version that somebody else has written.
[[nodiscard]] std::vector<std::string> ancestorsOf(const UserFile& file, const std::string& version);

/// Joins a text with what another program has made of its file: `join` gets the common base, the text and what stands
/// there. The joined text, if it is another than the text; it then counts as brought in, and is to be shown and saved.
using Join = std::function<std::string(const std::string& base, const std::string& here, const std::string& there)>;
[[nodiscard]] std::optional<std::string> joinOutside(const UserFile& file, const std::string& text, const Join& join);

/// Called before a save writes anything; null for nothing to do.
extern std::function<void()> beforeWriting;

/// Replaces the file's content by the text; true when that is done or not needed. Nothing is written where neither the
/// text nor the file has changed. Returns false if the file can't be opened, throws IOException if writing fails.
/// Either way the text is then unsaved, unless neither it nor the file has changed since the file was last read or
/// saved.
bool save(const UserFile& file, const std::string& text);
/// The same, but nothing for a text that has not changed since it was read or saved.
bool saveIfChanged(const UserFile& file, const std::string& text);

/// The text that waits for that file, or else the file; none where nothing waits and there is no file to read.
std::optional<TextInputStream> openText(const UserFile& file);

/// Adds a text that could not be written, with the reason, or replaces the unsaved text of the same file.
void addUnsaved(const UserFile& file, const std::string& text, const std::string& why);

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

/// Drops the unsaved text of a file: the file was deleted, or the user gave the text up.
void forget(const UserFile& file);
/// Drops all unsaved texts and all baselines.
void forgetAll();

/// A copy that holds a text.
struct NewCopy {
    std::string path;
    bool isNew = false; // else it was there before
};
/// Writes the text to a new file of that name, or "name 2" and so on, unless one of these files holds it already.
/// Throws IOException when the disk fails.
NewCopy writeNewCopy(const FolderItem& folder, const std::string& name, const std::string& text);
/// Copies what a file holds to a new file beside it, such as "7VXData before 2026-11-23", unless it is empty or equal
/// to newText. Throws IOException when the copy can't be written.
void backUpCurrent(const std::string& place, const std::string& newText);

} // namespace tallyvane::UnsavedFiles

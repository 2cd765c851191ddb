#include "settings/snapshots.h"

#include <array>
#include <string_view>

#include "platform/files/replacement.h"
#include "platform/files/system_files.h"
#include "settings/data_files.h"
#include "settings/globals.h"
#include "settings/snapshot_sets.h"

namespace tallyvane::Snapshots {

namespace {

/// In the application's folder. `Details` is left out: the program only reads it.
constexpr std::array<std::string_view, 8> outerFiles{
    DataFiles::preferences, DataFiles::headings, DataFiles::runningLogs, DataFiles::journal,
    DataFiles::windowData,  DataFiles::contacts, DataFiles::medications, DataFiles::visitPage};
constexpr std::array<std::string_view, 2> innerFiles{DataFiles::runningLogs, DataFiles::resources};
/// Names the folder of the table in a set, if that was not the application's.
constexpr std::string_view tableFolderFile = "Folder of 7VXData";

/// "" for the application's folder.
std::string tableFolder() {
    const std::optional<FolderItem>& folder = StartupGlobals::gDataFolder;
    return !folder || folder == DataFiles::applicationFolder() ? "" : folder->AbsolutePath();
}

std::string snapshotsFolder() {
    const std::optional<FolderItem> folder = DataFiles::applicationFile("Snapshots");
    return folder ? folder->AbsolutePath() : "";
}

/// Skips what is not there or can't be read: one such file must not keep the others from being copied.
void copyIfThere(const std::string& from, const std::string& to) {
    if (const std::optional<std::string> content = SystemFiles::read(from))
        writeFile(to, *content, Replacement::Recorded::unlessNew); // what is cut off is no set yet
}

std::string fileIn(const std::string& folder, std::string_view name) { return folder + "/" + std::string(name); }

void copyAll(const std::string& source, const std::string& target) {
    const std::string inner(DataFiles::applicationName);
    for (const std::string& folder : {target, fileIn(target, inner)})
        if (!SystemFiles::makeFolder(folder))
            throw IOException("can't make " + folder);
    copyIfThere(tablePath(), fileIn(target, DataFiles::dayTable));
    for (const std::string_view name : outerFiles)
        copyIfThere(fileIn(source, name), fileIn(target, name));
    for (const std::string_view name : innerFiles)
        copyIfThere(fileIn(fileIn(source, inner), name), fileIn(fileIn(target, inner), name));
    if (!tableFolder().empty())
        writeFile(fileIn(target, tableFolderFile), tableFolder(), Replacement::Recorded::unlessNew);
}

} // namespace

std::string tablePath() {
    const std::optional<FolderItem>& folder = StartupGlobals::gDataFolder;
    const bool isTheUsers = folder && StartupGlobals::gMissingDataFolder.empty();
    const std::optional<FolderItem> table = isTheUsers ? folder->Child(DataFiles::dayTable) : std::nullopt;
    return table ? table->AbsolutePath() : "";
}

void take(const Date& today) {
    const std::string folder = snapshotsFolder();
    const std::string set = SnapshotSets::pathOf(folder, today);
    if (folder.empty() || SystemFiles::kindOf(set) != SystemFiles::Kind::none ||
        SystemFiles::read(tablePath()).value_or("").empty())
        return;
    SystemFiles::makeFolders(folder);
    const std::string unfinished = fileIn(folder, "unfinished");
    SystemFiles::removeFolder(unfinished); // of a start that was killed
    try {
        copyAll(folder.substr(0, folder.rfind('/')), unfinished);
    } catch (const IOException&) { // a full disk
        SystemFiles::removeFolder(unfinished);
        return;
    }
    if (SystemFiles::rename(unfinished, set) && SystemFiles::flushFolderOf(set))
        SnapshotSets::removeOld(folder, today);
    else
        SystemFiles::removeFolder(unfinished);
}

std::vector<Set> sets(const Date& today) {
    std::vector<Set> found;
    for (const Date& day : SnapshotSets::daysKept(snapshotsFolder(), today))
        found.push_back({day, SnapshotSets::pathOf(snapshotsFolder(), day)});
    return found;
}

bool isOfThisTable(const Set& set) {
    return SystemFiles::read(fileIn(set.path, tableFolderFile)).value_or("") == tableFolder();
}

} // namespace tallyvane::Snapshots

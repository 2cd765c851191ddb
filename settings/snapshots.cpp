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
constexpr std::array<std::string_view, 7> outerFiles{
    DataFiles::preferences, DataFiles::headings, DataFiles::runningLogs, DataFiles::journal,
    DataFiles::windowData,  DataFiles::contacts, DataFiles::medications};
constexpr std::array<std::string_view, 2> innerFiles{DataFiles::runningLogs, DataFiles::resources};
/// Names the folder of the table in a set, if that was not the application's.
constexpr std::string_view tableFolderFile = "Folder of 7VXData";

std::string tablePath() {
    const std::optional<FolderItem>& folder = StartupGlobals::gDataFolder;
    const std::optional<FolderItem> table = folder ? folder->Child(DataFiles::dayTable) : std::nullopt;
    return table ? table->AbsolutePath() : "";
}

/// "" for the application's folder.
std::string tableFolder() {
    const std::optional<FolderItem>& folder = StartupGlobals::gDataFolder;
    return !folder || folder == DataFiles::applicationFolder() ? "" : folder->AbsolutePath();
}

std::optional<std::string> snapshotsFolder() {
    const std::optional<FolderItem> folder = DataFiles::applicationFile("Snapshots");
    const bool isOfTheUsersTable = StartupGlobals::gMissingDataFolder.empty() && !tablePath().empty();
    return folder && isOfTheUsersTable ? std::optional(folder->AbsolutePath()) : std::nullopt;
}

/// Skips a file that does not exist; throws for one that exists and can't be read.
void copyIfThere(const std::string& from, const std::string& to) {
    if (const std::optional<std::string> content = SystemFiles::read(from))
        writeFile(to, *content, Replacement::Recorded::unlessNew); // what is cut off is no set yet
    else if (SystemFiles::kindOf(from) == SystemFiles::Kind::file)
        throw IOException("can't read " + from);
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

/// Counts the lines that are not empty and have a line end.
int countDays(std::string_view table) {
    int days = 0;
    bool isEmpty = true;
    for (const char c : table) {
        const bool isEnd = c == '\n' || c == '\r';
        days += isEnd && !isEmpty;
        isEmpty = isEnd;
    }
    return days;
}

/// Not whole: a table with zero bytes, which a power cut leaves, or without a line end after its last line.
bool isWhole(std::string_view table) {
    return (table.ends_with('\n') || table.ends_with('\r')) && table.find('\0') == std::string_view::npos;
}

} // namespace

void take(const Date& today) {
    const std::optional<std::string> folder = snapshotsFolder();
    if (!folder || SystemFiles::read(tablePath()).value_or("").empty())
        return;
    const std::string set = SnapshotSets::pathOf(*folder, today);
    SystemFiles::makeFolders(*folder);
    if (SystemFiles::kindOf(set) != SystemFiles::Kind::none)
        return;
    const std::string unfinished = fileIn(*folder, "unfinished");
    SystemFiles::removeFolder(unfinished); // of a start that was killed
    try {
        copyAll(folder->substr(0, folder->rfind('/')), unfinished);
    } catch (const IOException&) { // a full disk
        SystemFiles::removeFolder(unfinished);
        return;
    }
    if (SystemFiles::rename(unfinished, set) && SystemFiles::flushFolderOf(set))
        SnapshotSets::removeOld(*folder, today);
    else
        SystemFiles::removeFolder(unfinished);
}

bool tableIsUnreadable() {
    return SystemFiles::kindOf(tablePath()) == SystemFiles::Kind::file && !SystemFiles::read(tablePath());
}

std::optional<Copy> findFullerCopy(const Date& today) {
    const std::optional<std::string> folder = snapshotsFolder();
    const SystemFiles::Kind kind = SystemFiles::kindOf(tablePath());
    if (!folder || (kind != SystemFiles::Kind::none && kind != SystemFiles::Kind::file))
        return std::nullopt;
    const std::string table = SystemFiles::read(tablePath()).value_or("");
    if (isWhole(table))
        return std::nullopt;
    for (const Date& day : SnapshotSets::daysKept(*folder, today)) {
        const std::string set = SnapshotSets::pathOf(*folder, day);
        const std::string copy = fileIn(set, DataFiles::dayTable);
        const int days = countDays(SystemFiles::read(copy).value_or(""));
        const bool isOfThisTable = SystemFiles::read(fileIn(set, tableFolderFile)).value_or("") == tableFolder();
        if (isOfThisTable && days > countDays(table))
            return Copy{day, days, countDays(table), copy};
    }
    return std::nullopt;
}

std::string keepDamagedTable(const Date& today) {
    std::string name = std::string(DataFiles::dayTable) + " damaged " + today.isoDate();
    copyIfThere(tablePath(), fileIn(StartupGlobals::gDataFolder->AbsolutePath(), name));
    return name;
}

void restore(const Copy& copy) {
    const std::optional<std::string> days = SystemFiles::read(copy.path);
    if (!days)
        throw IOException("can't read " + copy.path);
    writeFile(tablePath(), *days);
}

} // namespace tallyvane::Snapshots

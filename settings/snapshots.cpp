#include "settings/snapshots.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <vector>

#include "platform/base/number.h"
#include "platform/files/system_files.h"
#include "settings/data_files.h"
#include "settings/globals.h"

namespace tallyvane::Snapshots {

namespace {

namespace fs = std::filesystem;

/// Of the application's folder. Details are not ours to write, and not lost.
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

std::optional<fs::path> snapshotsFolder() {
    const std::optional<FolderItem> folder = DataFiles::applicationFile("Snapshots");
    const bool isOfTheUsersTable = StartupGlobals::gMissingDataFolder.empty() && !tablePath().empty();
    return folder && isOfTheUsersTable ? std::optional<fs::path>(folder->AbsolutePath()) : std::nullopt;
}

/// The day of a set; nothing for any other name.
std::optional<Date> dayOf(const std::string& name) {
    const auto number = [&name](std::size_t from, std::size_t count) {
        return static_cast<int>(from < name.size() ? Val(name.substr(from, count)) : 0);
    };
    const int year = number(0, 4);
    const int month = number(5, 2);
    const int day = number(8, 2);
    if (!Date::isDay(year, month, day) || Date(year, month, day).isoDate() != name)
        return std::nullopt;
    return Date(year, month, day);
}

/// The days of which there is a set, the newest first, those after today last.
std::vector<Date> daysKept(const fs::path& folder, const Date& today) {
    std::vector<Date> days;
    std::error_code failed;
    for (fs::directory_iterator entry(folder, failed); !failed && entry != fs::directory_iterator();
         entry.increment(failed))
        if (const std::optional<Date> day = dayOf(entry->path().filename()))
            days.push_back(*day);
    const auto isToCome = [&today](const Date& day) { return day.TotalSeconds() > today.TotalSeconds(); };
    std::sort(days.begin(), days.end(), [&](const Date& a, const Date& b) {
        return isToCome(a) != isToCome(b) ? isToCome(b) : a.TotalSeconds() > b.TotalSeconds();
    });
    return days;
}

/// A file that is not there is not missed; one that is and can't be read is.
void copyIfThere(const fs::path& from, const fs::path& to) {
    if (const std::optional<std::string> content = SystemFiles::read(from))
        SystemFiles::write(to, *content);
    else if (SystemFiles::kindOf(from) == SystemFiles::Kind::file)
        throw IOException("can't read " + from.string());
}

void copyAll(const fs::path& source, const fs::path& target) {
    const std::string inner(DataFiles::applicationName);
    fs::remove_all(target); // of a start that was killed
    for (const fs::path& folder : {target, target / inner})
        if (!SystemFiles::makeFolder(folder))
            throw IOException("can't make " + folder.string());
    copyIfThere(tablePath(), target / DataFiles::dayTable);
    for (const std::string_view name : outerFiles)
        copyIfThere(source / name, target / name);
    for (const std::string_view name : innerFiles)
        copyIfThere(source / inner / name, target / inner / name);
    if (!tableFolder().empty())
        SystemFiles::write(target / tableFolderFile, tableFolder());
}

/// Lines that have an end, and something before it.
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

/// A power cut leaves blocks of zeros; our own last line has an end.
bool isWhole(std::string_view table) {
    return (table.ends_with('\n') || table.ends_with('\r')) && table.find('\0') == std::string_view::npos;
}

} // namespace

void take(const Date& today) {
    const std::optional<fs::path> folder = snapshotsFolder();
    if (!folder || SystemFiles::read(tablePath()).value_or("").empty())
        return;
    const fs::path set = *folder / today.isoDate();
    std::error_code failed;
    if (fs::exists(set, failed) || (!fs::is_directory(*folder, failed) && !SystemFiles::makeFolder(*folder)))
        return;
    const fs::path unfinished = *folder / "unfinished";
    try {
        copyAll(folder->parent_path(), unfinished);
        fs::rename(unfinished, set);
    } catch (const std::exception&) { // a full disk
        fs::remove_all(unfinished, failed);
        return;
    }
    std::vector<Date> days = daysKept(*folder, today);
    for (; days.size() > mostKept; days.pop_back())
        fs::remove_all(*folder / days.back().isoDate(), failed);
}

bool tableIsUnreadable() {
    return SystemFiles::kindOf(tablePath()) == SystemFiles::Kind::file && !SystemFiles::read(tablePath());
}

std::optional<Copy> fullerThanTable(const Date& today) {
    const std::optional<fs::path> folder = snapshotsFolder();
    const SystemFiles::Kind kind = SystemFiles::kindOf(tablePath());
    if (!folder || (kind != SystemFiles::Kind::none && kind != SystemFiles::Kind::file))
        return std::nullopt;
    const std::string table = SystemFiles::read(tablePath()).value_or("");
    if (isWhole(table))
        return std::nullopt;
    for (const Date& day : daysKept(*folder, today)) {
        const fs::path set = *folder / day.isoDate();
        const int days = countDays(SystemFiles::read(set / DataFiles::dayTable).value_or(""));
        const bool isOfThisTable = SystemFiles::read(set / tableFolderFile).value_or("") == tableFolder();
        if (isOfThisTable && days > countDays(table))
            return Copy{day, days, countDays(table), set / DataFiles::dayTable};
    }
    return std::nullopt;
}

std::string keepDamagedTable(const Date& today) {
    const fs::path kept = tablePath() + " damaged " + today.isoDate();
    copyIfThere(tablePath(), kept);
    return kept.filename();
}

void bringBack(const Copy& copy) {
    const std::optional<std::string> days = SystemFiles::read(copy.path);
    if (!days)
        throw IOException("can't read " + copy.path);
    SystemFiles::write(tablePath(), *days);
}

} // namespace tallyvane::Snapshots

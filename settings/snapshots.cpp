#include "settings/snapshots.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <vector>

#include "platform/number.h"
#include "platform/system_files.h"
#include "settings/data_files.h"
#include "settings/globals.h"

namespace tallyvane::Snapshots {

namespace {

namespace fs = std::filesystem;

/// Of the files in the application's folder; the table can lie elsewhere. Details are not ours to write, and not lost.
constexpr std::array<std::string_view, 8> files{DataFiles::preferences, DataFiles::headings,   DataFiles::runningLogs,
                                                DataFiles::journal,     DataFiles::windowData, DataFiles::contacts,
                                                DataFiles::medications, DataFiles::dayTable};
constexpr std::array<std::string_view, 2> innerFiles{DataFiles::runningLogs, DataFiles::resources};

std::string tablePath() {
    const std::optional<FolderItem>& folder = StartupGlobals::gDataFolder;
    const std::optional<FolderItem> table = folder ? folder->Child(DataFiles::dayTable) : std::nullopt;
    return table ? table->AbsolutePath() : "";
}

std::optional<fs::path> snapshotsFolder() {
    const std::optional<FolderItem> folder = DataFiles::applicationFile("Snapshots");
    return folder ? std::optional<fs::path>(folder->AbsolutePath()) : std::nullopt;
}

std::string nameOf(const Date& day) {
    return Format(day.Year(), "0000") + "-" + Format(day.Month(), "00") + "-" + Format(day.Day(), "00");
}

/// The days of which there is a set, the newest first.
std::vector<Date> daysKept(const fs::path& folder) {
    std::vector<Date> days;
    std::error_code noFolder;
    for (const auto& entry : fs::directory_iterator(folder, noFolder)) {
        const std::string name = entry.path().filename();
        if (const std::optional<Date> day = ParseDate(name); day && nameOf(*day) == name)
            days.push_back(*day);
    }
    std::sort(days.begin(), days.end(),
              [](const Date& a, const Date& b) { return a.TotalSeconds() > b.TotalSeconds(); });
    return days;
}

void write(const fs::path& path, const std::string& content) {
    const auto file = SystemFiles::Replacement::open(path);
    if (!file)
        throw IOException("can't write " + path.string());
    file->replace(content);
}

/// A file that is not there is not missed.
void copyFile(const fs::path& from, const fs::path& to) {
    if (const std::optional<std::string> content = SystemFiles::read(from))
        write(to, *content);
}

void copyAll(const fs::path& source, const fs::path& target) {
    const std::string inner(DataFiles::applicationName);
    for (const fs::path& folder : {target, target / inner})
        if (!fs::is_directory(folder) && !SystemFiles::makeFolder(folder))
            throw IOException("can't make " + folder.string());
    for (const std::string_view name : files)
        copyFile(name == DataFiles::dayTable ? fs::path(tablePath()) : source / name, target / name);
    for (const std::string_view name : innerFiles)
        copyFile(source / inner / name, target / inner / name);
}

int countDays(std::string_view table) { return static_cast<int>(std::count(table.begin(), table.end(), '\n')); }

} // namespace

void take(const Date& today) {
    const std::optional<fs::path> folder = snapshotsFolder();
    if (!folder || !StartupGlobals::gMissingDataFolder.empty() || SystemFiles::read(tablePath()).value_or("").empty())
        return;
    const fs::path set = *folder / nameOf(today);
    const fs::path unfinished = *folder / "unfinished";
    std::error_code failed; // leaves things as they were
    if (fs::exists(set, failed) || (!fs::is_directory(*folder, failed) && !SystemFiles::makeFolder(*folder)))
        return;
    try {
        copyAll(folder->parent_path(), unfinished);
        fs::rename(unfinished, set);
    } catch (const std::exception&) { // a full disk
        fs::remove_all(unfinished, failed);
        return;
    }
    const std::vector<Date> days = daysKept(*folder);
    for (std::size_t i = mostKept; i < days.size(); ++i)
        fs::remove_all(*folder / nameOf(days[i]), failed);
}

std::optional<Copy> fullerThanTable() {
    const std::string path = tablePath();
    const std::optional<fs::path> folder = snapshotsFolder();
    if (path.empty() || !folder || !StartupGlobals::gMissingDataFolder.empty())
        return std::nullopt;
    const std::optional<std::string> content = SystemFiles::read(path);
    if (!content && SystemFiles::kindOf(path) != SystemFiles::Kind::none) // it is there, and nobody knows what it holds
        return std::nullopt;
    const std::string table = content.value_or("");
    if (table.ends_with('\n'))
        return std::nullopt;
    for (const Date& day : daysKept(*folder)) {
        const fs::path copy = *folder / nameOf(day) / DataFiles::dayTable;
        if (const int days = countDays(SystemFiles::read(copy).value_or("")); days > countDays(table))
            return Copy{day, days, copy};
    }
    return std::nullopt;
}

void bringBack(const Copy& copy) {
    copyFile(tablePath(), tablePath() + " damaged");
    copyFile(copy.path, tablePath());
}

} // namespace tallyvane::Snapshots

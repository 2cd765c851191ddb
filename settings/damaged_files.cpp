#include "settings/damaged_files.h"

#include <string_view>

#include "platform/base/number.h"
#include "platform/base/text.h"
#include "platform/base/translation.h"
#include "platform/base/written_date.h"
#include "platform/files/replacement.h"
#include "platform/files/system_files.h"
#include "settings/data_files.h"
#include "settings/snapshots.h"

namespace tallyvane::DamagedFiles {

namespace {

constexpr int fieldsOfDay = 11;
constexpr int fieldsOfLogs = 4;

bool hasLineEnd(std::string_view text) { return text.ends_with('\n') || text.ends_with('\r'); }

bool hasLostBlocks(std::string_view text) { return text.find('\0') != std::string_view::npos; } // as a power cut leaves

int fieldsIn(std::string_view line) { return CountFields(line, DataFiles::fieldSeparator); }

/// A day with all its fields and, behind the last separator, its date's key. What is no date has none.
bool isWholeDay(std::string_view line) {
    if (fieldsIn(line) != fieldsOfDay || hasLostBlocks(line))
        return false;
    const std::string_view date = line.substr(0, line.find(DataFiles::fieldSeparator));
    const std::string_view key = line.substr(line.rfind(DataFiles::fieldSeparator) + DataFiles::fieldSeparator.size());
    return isNumber(key) || !WrittenDate::in(date);
}

struct Days {
    int whole = 0;
    int damaged = 0;
};

Days daysIn(const std::string& table) {
    Days days;
    TextInputStream lines(table);
    while (!lines.EndOfFile()) {
        const std::string_view line = lines.ReadLine();
        if (!line.empty())
            ++(isWholeDay(line) ? days.whole : days.damaged);
    }
    return days;
}

/// A record of logs with its four fields and its line end.
bool isWholeRecord(const std::string& logs) {
    return hasLineEnd(logs) && !hasLostBlocks(logs) && fieldsIn(TextInputStream(logs).ReadLine()) >= fieldsOfLogs;
}

/// Bytes of a record that are neither separators nor lost.
std::size_t textIn(const std::string& logs) {
    std::string text = ReplaceAll(logs, DataFiles::fieldSeparator, "");
    std::erase_if(text, [](char c) { return c == '\0' || c == '\n' || c == '\r'; });
    return text.size();
}

bool canBeRead(const std::string& path) {
    const SystemFiles::Kind kind = SystemFiles::kindOf(path);
    return kind == SystemFiles::Kind::none || (kind == SystemFiles::Kind::file && SystemFiles::read(path));
}

std::string contentOf(const std::string& path) { return SystemFiles::read(path).value_or(""); }

/// The newest set of which a copy holds more.
template <class HoldsMore>
std::optional<Copy> newestCopy(const UnsavedFiles::UserFile& file, const Date& today, HoldsMore holdsMore) {
    for (const Snapshots::Set& set : Snapshots::sets(today)) {
        Copy copy{file, set.day, set.path + "/" + file.name};
        if (holdsMore(set, copy))
            return copy;
    }
    return std::nullopt;
}

std::optional<Copy> fullerTable(const Date& today) {
    const std::string path = Snapshots::tablePath();
    if (path.empty() || !canBeRead(path))
        return std::nullopt;
    const std::string table = contentOf(path);
    const Days present = daysIn(table);
    if (!table.empty() && present.damaged == 0)
        return std::nullopt;
    const UnsavedFiles::UserFile file{tr("Your days"), std::string(DataFiles::dayTable), GetFolderItem(path)};
    return newestCopy(file, today, [&](const Snapshots::Set& set, Copy& copy) {
        copy.days = daysIn(contentOf(copy.path)).whole;
        copy.daysOfTable = present.whole;
        return Snapshots::isOfThisTable(set) && copy.days > present.whole;
    });
}

std::optional<Copy> fullerLogs(const UnsavedFiles::UserFile& file, const Date& today) {
    if (!file.place || !canBeRead(file.place->AbsolutePath()))
        return std::nullopt;
    const std::string logs = contentOf(file.place->AbsolutePath());
    if (isWholeRecord(logs))
        return std::nullopt;
    const std::size_t present = textIn(logs);
    return newestCopy(file, today, [present](const Snapshots::Set&, const Copy& copy) {
        const std::string record = contentOf(copy.path);
        return isWholeRecord(record) && textIn(record) > present;
    });
}

} // namespace

bool tableIsUnreadable() {
    const std::string path = Snapshots::tablePath();
    return SystemFiles::kindOf(path) == SystemFiles::Kind::file && !SystemFiles::read(path);
}

std::vector<std::string> hugeFiles() {
    constexpr std::uintmax_t largest = 100'000'000;
    std::vector<std::string> paths{Snapshots::tablePath()};
    for (const std::optional<FolderItem>& place :
         {DataFiles::applicationFile(DataFiles::runningLogs), DataFiles::applicationFile(DataFiles::journal),
          DataFiles::innerFile(DataFiles::runningLogs)})
        paths.push_back(place ? place->AbsolutePath() : "");
    std::erase_if(paths, [](const std::string& path) { return SystemFiles::sizeOf(path) <= largest; });
    return paths;
}

bool isWholeTable(const std::string& table) { return daysIn(table).damaged == 0; }

std::vector<Copy> findFullerCopies(const Date& today) {
    using UnsavedFiles::UserFile;
    std::vector<Copy> copies;
    for (std::optional<Copy>& copy :
         std::vector{fullerTable(today),
                     fullerLogs(UserFile::ofApplication(tr("The journal and the logs"), DataFiles::runningLogs), today),
                     fullerLogs(UserFile::ofInnerFolder(tr("The logs"), DataFiles::runningLogs), today)})
        if (copy)
            copies.push_back(std::move(*copy));
    return copies;
}

std::string keep(const Copy& copy, const Date& today) {
    const std::string& path = copy.file.place->AbsolutePath();
    const std::size_t slash = path.rfind('/');
    const std::string damaged = contentOf(path);
    const std::optional<FolderItem> folder = GetFolderItem(path.substr(0, slash));
    if (damaged.empty() || !folder)
        return "";
    const std::string name = path.substr(slash + 1) + " damaged " + today.isoDate();
    return UnsavedFiles::writeNewCopy(*folder, name, damaged).path.substr(slash + 1);
}

std::string restore(const Copy& copy, const std::string& whyNotKept) {
    const std::optional<std::string> content = SystemFiles::read(copy.path);
    if (!content)
        throw IOException("can't read " + copy.path);
    std::string why = whyNotKept;
    try {
        if (why.empty())
            writeFile(copy.file.place->AbsolutePath(), *content, Replacement::Recorded::always);
    } catch (const IOException& failure) {
        why = failure.why();
    }
    if (!why.empty())
        UnsavedFiles::addUnsaved(copy.file, *content, why);
    return why;
}

} // namespace tallyvane::DamagedFiles

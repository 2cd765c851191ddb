#include "diary/conflict_copies.h"

#include <algorithm>
#include <string_view>

#include "platform/base/date.h"
#include "platform/files/system_files.h"
#include "settings/damaged_files.h"
#include "settings/data_files.h"
#include "settings/globals.h"

namespace tallyvane::ConflictCopies {

namespace {

bool isNameOfCopy(const std::string& name) {
    const std::string table(DataFiles::dayTable);
    const bool isOfTable = name.starts_with(table + ".") || name.starts_with(table + " ("); // and not of a dated copy
    return isOfTable &&
           (name.find("sync-conflict") != std::string::npos || name.find("conflicted copy") != std::string::npos);
}

} // namespace

std::optional<Copy> first(const std::vector<std::string>& exceptPaths) {
    const std::string folder = StartupGlobals::gDataFolder ? StartupGlobals::gDataFolder->AbsolutePath() : "";
    for (const std::string& name : SystemFiles::namesIn(folder)) {
        std::string path = folder;
        path.append("/").append(name);
        if (!isNameOfCopy(name) || std::find(exceptPaths.begin(), exceptPaths.end(), path) != exceptPaths.end())
            continue;
        std::optional<std::string> content = SystemFiles::read(path);
        if (content && !content->empty() && DamagedFiles::isWholeTable(*content))
            return Copy{std::move(path), std::move(*content)};
    }
    return std::nullopt;
}

void putAway(const Copy& copy) {
    const std::string name = std::string(DataFiles::dayTable) + " brought in " + Date().isoDate();
    if (const auto place = DataFiles::freePlace(*StartupGlobals::gDataFolder, name))
        static_cast<void>(SystemFiles::rename(copy.path, place->AbsolutePath()));
}

} // namespace tallyvane::ConflictCopies

#include "settings/rescued_files.h"

#include <algorithm>

#include "platform/base/date.h"
#include "platform/base/text.h"
#include "platform/base/translation.h"
#include "platform/files/replacement.h"
#include "platform/files/system_files.h"
#include "settings/data_files.h"
#include "settings/unsaved_files.h"

namespace tallyvane::RescuedFiles {

namespace {

constexpr std::string_view folderBeginning = "Unsaved ";
constexpr const char* settledEnding = " not taken";

std::optional<FolderItem> stateFolder() {
    return SpecialFolder::State ? SpecialFolder::State->Child(DataFiles::applicationName) : std::nullopt;
}

/// The folders in which earlier runs kept files, the oldest first.
std::vector<FolderItem> folders() {
    std::vector<FolderItem> found;
    const std::optional<FolderItem> state = stateFolder();
    if (!state)
        return found;
    for (const std::string& name : SystemFiles::namesIn(state->AbsolutePath()))
        if (const auto folder = state->Child(name); name.starts_with(folderBeginning) && folder && folder->Directory())
            found.push_back(*folder);
    return found;
}

/// The files in a folder's list that are still there.
std::vector<Rescued> filesIn(const FolderItem& folder) {
    std::vector<Rescued> files;
    std::optional<TextInputStream> list = DataFiles::openText(folder.Child(UnsavedFiles::listName));
    while (list && !list->EndOfFile()) {
        FieldWalk fields(list->ReadLine(), DataFiles::fieldSeparator);
        Rescued file;
        for (std::string* field : {&file.what, &file.name, &file.place})
            *field = fields.next();
        file.keptAt = folder.AbsolutePath() + "/" + file.name;
        file.when = folder.Name().substr(folderBeginning.size());
        if (SystemFiles::kindOf(file.keptAt) == SystemFiles::Kind::file)
            files.push_back(std::move(file));
    }
    return files;
}

/// All that was kept, the oldest first.
std::vector<Rescued> allKept() {
    std::vector<Rescued> kept;
    for (const FolderItem& folder : folders())
        for (Rescued& file : filesIn(folder))
            kept.push_back(std::move(file));
    return kept;
}

bool isSameFile(const Rescued& a, const Rescued& b) { return a.name == b.name && a.place == b.place; }

/// Gives a kept file the name by which it is not offered again. Its path from here on.
std::string settle(const Rescued& file) {
    for (int number = 1;; ++number) {
        const std::string path = DataFiles::numbered(file.keptAt + settledEnding, number);
        if (SystemFiles::kindOf(path) != SystemFiles::Kind::none)
            continue;
        return SystemFiles::rename(file.keptAt, path) ? path : file.keptAt;
    }
}

/// Takes a folder away that holds no file any more but its list.
void removeIfDone(const FolderItem& folder) {
    SystemFiles::removeEmptyFolder(folder.AbsolutePath() + "/" + std::string(DataFiles::applicationName));
    const std::vector<std::string> left = SystemFiles::namesIn(folder.AbsolutePath());
    if (left != std::vector<std::string>{std::string(UnsavedFiles::listName)})
        return;
    static_cast<void>(SystemFiles::remove(folder.AbsolutePath() + "/" + left.front()));
    SystemFiles::removeEmptyFolder(folder.AbsolutePath());
}

} // namespace

void keep() {
    if (!SpecialFolder::State || UnsavedFiles::all().empty())
        return;
    SystemFiles::makeFolders(SpecialFolder::State->AbsolutePath() + "/" + std::string(DataFiles::applicationName));
    const std::vector<Rescued> kept = pending();
    const auto isKept = [&kept](const UnsavedFiles::Unsaved& unsaved) { // by an end like this one
        const std::string place = unsaved.file.place ? unsaved.file.place->AbsolutePath() : "";
        return std::any_of(kept.begin(), kept.end(), [&](const Rescued& before) {
            return before.name == unsaved.file.name && before.place == place &&
                   SystemFiles::read(before.keptAt) == unsaved.text;
        });
    };
    const std::vector<UnsavedFiles::Unsaved>& all = UnsavedFiles::all();
    const std::vector files(all.begin(), all.end()); // forget changes the list
    for (const UnsavedFiles::Unsaved& unsaved : files)
        if (isKept(unsaved))
            UnsavedFiles::forget(unsaved.file);
    const Date now;
    const std::string name = std::string(folderBeginning) + now.isoDate() + " " + now.isoTime();
    if (const std::optional<FolderItem> state = stateFolder(); state && !UnsavedFiles::all().empty())
        static_cast<void>(UnsavedFiles::saveInto(*state, name)); // what it does not take stays unsaved
}

std::vector<Rescued> pending() {
    std::vector<Rescued> newest;
    for (Rescued& file : allKept()) {
        const auto known =
            std::find_if(newest.begin(), newest.end(), [&](const Rescued& other) { return isSameFile(other, file); });
        if (known == newest.end())
            newest.push_back(std::move(file));
        else
            *known = std::move(file);
    }
    return newest;
}

std::optional<Failure> putInPlace(const Rescued& file) {
    const std::optional<std::string> content = SystemFiles::read(file.keptAt);
    if (!content)
        return Failure{tr("what was kept can't be read"), file.keptAt};
    const UnsavedFiles::UserFile target{file.what, file.name, GetFolderItem(file.place), false};
    try {
        UnsavedFiles::backUpCurrent(file.place, *content);
        writeFile(file.place, *content, Replacement::Recorded::always);
    } catch (const IOException& failure) { // it is shown all the same, and saved as soon as that is possible
        UnsavedFiles::addUnsaved(target, *content, failure.why());
        const std::string keptAt = settle(file);
        setAside(file); // those that were kept before it
        return Failure{failure.why(), keptAt};
    }
    static_cast<void>(SystemFiles::remove(file.keptAt));
    setAside(file); // those that were kept before it
    for (const FolderItem& folder : folders())
        removeIfDone(folder);
    return std::nullopt;
}

std::vector<std::string> setAside(const Rescued& file) {
    std::vector<std::string> paths;
    for (const Rescued& kept : allKept())
        if (isSameFile(kept, file))
            paths.push_back(settle(kept));
    return paths;
}

} // namespace tallyvane::RescuedFiles

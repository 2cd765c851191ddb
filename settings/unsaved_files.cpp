#include "settings/unsaved_files.h"

#include <algorithm>

#include "platform/system_files.h"
#include "platform/translation.h"
#include "settings/data_files.h"

namespace tallyvane::UnsavedFiles {

namespace {

std::vector<Unsaved>& waiting() {
    static std::vector<Unsaved> files;
    return files;
}

void forget(const std::string& name) {
    std::erase_if(waiting(), [&](const Unsaved& unsaved) { return unsaved.file.name == name; });
}

void remember(const UserFile& file, const std::string& text, const std::string& why) {
    const auto isIt = [&](const Unsaved& unsaved) { return unsaved.file.name == file.name; };
    const auto known = std::find_if(waiting().begin(), waiting().end(), isIt);
    if (known == waiting().end())
        waiting().push_back({file, text, why});
    else
        *known = {file, text, why};
}

/// Makes the text the content of a file. Why that can't be, for the user; nothing when nothing is lost. Throws
/// IOException when writing fails.
std::optional<std::string> writeOrTellWhy(const std::optional<FolderItem>& place, const std::string& text) {
    if (!place)
        return text.empty() ? std::nullopt : std::optional(tr("the desktop has no folder for it"));
    const std::string& path = place->AbsolutePath();
    std::string why;
    if (const auto file = SystemFiles::Replacement::open(path, &why)) {
        file->replace(text);
        return std::nullopt;
    }
    const bool isThere = SystemFiles::read(path) == text;
    const bool isNoLoss = text.empty() && SystemFiles::kindOf(path) == SystemFiles::Kind::none;
    return isThere || isNoLoss ? std::nullopt : std::optional(why);
}

std::string listOf(const std::vector<Unsaved>& files) {
    TextWriter list;
    for (const auto& [file, text, why] : files) {
        const std::vector<std::string> fields{file.what, file.name, file.place ? file.place->AbsolutePath() : ""};
        list.WriteFields(fields, DataFiles::fieldSeparator);
    }
    return list.text();
}

} // namespace

bool save(const UserFile& file, const std::string& text) {
    try {
        const std::optional<std::string> why = writeOrTellWhy(file.place, text);
        if (why)
            remember(file, text, *why);
        else
            forget(file.name);
        return !why;
    } catch (const IOException& failure) {
        remember(file, text, failure.why());
        throw;
    }
}

const std::vector<Unsaved>& all() { return waiting(); }

void tryAgain() {
    const std::vector<Unsaved> files = waiting();
    for (const Unsaved& unsaved : files) {
        try {
            save(unsaved.file, unsaved.text);
        } catch (const IOException&) { // it goes on waiting, with the reason
        }
    }
}

std::optional<FolderItem> saveInto(const FolderItem& folder, const std::string& name) {
    const std::optional<FolderItem> target = DataFiles::freePlace(folder, name);
    if (!target || !target->CreateAsFolder())
        return std::nullopt;
    const std::vector<Unsaved> files = waiting();
    try {
        SystemFiles::write(DataFiles::placeIn(*target, listName)->AbsolutePath(), listOf(files));
    } catch (const IOException&) {
        SystemFiles::removeEmptyFolder(target->AbsolutePath());
        return std::nullopt;
    }
    for (const Unsaved& unsaved : files) {
        const std::string path = target->AbsolutePath() + "/" + unsaved.file.name;
        static_cast<void>(SystemFiles::makeFolder(path.substr(0, path.rfind('/')))); // mostly it is there
        try {
            SystemFiles::write(path, unsaved.text);
            forget(unsaved.file.name);
        } catch (const IOException&) { // it goes on waiting
        }
    }
    return target;
}

void forgetAll() { waiting().clear(); }

} // namespace tallyvane::UnsavedFiles

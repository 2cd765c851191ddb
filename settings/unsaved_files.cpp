#include "settings/unsaved_files.h"

#include <algorithm>
#include <map>

#include "platform/date.h"
#include "platform/system_files.h"
#include "platform/translation.h"
#include "settings/data_files.h"

namespace tallyvane::UnsavedFiles {

namespace {

/// What is known of a file since it was read.
struct Read {
    std::string text; // that a save would write if nothing had changed
    bool isInTheWay = false; // something stood there that could not be read
};

struct State {
    std::vector<Unsaved> waiting;
    std::map<std::string, Read> read; // by name
};

/// Never destroyed: a lost display saves after all other objects are gone.
State& state() {
    static auto* const instance = new State;
    return *instance;
}

const Unsaved* waitingFor(std::string_view name) {
    const std::vector<Unsaved>& waiting = state().waiting;
    const auto isIt = [&](const Unsaved& unsaved) { return unsaved.file.name == name; };
    const auto found = std::find_if(waiting.begin(), waiting.end(), isIt);
    return found == waiting.end() ? nullptr : &*found;
}

const Read* readOf(const std::string& name) {
    const auto found = state().read.find(name);
    return found == state().read.end() ? nullptr : &found->second;
}

void remember(const UserFile& file, const std::string& text, const std::string& why) {
    if (const Unsaved* known = waitingFor(file.name))
        state().waiting[static_cast<std::size_t>(known - state().waiting.data())] = {file, text, why};
    else
        state().waiting.push_back({file, text, why});
}

/// Makes the text the content of a file. Why that can't be, for the user; nothing when it is done. Throws IOException
/// when writing fails.
std::optional<std::string> writeOrTellWhy(const std::optional<FolderItem>& place, const std::string& text) {
    if (!place)
        return tr("the desktop has no folder for it");
    const std::string& path = place->AbsolutePath();
    std::string why;
    if (const auto file = SystemFiles::Replacement::open(path, &why)) {
        file->replace(text);
        return std::nullopt;
    }
    return SystemFiles::read(path) == text ? std::nullopt : std::optional(why);
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

std::string innerName(std::string_view name) {
    return std::string(DataFiles::applicationName) + "/" + std::string(name);
}

UserFile UserFile::ofApplication(std::string what, std::string_view name) {
    return {std::move(what), std::string(name), DataFiles::applicationFileToWrite(name)};
}

UserFile UserFile::ofInnerFolder(std::string what, std::string_view name) {
    return {std::move(what), innerName(name), DataFiles::innerFileToWrite(name)};
}

void wasRead(const UserFile& file, const std::string& text) {
    if (waitingFor(file.name) != nullptr) // that was read, and no disk has it
        return;
    const std::string path = file.place ? file.place->AbsolutePath() : "";
    const bool isThere = SystemFiles::kindOf(path) != SystemFiles::Kind::none;
    state().read[file.name] = {text, isThere && !SystemFiles::read(path)};
}

bool save(const UserFile& file, const std::string& text) {
    const Read* read = readOf(file.name);
    const bool hasChanged = read == nullptr || read->text != text;
    const bool isInTheWay = read != nullptr && read->isInTheWay;
    if (isInTheWay && !hasChanged)
        return true;
    try {
        if (isInTheWay && file.place)
            keepPresent(file.place->AbsolutePath(), text);
        const std::optional<std::string> why = writeOrTellWhy(file.place, text);
        if (why && hasChanged)
            remember(file, text, *why);
        else
            forget(file.name);
        if (!why)
            state().read[file.name] = {text, false};
        return !why;
    } catch (const IOException& failure) {
        if (hasChanged)
            remember(file, text, failure.why());
        throw;
    }
}

std::optional<TextInputStream> openText(std::string_view name, const std::optional<FolderItem>& place) {
    const Unsaved* unsaved = waitingFor(name);
    return unsaved != nullptr ? TextInputStream(unsaved->text) : DataFiles::openText(place);
}

const std::vector<Unsaved>& all() { return state().waiting; }

void tryAgain() {
    const std::vector<Unsaved> files = state().waiting;
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
    const std::vector<Unsaved> files = state().waiting;
    try {
        SystemFiles::write(DataFiles::placeIn(*target, listName)->AbsolutePath(), listOf(files));
    } catch (const IOException&) {
        SystemFiles::removeEmptyFolder(target->AbsolutePath());
        return std::nullopt;
    }
    for (const Unsaved& unsaved : files) {
        const std::string path = target->AbsolutePath() + "/" + unsaved.file.name;
        SystemFiles::makeFolders(path.substr(0, path.rfind('/')));
        try {
            SystemFiles::write(path, unsaved.text);
            forget(unsaved.file.name);
        } catch (const IOException&) { // it goes on waiting
        }
    }
    return target;
}

void forget(const std::string& name) {
    std::erase_if(state().waiting, [&](const Unsaved& unsaved) { return unsaved.file.name == name; });
}

void forgetAll() { state() = {}; }

void keepPresent(const std::string& place, const std::string& newText) {
    const std::string present = SystemFiles::read(place).value_or("");
    if (present.empty() || present == newText)
        return;
    const std::size_t slash = place.rfind('/');
    const std::optional<FolderItem> folder = GetFolderItem(place.substr(0, slash));
    const std::string name = place.substr(slash + 1) + " before " + Date().isoDate();
    const std::optional<FolderItem> copy = folder ? DataFiles::freePlace(*folder, name) : std::nullopt;
    if (!copy)
        throw IOException("no place beside " + place, tr("the folder is not there"));
    SystemFiles::write(copy->AbsolutePath(), present);
}

} // namespace tallyvane::UnsavedFiles

#include "settings/unsaved_files.h"

#include <algorithm>
#include <deque>
#include <iterator>
#include <map>

#include "platform/base/date.h"
#include "platform/base/translation.h"
#include "platform/files/replacement.h"
#include "platform/files/save_record.h"
#include "platform/files/slow_work.h"
#include "platform/files/system_files.h"
#include "settings/data_files.h"

namespace tallyvane::UnsavedFiles {

namespace {

/// What is known of a file since it was read or saved.
struct Known {
    std::string text; // that a save would write if nothing has changed
    std::optional<std::string> onDisk; // what stood at its place; nothing for what was not there or unreadable
    bool wasAbsent = false; // nothing stood at its place
    bool hasChangedHere = false; // since the start
    bool saysTheSame = false; // the text says what stands there, if in another form
    std::deque<std::string> broughtIn; // of other programs, the last ones
    std::string beforeLast; // what stood there before the last of these
};

struct State {
    std::vector<Unsaved> waiting;
    std::map<std::string, Known> known; // by place
};

/// Never destroyed: when the display is lost, the last save comes after all other objects have been destroyed.
State& state() {
    static auto* const instance = new State;
    return *instance;
}

std::string keyOf(const UserFile& file) { return file.place ? file.place->AbsolutePath() : file.name; }

std::vector<Unsaved>::iterator waitingFor(const std::string& key) {
    std::vector<Unsaved>& waiting = state().waiting;
    return std::find_if(waiting.begin(), waiting.end(),
                        [&](const Unsaved& unsaved) { return keyOf(unsaved.file) == key; });
}

const Known* knownOf(const UserFile& file) {
    const auto found = state().known.find(keyOf(file));
    return found == state().known.end() ? nullptr : &found->second;
}

std::optional<std::string> contentAt(const std::optional<FolderItem>& place) {
    return place ? SystemFiles::read(place->AbsolutePath()) : std::nullopt;
}

/// A save of it has failed, and so has the way back.
bool isHalfSaved(const UserFile& file) { return file.place && SaveRecords::isKept(file.place->AbsolutePath()); }

/// Makes the text the content of a file. Why that can't be, for the user; nothing when it is done. Throws IOException
/// when writing fails.
std::optional<std::string> writeOrReason(const std::optional<FolderItem>& place, const std::string& text) {
    if (!place)
        return tr("the desktop has no folder for it");
    const std::string& path = place->AbsolutePath();
    std::string why;
    if (const auto file = Replacement::open(path, Replacement::Recorded::always, &why)) {
        file->replace(text);
        return std::nullopt;
    }
    return SystemFiles::read(path) == text ? std::nullopt : std::optional(why);
}

std::string folderOf(const std::string& path) { return path.substr(0, path.rfind('/')); }

std::string listOf(const std::vector<Unsaved>& files) {
    TextWriter list;
    for (const auto& [file, text, why] : files) {
        const std::vector<std::string> fields{file.what, file.name, file.place ? file.place->AbsolutePath() : ""};
        list.WriteFields(fields, DataFiles::fieldSeparator);
    }
    return list.text();
}

void noteSaved(Known& known, const std::string& text, bool hasChangedHere) {
    known.text = text;
    known.onDisk = text;
    known.wasAbsent = false;
    known.hasChangedHere = hasChangedHere;
    known.saysTheSame = false;
}

bool saveNow(const UserFile& file, const std::string& text) {
    const Known* known = knownOf(file);
    const bool hasChanged = known == nullptr || known->text != text;
    const std::optional<std::string> onDisk = contentAt(file.place);
    const bool placeHasChanged = known != nullptr && known->onDisk != onDisk;
    const bool isHalf = isHalfSaved(file);
    const bool isForeign = onDisk && !isHalf && (known == nullptr || placeHasChanged); // neither read nor written here
    const bool hasChangedHere = hasChanged || known->hasChangedHere;
    const bool isDone = !hasChanged && !placeHasChanged && !isHalf && (onDisk == text || known->saysTheSame);
    if (isDone || (isForeign && !hasChangedHere && onDisk != "")) {
        forget(file);
        return true;
    }
    const bool isLost = hasChanged || placeHasChanged; // if it can't be written
    try {
        if (beforeWriting && onDisk != text)
            beforeWriting();
        if (file.makesFolders && file.place)
            SystemFiles::makeFolders(folderOf(file.place->AbsolutePath()));
        if (isForeign)
            backUpCurrent(file.place->AbsolutePath(), text);
        const std::optional<std::string> why = writeOrReason(file.place, text);
        if (why && isLost)
            addUnsaved(file, text, *why);
        else
            forget(file);
        if (!why)
            noteSaved(state().known[keyOf(file)], text, hasChangedHere);
        return !why;
    } catch (const IOException& failure) {
        if (isLost)
            addUnsaved(file, text, failure.why());
        throw;
    }
}

} // namespace

std::function<void()> beforeWriting;

UserFile UserFile::ofApplication(std::string what, std::string_view name) {
    const std::optional<FolderItem>& data = SpecialFolder::ApplicationData; // also while it is away
    const std::string path = std::string(DataFiles::applicationName) + "/" + std::string(name);
    return {std::move(what), std::string(name), data ? DataFiles::placeIn(*data, path) : std::nullopt, true};
}

UserFile UserFile::ofInnerFolder(std::string what, std::string_view name) {
    return ofApplication(std::move(what), std::string(DataFiles::applicationName) + "/" + std::string(name));
}

void setBaseline(const UserFile& file, const std::string& text) {
    if (waitingFor(keyOf(file)) != state().waiting.end()) // an unsaved text is not the baseline: the disk lacks it
        return;
    Known read;
    read.text = text;
    read.onDisk = contentAt(file.place);
    read.wasAbsent = file.place && !file.place->Exists();
    state().known[keyOf(file)] = std::move(read);
}

std::optional<OutsideChange> changedOutside(const UserFile& file) {
    const Known* known = knownOf(file);
    const bool isBaseKnown = known != nullptr && (known->onDisk || known->wasAbsent);
    if (!isBaseKnown || isHalfSaved(file))
        return std::nullopt;
    std::optional<std::string> there;
    SlowWork::current().run(tr("Reading..."), [&] { there = contentAt(file.place); });
    if (!there || there->empty() || there == known->onDisk)
        return std::nullopt;
    return OutsideChange{known->onDisk.value_or(""), std::move(*there)};
}

void acceptOutside(const UserFile& file, const OutsideChange& change, const std::string& text, bool saysTheSame) {
    Known& known = state().known[keyOf(file)];
    known.text = saysTheSame ? text : change.there;
    known.onDisk = change.there;
    known.saysTheSame = saysTheSame;
    constexpr std::size_t most = 3;
    known.broughtIn.push_back(change.there);
    if (known.broughtIn.size() > most)
        known.broughtIn.pop_front();
    known.beforeLast = change.base;
}

std::vector<std::string> ancestorsOf(const UserFile& file, const std::string& version) {
    const Known* known = knownOf(file);
    if (known == nullptr || known->broughtIn.empty() || version != known->beforeLast)
        return {};
    return {known->broughtIn.begin(), std::prev(known->broughtIn.end())};
}

std::optional<std::string> joinOutside(const UserFile& file, const std::string& text, const Join& join) {
    const std::optional<OutsideChange> change = changedOutside(file);
    const bool isCutOff = change && !change->there.ends_with('\n') && !change->there.ends_with('\r');
    if (!change || isCutOff)
        return std::nullopt;
    std::string joined = join(change->base, text, change->there);
    acceptOutside(file, *change, joined, joined == join(change->there, change->there, change->there));
    return joined == text ? std::nullopt : std::optional(std::move(joined));
}

bool save(const UserFile& file, const std::string& text) {
    bool isSaved = false;
    SlowWork::current().run(tr("Saving..."), [&] { isSaved = saveNow(file, text); });
    return isSaved;
}

bool saveIfChanged(const UserFile& file, const std::string& text) {
    const Known* known = knownOf(file);
    if (known == nullptr || known->text != text || isHalfSaved(file))
        return save(file, text);
    forget(file); // the unsaved change was undone
    return true;
}

std::optional<TextInputStream> openText(const UserFile& file) {
    const auto unsaved = waitingFor(keyOf(file));
    return unsaved != state().waiting.end() ? TextInputStream(unsaved->text) : DataFiles::openText(file.place);
}

void addUnsaved(const UserFile& file, const std::string& text, const std::string& why) {
    if (const auto known = waitingFor(keyOf(file)); known != state().waiting.end())
        *known = {file, text, why};
    else
        state().waiting.push_back({file, text, why});
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
    std::optional<FolderItem> target = DataFiles::freePlace(folder, name);
    if (!target || !target->CreateAsFolder())
        return std::nullopt;
    const std::vector<Unsaved> files = state().waiting;
    const std::string list = target->AbsolutePath() + "/" + std::string(listName);
    bool isAnySafe = false;
    try {
        writeFile(list, listOf(files), Replacement::Recorded::unlessNew);
    } catch (const IOException&) {
        SystemFiles::removeEmptyFolder(target->AbsolutePath());
        return std::nullopt;
    }
    for (const Unsaved& unsaved : files) {
        const std::string path = target->AbsolutePath() + "/" + unsaved.file.name;
        SystemFiles::makeFolders(folderOf(path));
        try {
            writeFile(path, unsaved.text, Replacement::Recorded::unlessNew);
            forget(unsaved.file);
            isAnySafe = true;
        } catch (const IOException&) { // it goes on waiting
        }
    }
    if (isAnySafe)
        return target;
    static_cast<void>(SystemFiles::remove(list));
    SystemFiles::removeEmptyFolder(target->AbsolutePath());
    return std::nullopt;
}

void forget(const UserFile& file) {
    std::erase_if(state().waiting, [&](const Unsaved& unsaved) { return keyOf(unsaved.file) == keyOf(file); });
}

void forgetAll() { state() = {}; }

NewCopy writeNewCopy(const FolderItem& folder, const std::string& name, const std::string& text) {
    for (int number = 1;; ++number) {
        const std::optional<FolderItem> place = folder.Child(DataFiles::numbered(name, number));
        if (!place)
            throw IOException("no place for " + name, tr("the folder is not there"));
        if (SystemFiles::read(place->AbsolutePath()) == text)
            return {place->AbsolutePath(), false};
        if (place->Exists())
            continue;
        writeFile(place->AbsolutePath(), text, Replacement::Recorded::unlessNew); // what is copied is still whole
        return {place->AbsolutePath(), true};
    }
}

void backUpCurrent(const std::string& place, const std::string& newText) {
    const std::string present = SystemFiles::read(place).value_or("");
    if (present.empty() || present == newText)
        return;
    const std::size_t slash = place.rfind('/');
    if (const std::optional<FolderItem> folder = GetFolderItem(place.substr(0, slash)))
        writeNewCopy(*folder, place.substr(slash + 1) + " before " + Date().isoDate(), present);
}

} // namespace tallyvane::UnsavedFiles

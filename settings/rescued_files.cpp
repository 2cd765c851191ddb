#include "settings/rescued_files.h"

#include "platform/system_files.h"
#include "platform/text.h"
#include "settings/data_files.h"
#include "settings/unsaved_files.h"

namespace tallyvane::RescuedFiles {

namespace {

constexpr const char* setName = "Unsaved";

std::optional<FolderItem> stateFolder() {
    return SpecialFolder::State ? SpecialFolder::State->Child(DataFiles::applicationName) : std::nullopt;
}

std::string pathIn(const Set& set, const std::string& name) { return set.folder.AbsolutePath() + "/" + name; }

std::string contentOf(const Set& set, const Rescued& file) {
    std::optional<std::string> content = SystemFiles::read(pathIn(set, file.name));
    if (!content)
        throw IOException("can't read " + pathIn(set, file.name));
    return std::move(*content);
}

/// Keeps what stands at a place under another name beside it.
void keepPresent(const std::string& place, const std::string& newText, const Date& today) {
    const std::string present = SystemFiles::read(place).value_or("");
    if (present.empty() || present == newText)
        return;
    const std::size_t slash = place.rfind('/');
    const std::optional<FolderItem> folder = GetFolderItem(place.substr(0, slash));
    const std::optional<FolderItem> copy =
        folder ? DataFiles::freePlace(*folder, place.substr(slash + 1) + " before " + today.isoDate()) : std::nullopt;
    if (!copy)
        throw IOException("no place beside " + place);
    SystemFiles::write(copy->AbsolutePath(), present);
}

/// Those of its list that were written.
std::vector<Rescued> filesIn(const FolderItem& folder) {
    std::vector<Rescued> files;
    std::optional<TextInputStream> list = DataFiles::openText(folder.Child(UnsavedFiles::listName));
    while (list && !list->EndOfFile()) {
        FieldWalk fields(list->ReadLine(), DataFiles::fieldSeparator);
        Rescued file;
        for (std::string* field : {&file.what, &file.name, &file.place})
            *field = fields.next();
        if (SystemFiles::kindOf(folder.AbsolutePath() + "/" + file.name) == SystemFiles::Kind::file)
            files.push_back(std::move(file));
    }
    return files;
}

void takeAway(const Set& set) {
    for (const Rescued& file : set.files)
        static_cast<void>(SystemFiles::remove(pathIn(set, file.name)));
    static_cast<void>(SystemFiles::remove(pathIn(set, std::string(UnsavedFiles::listName))));
    SystemFiles::removeEmptyFolder(pathIn(set, std::string(DataFiles::applicationName)));
    SystemFiles::removeEmptyFolder(set.folder.AbsolutePath());
}

} // namespace

void keep() {
    if (!SpecialFolder::State)
        return;
    const std::string path = SpecialFolder::State->AbsolutePath() + "/" + std::string(DataFiles::applicationName);
    for (const std::string& folder : {SpecialFolder::State->AbsolutePath(), path})
        static_cast<void>(SystemFiles::makeFolder(folder)); // mostly it is there
    if (const std::optional<FolderItem> state = stateFolder())
        static_cast<void>(UnsavedFiles::saveInto(*state, setName)); // what it does not take stays unsaved
}

std::vector<Set> sets() {
    std::vector<Set> found;
    const std::optional<FolderItem> state = stateFolder();
    for (int number = 1; state; ++number) {
        const std::optional<FolderItem> folder = state->Child(DataFiles::numbered(setName, number));
        if (!folder || !folder->Directory())
            break;
        found.push_back({*folder, filesIn(*folder)});
    }
    return found;
}

void putInPlace(const Set& set, const Date& today) {
    for (const Rescued& file : set.files) {
        const std::string content = contentOf(set, file);
        if (file.place.empty())
            throw IOException("no place for " + file.name);
        keepPresent(file.place, content, today);
        SystemFiles::write(file.place, content);
    }
    takeAway(set);
}

std::string setAside(const Set& set, const Date& today) {
    const std::optional<FolderItem> state = stateFolder();
    const std::optional<FolderItem> place =
        state ? DataFiles::freePlace(*state, "Not taken " + today.isoDate()) : std::nullopt;
    if (!place || !set.folder.Name(place->Name()))
        return set.folder.AbsolutePath();
    return place->AbsolutePath();
}

} // namespace tallyvane::RescuedFiles

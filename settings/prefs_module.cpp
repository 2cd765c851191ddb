#include "settings/prefs_module.h"

#include "platform/base/number.h"
#include "platform/base/text.h"
#include "platform/base/translation.h"
#include "settings/data_files.h"
#include "settings/globals.h"
#include "settings/unsaved_files.h"

namespace tallyvane::PrefsModule {

std::string gDataLocation;
std::function<void()> createMainWindow;

namespace {

constexpr std::string_view defaultLocation = "ApplicationSupport";

bool isTrue(std::string_view line) { return compareTexts(line, "true") == 0; }

std::string_view truth(bool value) { return value ? "true" : "false"; }

/// Where the preferences are looked for: the application's folder, and the user's synchronised folder where the
/// desktop gives no place for the first. Empty when neither can be had.
std::optional<FolderItem> preferencesFile() {
    if (std::optional<FolderItem> file = DataFiles::applicationFile(DataFiles::preferences))
        return file;
    std::optional<FolderItem> folder = SpecialFolder::UserHome;
    for (const std::string_view name : {std::string_view("Dropbox"), DataFiles::applicationName})
        folder = folder ? folder->Child(name) : std::nullopt;
    return folder ? folder->Child(DataFiles::preferences) : std::nullopt;
}

void useDefaultFolder() {
    StartupGlobals::gDataFolder = DataFiles::applicationFolder();
    gDataLocation = defaultLocation;
}

/// Whether the files were brought here from a computer where the user's home has another path.
bool isApplicationFolderOfAnotherHome(std::string_view path) {
    const std::optional<FolderItem> folder = DataFiles::applicationFolder();
    const std::string home = SpecialFolder::UserHome ? SpecialFolder::UserHome->AbsolutePath() : "";
    const std::string own = folder ? folder->AbsolutePath() : "";
    if (home.empty() || !own.starts_with(home + "/") || !path.ends_with(own.substr(home.size())))
        return false;
    const std::string_view otherHome = path.substr(0, path.size() - (own.size() - home.size()));
    const auto placeOf = [](std::string_view folderPath) { return folderPath.substr(0, folderPath.rfind('/')); };
    return placeOf(otherHome) == placeOf(home);
}

/// Takes the folder that the preferences name; an empty path names the application's folder.
void settleDataFolder(std::string_view path) {
    StartupGlobals::gDataFolder = path.empty() ? DataFiles::applicationFolder() : GetFolderItem(path, 0);
    if (StartupGlobals::gDataFolder && StartupGlobals::gDataFolder->Directory())
        return;
    if (!isApplicationFolderOfAnotherHome(path))
        StartupGlobals::gMissingDataFolder = path;
    StartupGlobals::gDataFolder = DataFiles::applicationFolder();
}

void turnOn(bool& global, std::string_view line) {
    if (isTrue(line))
        global = true;
}

void read(TextInputStream& stream) {
    Globals::gShowIndicators = isTrue(stream.ReadLine());
    Globals::gOver = Val(stream.ReadLine());
    Globals::gCaution = Val(stream.ReadLine());
    Globals::gLow = Val(stream.ReadLine());
    Globals::gUnder = Val(stream.ReadLine());
    turnOn(Globals::gIncludeMeds, stream.ReadLine());
    turnOn(Globals::gIncludeExercise, stream.ReadLine());
    turnOn(Globals::gIncludeFood, stream.ReadLine());
    settleDataFolder(stream.ReadLine());
    const std::string_view location = stream.ReadLine();
    gDataLocation = location.empty() ? defaultLocation : location;
}

UnsavedFiles::UserFile userFileAt(const std::optional<FolderItem>& place) {
    return {tr("The preferences"), std::string(DataFiles::preferences), place};
}

/// Where they are saved: in the data folder that they name.
UnsavedFiles::UserFile userFile() {
    const std::optional<FolderItem>& folder = StartupGlobals::gDataFolder;
    return userFileAt(folder ? DataFiles::placeIn(*folder, DataFiles::preferences) : std::nullopt);
}

std::string text() {
    TextWriter lines;
    lines.WriteLine(truth(Globals::gShowIndicators));
    for (const double limit : {Globals::gOver, Globals::gCaution, Globals::gLow, Globals::gUnder})
        lines.WriteLine(Str(limit));
    for (const bool included : {Globals::gIncludeMeds, Globals::gIncludeExercise, Globals::gIncludeFood})
        lines.WriteLine(truth(included));
    const std::string& missing = StartupGlobals::gMissingDataFolder; // a folder that is away is not forgotten
    const std::optional<FolderItem>& folder = StartupGlobals::gDataFolder;
    lines.WriteLine(missing.empty() && folder ? folder->AbsolutePath() : missing);
    lines.WriteLine(gDataLocation);
    return lines.text();
}

} // namespace

void getPrefs() {
    if (const std::optional<FolderItem> file = preferencesFile()) {
        if (std::optional<TextInputStream> stream = UnsavedFiles::openText(userFileAt(file)))
            read(*stream);
        else
            useDefaultFolder();
        UnsavedFiles::setBaseline(userFile(), text());
    }
    if (createMainWindow)
        createMainWindow();
}

void savePrefs() {
    if (!StartupGlobals::gDataFolder)
        return;
    if (gDataLocation.empty())
        gDataLocation = defaultLocation;
    UnsavedFiles::save(userFile(), text());
}

} // namespace tallyvane::PrefsModule

/// The preferences. The data folder that they name is not written to.
#include "fuzz/fuzz.h"
#include "platform/base/number.h"
#include "settings/data_files.h"
#include "settings/globals.h"
#include "settings/prefs_module.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace tallyvane;
    static const std::string place = Fuzz::path(DataFiles::preferences); // the folders are there from now on
    const std::optional<FolderItem> folder = DataFiles::applicationFolder();
    const auto load = [&folder]() -> std::optional<std::string> {
        Globals::gIncludeMeds = Globals::gIncludeExercise = Globals::gIncludeFood = false;
        PrefsModule::getPrefs();
        StartupGlobals::gDataFolder = folder;
        StartupGlobals::gMissingDataFolder.clear();
        std::string told;
        for (const double limit : {Globals::gOver, Globals::gCaution, Globals::gLow, Globals::gUnder})
            told += Str(limit) + "|";
        for (const bool on :
             {Globals::gShowIndicators, Globals::gIncludeMeds, Globals::gIncludeExercise, Globals::gIncludeFood})
            told += on ? "on|" : "off|";
        return told + PrefsModule::gDataLocation;
    };
    Fuzz::checkReader(DataFiles::preferences, Fuzz::textOf(data, size), load, PrefsModule::savePrefs);
    return 0;
}

#include "support/test_desk.h"

#include "settings/globals.h"
#include "settings/prefs_module.h"
#include "settings/unsaved_files.h"

namespace tallyvane {

void TestDesk::SetUp() {
    PlatformDesk::SetUp();
    UnsavedFiles::forgetAll();
    StartupGlobals::gDataFolder.reset();
    StartupGlobals::gMissingDataFolder.clear();
    PrefsModule::gDataLocation.clear();
    Globals::gOver = 13.0;
    Globals::gCaution = 9.0;
    Globals::gLow = 5.0;
    Globals::gUnder = 3.0;
    Globals::gShowIndicators = true;
    Globals::gIncludeMeds = Globals::gIncludeExercise = Globals::gIncludeFood = false;
    for (std::string* log : {&Globals::gExercise, &Globals::gFood, &Globals::gJournal, &Globals::gMedication})
        log->clear();
    Globals::gFileWindowOpen = Globals::gFilesOpen = Globals::gPrintingOn = false;
    Globals::ps.reset();
}

} // namespace tallyvane

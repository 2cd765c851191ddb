#include "settings/globals.h"

namespace tallyvane {

namespace Globals {

double gOver = 13.0;
double gCaution = 9.0;
double gLow = 5.0;
double gUnder = 3.0;
bool gShowIndicators = true;
bool gIncludeMeds = false;
bool gIncludeExercise = false;
bool gIncludeFood = false;
std::string gExercise;
std::string gFood;
std::string gJournal;
std::string gMedication;
bool gFileWindowOpen = false;
bool gFilesOpen = false;
bool gPrintingOn = false;
std::unique_ptr<PrinterSetup> ps;

} // namespace Globals

namespace StartupGlobals {

std::optional<FolderItem> gDataFolder;
std::string gMissingDataFolder;

} // namespace StartupGlobals

} // namespace tallyvane

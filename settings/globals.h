/// The settings and running texts that all rooms read directly.
#pragma once

#include <memory>
#include <optional>
#include <string>

#include "platform/files/folder_item.h"
#include "platform/printing/printing.h"

namespace tallyvane {

namespace Globals {

/// Personal limits, in the unit of the readings (mmol/L or mg/dL): the lower bounds of the ranges over, caution,
/// in zone and low. Nothing keeps them in order.
extern double gOver;
extern double gCaution;
extern double gLow;
extern double gUnder;
/// Whether values show the light of their range.
extern bool gShowIndicators;

/// What a report says of a day besides its readings.
extern bool gIncludeMeds;
extern bool gIncludeExercise;
extern bool gIncludeFood;

/// The running logs. The journal has real line ends; the others keep their stored form, with "$%$" for a line end,
/// until the logs window has opened them.
extern std::string gExercise;
extern std::string gFood;
extern std::string gJournal;
extern std::string gMedication;

/// Whether the resources window is open; the window itself sets it.
extern bool gFileWindowOpen;
/// Whether the toolbar's button last opened the resources window rather than closed it.
extern bool gFilesOpen;
/// A graph is being printed on a page that has its legend below the graph.
extern bool gPrintingOn;
/// The page set-up of the reports; null until one is made. It lasts to the end of the program.
extern std::unique_ptr<PrinterSetup> ps;

} // namespace Globals

namespace StartupGlobals {

/// The folder that holds the day table; empty until it is settled at start.
extern std::optional<FolderItem> gDataFolder;
/// The data folder that the preferences name but that is not there; "" normally. The preferences go on naming it, so
/// that a start after its return finds it again.
extern std::string gMissingDataFolder;

} // namespace StartupGlobals

} // namespace tallyvane

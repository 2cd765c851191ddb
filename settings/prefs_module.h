/// The user's limits and switches across runs, and the choice of the data folder.
#pragma once

#include <functional>
#include <string>

namespace tallyvane::PrefsModule {

/// A word that names the kind of data location; read and written back, nothing else.
extern std::string gDataLocation;

/// Brings the one main window into being, unseen, and starts its timer: the last act of getPrefs, on every path.
extern std::function<void()> bringUpMainWindow;

/// Reads the preferences and settles the data folder. Once, at start.
///
/// A data folder that is named there but is none now gives way to the application's folder, and its path is kept in
/// StartupGlobals::gMissingDataFolder.
void getPrefs();

/// Writes the preferences into the data folder; nothing without one. Throws IOException when the disk fails.
void savePrefs();

} // namespace tallyvane::PrefsModule

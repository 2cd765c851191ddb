/// The user's limits and switches across runs, and the choice of the data folder.
#pragma once

#include <functional>
#include <string>

namespace tallyvane::PrefsModule {

/// A word that names the kind of data location; read and written back, nothing else.
extern std::string gDataLocation;

/// Creates the main window, hidden, and starts its timer. getPrefs calls it last, whatever it has found.
extern std::function<void()> createMainWindow;

/// Reads the preferences and settles the data folder. Once, at start.
///
/// If the preferences name a data folder that does not exist now, the application's folder is used instead, and the
/// missing path is kept in StartupGlobals::gMissingDataFolder.
void getPrefs();

/// Writes the preferences into the data folder; nothing without one. Throws IOException when the disk fails.
void savePrefs();

} // namespace tallyvane::PrefsModule

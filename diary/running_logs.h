/// The running logs of exercise, food, journal and medication in the file "QVXLogData".
#pragma once

#include <functional>
#include <string>

namespace tallyvane::RunningLogs {

/// Writes the four globals as one line. Nothing when the file can't be had; throws IOException when the disk fails.
void save();

/// Reads the logs into their globals, as they stand in the file; `showJournal` gets the journal with real line ends,
/// and after that the whole of the file "Tallyvane Journal" if there is one, which wins.
void load(const std::function<void(std::string)>& showJournal);

} // namespace tallyvane::RunningLogs

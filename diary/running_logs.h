/// The running logs of exercise, food, journal and medication in the file "QVXLogData".
#pragma once

#include <functional>
#include <string>

namespace tallyvane::RunningLogs {

/// Writes the four globals as one line. When the file can't be had they wait among the unsaved files; so they do when
/// the disk fails, which throws IOException.
void save();
/// The same, but nothing if they have not changed since they were read or saved.
void saveIfChanged();
/// Takes down that the globals, as they stand, are what was read.
void startedFrom();

/// Reads the logs into their globals, as they stand in the file; `showJournal` gets the journal with real line ends,
/// and after that the whole of the file "Tallyvane Journal" if there is one, which wins. A journal that would be lost
/// so is first kept in a file of its own, such as "Tallyvane Journal 2026-11-22", whose path is the result; "" for
/// none. If it can't be kept, it wins.
std::string load(const std::function<void(std::string)>& showJournal);

} // namespace tallyvane::RunningLogs

/// The running logs of exercise, food, journal and medication in the file "QVXLogData".
#pragma once

#include <functional>
#include <string>

namespace tallyvane::RunningLogs {

/// Writes the four globals as one line. If the file can't be opened, or writing fails (which throws IOException), they
/// stay among the unsaved files.
void save();
/// The same, but nothing if they have not changed since they were read or saved.
void saveIfChanged();
/// Joins the globals with what another program has made of the file, and shows the journal if it has changed. False
/// when there was nothing to bring in.
bool bringInChanges(const std::function<void(std::string)>& showJournal);
/// Sets the globals, as they were just read, as the baseline.
void setBaseline();

/// Reads the logs into their globals and shows the journal, with real line ends, by `showJournal`. If there is a file
/// "Tallyvane Journal", its text is shown instead; a journal that it does not contain is first copied to a dated file,
/// such as "Tallyvane Journal 2026-11-22", whose path is returned ("" for none). If that copy can't be written, the
/// journal is shown and the file is not.
std::string load(const std::function<void(std::string)>& showJournal);

} // namespace tallyvane::RunningLogs

/// Archives: selected days as a text for people to read. An archive is a copy, and never read back into the table.
#pragma once

#include <string>

#include "platform/controls/listbox.h"

namespace tallyvane {

/// The selected days, a line and an empty line for each: date, the seven readings with "--" for a missing one, and the
/// average, with five blanks in between. "" without a selection.
std::string archiveSelected(const Listbox& days);

/// Asks for a file and writes the archive of the selected days into it; a message without a selection. Nothing when
/// the dialog is cancelled or the file can't be had; throws IOException when the disk fails.
void FileArchiveSelectedDays_Action(const Listbox& days);

} // namespace tallyvane

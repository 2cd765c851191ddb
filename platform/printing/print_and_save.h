/// The two ways in which a long text leaves the program.
#pragma once

#include <string>

#include "platform/windows/dialogs.h"

namespace tallyvane {

/// Prints a text after the print dialog, with a title over it on the first page if there is one; nothing when the
/// dialog is cancelled.
void printText(const std::string& text, const std::string& title = "");

/// Writes a text, as it stands, into the file that the user chooses; nothing when the dialog is cancelled or the file
/// can't be had. Throws IOException when the disk fails.
void saveText(const std::string& text, const SaveAsDialog& dialog);

} // namespace tallyvane

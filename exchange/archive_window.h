#pragma once

#include <memory>

#include "platform/windows/window.h"

namespace tallyvane {

/// Shows an archive, or any other text file, to be read and printed.
class archiveWindow : public Window {
public:
    archiveWindow();

    TextArea EditField1;
    PushButton PushButton1, PushButton2; // Print, OK

    void PushButton1_Action();
};

/// Asks for a file and shows it in the archive window, which is made anew if it is not open. Nothing when the dialog is
/// cancelled or the file can't be read.
void FileOpenArchivedDays_Action(std::unique_ptr<archiveWindow>& window);

} // namespace tallyvane

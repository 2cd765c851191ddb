#include "platform/windows/quit.h"

#include <vector>

#include "platform/base/scoped_flag.h"
#include "platform/desktop/desktop.h"
#include "platform/files/system_files.h"
#include "platform/windows/window.h"

namespace tallyvane {

void Quit(int code) {
    static bool isQuitting = false;
    if (isQuitting) // a window that ends the program when it is closed
        return;
    const ScopedFlag quitting(isQuitting);
    const std::vector<Window*> windows = Window::openWindows();
    for (Window* window : windows) {
        try {
            window->Close();
        } catch (const IOException&) { // its file waits to be asked about
        }
    }
    if (beforeEnd)
        code = beforeEnd(code);
    Desktop::current().quit(code);
}

} // namespace tallyvane

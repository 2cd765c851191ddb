#include "platform/toolkit.h"

#include <array>

namespace tallyvane {

namespace {

Toolkit* theToolkit = nullptr;

} // namespace

Toolkit* Toolkit::inForce() { return theToolkit; }

void Toolkit::putInForce(Toolkit* toolkit) { theToolkit = toolkit; }

void MsgBox(const std::string& text) {
    if (theToolkit != nullptr)
        theToolkit->message(text);
}

void Beep() {
    if (theToolkit != nullptr)
        theToolkit->beep();
}

void ShowURL(const std::string& address) {
    if (address.starts_with("www"))
        ShowURL("http://" + address);
    constexpr std::array<std::string_view, 3> schemes{"http:", "https:", "mailto:"};
    for (const std::string_view scheme : schemes)
        if (theToolkit != nullptr && address.starts_with(scheme))
            theToolkit->openUrl(address);
}

void Quit(int code) {
    const std::vector<Window*> windows = Window::openWindows();
    for (Window* window : windows)
        window->Close();
    if (theToolkit != nullptr)
        theToolkit->quit(code);
}

} // namespace tallyvane

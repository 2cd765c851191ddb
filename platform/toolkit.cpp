#include "platform/toolkit.h"

#include <array>
#include <exception>

#include "platform/system_files.h"

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

Answer Ask(const std::string& question, const std::string& yes, const std::string& no) {
    return theToolkit != nullptr ? theToolkit->ask(question, yes, no) : Answer::none;
}

void Beep() {
    if (theToolkit != nullptr)
        theToolkit->beep();
}

void ShowURL(const std::string& address) {
    if (address.starts_with("www")) {
        ShowURL("http://" + address);
        return;
    }
    constexpr std::array<std::string_view, 3> schemes{"http:", "https:", "mailto:"};
    for (const std::string_view scheme : schemes)
        if (theToolkit != nullptr && address.starts_with(scheme))
            theToolkit->openUrl(address);
}

void ShowMail(const std::string& address) {
    constexpr std::string_view scheme = "mailto:";
    ShowURL(address.starts_with(scheme) ? address : std::string(scheme) + address);
}

void Quit(int code) {
    const std::vector<Window*> windows = Window::openWindows();
    std::exception_ptr failure;
    for (Window* window : windows) {
        try {
            window->Close();
        } catch (const IOException&) { // the others are to be saved all the same
            failure = failure ? failure : std::current_exception();
        }
    }
    if (failure)
        std::rethrow_exception(failure);
    if (theToolkit != nullptr)
        theToolkit->quit(code);
}

} // namespace tallyvane

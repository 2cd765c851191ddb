#pragma once

#include <functional>
#include <string>

#include "platform/windows/window.h"

namespace tallyvane {

/// Tells of a newer version and offers its download page.
class newVersionWindow : public Window {
public:
    /// Modal to that window.
    newVersionWindow(Window& owner, const std::string& appName);

    StaticText StaticText1;
    PushButton PushButton1, PushButton2; // Download Now, Download Later

    /// The user has decided.
    std::function<void()> closed;

    void Event_Close() override;
    void PushButton1_Action();
};

} // namespace tallyvane

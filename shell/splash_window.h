#pragma once

#include <functional>

#include "platform/windows/window.h"
#include "shell/version_check.h"

namespace tallyvane {

/// Shows for one second at start, then hands over to the main window.
class SplashWindow : public Window {
public:
    SplashWindow();

    Canvas Canvas1; // the logo
    StaticText AppNameLabel;
    StaticText StaticText1; // credit
    StaticText StaticText11; // what is going on
    ProgressWheel ProgressWheel1;
    VersionCheckSocket VersionCheckSocket1;
    Timer Timer1;

    /// Called when the second is over.
    std::function<void()> showPrimaryWindow;
    /// After that, with this window closed.
    std::function<void()> handedOver;

    void Event_Open() override;
    void Timer1_Action();
};

} // namespace tallyvane

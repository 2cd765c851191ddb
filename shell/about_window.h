#pragma once

#include "platform/windows/window.h"

namespace tallyvane {

/// Tells the program's name and version.
class AboutWindow : public Window {
public:
    AboutWindow();

    Canvas Canvas1; // the logo
    StaticText StaticText1; // name
    StaticText StaticText2; // version
    StaticText StaticText3; // credit

    void Event_Open() override;
};

} // namespace tallyvane

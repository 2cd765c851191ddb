#pragma once

#include <vector>

#include "platform/windows/menus.h"

namespace tallyvane {

/// The buttons of the main window's toolbar.
class Toolbar1 : public Toolbar {
public:
    Toolbar1();
};

} // namespace tallyvane

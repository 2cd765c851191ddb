#pragma once

#include "platform/windows/menus.h"

namespace tallyvane {

/// The menu bar of the program.
MenuBar MenuBar1();

} // namespace tallyvane

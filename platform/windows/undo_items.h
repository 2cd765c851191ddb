/// The items "EditUndo" and "EditRedo" of a window whose lists have a history.
#pragma once

#include <functional>

#include "platform/controls/list_history.h"
#include "platform/windows/menus.h"

namespace tallyvane {

/// Answers both items in that window: a step of the history that `history` gives, then `afterwards`.
void handleUndoItems(MenuTarget& window, std::function<ListHistory&()> history, std::function<void()> afterwards);

/// Enables them as far as the history has steps; they say which.
void enableUndoItems(MenuBar& menuBar, const ListHistory& history);

} // namespace tallyvane

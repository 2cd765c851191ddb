#pragma once

#include <string>

class QKeyEvent;

namespace tallyvane {

/// The key as the events of fields and lists name it: a control character, or the text that the key types.
std::string nameOf(const QKeyEvent& key);

/// A key that belongs to the window or to the text field: a shortcut, or the selecting by Shift and an arrow.
bool isShortcut(const QKeyEvent& key);

} // namespace tallyvane

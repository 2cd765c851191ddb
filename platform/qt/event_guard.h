#pragma once

#include <functional>

namespace tallyvane {

/// How every event of a window reaches it: the application's catch-all, set at start.
void setEventGuard(std::function<void(const std::function<void()>& event)> guard);

/// Raises an event through the guard. Peers call no event any other way, so that no exception passes through Qt.
/// The event may close the window: a peer looks whether it is still attached before it goes on.
void deliver(const std::function<void()>& event);

} // namespace tallyvane

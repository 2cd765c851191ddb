#pragma once

#include <QObject>

#include <functional>

namespace tallyvane {

/// How every event of a window reaches it: the application's catch-all, set at start.
void setEventGuard(std::function<void(const std::function<void()>& event)> guard);

/// Raises an event through the guard. Peers call no event any other way, so that no exception passes through Qt.
/// The event may close the window: a peer looks whether it is still attached before it goes on.
void deliver(const std::function<void()>& event);

/// The same for an event that comes from outside the windows: a timer, a file that was changed, another program in
/// front. While such events are held it waits until the event loop runs again, and is dropped if its owner is gone
/// then.
void deliverUnasked(QObject* owner, const std::function<void()>& event);

/// Holds these events while it lives.
class UnaskedEventsHeld {
public:
    UnaskedEventsHeld();
    UnaskedEventsHeld(const UnaskedEventsHeld&) = delete;
    UnaskedEventsHeld& operator=(const UnaskedEventsHeld&) = delete;
    ~UnaskedEventsHeld();
};

} // namespace tallyvane

#include "platform/qt/event_guard.h"

namespace tallyvane {

namespace {

std::function<void(const std::function<void()>&)>& eventGuard() {
    // Never destroyed: the last save of a program whose display is gone comes this way while the process ends.
    static auto* const guard = new std::function<void(const std::function<void()>&)>;
    return *guard;
}

} // namespace

void setEventGuard(std::function<void(const std::function<void()>& event)> guard) { eventGuard() = std::move(guard); }

void deliver(const std::function<void()>& event) {
    if (!event)
        return;
    if (eventGuard())
        eventGuard()(event);
    else
        event();
}

} // namespace tallyvane

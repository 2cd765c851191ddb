#include "platform/qt/event_guard.h"

namespace tallyvane {

namespace {

std::function<void(const std::function<void()>&)>& eventGuard() {
    static std::function<void(const std::function<void()>&)> guard;
    return guard;
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

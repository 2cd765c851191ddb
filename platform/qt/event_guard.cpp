#include "platform/qt/event_guard.h"

#include <QCoreApplication>
#include <QPointer>
#include <QTimer>

#include <utility>
#include <vector>

namespace tallyvane {

namespace {

std::function<void(const std::function<void()>&)>& eventGuard() {
    // Never destroyed: the last save of a program whose display is gone comes this way while the process ends.
    static auto* const guard = new std::function<void(const std::function<void()>&)>;
    return *guard;
}

struct UnaskedEvent {
    QPointer<QObject> owner;
    std::function<void()> event;
};

bool areHeld = false;
std::vector<UnaskedEvent> held;

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

void deliverUnasked(QObject* owner, const std::function<void()>& event) {
    if (areHeld)
        held.push_back({owner, event});
    else
        deliver(event);
}

UnaskedEventsHeld::UnaskedEventsHeld() { areHeld = true; }

UnaskedEventsHeld::~UnaskedEventsHeld() {
    areHeld = false;
    QTimer::singleShot(0, QCoreApplication::instance(), [events = std::exchange(held, {})] {
        for (const auto& [owner, event] : events)
            if (owner)
                deliverUnasked(owner, event);
    });
}

} // namespace tallyvane

#pragma once

#include <functional>
#include <initializer_list>

namespace tallyvane {

/// Connects the events of a window's controls with the functions of the window that handle them.
template <class Owner>
class Wiring {
public:
    struct Line {
        std::function<void()>& event;
        void (Owner::*handler)();
    };

    /// The owner outlives the events: they are those of its own controls.
    explicit Wiring(Owner& owner) : owner_(owner) {}

    void connect(std::initializer_list<Line> lines) {
        for (const Line& line : lines)
            line.event = std::bind_front(line.handler, &owner_);
    }

private:
    Owner& owner_;
};

} // namespace tallyvane

#pragma once

#include <functional>

#include "platform/controls/controls.h"
#include "platform/controls/keys.h"

namespace tallyvane {

/// A bar between two parts of a window, one above the other, that the user moves by dragging or with the arrow keys.
class Divider : public Canvas {
public:
    Divider() {
        AcceptFocus(true);
        DragsUpAndDown(true);
    }

    /// Points that an arrow key moves it.
    int Step = 1;
    /// The user moves it by so many points, down if positive. It stays where it is until its window moves it.
    std::function<void(int points)> Dragged;

    void Event_Paint(Graphics& g) override {
        constexpr int size = 2;
        constexpr int apart = 8;
        g.ForeColor(RGB(140, 140, 140)); // to be seen on light and on dark
        for (const int place : {-apart, 0, apart})
            g.FillRect((g.Width() - size) / 2 + place, (g.Height() - size) / 2, size, size);
    }
    bool Event_MouseDown(int /*x*/, int y) override {
        grabbedAt_ = y;
        return true;
    }
    void Event_MouseDrag(int /*x*/, int y) override { move(y - grabbedAt_); }
    bool Event_KeyDown(const std::string& key) override {
        if (key != Keys::up && key != Keys::down)
            return false;
        move(key == Keys::up ? -Step : Step);
        return true;
    }

private:
    void move(int points) {
        if (points != 0 && Dragged)
            Dragged(points);
    }

    int grabbedAt_ = 0;
};

} // namespace tallyvane

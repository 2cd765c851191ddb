#pragma once

#include <functional>
#include <optional>

#include "platform/controls/controls.h"

namespace tallyvane {

/// A button that is a picture. It works out its pressed and its disabled look from the picture that it opens with,
/// follows the mouse out of the button and back during a press, and is a push button or a toggle. The picture on show,
/// `Backdrop`, also tells the state of the press.
class AutoButton : public Canvas {
public:
    AutoButton() { AcceptFocus(true); }

    /// The standard pictures that a button without a picture of its own can have; any other number is none.
    enum ButtonTypes { noPicture = 0, addButton = 1, removeButton = 2, actionMenuButton = 3, deleteButton = 5 };
    int ButtonType = noPicture;
    bool Toggle = false;
    /// The label that is bold while the button is pressed; null for none.
    StaticText* myText = nullptr;

    std::optional<Picture> enabledIcon;
    std::optional<Picture> pressedIcon;
    std::optional<Picture> disabledIcon;
    /// State of a toggle. It also follows the pointer during a press.
    bool toggleOn = false;
    /// The pointer has left the button during this press.
    bool dragOutside = false;

    // Events
    std::function<void()> open;
    std::function<void()> Action; // released inside the button
    std::function<void()> MouseDown;
    std::function<void()> MouseUp; // released, if not dragged outside; and when a toggle is switched off

    void Event_Open() override;
    void Event_Paint(Graphics& g) override;
    bool Event_MouseDown(int x, int y) override;
    void Event_MouseDrag(int x, int y) override;
    void Event_MouseUp(int x, int y) override;

    Picture makeDisabledIcon(const Picture& picture) const;
    Picture makePressedIcon(const Picture& picture) const;

private:
    bool isInside(int x, int y) const { return x > 0 && x < Width() && y > 0 && y < Height(); }
    bool isAtRest() const { return enabledIcon && Backdrop() == enabledIcon; }
    void ensurePressedIcon();
    void showPressed();
    void showAtRest();

    bool mePainted = false;
};

} // namespace tallyvane

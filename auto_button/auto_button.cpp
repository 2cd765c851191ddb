#include "auto_button/auto_button.h"

#include "auto_button/icon_looks.h"
#include "platform/drawing/graphics.h"

namespace tallyvane {

namespace {

std::optional<Picture> standardPicture(int buttonType) {
    switch (buttonType) {
    case AutoButton::addButton:
        return Picture("AddButton.png");
    case AutoButton::removeButton:
        return Picture("RemoveButton.png");
    case AutoButton::actionMenuButton:
        return Picture("ActionMenuButton.png");
    case AutoButton::deleteButton:
        return Picture("DeleteButton.png");
    default:
        return std::nullopt;
    }
}

/// A copy of the size of the button, every pixel changed.
Picture withLook(const Picture& picture, int width, int height, Pixel (*change)(Pixel)) {
    Picture copy(width, height, 32);
    copy.Graphics().DrawPicture(picture, 0, 0);
    copy.Bitmap()->changePixels(change);
    return copy;
}

void raise(const std::function<void()>& event) {
    if (event)
        event();
}

} // namespace

Picture AutoButton::makeDisabledIcon(const Picture& picture) const {
    return withLook(picture, Width(), Height(), disabledLook);
}

Picture AutoButton::makePressedIcon(const Picture& picture) const {
    return withLook(picture, Width(), Height(), pressedLook);
}

void AutoButton::Event_Open() {
    if (!Backdrop())
        Backdrop(standardPicture(ButtonType));
    if (Backdrop()) {
        enabledIcon = Backdrop();
        disabledIcon = makeDisabledIcon(*enabledIcon);
        pressedIcon = makePressedIcon(*enabledIcon);
        if (!Enabled())
            Backdrop(disabledIcon);
    }
    raise(open);
}

void AutoButton::Event_Paint(Graphics& /*g*/) {
    if (mePainted)
        return;
    if (!Toggle || !toggleOn)
        Backdrop(Enabled() ? enabledIcon : disabledIcon);
    mePainted = true;
}

void AutoButton::ensurePressedIcon() {
    if (!pressedIcon && enabledIcon)
        pressedIcon = makePressedIcon(*enabledIcon);
}

void AutoButton::showPressed() {
    if (myText != nullptr)
        myText->Bold(true);
    Backdrop(pressedIcon);
}

void AutoButton::showAtRest() {
    if (myText != nullptr)
        myText->Bold(false);
    Backdrop(enabledIcon);
}

bool AutoButton::Event_MouseDown(int /*x*/, int /*y*/) {
    if (Toggle)
        toggleOn = !toggleOn;
    ensurePressedIcon();
    if (isAtRest()) {
        showPressed();
        raise(MouseDown);
        return true;
    }
    if (Toggle) {
        showAtRest();
        raise(MouseDown);
        raise(MouseUp);
    }
    return false; // no release follows, so that switching off raises no Action
}

/// On the very edge the pointer neither leaves nor comes back.
void AutoButton::Event_MouseDrag(int x, int y) {
    ensurePressedIcon();
    const bool outside = x < 0 || x > Width() || y < 0 || y > Height();
    if (outside && pressedIcon && Backdrop() == pressedIcon) {
        showAtRest();
        dragOutside = true;
        toggleOn = false;
    }
    if (isAtRest() && isInside(x, y)) {
        showPressed();
        dragOutside = false;
        toggleOn = true;
    }
}

void AutoButton::Event_MouseUp(int x, int y) {
    if (Enabled() && !Toggle)
        showAtRest(); // also when released on the edge, which is neither inside nor outside
    if (isInside(x, y))
        raise(Action);
    if (!dragOutside)
        raise(MouseUp);
    dragOutside = false;
}

} // namespace tallyvane

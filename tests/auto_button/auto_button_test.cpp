#include "auto_button/auto_button.h"

#include <gtest/gtest.h>

#include <sstream>

#include "auto_button/icon_looks.h"
#include "platform/drawing/graphics_recorder.h"
#include "support/texts.h"

namespace tallyvane {

namespace {

/// A button of 30 x 20 that writes down its events.
class TestButton : public AutoButton {
public:
    explicit TestButton(bool toggle, bool enabled = true) {
        size(30, 20);
        Toggle = toggle;
        Enabled(enabled);
        myText = &label;
        Backdrop(Picture("printItem3.png"));
        Action = [this] { events += "Action "; };
        MouseDown = [this] { events += "Down "; };
        MouseUp = [this] { events += "Up "; };
        Event_Open();
    }

    StaticText label;
    std::string events;
};

/// Plays steps such as "down 5 5", "drag 31 5" and "up 31 5". For each it tells the events that the button raised, its
/// look, and "on" when it counts as switched on.
Texts played(TestButton& button, const std::string& script) {
    Texts trace;
    std::istringstream steps(script);
    int x = 0;
    int y = 0;
    for (std::string what; steps >> what >> x >> y;) {
        button.events.clear();
        const bool follows = what == "down" && button.Event_MouseDown(x, y);
        if (what == "drag")
            button.Event_MouseDrag(x, y);
        if (what == "up")
            button.Event_MouseUp(x, y);
        const bool pressed = button.Backdrop() == button.pressedIcon;
        const std::string look = pressed ? "pressed" : button.Backdrop() == button.enabledIcon ? "rest" : "disabled";
        trace.push_back(button.events + look + (button.toggleOn ? " on" : ""));
        EXPECT_EQ(button.label.Bold(), pressed) << trace.back();
        EXPECT_EQ(follows, what == "down" && pressed) << trace.back() << ": whether drags and a release follow";
    }
    return trace;
}

TEST(AutoButton, APressFromStepToStep) {
    enum Kind { plain, toggle, disabled };
    const auto check = [](const char* name, Kind kind, const char* script, const Texts& want) {
        SCOPED_TRACE(name);
        TestButton button(kind == toggle, kind != disabled);
        EXPECT_EQ(played(button, script), want);
    };
    check("press and release", plain, "down 5 5 up 5 5", {"Down pressed", "Action Up rest"});
    check("released outside", plain, "down 5 5 drag 31 5 up 31 5 down 5 5",
          {"Down pressed", "rest", "rest", "Down pressed"});
    check("out and back in", plain, "down 5 5 drag 5 -1 drag 5 1 up 5 1",
          {"Down pressed", "rest", "pressed on", "Action Up rest on"});
    check("on the edge it neither leaves nor comes back", plain, "down 5 5 drag 30 5 drag 5 21 drag 5 20 up 5 20",
          {"Down pressed", "pressed", "rest", "rest", "rest"});
    check("released on the edge: no Action, and the next press works", plain, "down 5 5 up 0 5 down 0 5",
          {"Down pressed", "Up rest", "Down pressed"});
    check("disabled", disabled, "down 5 5", {"disabled"});
    check("on and off", toggle, "down 5 5 up 5 5 down 5 5",
          {"Down pressed on", "Action Up pressed on", "Down Up rest"});
    check("a toggle dragged outside", toggle, "down 5 5 drag -1 5 up -1 5", {"Down pressed on", "rest", "rest"});
}

TEST(AutoButton, TheFirstPaintSettlesThePicture) {
    GraphicsRecorder g(30, 20);
    TestButton button(false);
    button.Enabled(false);
    button.Event_Paint(g);
    EXPECT_EQ(button.Backdrop(), button.disabledIcon);
    button.Enabled(true);
    button.Event_Paint(g);
    EXPECT_EQ(button.Backdrop(), button.disabledIcon) << "later changes do not";

    TestButton toggle(true);
    toggle.Event_MouseDown(5, 5);
    toggle.Event_Paint(g);
    EXPECT_EQ(toggle.Backdrop(), toggle.pressedIcon) << "a toggle that is on stays";
}

TEST(AutoButton, StandardPictures) {
    const std::pair<int, const char*> rows[] = {{0, nullptr},
                                                {1, "AddButton.png"},
                                                {2, "RemoveButton.png"},
                                                {3, "ActionMenuButton.png"},
                                                {5, "DeleteButton.png"}};
    for (const auto& [type, file] : rows) {
        AutoButton button;
        button.size(24, 24);
        button.ButtonType = type;
        bool opened = false;
        button.open = [&] { opened = true; };
        button.Event_Open();
        EXPECT_TRUE(opened) << type;
        EXPECT_EQ(button.enabledIcon, file == nullptr ? std::nullopt : std::optional(Picture(file))) << type;
        EXPECT_EQ(button.Event_MouseDown(5, 5), file != nullptr) << type;
    }
}

TEST(AutoButton, LooksOfAPixel) {
    const auto check = [](const char* name, const Pixel& pixel, const Pixel& disabled, const Pixel& pressed) {
        EXPECT_EQ(disabledLook(pixel), disabled) << name;
        EXPECT_EQ(pressedLook(pixel), pressed) << name;
    };
    check("white", {255, 255, 255, 255}, {255, 255, 255, 0}, {255, 255, 255, 0});
    check("200 of value becomes 149", {80, 150, 200, 255}, {80, 150, 200, 130}, {60, 112, 149, 255});
    check("too dark to be darker", {40, 51, 20, 255}, {40, 51, 20, 130}, {0, 0, 0, 255});
    check("black", {0, 0, 0, 255}, {0, 0, 0, 130}, {0, 0, 0, 255});
    check("half clear", {255, 0, 0, 100}, {255, 0, 0, 51}, {204, 0, 0, 100});
}

} // namespace

} // namespace tallyvane

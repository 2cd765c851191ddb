#include "records/auto_button/auto_button.h"

#include <gtest/gtest.h>

#include "platform/graphics_recorder.h"
#include "records/auto_button/icon_looks.h"

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

TEST(AutoButton, APressFromStepToStep) {
    struct Step {
        char what; // 'd' down, 'm' drag, 'u' up
        int x, y;
        const char* events; // all so far
        const char* shown; // "rest", "pressed" or "disabled"
        bool toggleOn;
    };
    struct Row {
        const char* name;
        bool toggle;
        bool enabled;
        std::vector<Step> steps;
    };
    const std::vector<Row> rows{
        {"press and release",
         false,
         true,
         {{'d', 5, 5, "Down ", "pressed", false}, {'u', 5, 5, "Down Action Up ", "rest", false}}},
        {"released outside",
         false,
         true,
         {{'d', 5, 5, "Down ", "pressed", false},
          {'m', 31, 5, "Down ", "rest", false},
          {'u', 31, 5, "Down ", "rest", false},
          {'d', 5, 5, "Down Down ", "pressed", false}}},
        {"out and back in",
         false,
         true,
         {{'d', 5, 5, "Down ", "pressed", false},
          {'m', 5, -1, "Down ", "rest", false},
          {'m', 5, 1, "Down ", "pressed", true},
          {'u', 5, 1, "Down Action Up ", "rest", true}}},
        {"on the edge it neither leaves nor comes back",
         false,
         true,
         {{'d', 5, 5, "Down ", "pressed", false},
          {'m', 30, 5, "Down ", "pressed", false},
          {'m', 5, 21, "Down ", "rest", false},
          {'m', 5, 20, "Down ", "rest", false},
          {'u', 5, 20, "Down ", "rest", false}}},
        {"released on the edge: no Action, and the next press works",
         false,
         true,
         {{'d', 5, 5, "Down ", "pressed", false},
          {'u', 0, 5, "Down Up ", "rest", false},
          {'d', 0, 5, "Down Up Down ", "pressed", false}}},
        {"disabled", false, false, {{'d', 5, 5, "", "disabled", false}}},
        {"a toggle on and off",
         true,
         true,
         {{'d', 5, 5, "Down ", "pressed", true},
          {'u', 5, 5, "Down Action Up ", "pressed", true},
          {'d', 5, 5, "Down Action Up Down Up ", "rest", false}}},
        {"a toggle dragged outside",
         true,
         true,
         {{'d', 5, 5, "Down ", "pressed", true},
          {'m', -1, 5, "Down ", "rest", false},
          {'u', -1, 5, "Down ", "rest", false}}},
    };
    for (const Row& row : rows) {
        TestButton button(row.toggle, row.enabled);
        int step = 0;
        bool follows = false;
        for (const Step& s : row.steps) {
            const std::string where = std::string(row.name) + ", step " + std::to_string(++step);
            if (s.what == 'd')
                follows = button.Event_MouseDown(s.x, s.y);
            else if (s.what == 'm')
                button.Event_MouseDrag(s.x, s.y);
            else
                button.Event_MouseUp(s.x, s.y);
            EXPECT_EQ(button.events, s.events) << where;
            const std::string shown = s.shown;
            EXPECT_EQ(button.Backdrop(), shown == "rest"      ? button.enabledIcon
                                         : shown == "pressed" ? button.pressedIcon
                                                              : button.disabledIcon)
                << where;
            EXPECT_EQ(button.toggleOn, s.toggleOn) << where;
            EXPECT_EQ(button.label.Bold(), shown == "pressed") << where;
            if (s.what == 'd')
                EXPECT_EQ(follows, shown == "pressed") << where;
        }
    }
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
    struct Row {
        int type;
        const char* file; // nil for none
    };
    const Row rows[] = {{0, nullptr},
                        {1, "AddButton.png"},
                        {2, "RemoveButton.png"},
                        {3, "ActionMenuButton.png"},
                        {4, nullptr},
                        {5, "DeleteButton.png"},
                        {6, nullptr}};
    for (const Row& row : rows) {
        AutoButton button;
        button.size(24, 24);
        button.ButtonType = row.type;
        bool opened = false;
        button.open = [&] { opened = true; };
        button.Event_Open();
        EXPECT_TRUE(opened) << row.type;
        EXPECT_EQ(button.enabledIcon, row.file == nullptr ? std::nullopt : std::optional(Picture(row.file)))
            << row.type;
        EXPECT_EQ(button.Event_MouseDown(5, 5), row.file != nullptr) << row.type;
    }
}

TEST(AutoButton, LooksOfAPixel) {
    struct Row {
        const char* name;
        Pixel pixel;
        Pixel disabled;
        Pixel pressed;
    };
    const Row rows[] = {
        {"white", {255, 255, 255, 255}, {255, 255, 255, 0}, {255, 255, 255, 0}},
        {"red", {255, 0, 0, 255}, {255, 0, 0, 130}, {204, 0, 0, 255}},
        {"a pale blue: 200 of value becomes 149", {80, 150, 200, 255}, {80, 150, 200, 130}, {60, 112, 149, 255}},
        {"too dark to be darker", {40, 51, 20, 255}, {40, 51, 20, 130}, {0, 0, 0, 255}},
        {"black", {0, 0, 0, 255}, {0, 0, 0, 130}, {0, 0, 0, 255}},
        {"half clear", {255, 0, 0, 100}, {255, 0, 0, 51}, {204, 0, 0, 100}},
        {"clear", {0, 0, 0, 0}, {0, 0, 0, 0}, {0, 0, 0, 0}},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(disabledLook(row.pixel), row.disabled) << row.name;
        EXPECT_EQ(pressedLook(row.pixel), row.pressed) << row.name;
    }
}

} // namespace

} // namespace tallyvane

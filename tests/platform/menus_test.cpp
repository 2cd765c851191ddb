#include "platform/windows/menus.h"

#include <gtest/gtest.h>

#include "platform/windows/window.h"
#include "support/cells.h"

namespace tallyvane {

namespace {

class PickyWindow : public Window {
public:
    void Event_EnableMenuItems(MenuBar& menuBar) override {
        menuBar.enable("Manual");
        menuBar.enable("ManualWithoutAnswer");
        menuBar.enable("NoSuchItem");
    }
};

TEST(Menus, AnItemIsEnabledWhenItHasAHandlerAndItsRuleAllows) {
    MenuBar bar({{"Menu",
                  "Menu",
                  {{"Everywhere", "Everywhere"},
                   {"Mine", "Mine"},
                   {"NoAnswer", "No answer"},
                   {"Manual", "Manual", "", MenuRole::none, false},
                   {"ManualWithoutAnswer", "Manual", "", MenuRole::none, false}}}});
    std::string chosen;
    bar.handlers["Everywhere"] = [&] { chosen += "e"; };
    PickyWindow picky;
    Window plain;
    picky.menuHandlers["Mine"] = [&] { chosen += "m"; };
    picky.menuHandlers["Manual"] = [&] { chosen += "h"; };
    picky.menuHandlers["Everywhere"] = [&] { chosen += "own"; };
    plain.menuHandlers["Manual"] = [&] { chosen += "never"; };

    const auto enabled = [&bar](Window* front) {
        bar.enableItems(front);
        Texts names;
        for (const MenuItem& item : bar.menus().front().items)
            if (item.Enabled)
                names.push_back(item.Name);
        return names;
    };
    EXPECT_EQ(enabled(&picky), (Texts{"Everywhere", "Mine", "Manual"}));
    EXPECT_EQ(enabled(&plain), Texts{"Everywhere"}) << "a window that enables nothing";
    EXPECT_EQ(enabled(nullptr), Texts{"Everywhere"}) << "no window";
    bar.choose("Everywhere", &picky); // the window in front comes first
    bar.choose("Everywhere", nullptr);
    bar.choose("NoAnswer", &picky);
    EXPECT_EQ(chosen, "owne");
}

} // namespace
} // namespace tallyvane

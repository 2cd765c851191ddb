#include "platform/menus.h"

#include <gtest/gtest.h>

#include "platform/window.h"

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

TEST(Menus, AnItemIsEnabledWhenSomethingAnswersItAndItsRuleAllows) {
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

    struct Row {
        const char* name;
        Window* front;
        std::vector<std::string> enabled;
    };
    const Row rows[] = {
        {"a window with answers", &picky, {"Everywhere", "Mine", "Manual"}},
        {"a window that enables nothing", &plain, {"Everywhere"}},
        {"no window", nullptr, {"Everywhere"}},
    };
    for (const Row& row : rows) {
        bar.enableItems(row.front);
        std::vector<std::string> enabled;
        for (const MenuItem& item : bar.menus().front().items)
            if (item.Enabled)
                enabled.push_back(item.Name);
        EXPECT_EQ(enabled, row.enabled) << row.name;
    }
    bar.choose("Everywhere", &picky); // the window in front comes first
    bar.choose("Everywhere", nullptr);
    bar.choose("NoAnswer", &picky);
    EXPECT_EQ(chosen, "owne");
}

} // namespace
} // namespace tallyvane

/// The menu bar and the toolbar, as plain tables.
#pragma once

#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/controls/control.h"

namespace tallyvane {

/// What the platform does for an item by itself, and where it puts it.
enum class MenuRole {
    none,
    undo, // the standard editing actions, on the control with the focus
    redo, // these two are the window's where no field of text has the focus
    cut,
    copy,
    paste,
    clear,
    selectAll,
    quit, // these three belong into the application menu of a desktop that has one
    about,
    preferences,
};

struct MenuItem {
    std::string Name;
    /// "&" before the access key. Empty: a separator.
    std::string Text;
    /// Such as "Cmd+Shift+P", where "Cmd" is the platform's key for shortcuts; "" for none, several with "; " between.
    std::string KeyboardShortcut = {};
    MenuRole role = MenuRole::none;
    /// False: stays disabled until the window in front enables it.
    bool AutoEnable = true;
    bool Enabled = false;
    /// What it says at present; "" for Text.
    std::string textNow = {};

    bool isSeparator() const { return Text.empty(); }
};

struct Menu {
    std::string Name;
    std::string Text;
    std::vector<MenuItem> items;
};

/// What answers the items, by their names.
using MenuHandlers = std::map<std::string, std::function<void()>, std::less<>>;

class MenuBar;

/// What a menu bar asks of the window in front.
class MenuTarget {
public:
    MenuTarget() = default;
    MenuTarget(const MenuTarget&) = delete;
    MenuTarget& operator=(const MenuTarget&) = delete;
    virtual ~MenuTarget() = default;

    /// Calls MenuBar::enable for each item without AutoEnable that can be chosen now.
    virtual void Event_EnableMenuItems(MenuBar& /*menuBar*/) {}

    /// Handlers by item name while this window is in front; they take precedence over MenuBar::handlers.
    MenuHandlers menuHandlers;
};

class MenuBar {
public:
    explicit MenuBar(std::vector<Menu> menus) : menus_(std::move(menus)) {}

    const std::vector<Menu>& menus() const { return menus_; }
    /// Enables an item, if there is one of that name; with a text it says that until items are enabled anew.
    void enable(std::string_view name, const std::string& textNow = "");

    /// Handlers by item name, for whatever window is in front.
    MenuHandlers handlers;

    /// Settles which items are enabled with that window in front (null: none of ours): those that it or `handlers`
    /// answer, and of those that are not AutoEnable only what the window's Event_EnableMenuItems enables. An item
    /// that nothing answers is never enabled. Editing items are the platform's.
    void enableItems(MenuTarget* front);
    /// Does what the item stands for with that window in front.
    void choose(std::string_view name, MenuTarget* front);

private:
    std::vector<Menu> menus_;
};

/// A button of the toolbar, or a space that takes what room is left (Icon "").
struct ToolItem {
    std::string Name;
    std::string Caption;
    std::string HelpTag;
    /// File of the picture, 32 by 32 points.
    std::string Icon;

    bool isSpace() const { return Icon.empty(); }
};

class Toolbar : public Control {
public:
    explicit Toolbar(std::vector<ToolItem> items) : items_(std::move(items)) {}

    const std::vector<ToolItem>& items() const { return items_; }

    std::function<void(const ToolItem& item)> Action;

private:
    std::vector<ToolItem> items_;
};

} // namespace tallyvane

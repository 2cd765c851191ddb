#include "platform/windows/menus.h"

namespace tallyvane {

namespace {

/// The handler of that name; null when there is none.
const std::function<void()>* handlerOf(const MenuHandlers& handlers, std::string_view name) {
    const auto found = handlers.find(name);
    return found == handlers.end() ? nullptr : &found->second;
}

const std::function<void()>* handlerOf(const MenuBar& bar, MenuTarget* front, std::string_view name) {
    const auto* own = front == nullptr ? nullptr : handlerOf(front->menuHandlers, name);
    return own != nullptr ? own : handlerOf(bar.handlers, name);
}

} // namespace

void MenuBar::enable(std::string_view name, const std::string& textNow) {
    for (Menu& menu : menus_)
        for (MenuItem& item : menu.items)
            if (item.Name == name) {
                item.Enabled = true;
                item.textNow = textNow;
            }
}

void MenuBar::enableItems(MenuTarget* front) {
    for (Menu& menu : menus_)
        for (MenuItem& item : menu.items) {
            item.Enabled = item.AutoEnable;
            item.textNow.clear();
        }
    if (front != nullptr)
        front->Event_EnableMenuItems(*this);
    for (Menu& menu : menus_)
        for (MenuItem& item : menu.items)
            item.Enabled = item.Enabled && handlerOf(*this, front, item.Name) != nullptr;
}

void MenuBar::choose(std::string_view name, MenuTarget* front) {
    if (const auto* handler = handlerOf(*this, front, name))
        (*handler)();
}

} // namespace tallyvane

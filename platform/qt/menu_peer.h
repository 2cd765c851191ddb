#pragma once

#include <QMenuBar>
#include <QPointer>

#include <functional>
#include <vector>

#include "platform/windows/menus.h"

namespace tallyvane {

/// Shows the menu bar. Qt itself moves Quit, About and Preferences to the application menu where the desktop has one.
class MenuPeer : public QMenuBar {
public:
    /// `front` gives the window of ours that is in front, or null.
    MenuPeer(MenuBar& bar, std::function<MenuTarget*()> front, QWidget* parent);

private:
    struct Entry {
        QAction* action;
        const MenuItem* item;
    };

    /// What the editing items act on: the last control that had the focus, if its window is in front.
    QWidget* editTarget() const;
    /// Whether the item is for the control with the focus, and not for the window.
    bool isForFocus(const MenuItem& item) const;
    /// Enables and disables the items by what the window in front answers.
    void refresh();
    void add(QMenu& menu, const MenuItem& item);
    void choose(const MenuItem& item);

    MenuBar& bar_;
    std::function<MenuTarget*()> front_;
    std::vector<Entry> entries_;
    QPointer<QWidget> focus_; // the last control that had it; menus are passed over
};

} // namespace tallyvane

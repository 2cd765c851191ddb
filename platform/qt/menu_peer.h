#pragma once

#include <QMenuBar>

#include <functional>
#include <vector>

#include "platform/menus.h"

namespace tallyvane {

class Window;

/// Shows the menu bar. Quit, About and Preferences stand where users of this desktop look for them; all other items
/// in their own order.
class MenuPeer : public QMenuBar {
public:
    /// `front` gives the window of ours that is in front, or nil.
    MenuPeer(MenuBar& bar, std::function<Window*()> front, QWidget* parent);

    /// Enables and disables the items by what the window in front answers.
    void refresh();

private:
    struct Entry {
        QAction* action;
        const MenuItem* item;
    };

    void add(QMenu& menu, const MenuItem& item);
    void placeByRole();
    void choose(const MenuItem& item);

    MenuBar& bar_;
    std::function<Window*()> front_;
    std::vector<Entry> entries_;
};

} // namespace tallyvane

#pragma once

#include <QToolBar>

#include <vector>

#include "platform/menus.h"
#include "platform/qt/peer.h"

namespace tallyvane {

/// Shows the toolbar: pictures with their captions below.
class ToolbarPeer : public Peer<QToolBar, Toolbar> {
public:
    ToolbarPeer(Toolbar& toolbar, QWidget* parent);

protected:
    void sync() override;

private:
    std::vector<QAction*> actions_; // one for each item
};

} // namespace tallyvane

#pragma once

#include <QToolBar>

#include "platform/qt/peer.h"
#include "platform/windows/menus.h"

namespace tallyvane {

/// Shows the toolbar: pictures with their captions below.
class ToolbarPeer : public Peer<QToolBar, Toolbar> {
public:
    ToolbarPeer(Toolbar& toolbar, QWidget* parent);
};

} // namespace tallyvane

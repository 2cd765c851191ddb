#pragma once

#include <QToolBar>

#include "platform/menus.h"
#include "platform/qt/peer.h"

namespace tallyvane {

/// Shows the toolbar: pictures with their captions below.
class ToolbarPeer : public Peer<QToolBar, Toolbar> {
public:
    ToolbarPeer(Toolbar& toolbar, QWidget* parent);
};

} // namespace tallyvane

#include "platform/qt/toolbar_peer.h"

#include "platform/qt/event_guard.h"
#include "platform/qt/pictures.h"

namespace tallyvane {

ToolbarPeer::ToolbarPeer(Toolbar& toolbar, QWidget* parent) : Peer(toolbar, parent) {
    setMovable(false);
    setFloatable(false);
    setContextMenuPolicy(Qt::PreventContextMenu);
    setIconSize({32, 32});
    setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    for (const ToolItem& item : toolbar.items()) {
        if (item.isSpace()) {
            auto* space = new QWidget(this);
            space->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
            addWidget(space);
            continue;
        }
        QAction* action = addAction(loadPicture(item.Icon).icon, toQt(item.Caption));
        action->setToolTip(toQt(item.HelpTag));
        connect(action, &QAction::triggered, this, [this, &item] {
            if (control_ != nullptr && control_->Action)
                deliver([&] { control_->Action(item); });
        });
        widgetForAction(action)->setFocusPolicy(Qt::TabFocus);
    }
    applyAll();
}

} // namespace tallyvane

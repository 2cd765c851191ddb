#include "platform/qt/menu_peer.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMetaMethod>

#include "platform/qt/convert.h"
#include "platform/qt/event_guard.h"

namespace tallyvane {

namespace {

/// The slot of Qt's text fields that does a standard editing action; nil for any other role.
const char* editingSlot(MenuRole role) {
    switch (role) {
    case MenuRole::undo:
        return "undo";
    case MenuRole::cut:
        return "cut";
    case MenuRole::copy:
        return "copy";
    case MenuRole::paste:
        return "paste";
    case MenuRole::clear:
        return "clear";
    case MenuRole::selectAll:
        return "selectAll";
    default:
        return nullptr;
    }
}

bool focusTakes(const char* slot) {
    const QWidget* focus = QApplication::focusWidget();
    const QByteArray signature = QByteArray(slot) + "()";
    return focus != nullptr && focus->metaObject()->indexOfSlot(signature.constData()) >= 0;
}

/// Delete takes the selected text away, as Cut does but without the clipboard: a key press of Delete does just that.
void deleteSelection(QWidget* focus) {
    QKeyEvent press(QEvent::KeyPress, Qt::Key_Delete, Qt::NoModifier);
    QApplication::sendEvent(focus, &press);
}

QKeySequence shortcutOf(const MenuItem& item) {
    return QKeySequence(toQt(ReplaceAll(item.KeyboardShortcut, "Cmd", "Ctrl")));
}

} // namespace

MenuPeer::MenuPeer(MenuBar& bar, std::function<Window*()> front, QWidget* parent)
    : QMenuBar(parent), bar_(bar), front_(std::move(front)) {
    for (const Menu& menu : bar.menus()) {
        QMenu* shown = addMenu(toQt(menu.Text));
        shown->setObjectName(toQt(menu.Name));
        connect(shown, &QMenu::aboutToShow, this, &MenuPeer::refresh);
        for (const MenuItem& item : menu.items)
            add(*shown, item);
    }
    placeByRole();
    refresh();
}

void MenuPeer::add(QMenu& menu, const MenuItem& item) {
    if (item.isSeparator()) {
        menu.addSeparator();
        return;
    }
    QAction* action = menu.addAction(toQt(item.Text));
    action->setObjectName(toQt(item.Name));
    action->setShortcut(shortcutOf(item));
    action->setShortcutContext(Qt::ApplicationShortcut);
    connect(action, &QAction::triggered, this, [this, &item] { choose(item); });
    entries_.push_back({action, &item});
}

/// Where the desktop has an application menu Qt puts the three there; elsewhere Preferences ends the first menu, Quit
/// the second, About the last.
void MenuPeer::placeByRole() {
    const QList<QAction*> menus = actions();
    for (const Entry& entry : entries_) {
        QMenu* home = nullptr;
        if (entry.item->role == MenuRole::preferences) {
            entry.action->setMenuRole(QAction::PreferencesRole);
            home = menus.front()->menu();
        } else if (entry.item->role == MenuRole::quit) {
            entry.action->setMenuRole(QAction::QuitRole);
            home = menus.at(1)->menu();
        } else if (entry.item->role == MenuRole::about) {
            entry.action->setMenuRole(QAction::AboutRole);
            home = menus.back()->menu();
        } else {
            entry.action->setMenuRole(QAction::NoRole);
            continue;
        }
        for (const QAction* menu : menus)
            menu->menu()->removeAction(entry.action);
        home->addSeparator();
        home->addAction(entry.action);
    }
}

void MenuPeer::refresh() {
    deliver([this] { bar_.enableItems(front_()); });
    for (const Entry& entry : entries_) {
        const char* slot = editingSlot(entry.item->role);
        entry.action->setEnabled(slot != nullptr ? focusTakes(slot) : entry.item->Enabled);
    }
}

void MenuPeer::choose(const MenuItem& item) {
    const char* slot = editingSlot(item.role);
    if (slot == nullptr)
        deliver([&] { bar_.choose(item.Name, front_()); });
    else if (item.role == MenuRole::clear && focusTakes(slot))
        deleteSelection(QApplication::focusWidget());
    else if (focusTakes(slot))
        QMetaObject::invokeMethod(QApplication::focusWidget(), slot);
}

} // namespace tallyvane

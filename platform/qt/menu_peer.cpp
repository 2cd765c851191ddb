#include "platform/qt/menu_peer.h"

#include <QApplication>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QWindow>

#include "platform/qt/convert.h"
#include "platform/qt/event_guard.h"
#include "platform/qt/listbox_peer.h"

namespace tallyvane {

namespace {

bool isEditing(MenuRole role) { return role >= MenuRole::undo && role <= MenuRole::selectAll; }

void deleteSelection(QLineEdit& field) {
    if (field.hasSelectedText())
        field.del();
}

void deleteSelection(QPlainTextEdit& field) { field.textCursor().removeSelectedText(); }

template <class Field>
void editField(Field& field, MenuRole role) {
    switch (role) {
    case MenuRole::undo:
        return field.undo();
    case MenuRole::redo:
        return field.redo();
    case MenuRole::cut:
        return field.cut();
    case MenuRole::copy:
        return field.copy();
    case MenuRole::paste:
        return field.paste();
    case MenuRole::clear:
        return deleteSelection(field);
    case MenuRole::selectAll:
        return field.selectAll();
    default:
        return;
    }
}

/// Whole rows can be copied and selected, and what can be dropped on a list can be pasted; cells are changed one by
/// one.
void editList(ListboxPeer& list, MenuRole role) {
    if (role == MenuRole::copy)
        list.copyRows();
    else if (role == MenuRole::paste)
        list.paste();
    else if (role == MenuRole::selectAll)
        list.selectAll();
}

/// The standard editing action on a field of text or a list; nothing on any other control.
void edit(QWidget* focus, MenuRole role) {
    if (auto* cell = dynamic_cast<CellEditor*>(focus); cell != nullptr && role == MenuRole::undo)
        cell->undoTyping();
    else if (auto* line = qobject_cast<QLineEdit*>(focus))
        editField(*line, role);
    else if (auto* text = qobject_cast<QPlainTextEdit*>(focus))
        editField(*text, role);
    else if (auto* list = dynamic_cast<ListboxPeer*>(focus))
        editList(*list, role);
}

bool canEdit(const QWidget* focus, MenuRole role) {
    if (const auto* list = dynamic_cast<const ListboxPeer*>(focus))
        return role == MenuRole::copy || role == MenuRole::selectAll || (role == MenuRole::paste && list->canPaste());
    return qobject_cast<const QLineEdit*>(focus) != nullptr || qobject_cast<const QPlainTextEdit*>(focus) != nullptr;
}

/// A cell where nothing has been typed yet leaves undo and redo to its table.
bool undoes(const CellEditor& cell, MenuRole role) {
    return role == MenuRole::undo ? cell.isUndoAvailable() : cell.isRedoAvailable();
}

/// Does something before a key may choose an item.
class BeforeShortcuts : public QObject {
public:
    BeforeShortcuts(std::function<void()> action, QObject* parent) : QObject(parent), action_(std::move(action)) {}

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::ShortcutOverride && isFirst(watched))
            action_();
        return false;
    }

private:
    /// The event climbs up from the widget with the focus, if there is one.
    static bool isFirst(const QObject* watched) {
        const QWidget* focus = QApplication::focusWidget();
        return focus == nullptr || watched == focus;
    }

    std::function<void()> action_;
};

bool isMenu(const QWidget* widget) {
    return qobject_cast<const QMenu*>(widget) != nullptr || qobject_cast<const QMenuBar*>(widget) != nullptr;
}

QAction::MenuRole actionRole(MenuRole role) {
    switch (role) {
    case MenuRole::quit:
        return QAction::QuitRole;
    case MenuRole::about:
        return QAction::AboutRole;
    case MenuRole::preferences:
        return QAction::PreferencesRole;
    default:
        return QAction::NoRole;
    }
}

QList<QKeySequence> shortcutsOf(const MenuItem& item) {
    return QKeySequence::listFromString(toQt(ReplaceAll(item.KeyboardShortcut, "Cmd", "Ctrl")));
}

} // namespace

MenuPeer::MenuPeer(MenuBar& bar, std::function<MenuTarget*()> front, QWidget* parent)
    : QMenuBar(parent), bar_(bar), front_(std::move(front)) {
    for (const Menu& menu : bar.menus()) {
        QMenu* shown = addMenu(toQt(menu.Text));
        shown->setObjectName(toQt(menu.Name));
        connect(shown, &QMenu::aboutToShow, this, &MenuPeer::refresh);
        for (const MenuItem& item : menu.items)
            add(*shown, item);
    }
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget* /*old*/, QWidget* now) {
        if (now == nullptr || isMenu(now))
            return;
        focus_ = now;
        refresh();
    });
    // Not the menu bar itself: Qt's own filter in it takes itself away from whatever it watches.
    qApp->installEventFilter(new BeforeShortcuts([this] { refresh(); }, this));
    refresh();
}

void MenuPeer::add(QMenu& menu, const MenuItem& item) {
    if (item.isSeparator()) {
        menu.addSeparator();
        return;
    }
    QAction* action = menu.addAction(toQt(item.Text));
    action->setObjectName(toQt(item.Name));
    action->setShortcuts(shortcutsOf(item));
    action->setShortcutContext(Qt::ApplicationShortcut);
    action->setMenuRole(actionRole(item.role));
    connect(action, &QAction::triggered, this, [this, &item] { choose(item); });
    entries_.push_back({action, &item});
}

QWidget* MenuPeer::editTarget() const {
    return focus_ != nullptr && focus_->window() == QApplication::activeWindow() ? focus_.data() : nullptr;
}

void MenuPeer::refresh() {
    deliver([this] { bar_.enableItems(front_()); });
    const QWidget* target = editTarget();
    for (const auto& [action, item] : entries_) {
        const bool forFocus = isForFocus(*item);
        action->setEnabled(forFocus ? canEdit(target, item->role) : item->Enabled);
        action->setText(toQt(forFocus || item->textNow.empty() ? item->Text : item->textNow));
    }
}

bool MenuPeer::isForFocus(const MenuItem& item) const {
    if (item.role != MenuRole::undo && item.role != MenuRole::redo)
        return isEditing(item.role);
    if (const auto* cell = dynamic_cast<const CellEditor*>(editTarget()))
        return undoes(*cell, item.role);
    return canEdit(editTarget(), item.role);
}

void MenuPeer::choose(const MenuItem& item) {
    if (isForFocus(item))
        edit(editTarget(), item.role);
    else
        deliver([&] { bar_.choose(item.Name, front_()); });
}

} // namespace tallyvane

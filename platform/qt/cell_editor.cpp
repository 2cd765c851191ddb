#include "platform/qt/cell_editor.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMenu>

#include <limits>
#include <memory>

#include "platform/controls/keys.h"
#include "platform/qt/event_guard.h"
#include "platform/qt/key_names.h"

namespace tallyvane {

namespace {

/// A key that leads somewhere, in a text or in a table.
bool moves(const QKeyEvent& key) {
    return key.key() >= Qt::Key_Home && key.key() <= Qt::Key_PageDown; // Home, End, the arrows and the Page keys
}

/// The colours of the list in every theme.
QString styleOf(const ListColors& list) {
    const auto name = [](Color color) { return toQt(color).name(); };
    return QStringLiteral("border: 1px solid %1; background: %2; color: %3; padding: 0 3px;"
                          "selection-background-color: %1; selection-color: %2;")
        .arg(name(list.selectionLine), name(list.background), name(list.text));
}

} // namespace

CellEditor::CellEditor(Listbox& list, QWidget* parent) : Peer(list.ActiveCell(), parent), list_(&list) {
    setStyleSheet(styleOf(list.Colors()));
    setMaxLength(std::numeric_limits<int>::max()); // Qt's default limit would truncate a long text silently
    hide();
    connect(this, &QLineEdit::textEdited, this, [this] { textTyped(); });
    connect(this, &QLineEdit::selectionChanged, this, [this] { selectionMoved(); });
    connect(this, &QLineEdit::cursorPositionChanged, this, [this] { selectionMoved(); });
}

void CellEditor::detach() {
    list_ = nullptr;
    Peer::detach();
}

void CellEditor::controlDestroyed() {
    list_ = nullptr;
    Peer::controlDestroyed();
}

void CellEditor::controlChanged(Property property) {
    if (property == Property::text)
        showText();
    if (property == Property::text || property == Property::selection)
        showSelection();
}

void CellEditor::showText() {
    const QSignalBlocker quiet(this);
    setText(toQt(control_->Text())); // also the same: Qt then forgets what was typed in another cell
}

void CellEditor::showSelection() {
    const QSignalBlocker quiet(this);
    const QString shown = text();
    const int start = unitsOf(shown, control_->SelStart());
    const int end = unitsOf(shown, control_->SelStart() + control_->SelLength());
    if (end > start)
        setSelection(start, end - start);
    else
        setCursorPosition(start);
}

void CellEditor::selectionMoved() {
    if (control_ == nullptr)
        return;
    const int start = hasSelectedText() ? selectionStart() : cursorPosition();
    control_->userSelected(charactersIn(text(), start), charactersIn(selectedText(), selectedText().size()));
}

void CellEditor::textTyped() {
    if (list_ == nullptr)
        return;
    const std::string typed = fromQt(text());
    const int cursor = charactersIn(text(), cursorPosition());
    deliver([&] { list_->userTyped(typed, cursor, 0); });
    if (control_ == nullptr || typed == control_->Text())
        return;
    controlChanged(Property::text); // without the line ends that were pasted
    selectionMoved();
}

void CellEditor::undoTyping() {
    undo(); // which the list hears of as of any typing
    if (list_ != nullptr && !isUndoAvailable())
        deliver([this] { list_->revertTyping(); });
}

/// The standard menu, with the undo of the cell.
void CellEditor::contextMenuEvent(QContextMenuEvent* event) {
    const std::unique_ptr<QMenu> menu(createStandardContextMenu());
    if (auto* item = menu->findChild<QAction*>(QStringLiteral("edit-undo"))) {
        item->disconnect();
        connect(item, &QAction::triggered, this, [this] { undoTyping(); });
    }
    menu->exec(event->globalPos());
}

bool CellEditor::raiseKeyDown(const std::string& key) {
    bool consumed = false;
    deliver([&] {
        if (list_->CellKeyDown)
            consumed = list_->CellKeyDown(list_->openRow(), list_->openColumn(), key);
    });
    return consumed;
}

/// True for a key that is done with: consumed by the list's event, or the end of the editing.
bool CellEditor::takesKey(const QKeyEvent& key) {
    const std::string name = nameOf(key);
    if (name.empty() || isShortcut(key))
        return false;
    if (raiseKeyDown(name) || list_ == nullptr)
        return true;
    if (name == Keys::enter)
        deliver([this] { list_->closeCell(); });
    else if (name == Keys::escape)
        deliver([this] { list_->revertCell(); });
    else if (name == Keys::pageUp)
        movePages(-1);
    else if (name == Keys::pageDown)
        movePages(1);
    else
        return false;
    return true;
}

void CellEditor::movePages(int pages) {
    const int before = list_->openRow();
    const int rowsPerPage = parentWidget()->height() / list_->DefaultRowHeight();
    deliver([&] { list_->moveCell(pages * rowsPerPage); });
    if (list_ != nullptr && list_->openRow() == before)
        QApplication::beep();
}

bool CellEditor::event(QEvent* event) {
    const bool open = list_ != nullptr && list_->openRow() >= 0;
    const bool isKey = event->type() == QEvent::KeyPress || event->type() == QEvent::ShortcutOverride;
    if (!open || !isKey)
        return QLineEdit::event(event);
    const auto& key = *static_cast<QKeyEvent*>(event);
    if (event->type() == QEvent::KeyPress && key.matches(QKeySequence::Undo)) { // by a key that no menu knows
        undoTyping();
        event->accept();
        return true;
    }
    if (event->type() == QEvent::KeyPress) {
        const bool isUsed = takesKey(key) || (QLineEdit::event(event) && event->isAccepted());
        if (!isUsed && moves(key))
            QApplication::beep();
        event->accept(); // a key that climbed on would move the list's selection away from the open cell
        return true;
    }
    if (key.matches(QKeySequence::Undo) || key.matches(QKeySequence::Redo))
        return true; // not accepted: they come by the menu's items, for the cell or for the table
    if (isShortcut(key))
        return QLineEdit::event(event);
    event->accept(); // Return and Escape are for the cell, not for the window's buttons
    return true;
}

void CellEditor::focusOutEvent(QFocusEvent* event) {
    QLineEdit::focusOutEvent(event);
    const bool elsewhere = event->reason() == Qt::ActiveWindowFocusReason || event->reason() == Qt::PopupFocusReason ||
                           event->reason() == Qt::MenuBarFocusReason;
    if (list_ == nullptr)
        return;
    if (event->reason() == Qt::ActiveWindowFocusReason)
        list_->confirmCell(); // going to another program saves it
    if (!elsewhere)
        deliver([this] { list_->closeCell(); });
}

} // namespace tallyvane

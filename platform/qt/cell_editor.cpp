#include "platform/qt/cell_editor.h"

#include <QKeyEvent>

#include "platform/qt/event_guard.h"

namespace tallyvane {

namespace {

/// The key as the list's events name it: a control character, or the text that the key types.
std::string nameOf(const QKeyEvent& key) {
    switch (key.key()) {
    case Qt::Key_Backspace:
        return Chr(8);
    case Qt::Key_Tab:
        return Chr(9);
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return Chr(13);
    case Qt::Key_Escape:
        return Chr(27);
    case Qt::Key_Left:
    case Qt::Key_Backtab: // back to where Tab came from
        return Chr(28);
    case Qt::Key_Right:
        return Chr(29);
    case Qt::Key_Up:
        return Chr(30);
    case Qt::Key_Down:
        return Chr(31);
    default:
        return fromQt(key.text());
    }
}

/// A key that would mean something else to the text field, such as selecting or a shortcut.
bool hasModifier(const QKeyEvent& key) {
    const bool shiftedTab = key.key() == Qt::Key_Backtab;
    const auto plain = Qt::KeypadModifier | (shiftedTab ? Qt::ShiftModifier : Qt::NoModifier);
    return (key.modifiers() & ~plain) != Qt::NoModifier && key.text().isEmpty();
}

} // namespace

CellEditor::CellEditor(Listbox& list, QWidget* parent) : Peer(list.ActiveCell(), parent), list_(&list) {
    setStyleSheet(QStringLiteral("border: 1px solid #265caa; background: white; padding: 0 3px;"));
    hide();
    connect(this, &QLineEdit::textEdited, this, [this] { textTyped(); });
    connect(this, &QLineEdit::selectionChanged, this, [this] { selectionMoved(); });
    connect(this, &QLineEdit::cursorPositionChanged, this, [this] { selectionMoved(); });
}

void CellEditor::detach() {
    list_ = nullptr;
    Peer::detach();
}

void CellEditor::sync() {
    const QSignalBlocker quiet(this);
    const QString shown = toQt(control_->Text());
    if (text() != shown)
        setText(shown);
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
    control_->userChanged(control_->Text(), charactersIn(text(), start),
                          charactersIn(selectedText(), selectedText().size()));
}

void CellEditor::textTyped() {
    if (list_ == nullptr)
        return;
    const std::string typed = fromQt(text());
    const int cursor = charactersIn(text(), cursorPosition());
    deliver([&] { list_->userTyped(typed, cursor, 0); });
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
    if (name.empty() || hasModifier(key))
        return false;
    if (raiseKeyDown(name) || list_ == nullptr)
        return true;
    if (name == Chr(13))
        deliver([this] { list_->closeCell(); });
    else if (name == Chr(27))
        deliver([this] { list_->revertCell(); });
    else
        return false;
    return true;
}

bool CellEditor::event(QEvent* event) {
    const bool open = list_ != nullptr && list_->openRow() >= 0;
    if (open && event->type() == QEvent::ShortcutOverride) {
        event->accept(); // keys of an open cell are not shortcuts of the window
        return true;
    }
    if (open && event->type() == QEvent::KeyPress && takesKey(*static_cast<QKeyEvent*>(event)))
        return true;
    return QLineEdit::event(event);
}

void CellEditor::focusOutEvent(QFocusEvent* event) {
    QLineEdit::focusOutEvent(event);
    const bool elsewhere = event->reason() == Qt::ActiveWindowFocusReason || event->reason() == Qt::PopupFocusReason ||
                           event->reason() == Qt::MenuBarFocusReason;
    if (!elsewhere && list_ != nullptr)
        deliver([this] { list_->closeCell(); });
}

} // namespace tallyvane

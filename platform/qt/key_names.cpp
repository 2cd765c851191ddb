#include "platform/qt/key_names.h"

#include <QKeyEvent>

#include "platform/controls/keys.h"
#include "platform/qt/convert.h"

namespace tallyvane {

std::string nameOf(const QKeyEvent& key) {
    switch (key.key()) {
    case Qt::Key_Backspace:
        return Keys::backspace;
    case Qt::Key_Tab:
        return Keys::tab;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return Keys::enter;
    case Qt::Key_Escape:
        return Keys::escape;
    case Qt::Key_Left:
    case Qt::Key_Backtab: // back to where Tab came from
        return Keys::left;
    case Qt::Key_Right:
        return Keys::right;
    case Qt::Key_Up:
        return Keys::up;
    case Qt::Key_Down:
        return Keys::down;
    case Qt::Key_Home:
        return Keys::home;
    case Qt::Key_End:
        return Keys::end;
    case Qt::Key_Insert:
        return Keys::insert;
    case Qt::Key_PageUp:
        return Keys::pageUp;
    case Qt::Key_PageDown:
        return Keys::pageDown;
    case Qt::Key_Delete:
        return Keys::remove;
    default:
        return fromQt(key.text());
    }
}

bool isShortcut(const QKeyEvent& key) {
    if ((key.modifiers() & (Qt::ControlModifier | Qt::MetaModifier)) != 0)
        return true;
    // With Alt it may be a menu's; once it is pressed on a field, nobody has wanted it, and it types its letter.
    if ((key.modifiers() & Qt::AltModifier) != 0 && (key.type() == QEvent::ShortcutOverride || key.text().isEmpty()))
        return true;
    return (key.modifiers() & Qt::ShiftModifier) != 0 && key.text().isEmpty() && key.key() != Qt::Key_Backtab;
}

} // namespace tallyvane

#include "platform/qt/key_names.h"

#include <QKeyEvent>

#include "platform/qt/convert.h"

namespace tallyvane {

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
    case Qt::Key_Home:
        return Chr(1);
    case Qt::Key_End:
        return Chr(4);
    case Qt::Key_Insert:
        return Chr(5);
    case Qt::Key_PageUp:
        return Chr(11);
    case Qt::Key_PageDown:
        return Chr(12);
    case Qt::Key_Delete:
        return Chr(127);
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

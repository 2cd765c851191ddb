#pragma once

#include <QLineEdit>

#include "platform/controls/listbox.h"
#include "platform/qt/peer.h"

namespace tallyvane {

/// The field over the open cell of a list. It brings each key and each change of the text to the list.
class CellEditor : public Peer<QLineEdit, TextField> {
public:
    CellEditor(Listbox& list, QWidget* parent);

    void detach() override;
    void controlDestroyed() override;
    /// Text and selection alone; the list's peer shows and hides the field.
    void controlChanged(Property property) override;

    /// Takes back what was typed last, and with the first of it what followed in other cells of the row.
    void undoTyping();

protected:
    bool event(QEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    bool takesKey(const QKeyEvent& key);
    void movePages(int pages);
    bool raiseKeyDown(const std::string& key);
    void showText();
    void showSelection();
    void textTyped();
    void selectionMoved();

    Listbox* list_;
};

} // namespace tallyvane

/// Peers of the fields that the user writes in.
#pragma once

#include <QLineEdit>
#include <QPlainTextEdit>

#include <string>

#include "platform/controls/text_controls.h"
#include "platform/qt/peer.h"

namespace tallyvane {

class TextFieldPeer : public Peer<QLineEdit, TextField> {
public:
    TextFieldPeer(TextField& field, QWidget* parent);

protected:
    void apply(Property property) override;
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;

private:
    bool consumes(const std::string& key);
    void reportText();
};

class TextAreaPeer : public Peer<QPlainTextEdit, TextArea, TextAreaObserver> {
public:
    TextAreaPeer(TextArea& area, QWidget* parent);

    void replaceSelection(std::string_view text) override;
    void pointOutLine(int number) override;

protected:
    void apply(Property property) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    /// Ignores content that has no format, as an empty clipboard: Qt 6.4 reads the first format unchecked and crashes.
    void insertFromMimeData(const QMimeData* source) override;

private:
    void offerSpellings(QMenu& menu, QTextCursor place);

    std::string shown_; // the area's text as it was brought here, or as the user has changed it
};

} // namespace tallyvane

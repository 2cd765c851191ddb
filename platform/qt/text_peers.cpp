#include "platform/qt/text_peers.h"

#include <QKeyEvent>

#include <limits>

#include "platform/qt/event_guard.h"
#include "platform/qt/key_names.h"

namespace tallyvane {

namespace {

/// The text letter by letter; toPlainText would make blanks of the blanks that do not break.
std::string textOf(const QTextDocument& document) {
    QString text = document.toRawText();
    text.replace(QChar::ParagraphSeparator, QLatin1Char('\n'));
    text.replace(QChar::LineSeparator, QLatin1Char('\n'));
    return fromQt(text);
}

/// A key that moves between the controls of a window or presses its buttons.
bool isForTheWindow(int key) {
    return key == Qt::Key_Tab || key == Qt::Key_Backtab || key == Qt::Key_Return || key == Qt::Key_Enter ||
           key == Qt::Key_Escape;
}

} // namespace

// TextField

TextFieldPeer::TextFieldPeer(TextField& field, QWidget* parent) : Peer(field, parent) {
    setMaxLength(std::numeric_limits<int>::max()); // Qt's own limit would cut a text without a word
    controlChanged();
    connect(this, &QLineEdit::textEdited, this, [this] { tellText(); });
}

void TextFieldPeer::sync() {
    const QString shown = tallyvane::toQt(control_->Text());
    if (text() != shown)
        setText(shown);
}

void TextFieldPeer::tellText() {
    if (control_ == nullptr)
        return;
    const int cursor = charactersIn(text(), cursorPosition());
    deliver([&] { control_->userChanged(fromQt(text()), cursor, 0); });
}

void TextFieldPeer::keyPressEvent(QKeyEvent* event) {
    const std::string key = nameOf(*event);
    bool consumed = false;
    if (control_ != nullptr && control_->KeyDown && !key.empty() && !isShortcut(*event) &&
        !isForTheWindow(event->key()))
        deliver([&] { consumed = control_->KeyDown(key); });
    if (!consumed)
        QLineEdit::keyPressEvent(event);
}

// TextArea

TextAreaPeer::TextAreaPeer(TextArea& area, QWidget* parent) : Peer(area, parent) {
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    setTabChangesFocus(true);
    controlChanged();
    connect(this, &QPlainTextEdit::textChanged, this, [this] {
        if (control_ != nullptr)
            deliver([this] { control_->userTyped(textOf(*document())); });
    });
}

void TextAreaPeer::sync() {
    if (control_->Text() == textOf(*document()))
        return;
    const QSignalBlocker quiet(this);
    setPlainText(tallyvane::toQt(control_->Text()));
}

void TextAreaPeer::replaceSelection(std::string_view text) { textCursor().insertText(tallyvane::toQt(text)); }

} // namespace tallyvane

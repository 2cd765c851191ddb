#include "platform/qt/text_peers.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMimeData>

#include <algorithm>
#include <limits>
#include <memory>

#include "platform/qt/event_guard.h"
#include "platform/qt/key_names.h"
#include "platform/qt/spell_checker.h"

namespace tallyvane {

namespace {

/// The text unchanged; toPlainText would turn non-breaking spaces into ordinary ones.
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

/// A key that moves the cursor or deletes. With Shift or Ctrl it does so too, and is no shortcut of the window.
bool worksInFields(int key) {
    return key == Qt::Key_Left || key == Qt::Key_Right || key == Qt::Key_Up || key == Qt::Key_Down ||
           key == Qt::Key_Home || key == Qt::Key_End || key == Qt::Key_Delete || key == Qt::Key_Backspace;
}

} // namespace

// TextField

TextFieldPeer::TextFieldPeer(TextField& field, QWidget* parent) : Peer(field, parent) {
    setMaxLength(std::numeric_limits<int>::max()); // Qt's default limit would truncate a long text silently
    applyAll();
    connect(this, &QLineEdit::textEdited, this, [this] { reportText(); });
}

void TextFieldPeer::apply(Property property) {
    if (property == Property::selection && control_->SelLength() > 0) {
        const int start = unitsOf(text(), control_->SelStart());
        setSelection(start, unitsOf(text(), control_->SelStart() + control_->SelLength()) - start);
    }
    if (property != Property::text)
        return;
    setText(tallyvane::toQt(control_->Text())); // also the same: Qt then forgets what could be undone
}

void TextFieldPeer::reportText() {
    if (control_ == nullptr)
        return;
    const int cursor = charactersIn(text(), cursorPosition());
    deliver([&] { control_->userChanged(fromQt(text()), cursor, 0); });
    if (control_ != nullptr && fromQt(text()) != control_->Text()) { // its line ends are blanks now
        const int place = cursorPosition();
        apply(Property::text);
        setCursorPosition(place);
    }
}

bool TextFieldPeer::consumes(const std::string& key) {
    bool consumed = false;
    if (control_ != nullptr && control_->KeyDown)
        deliver([&] { consumed = control_->KeyDown(key); });
    return consumed;
}

void TextFieldPeer::keyPressEvent(QKeyEvent* event) {
    const std::string key = nameOf(*event);
    const bool isForTheField = worksInFields(event->key()) || (!isShortcut(*event) && !isForTheWindow(event->key()));
    if (key.empty() || !isForTheField || !consumes(key))
        QLineEdit::keyPressEvent(event);
}

/// Letters that come by dead keys or an input method are keys like others.
void TextFieldPeer::inputMethodEvent(QInputMethodEvent* event) {
    QString kept;
    for (const char32_t letter : event->commitString().toUcs4()) {
        const QString typed = QString::fromUcs4(&letter, 1);
        if (!consumes(fromQt(typed)))
            kept += typed;
    }
    event->setCommitString(kept, event->replacementStart(), event->replacementLength());
    QLineEdit::inputMethodEvent(event);
}

// TextArea

TextAreaPeer::TextAreaPeer(TextArea& area, QWidget* parent) : Peer(area, parent) {
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    connect(this, &QPlainTextEdit::cursorPositionChanged, this, [this] { setExtraSelections({}); });
    connect(this, &QPlainTextEdit::textChanged, this, [this] { setExtraSelections({}); });
    setTabChangesFocus(true);
    setReadOnly(area.ReadOnly());
    if (area.SpellChecking() && Dictionary::ofDesktop().isThere())
        new SpellingMarker(document(), Dictionary::ofDesktop());
    applyAll();
    connect(this, &QPlainTextEdit::textChanged, this, [this] {
        if (control_ == nullptr)
            return;
        shown_ = textOf(*document());
        deliver([this] { control_->userTyped(shown_); });
    });
}

void TextAreaPeer::apply(Property property) {
    if (property != Property::text)
        return;
    if (control_->Text() == shown_) {
        document()->clearUndoRedoStacks(); // it may belong to something else now
        return;
    }
    shown_ = control_->Text();
    const QSignalBlocker quiet(this);
    setPlainText(tallyvane::toQt(shown_));
    setExtraSelections({});
}

void TextAreaPeer::replaceSelection(std::string_view text) { textCursor().insertText(tallyvane::toQt(text)); }

/// Not by a selection, which the next key would overwrite. A line of the text is not always a block of Qt's: Shift and
/// Return end a line within one.
void TextAreaPeer::pointOutLine(int number) {
    const QString text = tallyvane::toQt(control_->Text());
    qsizetype start = 0;
    for (int line = 0; line < number; ++line)
        start = text.indexOf(u'\n', start) + 1;
    QTextCursor cursor(document());
    cursor.setPosition(std::min(static_cast<int>(start), document()->characterCount() - 1));
    setTextCursor(cursor);
    ensureCursorVisible();
    QTextEdit::ExtraSelection line;
    line.cursor = cursor;
    line.format.setProperty(QTextFormat::FullWidthSelection, true);
    line.format.setBackground(palette().highlight());
    line.format.setForeground(palette().highlightedText());
    setExtraSelections({line});
}

void TextAreaPeer::contextMenuEvent(QContextMenuEvent* event) {
    const std::unique_ptr<QMenu> menu(createStandardContextMenu(event->pos()));
    if (control_ != nullptr && control_->SpellChecking())
        offerSpellings(*menu, cursorForPosition(event->pos()));
    menu->exec(event->globalPos());
}

/// Qt calls this for every paste, also with the middle mouse button, and for every drop.
void TextAreaPeer::insertFromMimeData(const QMimeData* source) {
    if (source != nullptr && !source->formats().isEmpty())
        QPlainTextEdit::insertFromMimeData(source);
}

/// Puts what may have been meant by a misspelled word at the top of the menu.
void TextAreaPeer::offerSpellings(QMenu& menu, QTextCursor place) {
    constexpr int most = 6;
    const QString line = place.block().text();
    for (const WordPlace& word : wordsOf(line)) {
        const int at = place.positionInBlock();
        const QString text = line.mid(word.start, word.length);
        if (at < word.start || at > word.start + word.length || Dictionary::ofDesktop().knows(text))
            continue;
        QAction* const first = menu.actions().value(0);
        place.setPosition(place.block().position() + word.start);
        place.setPosition(place.position() + word.length, QTextCursor::KeepAnchor);
        for (const QString& suggestion : Dictionary::ofDesktop().suggestions(text).mid(0, most)) {
            auto* action = new QAction(suggestion, &menu);
            connect(action, &QAction::triggered, this, [place, suggestion]() mutable { place.insertText(suggestion); });
            menu.insertAction(first, action);
        }
        menu.insertSeparator(first);
        return;
    }
}

} // namespace tallyvane

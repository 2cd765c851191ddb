/// The fields that the user writes in. Places in a text are counted in characters, from 0.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "platform/base/text.h"
#include "platform/controls/control.h"

namespace tallyvane {

/// A field of one line, also the open cell of a list. Line ends, as in what is pasted, become blanks.
class TextField : public Control {
public:
    const std::string& Text() const { return text_; }
    /// Raises TextChange when the text differs. The user can't undo what was typed before, also when it does not: the
    /// text may belong to something else now.
    void Text(std::string_view value) {
        std::string line = ReplaceLineEndings(value, " ");
        const bool differs = text_ != line;
        text_ = std::move(line);
        changed(Property::text);
        if (differs && TextChange)
            TextChange();
    }
    // The selection. The place of the cursor alone, a selection of no length, shows only in the open cell of a list.
    int SelStart() const { return selStart_; }
    void SelStart(int value) { set(selStart_, value, Property::selection); }
    int SelLength() const { return selLength_; }
    void SelLength(int value) { set(selLength_, value, Property::selection); }

    void SelectAll() {
        SelStart(0);
        SelLength(Len(text_));
    }

    /// Called by the observer when the user changed text and selection. Like Text, but does not notify the observer.
    void userChanged(std::string_view text, int selStart, int selLength) {
        std::string line = ReplaceLineEndings(text, " ");
        const bool differs = text_ != line;
        text_ = std::move(line);
        userSelected(selStart, selLength);
        if (differs && TextChange)
            TextChange();
    }

    /// The same for the selection alone.
    void userSelected(int selStart, int selLength) {
        selStart_ = selStart;
        selLength_ = selLength;
    }

    std::function<void()> Open;
    /// A key; true when it was consumed. Those that type no text come as `Keys` (controls/keys.h) names them. Tab,
    /// Return and Escape are the window's.
    std::function<bool(const std::string& key)> KeyDown;
    std::function<void()> TextChange;

private:
    std::string text_;
    int selStart_ = 0;
    int selLength_ = 0;
};

/// Shows a text area, and alone knows where the user's selection is.
class TextAreaObserver : public ControlObserver {
public:
    /// Puts a text in place of the selection, as if the user had typed it.
    virtual void replaceSelection(std::string_view text) = 0;
    /// Brings a line into view, from 0, and sets it off until the text or the cursor changes.
    virtual void pointOutLine(int number) = 0;
};

/// A field of many lines.
class TextArea : public Control {
public:
    const std::string& Text() const { return text_; }
    /// Line ends become EndOfLine. Raises TextChange when the text differs. What was typed before can't be undone then.
    void Text(std::string_view value) {
        std::string text = ReplaceLineEndings(value, EndOfLine);
        const bool differs = text_ != text;
        text_ = std::move(text);
        changed(Property::text);
        if (differs)
            raiseTextChange();
    }
    /// Puts a text in place of the user's selection; at the end when nobody shows the area.
    void SelText(std::string_view value) {
        if (area_ != nullptr)
            area_->replaceSelection(value);
        else
            Text(text_ + std::string(value));
    }
    /// Points out a line of the text: the one of that number, from 0, or, if that reads otherwise by now, the first
    /// that reads so. False when there is none.
    bool showLine(int number, std::string_view line) {
        int present = 0;
        int found = -1;
        for (FieldWalk lines(text_, EndOfLine); !lines.atEnd(); ++present) {
            const bool readsSo = lines.next() == line;
            if (readsSo && (found < 0 || present == number))
                found = present;
        }
        if (found >= 0 && area_ != nullptr)
            area_->pointOutLine(found);
        return found >= 0;
    }
    /// The user can only read and copy. Fixed once it is shown.
    bool ReadOnly() const { return readOnly_; }
    void ReadOnly(bool value) { readOnly_ = value; }
    /// Words that no dictionary knows are marked, if there is a dictionary. Fixed once it is shown.
    bool SpellChecking() const { return spellChecking_; }
    void SpellChecking(bool value) { spellChecking_ = value; }

    /// Called by the observer when the user has typed. Like Text, but does not notify the observer.
    void userTyped(std::string value) {
        if (text_ == value)
            return;
        text_ = std::move(value);
        raiseTextChange();
    }

    std::function<void()> TextChange;

    void observe(TextAreaObserver* observer) {
        Control::observe(observer);
        area_ = observer;
    }

private:
    void raiseTextChange() {
        if (TextChange)
            TextChange();
    }

    std::string text_;
    bool readOnly_ = false;
    bool spellChecking_ = false;
    TextAreaObserver* area_ = nullptr;
};

} // namespace tallyvane

/// The simple controls: labels, buttons, fields, canvases, timers.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "platform/control.h"
#include "platform/date.h"
#include "platform/graphics.h"
#include "platform/picture.h"
#include "platform/text.h"

namespace tallyvane {

enum class TextAlign { left, center, right };

/// A line or a paragraph of text that the user can't change.
class StaticText : public Control {
public:
    const std::string& Text() const { return text_; }
    void Text(std::string value) { set(text_, std::move(value)); }
    TextAlign Align() const { return align_; }
    void Align(TextAlign value) { set(align_, value); }
    /// Empty: the colour that the desktop's theme gives.
    const std::optional<Color>& TextColor() const { return textColor_; }
    void TextColor(std::optional<Color> value) { set(textColor_, value); }
    /// In points of the screen; 0: the desktop's own size.
    int TextSize() const { return textSize_; }
    void TextSize(int value) { set(textSize_, value); }
    bool Bold() const { return bold_; }
    void Bold(bool value) { set(bold_, value); }

private:
    std::string text_;
    TextAlign align_ = TextAlign::left;
    std::optional<Color> textColor_;
    int textSize_ = 0;
    bool bold_ = false;
};

/// An area that shows a picture, and what its window paints over it.
class Canvas : public Control {
public:
    /// The picture on show, at its own size from the top left corner; empty for none.
    const std::optional<Picture>& Backdrop() const { return backdrop_; }
    void Backdrop(std::optional<Picture> value) { set(backdrop_, std::move(value)); }

    std::function<void(Graphics& g)> Paint;

private:
    std::optional<Picture> backdrop_;
};

class PushButton : public Control {
public:
    const std::string& Caption() const { return caption_; }
    void Caption(std::string value) { set(caption_, std::move(value)); }
    /// Return presses it from anywhere in its window. Fixed once it is shown, as Cancel is.
    bool Default() const { return default_; }
    void Default(bool value) { set(default_, value); }
    /// Escape presses it from anywhere in its window.
    bool Cancel() const { return cancel_; }
    void Cancel(bool value) { set(cancel_, value); }

    std::function<void()> Action;

private:
    std::string caption_;
    bool default_ = false;
    bool cancel_ = false;
};

/// A small square button.
class BevelButton : public Control {
public:
    const std::string& Caption() const { return caption_; }
    void Caption(std::string value) { set(caption_, std::move(value)); }

    std::function<void()> Action;

private:
    std::string caption_;
};

/// A field of one line, such as the open cell of a list. Places are counted in characters, from 0.
class TextField : public Control {
public:
    const std::string& Text() const { return text_; }
    void Text(std::string value) { set(text_, std::move(value)); }
    int SelStart() const { return selStart_; }
    void SelStart(int value) { set(selStart_, value); }
    int SelLength() const { return selLength_; }
    void SelLength(int value) { set(selLength_, value); }

    /// The text and the selection as the user has just made them: no news for the observer, who brings it.
    void userChanged(std::string text, int selStart, int selLength) {
        text_ = std::move(text);
        selStart_ = selStart;
        selLength_ = selLength;
    }

private:
    std::string text_;
    int selStart_ = 0;
    int selLength_ = 0;
};

/// A field of many lines.
class TextArea : public Control {
public:
    const std::string& Text() const { return text_; }
    /// Line ends become EndOfLine. Raises TextChange when the text differs.
    void Text(std::string_view value) {
        std::string text = ReplaceLineEndings(value, EndOfLine);
        if (text_ == text)
            return;
        set(text_, std::move(text));
        raiseTextChange();
    }
    /// The user has typed: as Text, but no news for the observer, who brings it.
    void userTyped(std::string value) {
        text_ = std::move(value);
        raiseTextChange();
    }

    std::function<void()> TextChange;

private:
    void raiseTextChange() {
        if (TextChange)
            TextChange();
    }

    std::string text_;
};

/// A frame with tabs, fixed once it is shown. The controls of a page stand in the window's table with the page's
/// number.
class TabPanel : public Control {
public:
    const std::vector<std::string>& Captions() const { return captions_; }
    void Captions(std::vector<std::string> value) { set(captions_, std::move(value)); }
    /// The page in front, from 0.
    int Value() const { return value_; }
    void Value(int value) { set(value_, value); }

private:
    std::vector<std::string> captions_;
    int value_ = 0;
};

/// The calendar of one month.
class CalendarControl : public Control {
public:
    /// The marked day; today to begin with.
    const Date& SelectedDate() const { return selectedDate_; }
    void SelectedDate(const Date& value) { set(selectedDate_, value); }

    std::function<void()> Open;
    std::function<void()> DayDoubleClicked;

private:
    Date selectedDate_;
};

/// A small wheel that turns while something is going on.
class ProgressWheel : public Control {};

/// Raises Action some time after it was switched on. The clockwork is the observer's; without one nothing fires.
class Timer : public Control {
public:
    enum Modes { ModeOff = 0, ModeSingle = 1, ModeMultiple = 2 };

    /// Milliseconds until the next firing.
    int Period() const { return period_; }
    void Period(int value) { set(period_, value); }
    /// Set to single-shot, also when it is that already, it starts to count anew.
    int Mode() const { return mode_; }
    void Mode(int value) {
        mode_ = value;
        changed();
    }

    /// The time has come: a single-shot timer goes off, then Action is raised.
    void fire() {
        if (mode_ == ModeSingle)
            Mode(ModeOff);
        if (Action)
            Action();
    }

    std::function<void()> Action;

private:
    int period_ = 1000;
    int mode_ = ModeOff;
};

} // namespace tallyvane

/// The simple controls: labels, buttons, canvases, timers.
#pragma once

#include <algorithm>
#include <functional>
#include <initializer_list>
#include <optional>
#include <string>
#include <vector>

#include "platform/base/date.h"
#include "platform/controls/control.h"
#include "platform/drawing/graphics.h"
#include "platform/drawing/picture.h"

namespace tallyvane {

enum class TextAlign { left, center, right };

/// A line or a paragraph of text that the user can't change.
class StaticText : public Control {
public:
    const std::string& Text() const { return text_; }
    void Text(std::string value) { set(text_, std::move(value), Property::text); }
    TextAlign Align() const { return align_; }
    void Align(TextAlign value) { set(align_, value, Property::appearance); }
    /// Empty: the colour that the desktop's theme gives.
    const std::optional<Color>& TextColor() const { return textColor_; }
    void TextColor(std::optional<Color> value) { set(textColor_, value, Property::appearance); }
    /// In points of the screen; 0: the desktop's own size.
    int TextSize() const { return textSize_; }
    void TextSize(int value) { set(textSize_, value, Property::appearance); }
    /// "System" is the desktop's own font.
    FontName TextFont() const { return textFont_; }
    void TextFont(FontName value) { set(textFont_, value, Property::appearance); }
    bool Bold() const { return bold_; }
    void Bold(bool value) { set(bold_, value, Property::appearance); }
    /// Whether a text that is too wide goes on in further lines.
    bool Multiline() const { return multiline_; }
    void Multiline(bool value) { set(multiline_, value, Property::appearance); }

private:
    std::string text_;
    TextAlign align_ = TextAlign::left;
    std::optional<Color> textColor_;
    int textSize_ = 0;
    FontName textFont_;
    bool bold_ = false;
    bool multiline_ = false;
};

/// An area that shows a picture, and what its window paints over it. A class that derives from it can make a control
/// of its own of the mouse's events.
class Canvas : public Control {
public:
    /// The picture on show, at its own size from the top left corner; empty for none.
    const std::optional<Picture>& Backdrop() const { return backdrop_; }
    void Backdrop(std::optional<Picture> value) { set(backdrop_, std::move(value), Property::appearance); }
    /// Whether it can be reached by the keyboard, where the space bar and Return stand for a press in its middle.
    bool AcceptFocus() const { return acceptFocus_; }
    void AcceptFocus(bool value) { set(acceptFocus_, value, Property::appearance); }

    /// Whether the mouse shows there that something can be dragged up and down.
    bool DragsUpAndDown() const { return dragsUpAndDown_; }
    void DragsUpAndDown(bool value) { set(dragsUpAndDown_, value, Property::appearance); }

    /// Whether it hears of the pointer over it while no button is pressed.
    bool TracksPointer() const { return tracksPointer_; }
    void TracksPointer(bool value) { set(tracksPointer_, value, Property::appearance); }

    std::function<void(Graphics& g)> Paint;
    /// The pointer has moved; below 0 when it has left.
    std::function<void(int x, int y)> PointerMoved;
    std::function<void(int x, int y)> Pressed;

    virtual void Event_Open() {}
    virtual void Event_Paint(Graphics& g) {
        if (Paint)
            Paint(g);
    }
    /// True: the events of dragging and of the release are to follow.
    virtual bool Event_MouseDown(int x, int y) {
        if (Pressed)
            Pressed(x, y);
        return false;
    }
    virtual void Event_MouseDrag(int /*x*/, int /*y*/) {}
    virtual void Event_MouseUp(int /*x*/, int /*y*/) {}
    /// A key while it has the focus; true when it was consumed. Keys that type no text come as `Keys` names them.
    virtual bool Event_KeyDown(const std::string& /*key*/) { return false; }

private:
    std::optional<Picture> backdrop_;
    bool acceptFocus_ = false;
    bool dragsUpAndDown_ = false;
    bool tracksPointer_ = false;
};

/// A filled rectangle with a black border.
class Rectangle : public Control {
public:
    Color FillColor() const { return fillColor_; }
    void FillColor(Color value) { set(fillColor_, value, Property::appearance); }
    /// In points; 0 for none.
    int BorderWidth() const { return borderWidth_; }
    void BorderWidth(int value) { set(borderWidth_, value, Property::appearance); }

private:
    Color fillColor_ = RGB(255, 255, 255);
    int borderWidth_ = 1;
};

/// A frame with a caption around controls that belong together. They stand after it in the window's table.
class GroupBox : public Control {
public:
    const std::string& Caption() const { return caption_; }
    void Caption(std::string value) { set(caption_, std::move(value), Property::text); }

private:
    std::string caption_;
};

class PushButton : public Control {
public:
    const std::string& Caption() const { return caption_; }
    void Caption(std::string value) { set(caption_, std::move(value), Property::text); }
    /// Return presses it from anywhere in its window. Fixed once it is shown, as Cancel is.
    bool Default() const { return default_; }
    void Default(bool value) { default_ = value; }
    /// Escape presses it from anywhere in its window.
    bool Cancel() const { return cancel_; }
    void Cancel(bool value) { cancel_ = value; }

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
    void Caption(std::string value) { set(caption_, std::move(value), Property::text); }

    std::function<void()> Action;

private:
    std::string caption_;
};

/// A box with a check mark or without, and its caption.
class CheckBox : public Control {
public:
    const std::string& Caption() const { return caption_; }
    void Caption(std::string value) { set(caption_, std::move(value), Property::text); }
    /// In points of the screen; 0: the desktop's own size. Smaller where the caption has no room otherwise.
    int TextSize() const { return textSize_; }
    void TextSize(int value) { set(textSize_, value, Property::appearance); }
    bool Value() const { return value_; }
    void Value(bool value) { set(value_, value, Property::value); }
    /// The user has changed it: the value, then Action.
    void userToggled(bool value) {
        value_ = value;
        if (Action)
            Action();
    }

    std::function<void()> Open;
    std::function<void()> Action;

private:
    std::string caption_;
    int textSize_ = 0;
    bool value_ = false;
};

/// One of several choices, of which one at most is on.
class RadioButton : public Control {
public:
    /// From here on these buttons exclude one another.
    static void join(std::initializer_list<RadioButton*> buttons) {
        for (RadioButton* button : buttons)
            button->choices_ = buttons;
    }

    /// Whether the two are choices of one question.
    bool excludes(const RadioButton& other) const {
        return std::find(choices_.begin(), choices_.end(), &other) != choices_.end();
    }

    const std::string& Caption() const { return caption_; }
    void Caption(std::string value) { set(caption_, std::move(value), Property::text); }
    bool Value() const { return value_; }
    /// Switched on, it switches the others off.
    void Value(bool value) {
        if (value)
            for (RadioButton* other : choices_)
                if (other != this)
                    other->Value(false);
        set(value_, value, Property::value);
    }
    /// The user has chosen it: the values, then Action.
    void userChose() {
        Value(true);
        if (Action)
            Action();
    }

    std::function<void()> Action;

private:
    std::string caption_;
    bool value_ = false;
    std::vector<RadioButton*> choices_; // with this one
};

/// A bar that fills as something goes on.
class ProgressBar : public Control {
public:
    int Value() const { return value_; }
    void Value(int value) { set(value_, value, Property::value); }
    /// The value that fills it.
    int Maximum() const { return maximum_; }
    void Maximum(int value) { set(maximum_, value, Property::value); }

private:
    int value_ = 0;
    int maximum_ = 100;
};

/// A frame with tabs, fixed once it is shown. The controls of a page stand in the window's table with the page's
/// number.
class TabPanel : public Control {
public:
    const std::vector<std::string>& Captions() const { return captions_; }
    void Captions(std::vector<std::string> value) { captions_ = std::move(value); }
    /// The page in front, from 0.
    int Value() const { return value_; }
    void Value(int value) { set(value_, value, Property::value); }

private:
    std::vector<std::string> captions_;
    int value_ = 0;
};

/// The calendar of one month.
class CalendarControl : public Control {
public:
    /// The marked day; today to begin with.
    const Date& SelectedDate() const { return selectedDate_; }
    void SelectedDate(const Date& value) { set(selectedDate_, value, Property::value); }

    /// Days that are set off in bold letters.
    const std::vector<Date>& BoldDays() const { return boldDays_; }
    void BoldDays(std::vector<Date> value) { set(boldDays_, std::move(value), Property::appearance); }
    /// A day of the month that is shown.
    const Date& ShownMonth() const { return shownMonth_; }
    /// The user has gone to another month.
    void userShowed(const Date& month) {
        shownMonth_ = month;
        if (MonthChange)
            MonthChange();
    }

    std::function<void()> Open;
    /// A click on a day, which is the selected one then.
    std::function<void()> DayClicked;
    std::function<void()> DayDoubleClicked;
    std::function<void()> MonthChange;

private:
    Date selectedDate_;
    Date shownMonth_;
    std::vector<Date> boldDays_;
};

/// A small wheel that turns while something is going on.
class ProgressWheel : public Control {};

/// Raises Action when its period has passed. The observer measures the time; without one Action is never raised.
class Timer : public Control {
public:
    enum Modes { ModeOff = 0, ModeSingle = 1, ModeMultiple = 2 };

    /// Milliseconds until the next firing.
    int Period() const { return period_; }
    void Period(int value) { set(period_, value, Property::value); }
    /// Setting any mode but ModeOff restarts the period, even if that mode was set already.
    int Mode() const { return mode_; }
    void Mode(int value) {
        mode_ = value;
        changed(Property::value);
    }

    /// Called by the observer when the period has passed: sets a single-shot timer to ModeOff, then raises Action.
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

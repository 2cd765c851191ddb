#pragma once

#include <functional>
#include <initializer_list>
#include <memory>
#include <string>
#include <variant>
#include <vector>

#include "platform/base/service.h"
#include "platform/controls/controls.h"
#include "platform/controls/link_line.h"
#include "platform/controls/listbox.h"
#include "platform/controls/text_controls.h"
#include "platform/drawing/geometry.h"
#include "platform/windows/menus.h"

namespace tallyvane {

class Window;

/// Shows a window on a screen.
class WindowPeer {
public:
    virtual ~WindowPeer() = default;
    /// Title, visibility or geometry have new values.
    virtual void windowChanged() = 0;
    /// Controls of the table have other frames.
    virtual void controlsMoved() = 0;
    /// Brings the window before all others and gives it the focus.
    virtual void bringToFront() = 0;
};

/// What shows the windows. Those of the plain service work unseen.
class WindowSystem : public Service<WindowSystem> {
public:
    /// The peers of the window and of the controls in its table; the window owns the result. Null where none is seen.
    virtual std::unique_ptr<WindowPeer> show(Window& /*window*/) { return nullptr; }
    /// The bounds that a new window gets: its size, in the middle of its owner or of the screen.
    virtual Rect placeFor(const Window& window);
};

/// Which edges of a control keep their distance from the same edge of the window.
enum Lock : unsigned {
    lockLeft = 1,
    lockTop = 2,
    lockRight = 4,
    lockBottom = 8,
    lockTopRight = lockTop | lockRight,
    lockBottomRight = lockBottom | lockRight,
    lockAll = lockLeft | lockTop | lockRight | lockBottom,
};

/// A line of a window's table of controls: what, where, and how it follows the window's size.
struct Placement {
    using AnyControl = std::variant<StaticText*, Canvas*, Rectangle*, GroupBox*, PushButton*, BevelButton*, CheckBox*,
                                    RadioButton*, ProgressBar*, TextField*, TextArea*, TabPanel*, CalendarControl*,
                                    ProgressWheel*, LinkLine*, Listbox*, Timer*>;

    AnyControl control;
    /// In the window as it is created. Timers have none.
    Rect frame = {};
    unsigned locks = lockLeft | lockTop;
    /// The tab panel and the page that the control stands on; null for the window itself.
    TabPanel* panel = nullptr;
    int page = 0;
};

/// What all windows have in common. A window of the program derives from it, owns its controls as members and
/// declares them in one table.
class Window : public MenuTarget {
public:
    enum class Kind {
        document, // resizable as far as the limits let it
        fixed,
        dialog, // fixed, and modal
        splash, // fixed, without title and close button
    };

    Window() = default;
    ~Window() override;

    Kind kind() const { return kind_; }
    const std::string& Title() const { return title_; }
    void Title(std::string value);
    bool Visible() const { return visible_; }
    void Visible(bool value);

    /// Place of the top left corner with the frame, size of the content without it; in points of the screen. The
    /// limits win over what is set.
    int Left() const { return bounds_.left; }
    int Top() const { return bounds_.top; }
    int Width() const { return bounds_.width; }
    int Height() const { return bounds_.height; }
    void Left(int value) { bounds({value, Top(), Width(), Height()}); }
    void Top(int value) { bounds({Left(), value, Width(), Height()}); }
    void Width(int value) { bounds({Left(), Top(), value, Height()}); }
    void Height(int value) { bounds({Left(), Top(), Width(), value}); }
    int MinWidth() const { return limits_.minWidth; }
    int MaxWidth() const { return limits_.maxWidth; }
    int MinHeight() const { return limits_.minHeight; }
    int MaxHeight() const { return limits_.maxHeight; }

    /// Opens the window hidden: raises the Open events of its controls, then Event_Open, then makes its peer. If an
    /// event throws, the window stays closed.
    void Open();
    bool isOpen() const { return open_; }
    /// Opens it if it is not open yet, shows it and brings it to the front.
    void Show();
    /// Raises Event_Close and takes the window away. An exception of the event leaves it open.
    void Close();

    /// Paints the window and all its controls anew.
    void Refresh();

    virtual void Event_Open() {}
    virtual void Event_Close() {}
    virtual void Event_Resized() {}
    virtual void Event_Moved() {}

    /// Called by the peer when the user has moved or resized the window.
    void userChangedBounds(const Rect& bounds);

    const std::vector<Placement>& placements() const { return placements_; }
    /// Where a control of the table stands now.
    Rect frameOf(const Placement& placement) const;
    /// The menu bar and the toolbar that the window carries; null for none.
    MenuBar* menuBar() const { return menuBar_; }
    Toolbar* toolbar() const { return toolbar_; }
    /// The window that this one is modal to or belongs to; null for none.
    Window* owner() const { return owner_; }

    /// All windows that are open, in the order of their opening.
    static const std::vector<Window*>& openWindows();

protected:
    /// No limit for a screen.
    static constexpr int anySize = 32000;

    /// What a window's size stays between.
    struct Limits {
        int minWidth;
        int maxWidth;
        int minHeight;
        int maxHeight;
    };

    /// Size at creation, and its limits.
    void shape(Kind kind, int width, int height, const Limits& limits);
    /// The width never changes.
    void shape(Kind kind, int width, int height, int minHeight, int maxHeight) {
        shape(kind, width, height, {width, width, minHeight, maxHeight});
    }
    void shape(Kind kind, int width, int height) { shape(kind, width, height, height, height); }
    void place(std::initializer_list<Placement> placements);
    /// Gives each control of the table another frame, in the window as it was created.
    void reframe(const std::function<Rect(const Placement& placement)>& frame);
    void setBars(MenuBar* menuBar, Toolbar* toolbar);
    void setOwner(Window* owner) { owner_ = owner; }
    /// The control that gets the keys when the window opens; without it the first in the table that takes keys.
    void focusFirst(Control& control) { firstFocus_ = &control; }

private:
    void bounds(Rect value);
    void sizeControls();
    void changed();
    void raiseControlsOpen();

    Kind kind_ = Kind::fixed;
    std::string title_;
    bool visible_ = false;
    bool open_ = false;
    bool closing_ = false;
    Rect bounds_;
    int createdWidth_ = 0;
    int createdHeight_ = 0;
    Limits limits_{};
    std::vector<Placement> placements_;
    MenuBar* menuBar_ = nullptr;
    Toolbar* toolbar_ = nullptr;
    Window* owner_ = nullptr;
    Control* firstFocus_ = nullptr;
    std::unique_ptr<WindowPeer> peer_;
};

} // namespace tallyvane

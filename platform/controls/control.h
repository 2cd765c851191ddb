#pragma once

#include <string>
#include <type_traits>
#include <utility>

namespace tallyvane {

/// A property of a control that has changed; also the order in which a peer sets them on a new widget.
enum class Property {
    visible,
    enabled,
    helpTag,
    accessibleName,
    appearance, // letters, colours, pictures, frame, row height, and what the user can do with it
    text, // or caption
    value, // on or off, the page, the day, the progress, the clockwork
    selection, // of a field
    columns, // of a list
};
inline constexpr Property lastProperty = Property::columns;

/// Hears that a control has changed. The peer that shows it on a screen is one.
class ControlObserver {
public:
    virtual ~ControlObserver() = default;
    virtual void controlChanged(Property property) = 0;
    /// All of it is to be painted anew.
    virtual void repaintControl() {}
    /// The control is being destroyed and must not be touched again.
    virtual void controlDestroyed() = 0;
    /// The control asks for the keyboard focus.
    virtual void takeFocus() {}
};

/// Base of all controls. A control is a plain object: properties, events that its window sets, and at most one
/// observer, which shows it. Without an observer everything else works.
class Control {
public:
    Control() = default;
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;
    virtual ~Control() {
        if (observer_ != nullptr)
            observer_->controlDestroyed();
    }

    bool Visible() const { return visible_; }
    void Visible(bool value) { set(visible_, value, Property::visible); }
    bool Enabled() const { return enabled_; }
    void Enabled(bool value) { set(enabled_, value, Property::enabled); }
    /// The line that shows while the pointer rests on the control.
    const std::string& HelpTag() const { return helpTag_; }
    void HelpTag(std::string value) { set(helpTag_, std::move(value), Property::helpTag); }
    /// What a screen reader calls the control; "" leaves it to its text.
    const std::string& AccessibleName() const { return accessibleName_; }
    void AccessibleName(std::string value) { set(accessibleName_, std::move(value), Property::accessibleName); }

    /// Has the control painted anew.
    void Refresh() {
        if (observer_ != nullptr)
            observer_->repaintControl();
    }
    /// From here on the keys go to this control.
    void SetFocus() {
        if (observer_ != nullptr)
            observer_->takeFocus();
    }

    /// In points of the screen, as its window's table and the window's present size have it.
    int Width() const { return width_; }
    int Height() const { return height_; }
    void size(int width, int height) {
        width_ = width;
        height_ = height;
    }

    /// The one observer; null for none. The control does not own it.
    void observe(ControlObserver* observer) { observer_ = observer; }

protected:
    ControlObserver* observer() const { return observer_; }

    void changed(Property property) {
        if (observer_ != nullptr)
            observer_->controlChanged(property);
    }

    template <class T>
    void set(T& member, std::type_identity_t<T> value, Property property) {
        if (member == value)
            return;
        member = std::move(value);
        changed(property);
    }

private:
    ControlObserver* observer_ = nullptr;
    bool visible_ = true;
    bool enabled_ = true;
    int width_ = 0;
    int height_ = 0;
    std::string helpTag_;
    std::string accessibleName_;
};

} // namespace tallyvane

#pragma once

#include <QWidget>

#include "platform/controls/control.h"
#include "platform/qt/convert.h"

namespace tallyvane {

/// What a window knows of the peers of its controls.
class WidgetPeer {
public:
    virtual ~WidgetPeer() = default;
    virtual QWidget* widget() = 0;
    /// Whether the page that the control stands on is in front.
    virtual void setOnFrontPage(bool inFront) = 0;
    /// Cuts the tie to the control, for good: the window is being closed, the widget goes a little later.
    virtual void detach() = 0;
};

/// A widget that shows a control and hears its changes. Control and widget may go in either order; after that, or
/// after detach, control_ is null.
template <class Widget, class ControlType, class Observer = ControlObserver>
class Peer : public Widget, public Observer, public WidgetPeer {
public:
    Peer(ControlType& control, QWidget* parent) : Widget(parent), control_(&control) { control.observe(this); }
    ~Peer() override { Peer::detach(); }

    QWidget* widget() override { return this; }
    void detach() override {
        if (control_ != nullptr)
            control_->observe(nullptr);
        control_ = nullptr;
    }

    void setOnFrontPage(bool inFront) override {
        onFrontPage_ = inFront;
        if (control_ != nullptr)
            Widget::setVisible(control_->Visible() && onFrontPage_);
    }

    void controlDestroyed() override { control_ = nullptr; }
    void takeFocus() override { Widget::setFocus(Qt::OtherFocusReason); }
    void controlChanged(Property property) override {
        switch (property) {
        case Property::visible:
            Widget::setVisible(control_->Visible() && onFrontPage_);
            break;
        case Property::enabled:
            Widget::setEnabled(control_->Enabled());
            break;
        case Property::helpTag:
            Widget::setToolTip(helpTag());
            break;
        case Property::accessibleName:
            Widget::setAccessibleName(screenReaderName());
            break;
        default:
            apply(property);
        }
    }
    void repaintControl() override { Widget::update(); }

protected:
    /// Brings every property to the new widget.
    void applyAll() {
        for (int property = 0; property <= static_cast<int>(lastProperty); ++property)
            controlChanged(static_cast<Property>(property));
    }
    /// Shows the new value of one property on the widget.
    virtual void apply(Property /*property*/) {}
    /// The line that shows while the pointer rests here.
    virtual QString helpTag() const { return toQt(control_->HelpTag()); }
    /// What a screen reader calls the control.
    virtual QString screenReaderName() const { return toQt(control_->AccessibleName()); }

    ControlType* control_;

private:
    bool onFrontPage_ = true;
};

} // namespace tallyvane

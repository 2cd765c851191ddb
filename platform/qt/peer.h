#pragma once

#include <QWidget>

#include "platform/control.h"
#include "platform/qt/convert.h"

namespace tallyvane {

/// What a window knows of the peers of its controls.
class WidgetPeer {
public:
    virtual ~WidgetPeer() = default;
    virtual QWidget* widget() = 0;
    virtual const Control* control() const = 0;
    /// Cuts the tie to the control, for good: the window is being closed, the widget goes a little later.
    virtual void detach() = 0;
};

/// A widget that shows a control and hears its changes. Control and widget may go in either order; after that, or
/// after detach, control_ is nil.
template <class Widget, class ControlType, class Observer = ControlObserver>
class Peer : public Widget, public Observer, public WidgetPeer {
public:
    Peer(ControlType& control, QWidget* parent) : Widget(parent), control_(&control) { control.observe(this); }
    ~Peer() override { Peer::detach(); }

    QWidget* widget() override { return this; }
    const Control* control() const override { return control_; }
    void detach() override {
        if (control_ != nullptr)
            control_->observe(nullptr);
        control_ = nullptr;
    }

    void controlGone() override { control_ = nullptr; }
    void controlChanged() override {
        Widget::setEnabled(control_->Enabled());
        Widget::setToolTip(toQt(control_->HelpTag()));
        if (!control_->AccessibleName().empty())
            Widget::setAccessibleName(toQt(control_->AccessibleName()));
        sync();
        Widget::update();
    }

protected:
    /// Brings the control's own properties to the widget.
    virtual void sync() {}

    ControlType* control_;
};

} // namespace tallyvane

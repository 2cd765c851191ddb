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
    virtual void standInFront(bool inFront) = 0;
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

    void standInFront(bool inFront) override {
        inFront_ = inFront;
        if (control_ != nullptr)
            Widget::setVisible(control_->Visible() && inFront_);
    }

    void controlGone() override { control_ = nullptr; }
    void takeFocus() override { Widget::setFocus(Qt::OtherFocusReason); }
    void controlChanged() override {
        Widget::setVisible(control_->Visible() && inFront_);
        Widget::setEnabled(control_->Enabled());
        Widget::setToolTip(toQt(control_->HelpTag()));
        Widget::setAccessibleName(toQt(control_->AccessibleName()));
        sync();
        Widget::update();
    }

protected:
    /// Brings the control's own properties to the widget.
    virtual void sync() {}

    ControlType* control_;

private:
    bool inFront_ = true;
};

} // namespace tallyvane

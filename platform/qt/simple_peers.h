/// Peers of the simple controls.
#pragma once

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <QTimer>
#include <QToolButton>

#include "platform/controls/controls.h"
#include "platform/controls/link_line.h"
#include "platform/qt/peer.h"

namespace tallyvane {

class StaticTextPeer : public Peer<QLabel, StaticText> {
public:
    StaticTextPeer(StaticText& text, QWidget* parent);

protected:
    void apply(Property property) override;
    QString helpTag() const override;
    QString screenReaderName() const override;

private:
    void applyAppearance();
    void showText();
    QString wholeText() const;
    bool isCut() const { return text() != wholeText(); }
};

class LinkLinePeer : public Peer<QLabel, LinkLine> {
public:
    LinkLinePeer(LinkLine& line, QWidget* parent);

protected:
    void apply(Property property) override;
    QString screenReaderName() const override { return tallyvane::toQt(control_->Text()); }
};

class CanvasPeer : public Peer<QWidget, Canvas> {
public:
    CanvasPeer(Canvas& canvas, QWidget* parent);

    /// Whether it can be pressed, by the keyboard too.
    bool isButton() const { return control_ != nullptr && control_->AcceptFocus() && !control_->DragsUpAndDown(); }
    bool isDivider() const { return control_ != nullptr && control_->DragsUpAndDown(); }
    /// A press in its middle.
    void press();

protected:
    void apply(Property property) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void tellPointer(QPoint place);

    bool pressed_ = false; // the canvas wants to hear how the press goes on
};

class RectanglePeer : public Peer<QWidget, Rectangle> {
public:
    RectanglePeer(Rectangle& rectangle, QWidget* parent);

protected:
    void apply(Property /*property*/) override { update(); }
    void paintEvent(QPaintEvent* event) override;
};

class GroupBoxPeer : public Peer<QGroupBox, GroupBox> {
public:
    GroupBoxPeer(GroupBox& box, QWidget* parent);

protected:
    void apply(Property property) override;
};

class PushButtonPeer : public Peer<QPushButton, PushButton> {
public:
    PushButtonPeer(PushButton& button, QWidget* parent);

protected:
    void apply(Property property) override;
};

class BevelButtonPeer : public Peer<QToolButton, BevelButton> {
public:
    BevelButtonPeer(BevelButton& button, QWidget* parent);

protected:
    void apply(Property property) override;
    void keyPressEvent(QKeyEvent* event) override;
};

class CheckBoxPeer : public Peer<QCheckBox, CheckBox> {
public:
    CheckBoxPeer(CheckBox& box, QWidget* parent);

protected:
    void apply(Property property) override;
    QString helpTag() const override;

private:
    void shrinkFontToFit();
    bool isTooWide() const;
};

class RadioButtonPeer : public Peer<QRadioButton, RadioButton> {
public:
    RadioButtonPeer(RadioButton& button, QWidget* parent);

protected:
    void apply(Property property) override;

private:
    void joinChoices(QWidget& parent);
};

class ProgressBarPeer : public Peer<QProgressBar, ProgressBar> {
public:
    ProgressBarPeer(ProgressBar& bar, QWidget* parent);

protected:
    void apply(Property property) override;
};

/// Shows the frame and the tabs; what stands on the pages are neighbours of this widget, laid over it.
class TabPanelPeer : public Peer<QTabWidget, TabPanel> {
public:
    TabPanelPeer(TabPanel& panel, QWidget* parent);

protected:
    void apply(Property property) override;
};

class ProgressWheelPeer : public Peer<QWidget, ProgressWheel> {
public:
    ProgressWheelPeer(ProgressWheel& wheel, QWidget* parent);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QTimer turning_;
    int step_ = 0;
};

/// The clockwork of a timer.
class TimerPeer : public ControlObserver {
public:
    TimerPeer(Timer& timer, QObject* parent);
    TimerPeer(const TimerPeer&) = delete;
    TimerPeer& operator=(const TimerPeer&) = delete;
    ~TimerPeer() override;

    void controlChanged(Property property) override;
    void controlDestroyed() override { timer_ = nullptr; }

private:
    Timer* timer_;
    QTimer clock_;
};

} // namespace tallyvane

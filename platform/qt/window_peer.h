#pragma once

#include <QMainWindow>

#include <functional>
#include <memory>
#include <vector>

#include "platform/qt/peer.h"
#include "platform/qt/simple_peers.h"
#include "platform/windows/window.h"

namespace tallyvane {

/// The area of a window where its controls stand, laid out by the window's table.
class ContentArea : public QWidget {
public:
    /// Calls `resized` before it lays its controls out anew.
    ContentArea(Window& window, std::function<void()> resized, QWidget* parent);

    void detach();
    void layOut();
    QSize sizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void make(const Placement& placement);

    struct Child {
        const Placement* placement;
        WidgetPeer* peer;
    };

    Window* window_;
    std::function<void()> resized_;
    std::vector<Child> children_;
    std::vector<std::unique_ptr<TimerPeer>> timers_;
};

/// A window on the screen.
class WindowFrame : public QMainWindow {
public:
    WindowFrame(Window& window, QWidget* owner, std::function<Window*()> front);

    /// Cuts the ties to the window; the frame goes when its own events are done.
    void leave();
    /// Brings title, visibility and geometry from the window to the screen.
    void sync();
    void layOut() { content_->layOut(); }
    Window* window() const { return window_; }

protected:
    void closeEvent(QCloseEvent* event) override;
    void moveEvent(QMoveEvent* event) override;

private:
    void shapeFrame();
    void syncGeometry();
    void reportBounds();

    Window* window_;
    ContentArea* content_;
    WidgetPeer* toolbar_ = nullptr;
    bool syncing_ = false;
};

/// The tie between a window and its frame.
class QtWindowPeer : public WindowPeer {
public:
    explicit QtWindowPeer(WindowFrame* frame) : frame_(frame) {}
    QtWindowPeer(const QtWindowPeer&) = delete;
    QtWindowPeer& operator=(const QtWindowPeer&) = delete;
    ~QtWindowPeer() override { frame_->leave(); }

    void windowChanged() override { frame_->sync(); }
    void controlsMoved() override { frame_->layOut(); }
    void bringToFront() override;

private:
    WindowFrame* frame_;
};

} // namespace tallyvane

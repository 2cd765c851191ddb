#include "platform/qt/qt_window_system.h"

#include <QApplication>
#include <QScreen>

#include "platform/qt/window_peer.h"

namespace tallyvane {

namespace {

/// The frame of a window that is on the screen; null when it is not.
WindowFrame* frameOf(const Window* window) {
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        auto* frame = dynamic_cast<WindowFrame*>(widget);
        if (frame != nullptr && window != nullptr && frame->window() == window)
            return frame;
    }
    return nullptr;
}

Window* windowInFront() {
    const auto* frame = dynamic_cast<WindowFrame*>(QApplication::activeWindow());
    return frame == nullptr ? nullptr : frame->window();
}

} // namespace

std::unique_ptr<WindowPeer> QtWindowSystem::show(Window& window) {
    return std::make_unique<QtWindowPeer>(new WindowFrame(window, frameOf(window.owner()), windowInFront));
}

Rect QtWindowSystem::placeFor(const Window& window) {
    const WindowFrame* owner = frameOf(window.owner());
    const QRect around =
        owner != nullptr ? owner->frameGeometry() : QGuiApplication::primaryScreen()->availableGeometry();
    QRect place(0, 0, window.Width(), window.Height());
    place.moveCenter(around.center());
    return {place.x(), place.y(), place.width(), place.height()};
}

} // namespace tallyvane

#include "platform/windows/window.h"

#include <algorithm>
#include <utility>

#include "platform/base/scoped_flag.h"

namespace tallyvane {

namespace {

std::vector<Window*>& registry() {
    static std::vector<Window*> windows;
    return windows;
}

/// Raises a control's Open event, if it has one and someone set it.
struct RaiseOpen {
    void operator()(Listbox* list) const { raise(list->Open); }
    void operator()(CalendarControl* calendar) const { raise(calendar->Open); }
    void operator()(CheckBox* box) const { raise(box->Open); }
    void operator()(TextField* field) const { raise(field->Open); }
    void operator()(Canvas* canvas) const { canvas->Event_Open(); }
    template <class Other>
    void operator()(Other*) const {}

    static void raise(const std::function<void()>& event) {
        if (event)
            event();
    }
};

} // namespace

Rect WindowSystem::placeFor(const Window& window) {
    return {window.Left(), window.Top(), window.Width(), window.Height()};
}

const std::vector<Window*>& Window::openWindows() { return registry(); }

Window::~Window() { std::erase(registry(), this); }

void Window::shape(Kind kind, int width, int height, const Limits& limits) {
    kind_ = kind;
    createdWidth_ = width;
    createdHeight_ = height;
    limits_ = limits;
    bounds_ = {0, 0, width, height};
}

void Window::place(std::initializer_list<Placement> placements) {
    placements_ = placements;
    sizeControls();
}

void Window::sizeControls() {
    for (const Placement& placement : placements_) {
        const Rect frame = frameOf(placement);
        std::visit([&](Control* control) { control->size(frame.width, frame.height); }, placement.control);
    }
}

void Window::reframe(const std::function<Rect(const Placement& placement)>& frame) {
    for (Placement& placement : placements_)
        placement.frame = frame(placement);
    sizeControls();
    if (peer_)
        peer_->controlsMoved();
}

void Window::setBars(MenuBar* menuBar, Toolbar* toolbar) {
    menuBar_ = menuBar;
    toolbar_ = toolbar;
}

void Window::Title(std::string value) {
    title_ = std::move(value);
    changed();
}

void Window::Visible(bool value) {
    visible_ = value;
    changed();
}

void Window::bounds(Rect value) {
    value.width = std::clamp(value.width, limits_.minWidth, limits_.maxWidth);
    value.height = std::clamp(value.height, limits_.minHeight, limits_.maxHeight);
    if (value == bounds_)
        return;
    bounds_ = value;
    sizeControls();
    changed();
}

void Window::userChangedBounds(const Rect& bounds) {
    const Rect before = std::exchange(bounds_, bounds);
    sizeControls();
    if (before.left != bounds.left || before.top != bounds.top)
        Event_Moved();
    if (before.width != bounds.width || before.height != bounds.height)
        Event_Resized();
}

void Window::changed() {
    if (peer_)
        peer_->windowChanged();
}

Rect Window::frameOf(const Placement& placement) const {
    const auto locked = [&](unsigned edge) { return (placement.locks & edge) != 0; };
    Rect frame = placement.frame;
    if (locked(lockRight))
        (locked(lockLeft) ? frame.width : frame.left) += bounds_.width - createdWidth_;
    if (locked(lockBottom))
        (locked(lockTop) ? frame.height : frame.top) += bounds_.height - createdHeight_;
    return frame;
}

void Window::raiseControlsOpen() {
    for (const Placement& placement : placements_)
        std::visit(RaiseOpen(), placement.control);
}

void Window::Refresh() {
    for (const Placement& placement : placements_)
        std::visit([](Control* control) { control->Refresh(); }, placement.control);
}

void Window::Open() {
    if (open_)
        return;
    WindowSystem& windowSystem = WindowSystem::current();
    bounds_ = windowSystem.placeFor(*this);
    raiseControlsOpen();
    Event_Open();
    peer_ = windowSystem.show(*this);
    if (firstFocus_ != nullptr)
        firstFocus_->SetFocus();
    open_ = true;
    registry().push_back(this);
}

void Window::Show() {
    Open();
    Visible(true);
    if (peer_)
        peer_->bringToFront();
}

void Window::Close() {
    if (!open_ || closing_)
        return;
    {
        const ScopedFlag closing(closing_); // Quit, called from Event_Close, passes this window over
        Event_Close();
    }
    open_ = false;
    visible_ = false;
    std::erase(registry(), this);
    peer_.reset();
}

} // namespace tallyvane

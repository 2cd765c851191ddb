#include "platform/qt/window_peer.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QScopedValueRollback>
#include <QScreen>
#include <QShortcut>

#include "platform/qt/calendar_peer.h"
#include "platform/qt/event_guard.h"
#include "platform/qt/listbox_peer.h"
#include "platform/qt/menu_peer.h"
#include "platform/qt/pictures.h"
#include "platform/qt/text_peers.h"
#include "platform/qt/toolbar_peer.h"

namespace tallyvane {

namespace {

/// Makes the peer of a control of any kind.
struct MakePeer {
    QWidget* parent;

    WidgetPeer* operator()(StaticText* text) const { return new StaticTextPeer(*text, parent); }
    WidgetPeer* operator()(Canvas* canvas) const { return new CanvasPeer(*canvas, parent); }
    WidgetPeer* operator()(Rectangle* rectangle) const { return new RectanglePeer(*rectangle, parent); }
    WidgetPeer* operator()(GroupBox* box) const { return new GroupBoxPeer(*box, parent); }
    WidgetPeer* operator()(PushButton* button) const { return new PushButtonPeer(*button, parent); }
    WidgetPeer* operator()(BevelButton* button) const { return new BevelButtonPeer(*button, parent); }
    WidgetPeer* operator()(CheckBox* box) const { return new CheckBoxPeer(*box, parent); }
    WidgetPeer* operator()(RadioButton* button) const { return new RadioButtonPeer(*button, parent); }
    WidgetPeer* operator()(ProgressBar* bar) const { return new ProgressBarPeer(*bar, parent); }
    WidgetPeer* operator()(TextField* field) const { return new TextFieldPeer(*field, parent); }
    WidgetPeer* operator()(TextArea* area) const { return new TextAreaPeer(*area, parent); }
    WidgetPeer* operator()(TabPanel* panel) const { return new TabPanelPeer(*panel, parent); }
    WidgetPeer* operator()(CalendarControl* calendar) const { return new CalendarPeer(*calendar, parent); }
    WidgetPeer* operator()(ProgressWheel* wheel) const { return new ProgressWheelPeer(*wheel, parent); }
    WidgetPeer* operator()(LinkLine* line) const { return new LinkLinePeer(*line, parent); }
    WidgetPeer* operator()(Listbox* list) const { return new ListboxPeer(*list, parent); }
    WidgetPeer* operator()(Timer*) const { return nullptr; } // no widget
};

bool isOnPageInFront(const Placement& placement) {
    return placement.panel == nullptr || placement.panel->Value() == placement.page;
}

Qt::WindowFlags flagsOf(Window::Kind kind) {
    switch (kind) {
    case Window::Kind::splash:
        return Qt::SplashScreen | Qt::FramelessWindowHint;
    case Window::Kind::dialog:
    case Window::Kind::fixed:
        return Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowCloseButtonHint;
    case Window::Kind::document:
        break;
    }
    return Qt::Window;
}

/// The place for a window of that size, or the middle of the screen when no part of its title bar that the mouse can
/// get hold of lies on a screen: the one on which it stood may be gone.
QPoint withinReach(QPoint place, QSize size) {
    constexpr QSize hold(48, 16);
    constexpr int titleHeight = 24; // about; the desktop does not tell before the window is shown
    const QRect title(place, QSize(size.width(), titleHeight));
    for (const QScreen* screen : QGuiApplication::screens()) {
        const QSize seen = screen->availableGeometry().intersected(title).size();
        if (seen.expandedTo(hold) == seen)
            return place;
    }
    QRect around(QPoint(0, 0), size);
    around.moveCenter(QGuiApplication::primaryScreen()->availableGeometry().center());
    return around.topLeft();
}

} // namespace

// ContentArea

ContentArea::ContentArea(Window& window, std::function<void()> resized, QWidget* parent)
    : QWidget(parent), window_(&window), resized_(std::move(resized)) {
    for (const Placement& placement : window.placements())
        make(placement);
    setMinimumSize(window.MinWidth(), window.MinHeight());
    setMaximumSize(window.MaxWidth(), window.MaxHeight());
    layOut();
}

void ContentArea::make(const Placement& placement) {
    if (Timer* const* timer = std::get_if<Timer*>(&placement.control))
        timers_.push_back(std::make_unique<TimerPeer>(**timer, this));
    if (WidgetPeer* peer = std::visit(MakePeer{this}, placement.control))
        children_.push_back({&placement, peer});
    if (std::holds_alternative<TabPanel*>(placement.control))
        connect(static_cast<TabPanelPeer*>(children_.back().peer->widget()), &QTabWidget::currentChanged, this,
                [this] { layOut(); });
}

void ContentArea::detach() {
    timers_.clear();
    for (const Child& child : children_)
        child.peer->detach();
    window_ = nullptr;
}

void ContentArea::layOut() {
    if (window_ == nullptr)
        return;
    for (const Child& child : children_) {
        child.peer->widget()->setGeometry(toQt(window_->frameOf(*child.placement)));
        child.peer->setOnFrontPage(isOnPageInFront(*child.placement));
    }
}

QSize ContentArea::sizeHint() const {
    return window_ == nullptr ? QSize() : QSize(window_->Width(), window_->Height());
}

void ContentArea::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    resized_();
    layOut();
}

// WindowFrame

WindowFrame::WindowFrame(Window& window, QWidget* owner, std::function<Window*()> front)
    : QMainWindow(owner, flagsOf(window.kind())), window_(&window) {
    content_ = new ContentArea(
        window, [this] { reportBounds(); }, this);
    // Frames count from the left. A table that Qt turned around would have its readings under the wrong headings.
    setLayoutDirection(Qt::LeftToRight);
    setAttribute(Qt::WA_KeyboardFocusChange); // where the keys go is seen from the first moment
    setContextMenuPolicy(Qt::NoContextMenu); // Qt's own would hide the toolbar
    if (window.kind() == Window::Kind::dialog)
        setWindowModality(Qt::ApplicationModal);
    if (MenuBar* bar = window.menuBar())
        setMenuBar(new MenuPeer(*bar, std::move(front), this));
    else if (window.kind() != Window::Kind::splash)
        connect(new QShortcut(QKeySequence::Close, this), &QShortcut::activated, this, &QWidget::close);
    if (Toolbar* toolbar = window.toolbar()) {
        auto* peer = new ToolbarPeer(*toolbar, this);
        toolbar_ = peer;
        addToolBar(peer);
    }
    setCentralWidget(content_);
    shapeFrame();
    sync();
}

void WindowFrame::shapeFrame() {
    const QScopedValueRollback syncing(syncing_, true);
    ensurePolished();
    if (window_->kind() != Window::Kind::document) {
        setFixedSize(sizeHint());
        return;
    }
    if (window_->MinWidth() == window_->MaxWidth())
        setFixedWidth(window_->Width());
    resize(sizeHint());
}

void WindowFrame::leave() {
    content_->detach();
    if (toolbar_ != nullptr)
        toolbar_->detach();
    window_ = nullptr;
    hide();
    deleteLater();
}

void WindowFrame::sync() {
    if (syncing_)
        return;
    const QScopedValueRollback syncing(syncing_, true);
    setWindowTitle(toQt(window_->Title()));
    syncGeometry();
    setVisible(window_->Visible());
}

void WindowFrame::syncGeometry() {
    const QSize grown = QSize(window_->Width(), window_->Height()) - content_->size();
    if (isVisible() && !grown.isNull())
        resize(size() + grown);
    else if (!isVisible())
        resize(sizeHint());
    const QPoint place = withinReach({window_->Left(), window_->Top()}, size());
    if (pos() != place)
        move(place);
}

void WindowFrame::reportBounds() {
    if (window_ == nullptr || syncing_ || !isVisible() || isMinimized())
        return;
    const Rect bounds{pos().x(), pos().y(), content_->width(), content_->height()};
    deliver([&] { window_->userChangedBounds(bounds); });
}

void WindowFrame::closeEvent(QCloseEvent* event) {
    event->ignore(); // the window itself takes the frame away, unless its saving fails
    if (window_ != nullptr && window_->kind() != Window::Kind::splash) // that one has no close button
        deliver([this] { window_->Close(); });
}

void WindowFrame::moveEvent(QMoveEvent* event) {
    QMainWindow::moveEvent(event);
    reportBounds();
}

// QtWindowPeer

void QtWindowPeer::bringToFront() {
    frame_->setWindowState(frame_->windowState() & ~Qt::WindowMinimized);
    frame_->show();
    frame_->raise();
    frame_->activateWindow();
}

} // namespace tallyvane

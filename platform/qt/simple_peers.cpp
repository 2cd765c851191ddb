#include "platform/qt/simple_peers.h"

#include <QAccessible>
#include <QApplication>
#include <QButtonGroup>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QShortcut>
#include <QStyleOptionFocusRect>
#include <QTabBar>

#include <utility>

#include "platform/qt/event_guard.h"
#include "platform/qt/key_names.h"
#include "platform/qt/painter_graphics.h"

namespace tallyvane {

namespace {

Qt::Alignment toQt(TextAlign align) {
    switch (align) {
    case TextAlign::center:
        return Qt::AlignHCenter;
    case TextAlign::right:
        return Qt::AlignRight;
    case TextAlign::left:
        break;
    }
    return Qt::AlignLeft;
}

/// A caption is shown as it stands: to Qt a single "&" would mark the letter after it.
QString asItStands(const std::string& caption) {
    return tallyvane::toQt(ReplaceAll(Left(caption, mostCharacters), "&", "&&"));
}

} // namespace

// StaticText

StaticTextPeer::StaticTextPeer(StaticText& text, QWidget* parent) : Peer(text, parent) {
    setTextFormat(Qt::PlainText);
    applyAll();
}

void StaticTextPeer::apply(Property property) {
    if (property == Property::appearance)
        applyAppearance();
    if (property == Property::appearance || property == Property::text)
        showText();
}

void StaticTextPeer::applyAppearance() {
    setAlignment(toQt(control_->Align()) | Qt::AlignVCenter);
    setWordWrap(control_->Multiline());
    QFont font = parentWidget()->font();
    if (const std::string& family = control_->TextFont(); family != "System")
        font.setFamily(tallyvane::toQt(family));
    if (control_->TextSize() > 0)
        font.setPixelSize(control_->TextSize());
    font.setBold(control_->Bold());
    setFont(font);
    QPalette colors = parentWidget()->palette();
    if (const auto& color = control_->TextColor())
        colors.setColor(QPalette::WindowText, tallyvane::toQt(*color));
    setPalette(colors);
}

/// A line that is too long ends in dots, and shows whole in the tool tip. Labels keep their width.
void StaticTextPeer::showText() {
    const QString whole = wholeText();
    setText(control_->Multiline() ? whole : fontMetrics().elidedText(whole, Qt::ElideRight, control_->Width()));
    setToolTip(helpTag());
    setAccessibleName(screenReaderName());
}

QString StaticTextPeer::wholeText() const { return tallyvane::toQt(Left(control_->Text(), mostCharacters)); }

QString StaticTextPeer::helpTag() const {
    return isCut() && control_->HelpTag().empty() ? wholeText() : Peer::helpTag();
}

QString StaticTextPeer::screenReaderName() const {
    return isCut() && control_->AccessibleName().empty() ? wholeText() : Peer::screenReaderName();
}

// LinkLine

LinkLinePeer::LinkLinePeer(LinkLine& line, QWidget* parent) : Peer(line, parent) {
    setTextFormat(Qt::RichText);
    connect(this, &QLabel::linkActivated, this, [this](const QString& number) {
        if (control_ != nullptr)
            deliver([&] { control_->userPressed(number.toUInt()); });
    });
    applyAll();
}

void LinkLinePeer::apply(Property property) {
    if (property != Property::text)
        return;
    const std::vector<LinkLine::Link>& links = control_->links();
    const QString color = palette().windowText().color().name(); // a theme's colour of links is not always legible
    QString line = tallyvane::toQt(control_->Text()).toHtmlEscaped();
    QString before = QStringLiteral("&nbsp; ");
    for (std::size_t i = 0; i < links.size(); ++i) {
        line += before + QStringLiteral("<a href=\"%1\" style=\"color: %2\">%3</a>")
                             .arg(QString::number(i), color, tallyvane::toQt(links[i].Caption).toHtmlEscaped());
        before = QStringLiteral(" \u00b7 ");
    }
    setText(line);
    setAccessibleName(screenReaderName());
    setTextInteractionFlags(links.empty() ? Qt::NoTextInteraction
                                          : Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
    setFocusPolicy(links.empty() ? Qt::NoFocus : Qt::TabFocus);
    if (links.empty())
        return;
    QAccessibleEvent announcement(this, QAccessible::Alert); // read aloud without the focus
    QAccessible::updateAccessibility(&announcement);
}

// Canvas

CanvasPeer::CanvasPeer(Canvas& canvas, QWidget* parent) : Peer(canvas, parent) { applyAll(); }

void CanvasPeer::apply(Property /*property*/) {
    setFocusPolicy(control_->AcceptFocus() ? Qt::TabFocus : Qt::NoFocus);
    if (control_->DragsUpAndDown())
        setCursor(Qt::SplitVCursor);
    setMouseTracking(control_->TracksPointer());
    update();
}

void CanvasPeer::paintEvent(QPaintEvent* /*event*/) {
    if (control_ == nullptr)
        return;
    QPainter painter(this);
    PainterGraphics g(painter, rect());
    deliver([&] {
        if (control_->Backdrop())
            g.DrawPicture(*control_->Backdrop(), 0, 0);
        control_->Event_Paint(g);
    });
    if (hasFocus()) {
        QStyleOptionFocusRect focus;
        focus.initFrom(this);
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, &painter, this);
    }
}

void CanvasPeer::mousePressEvent(QMouseEvent* event) {
    if (control_ != nullptr && event->button() == Qt::LeftButton)
        deliver([&] { pressed_ = control_->Event_MouseDown(event->pos().x(), event->pos().y()); });
}

void CanvasPeer::mouseMoveEvent(QMouseEvent* event) {
    if (control_ != nullptr && pressed_)
        deliver([&] { control_->Event_MouseDrag(event->pos().x(), event->pos().y()); });
    else
        tellPointer(event->pos());
}

void CanvasPeer::leaveEvent(QEvent* /*event*/) { tellPointer({-1, -1}); }

void CanvasPeer::tellPointer(QPoint place) {
    if (control_ != nullptr && control_->PointerMoved)
        deliver([&] { control_->PointerMoved(place.x(), place.y()); });
}

void CanvasPeer::mouseReleaseEvent(QMouseEvent* event) {
    if (control_ != nullptr && event->button() == Qt::LeftButton && std::exchange(pressed_, false))
        deliver([&] { control_->Event_MouseUp(event->pos().x(), event->pos().y()); });
}

void CanvasPeer::keyPressEvent(QKeyEvent* event) {
    bool isConsumed = false;
    if (const std::string key = nameOf(*event); control_ != nullptr && !key.empty())
        deliver([&] { isConsumed = control_->Event_KeyDown(key); });
    if (isConsumed)
        return;
    const bool presses =
        event->key() == Qt::Key_Space || event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (!isButton() || !presses || event->isAutoRepeat()) {
        QWidget::keyPressEvent(event);
        return;
    }
    press();
}

void CanvasPeer::press() {
    if (!isButton() || !isEnabled())
        return;
    const QPoint middle = rect().center();
    deliver([&] {
        if (control_->Event_MouseDown(middle.x(), middle.y()))
            control_->Event_MouseUp(middle.x(), middle.y());
    });
}

// Rectangle

RectanglePeer::RectanglePeer(Rectangle& rectangle, QWidget* parent) : Peer(rectangle, parent) { applyAll(); }

void RectanglePeer::paintEvent(QPaintEvent* /*event*/) {
    if (control_ == nullptr)
        return;
    QPainter painter(this);
    const int border = control_->BorderWidth();
    painter.fillRect(rect(), Qt::black);
    painter.fillRect(rect().adjusted(border, border, -border, -border), tallyvane::toQt(control_->FillColor()));
}

// GroupBox

GroupBoxPeer::GroupBoxPeer(GroupBox& box, QWidget* parent) : Peer(box, parent) { applyAll(); }

void GroupBoxPeer::apply(Property property) {
    if (property == Property::text)
        setTitle(asItStands(control_->Caption()));
}

// PushButton

PushButtonPeer::PushButtonPeer(PushButton& button, QWidget* parent) : Peer(button, parent) {
    setAutoDefault(true); // Return presses it while it has the focus
    const auto press = [this] {
        if (control_ != nullptr)
            deliver(control_->Action);
    };
    connect(this, &QPushButton::clicked, this, press);
    const auto pressBy = [&](int key) {
        connect(new QShortcut(QKeySequence(key), this), &QShortcut::activated, this, [this, key] {
            auto* focused = key == Qt::Key_Escape ? nullptr : qobject_cast<QPushButton*>(QApplication::focusWidget());
            (focused != nullptr ? focused : this)->click(); // Return presses the button that has the focus
        });
    };
    setDefault(button.Default());
    if (button.Default()) {
        pressBy(Qt::Key_Return);
        pressBy(Qt::Key_Enter);
    }
    if (button.Cancel())
        pressBy(Qt::Key_Escape);
    applyAll();
}

void PushButtonPeer::apply(Property property) {
    if (property == Property::text)
        setText(asItStands(control_->Caption()));
}

// BevelButton

BevelButtonPeer::BevelButtonPeer(BevelButton& button, QWidget* parent) : Peer(button, parent) {
    setFocusPolicy(Qt::TabFocus);
    connect(this, &QToolButton::clicked, this, [this] {
        if (control_ != nullptr)
            deliver(control_->Action);
    });
    applyAll();
}

void BevelButtonPeer::keyPressEvent(QKeyEvent* event) {
    const bool presses = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (presses && !event->isAutoRepeat())
        click();
    else
        QToolButton::keyPressEvent(event);
}

void BevelButtonPeer::apply(Property property) {
    if (property == Property::text)
        setText(tallyvane::toQt(control_->Caption()));
}

// CheckBox

CheckBoxPeer::CheckBoxPeer(CheckBox& box, QWidget* parent) : Peer(box, parent) {
    applyAll();
    connect(this, &QCheckBox::clicked, this, [this](bool checked) {
        if (control_ != nullptr)
            deliver([&] { control_->userToggled(checked); });
    });
}

void CheckBoxPeer::apply(Property property) {
    if (property == Property::value)
        setChecked(control_->Value());
    if (property == Property::text)
        setText(asItStands(control_->Caption()));
    if (property == Property::text || property == Property::appearance)
        shrinkFontToFit();
}

/// Captions that the user has written can be wide: the font gets smaller. What is too wide even then shows whole
/// in the tool tip.
void CheckBoxPeer::shrinkFontToFit() {
    constexpr int smallest = 9; // pixels
    QFont fitting = parentWidget()->font();
    if (control_->TextSize() > 0)
        fitting.setPixelSize(control_->TextSize());
    setFont(fitting);
    for (int pixels = fontInfo().pixelSize(); pixels > smallest && isTooWide();) {
        fitting.setPixelSize(--pixels);
        setFont(fitting);
    }
    setToolTip(helpTag());
}

QString CheckBoxPeer::helpTag() const {
    return isTooWide() && control_->HelpTag().empty() ? tallyvane::toQt(control_->Caption()) : Peer::helpTag();
}

bool CheckBoxPeer::isTooWide() const { return sizeHint().width() > control_->Width(); }

// RadioButton

RadioButtonPeer::RadioButtonPeer(RadioButton& button, QWidget* parent) : Peer(button, parent) {
    joinChoices(*parent);
    applyAll();
    connect(this, &QRadioButton::clicked, this, [this] {
        if (control_ != nullptr)
            deliver([&] { control_->userChose(); });
    });
}

/// Choices of one question are one group to Qt: its arrow keys then move the choice together with the focus.
void RadioButtonPeer::joinChoices(QWidget& parent) {
    for (QRadioButton* other : parent.findChildren<QRadioButton*>(Qt::FindDirectChildrenOnly)) {
        const auto* peer = dynamic_cast<RadioButtonPeer*>(other);
        if (peer != nullptr && peer != this && peer->control_->excludes(*control_)) {
            peer->group()->addButton(this);
            return;
        }
    }
    (new QButtonGroup(&parent))->addButton(this);
}

void RadioButtonPeer::apply(Property property) {
    if (property == Property::text)
        setText(asItStands(control_->Caption()));
    if (property == Property::value)
        setChecked(control_->Value());
}

// ProgressBar

ProgressBarPeer::ProgressBarPeer(ProgressBar& bar, QWidget* parent) : Peer(bar, parent) { applyAll(); }

void ProgressBarPeer::apply(Property property) {
    if (property != Property::value)
        return;
    setRange(0, control_->Maximum());
    setValue(control_->Value());
}

// TabPanel

TabPanelPeer::TabPanelPeer(TabPanel& panel, QWidget* parent) : Peer(panel, parent) {
    for (const std::string& caption : panel.Captions())
        addTab(new QWidget(this), tallyvane::toQt(caption));
    applyAll();
    connect(this, &QTabWidget::currentChanged, this, [this](int page) {
        if (control_ != nullptr)
            control_->Value(page);
    });
}

void TabPanelPeer::apply(Property property) {
    if (property == Property::value)
        setCurrentIndex(control_->Value());
}

// ProgressWheel

ProgressWheelPeer::ProgressWheelPeer(ProgressWheel& wheel, QWidget* parent) : Peer(wheel, parent) {
    constexpr int millisecondsPerStep = 80;
    connect(&turning_, &QTimer::timeout, this, [this] {
        ++step_;
        update();
    });
    turning_.start(millisecondsPerStep);
    applyAll();
}

void ProgressWheelPeer::paintEvent(QPaintEvent* /*event*/) {
    constexpr int spokes = 12;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(width() / 2.0, height() / 2.0);
    painter.rotate(step_ * 360.0 / spokes);
    const double radius = width() / 2.0;
    QColor color = palette().color(QPalette::WindowText);
    for (int spoke = 1; spoke <= spokes; ++spoke) {
        painter.rotate(360.0 / spokes);
        color.setAlphaF(static_cast<float>(spoke) / spokes);
        painter.setPen(QPen(color, radius / 5));
        painter.drawLine(QPointF(radius * 0.5, 0), QPointF(radius * 0.95, 0));
    }
}

// Timer

TimerPeer::TimerPeer(Timer& timer, QObject* parent) : timer_(&timer), clock_(parent) {
    timer.observe(this);
    QObject::connect(&clock_, &QTimer::timeout, &clock_, [this] {
        if (timer_ != nullptr)
            deliverUnasked(&clock_, [this] {
                if (timer_ != nullptr)
                    timer_->fire();
            });
    });
    controlChanged(Property::value);
}

TimerPeer::~TimerPeer() {
    if (timer_ != nullptr)
        timer_->observe(nullptr);
}

void TimerPeer::controlChanged(Property property) {
    if (property != Property::value)
        return;
    clock_.setSingleShot(timer_->Mode() == Timer::ModeSingle);
    if (timer_->Mode() == Timer::ModeOff)
        clock_.stop();
    else
        clock_.start(timer_->Period());
}

} // namespace tallyvane

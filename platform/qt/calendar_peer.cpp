#include "platform/qt/calendar_peer.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QLayout>
#include <QMouseEvent>
#include <QTableView>
#include <QTextCharFormat>

#include "platform/qt/event_guard.h"

namespace tallyvane {

CalendarPeer::CalendarPeer(CalendarControl& calendar, QWidget* parent) : Peer(calendar, parent) {
    setVerticalHeaderFormat(NoVerticalHeader);
    setHorizontalHeaderFormat(SingleLetterDayNames);
    setGridVisible(false);
    QTextCharFormat weekend; // not Qt's red, which is hard to read on dark
    weekend.setForeground(palette().text());
    setWeekdayTextFormat(Qt::Saturday, weekend);
    setWeekdayTextFormat(Qt::Sunday, weekend);
    QTextCharFormat header; // not the theme's colour for every second line, which may be of another theme
    header.setBackground(palette().window());
    header.setForeground(palette().windowText());
    setHeaderTextFormat(header);
    reachIntoParts();
    applyAll();
    connect(this, &QCalendarWidget::selectionChanged, this, [this] {
        if (control_ != nullptr)
            control_->SelectedDate(fromQt(selectedDate()));
    });
    connect(this, &QCalendarWidget::clicked, this, [this] {
        if (control_ != nullptr)
            deliver(control_->DayClicked);
    });
    const auto tellMonth = [this] {
        if (control_ != nullptr)
            deliver([this] { control_->userShowed(Date(yearShown(), monthShown(), 1)); });
    };
    connect(this, &QCalendarWidget::currentPageChanged, this, tellMonth);
    tellMonth();
}

void CalendarPeer::setBoldDays() {
    setDateTextFormat({}, {}); // none is
    QTextCharFormat bold;
    bold.setFontWeight(QFont::Bold);
    bold.setFontStretch(QFont::SemiCondensed); // two figures find room in a small calendar
    for (const Date& day : control_->BoldDays())
        setDateTextFormat(tallyvane::toQt(day), bold);
}

/// The parts of a calendar are Qt's own business, and another Qt may build it of others: then the calendar is a little
/// wider, and a double click is Qt's.
void CalendarPeer::reachIntoParts() {
    if (auto* bar = findChild<QWidget*>(QStringLiteral("qt_calendar_navigationbar")); bar != nullptr && bar->layout())
        bar->layout()->setSpacing(0);
    days_ = findChild<QTableView*>();
    if (days_ == nullptr) {
        connect(this, &QCalendarWidget::activated, this, [this] { choose(); });
        return;
    }
    days_->horizontalHeader()->setMinimumSectionSize(1); // seven columns find room in a small calendar
    days_->verticalHeader()->setMinimumSectionSize(1);
    days_->installEventFilter(this);
    days_->viewport()->installEventFilter(this);
}

void CalendarPeer::choose() {
    if (control_ != nullptr)
        deliver(control_->DayDoubleClicked);
}

/// Qt's own signal for this also comes of a single click, on desktops that open files so.
bool CalendarPeer::eventFilter(QObject* watched, QEvent* event) {
    bool chosen = false;
    if (days_ == nullptr) // while the widget is being made, and in a Qt of other parts
        return QCalendarWidget::eventFilter(watched, event);
    if (watched == days_->viewport() && event->type() == QEvent::MouseButtonDblClick) {
        // A first click on a day of another month brings that month; the second is on the marked day or means nothing.
        const QPoint place = static_cast<QMouseEvent*>(event)->position().toPoint();
        chosen = days_->indexAt(place) == days_->currentIndex();
    } else if (watched == days_ && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        chosen = key == Qt::Key_Return || key == Qt::Key_Enter;
    }
    if (!chosen || control_ == nullptr)
        return QCalendarWidget::eventFilter(watched, event);
    choose();
    return true;
}

void CalendarPeer::apply(Property property) {
    if (property == Property::appearance)
        setBoldDays();
    if (property != Property::value)
        return;
    const QDate date = toQt(control_->SelectedDate());
    if (date != selectedDate())
        setSelectedDate(date);
}

void CalendarPeer::resizeEvent(QResizeEvent* event) {
    constexpr int smallest = 10;
    constexpr int largest = 13;
    const int pixels = std::clamp(width() / 13, smallest, largest);
    QFont fitting = font();
    fitting.setPixelSize(pixels);
    setFont(fitting);
    // The longest month and its year find room beside the arrows; the arrow that says "menu" does not.
    setStyleSheet(QStringLiteral("QToolButton { padding: 0; margin: 0; border: none; font: normal %1px; }"
                                 "QToolButton::menu-indicator { image: none; }"
                                 "#qt_calendar_prevmonth, #qt_calendar_nextmonth { max-width: 16px; icon-size: 14px; }")
                      .arg(pixels));
    QCalendarWidget::resizeEvent(event);
}

} // namespace tallyvane

#include "platform/qt/calendar_peer.h"

#include <QHeaderView>
#include <QLayout>
#include <QTableView>

#include "platform/qt/event_guard.h"

namespace tallyvane {

CalendarPeer::CalendarPeer(CalendarControl& calendar, QWidget* parent) : Peer(calendar, parent) {
    setVerticalHeaderFormat(NoVerticalHeader);
    setHorizontalHeaderFormat(SingleLetterDayNames);
    setGridVisible(false);
    for (auto* days : findChildren<QTableView*>()) {
        days->horizontalHeader()->setMinimumSectionSize(1); // seven columns find room in a small calendar
        days->verticalHeader()->setMinimumSectionSize(1);
    }
    findChild<QWidget*>(QStringLiteral("qt_calendar_navigationbar"))->layout()->setSpacing(0);
    controlChanged();
    connect(this, &QCalendarWidget::selectionChanged, this, [this] {
        if (control_ != nullptr)
            control_->SelectedDate(fromQt(selectedDate()));
    });
    connect(this, &QCalendarWidget::activated, this, [this] {
        if (control_ != nullptr)
            deliver(control_->DayDoubleClicked);
    });
}

void CalendarPeer::sync() {
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

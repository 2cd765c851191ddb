#pragma once

#include <QCalendarWidget>
#include <QTableView>

#include "platform/controls/controls.h"
#include "platform/qt/peer.h"

namespace tallyvane {

/// Shows a month. A double click on a day, or Return on it, counts as DayDoubleClicked.
class CalendarPeer : public Peer<QCalendarWidget, CalendarControl> {
public:
    CalendarPeer(CalendarControl& calendar, QWidget* parent);

protected:
    void apply(Property property) override;
    void resizeEvent(QResizeEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void reachIntoParts();
    void choose();
    void setBoldDays();

    QTableView* days_ = nullptr; // null in a Qt that builds its calendar of other parts
};

} // namespace tallyvane

#include "platform/qt/qt_slow_work.h"

#include <QApplication>
#include <QLabel>
#include <QThread>

#include <algorithm>
#include <chrono>
#include <functional>
#include <future>
#include <system_error>
#include <thread>

#include "platform/qt/convert.h"
#include "platform/qt/event_guard.h"

namespace tallyvane {

namespace {

using namespace std::chrono_literals;

constexpr auto moment = 200ms; // nobody needs to be told of what is shorter
constexpr auto pause = 20ms; // between two looks at the windows

const std::future<void>* underWay = nullptr;

class UnderWay {
public:
    explicit UnderWay(const std::future<void>& work) { underWay = &work; }
    UnderWay(const UnderWay&) = delete;
    UnderWay& operator=(const UnderWay&) = delete;
    ~UnderWay() { underWay = nullptr; }
};

QWidget* windowInFront() {
    if (QWidget* const active = QApplication::activeWindow())
        return active;
    const QWidgetList windows = QApplication::topLevelWidgets(); // another program's is in front
    const auto visible = std::find_if(windows.begin(), windows.end(), [](const QWidget* w) { return w->isVisible(); });
    return visible == windows.end() ? nullptr : *visible;
}

/// A word over the window in front.
class Notice {
public:
    explicit Notice(const std::string& text) : label_(windowInFront()) {
        constexpr int margin = 24;
        label_.setWindowFlags(Qt::SplashScreen | Qt::FramelessWindowHint);
        label_.setAttribute(Qt::WA_ShowWithoutActivating);
        label_.setFrameShape(QFrame::StyledPanel);
        label_.setMargin(margin);
        label_.setText(toQt(text));
        label_.setWindowTitle(toQt(text));
        label_.adjustSize();
        if (const QWidget* front = label_.parentWidget())
            label_.move(front->frameGeometry().center() - label_.rect().center());
        label_.show();
        QApplication::setOverrideCursor(Qt::WaitCursor);
    }
    Notice(const Notice&) = delete;
    Notice& operator=(const Notice&) = delete;
    ~Notice() { QApplication::restoreOverrideCursor(); }

private:
    QLabel label_;
};

bool isDone(const std::future<void>& work, std::chrono::milliseconds wait) {
    return work.wait_for(wait) == std::future_status::ready;
}

} // namespace

void QtSlowWork::run(const std::string& notice, const std::function<void()>& work) {
    const bool isPartOfIt = QThread::currentThread() != QCoreApplication::instance()->thread();
    if (underWay != nullptr && !isPartOfIt)
        underWay->wait();
    if (underWay != nullptr || isPartOfIt) {
        work();
        return;
    }
    std::packaged_task<void()> task(work);
    std::future<void> result = task.get_future();
    const UnderWay held(result);
    std::jthread thread;
    try {
        thread = std::jthread(std::ref(task));
    } catch (const std::system_error&) { // no thread can be had
        task();
    }
    if (!isDone(result, moment)) {
        const UnaskedEventsHeld eventsHeld;
        const Notice shown(notice);
        while (!isDone(result, pause))
            QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents | QEventLoop::ExcludeSocketNotifiers);
    }
    result.get();
}

void QtSlowWork::finish() {
    if (underWay != nullptr)
        underWay->wait();
}

} // namespace tallyvane

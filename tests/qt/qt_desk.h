#pragma once

#include <QApplication>
#include <QCalendarWidget>
#include <QLabel>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QTabBar>
#include <QTest>
#include <QToolButton>

#include "diary/date_window.h"
#include "platform/qt/event_guard.h"
#include "platform/qt/listbox_peer.h"
#include "platform/qt/qt_toolkit.h"
#include "platform/qt/window_peer.h"
#include "shell/app.h"
#include "shell/new_version_window.h"
#include "support/test_desk.h"

namespace tallyvane {

/// The whole program on Qt, with the diary in front.
class QtDesk : public TestDesk {
protected:
    QtDesk() { Downloads::use(nullptr); }

    /// Starts on the files that the test has laid out and waits for nothing: the splash is over at once.
    void start() {
        app_ = std::make_unique<App>();
        setEventGuard([this](const std::function<void()>& event) { app_->run(event); });
        app_->Event_Open();
        app_->windows().splash->Timer1.fire();
        frame_ = frameTitled("Tallyvane");
        ASSERT_NE(frame_, nullptr);
        table_ = frame_->findChild<ListboxPeer*>();
        QApplication::setActiveWindow(frame_);
    }
    /// The same with these days in the diary; a line may lack fields, and its key.
    void startOn(const std::string& days) {
        write(applicationFile("7VXData"), asSaved(days));
        start();
    }
    void TearDown() override {
        others_.clear();
        app_.reset();
        setEventGuard(nullptr);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        TestDesk::TearDown();
    }

    /// The main window with two days, and every other window that it leads to.
    void openEveryWindow() {
        startOn("1/1/2026@#@5\n1/2/2026@#@7\n");
        list().select({true, true});
        Window1& window = *app_->windows().main;
        app_->FilePreferences_Action();
        app_->FileExportData_Action();
        app_->FileImportData_Action();
        app_->FileAboutBrindlemarks_Action();
        for (const auto& show : {window.showHeadingsEditor, window.showLogs, window.showTeamAndMedications,
                                 window.showResources, window.showGraph})
            show();
        others_.push_back(std::make_unique<DateWindow>(window, window.ListBox1));
        others_.push_back(std::make_unique<archiveWindow>());
        others_.push_back(std::make_unique<newVersionWindow>(window, "Tallyvane"));
        others_.push_back(std::make_unique<SplashWindow>());
        for (const auto& other : others_)
            other->Show();
    }

    static WindowFrame* frameTitled(const QString& title) {
        for (QWidget* widget : QApplication::topLevelWidgets())
            if (auto* frame = dynamic_cast<WindowFrame*>(widget);
                frame != nullptr && frame->isVisible() && frame->windowTitle() == title)
                return frame;
        return nullptr;
    }
    /// Parts of a calendar and the arrows beside tabs, with texts and keys of Qt's.
    static bool isWithinQt(const QWidget* widget) {
        for (const QWidget* parent = widget->parentWidget(); parent != nullptr; parent = parent->parentWidget())
            if (qobject_cast<const QCalendarWidget*>(parent) || qobject_cast<const QTabBar*>(parent))
                return true;
        return false;
    }
    /// The button with that text.
    template <class Button>
    static Button* button(QWidget* parent, const QString& text) {
        for (auto* found : parent->findChildren<Button*>())
            if (found->text() == text)
                return found;
        return nullptr;
    }
    /// Presses a button of the tool bar.
    void press(const char* text) { QTest::mouseClick(button<QToolButton>(frame_, text), Qt::LeftButton); }
    /// The second of two quick clicks.
    static void doubleClick(QWidget* widget, const QPoint& place) {
        QMouseEvent event(QEvent::MouseButtonDblClick, place, widget->mapToGlobal(QPointF(place)), Qt::LeftButton,
                          Qt::LeftButton, {});
        QApplication::sendEvent(widget, &event);
    }
    void click(int row, int column, Qt::KeyboardModifiers modifiers = {}) {
        table_->scrollTo(table_->model()->index(row, column));
        const QRect cell = table_->visualRect(table_->model()->index(row, column));
        QTest::mouseClick(table_->viewport(), Qt::LeftButton, modifiers, cell.center());
    }
    QAction* item(const char* name) { return frame_->findChild<QAction*>(name); }
    QPlainTextEdit* journal() { return frame_->findChild<QPlainTextEdit*>(); }
    /// The picture button with that tip.
    CanvasPeer* canvas(const char* tip) {
        for (auto* found : frame_->findChildren<CanvasPeer*>())
            if (found->toolTip() == tip)
                return found;
        return nullptr;
    }
    QLineEdit* editor() { return table_->findChild<CellEditor*>(); }
    Listbox& list() { return app_->windows().main->ListBox1; }

    QtToolkit qt_; // in use instead of the recording toolkit, but for the network
    std::unique_ptr<App> app_;
    std::vector<std::unique_ptr<Window>> others_;
    WindowFrame* frame_ = nullptr;
    ListboxPeer* table_ = nullptr;
};

} // namespace tallyvane

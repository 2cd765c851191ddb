#include "platform/qt/program.h"

#include <QApplication>
#include <QDir>
#include <QLocale>
#include <QRegularExpression>
#include <QSessionManager>
#include <QStandardPaths>

#include <cstdlib>
#include <utility>

#include "platform/base/number.h"
#include "platform/files/folder_item.h"
#include "platform/qt/convert.h"
#include "platform/qt/event_guard.h"
#include "platform/qt/font_scale.h"
#include "platform/qt/instance_channel.h"
#include "platform/qt/pictures.h"
#include "platform/qt/qt_slow_work.h"
#include "platform/qt/qt_toolkit.h"
#include "platform/qt/unix_signals.h"

namespace tallyvane {

namespace {

std::optional<FolderItem> folderAt(const QString& path) { return GetFolderItem(QFile::encodeName(path).toStdString()); }

/// The desktop's folders. That for application data is made on a new account that has none yet.
void setUpFolders() {
    const QString data = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    static_cast<void>(QDir().mkpath(data)); // without it the diary runs, and has nowhere to save
    SpecialFolder::ApplicationData = folderAt(data);
    SpecialFolder::UserHome = folderAt(QDir::homePath());
    const QString temporary = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    SpecialFolder::Temporary = temporary.isEmpty() ? std::nullopt : folderAt(temporary);
    const QString state = qEnvironmentVariable("XDG_STATE_HOME");
    const bool isUsable = QDir::isAbsolutePath(state); // the desktop's rules: any other value counts as none
    SpecialFolder::State = folderAt(isUsable ? state : QDir::home().filePath(QStringLiteral(".local/state")));
}

void setUpFormats() {
    TextSource::fold = [](std::string_view text) { return fromQt(toQt(text).toCaseFolded()); };
    const QLocale locale = QLocale::system();
    NumberSource::groupSeparator = fromQt(locale.groupSeparator());
    DateSource::setShortPattern(fromQt(locale.dateFormat(QLocale::ShortFormat)));
    // The long form of a time names its zone, which a moment on the wall clock does not have.
    const QRegularExpression timeZone(QStringLiteral(R"([,\s(\[]*t+[)\]]*)"));
    // What the long form of a date has besides month and day.
    const QRegularExpression weekday(QStringLiteral(R"([\s,]*dddd[\s,]*)"));
    const QRegularExpression year(QStringLiteral(R"((\s*'[^']*')?[\s,]*y+[^\sMd']*)"));
    const QString monthAndDay = locale.dateFormat().remove(weekday).remove(year).trimmed();
    DateSource::text = [locale, timeZone, monthAndDay](const Date& date, DateSource::Form form) {
        const QTime time(date.Hour(), date.Minute(), date.Second());
        switch (form) {
        case DateSource::Form::abbreviatedDate:
            return fromQt(locale.toString(toQt(date), locale.dateFormat()
                                                          .replace(QStringLiteral("dddd"), QStringLiteral("ddd"))
                                                          .replace(QStringLiteral("MMMM"), QStringLiteral("MMM"))));
        case DateSource::Form::longDate:
            return fromQt(locale.toString(toQt(date), QLocale::LongFormat));
        case DateSource::Form::monthAndDay:
            return fromQt(locale.toString(toQt(date), monthAndDay));
        case DateSource::Form::shortTime:
            return fromQt(locale.toString(time, QLocale::ShortFormat));
        case DateSource::Form::longTime:
            break;
        }
        return fromQt(locale.toString(time, locale.timeFormat().remove(timeZone).trimmed()));
    };
}

/// The program while its event loop runs. A lost display makes Qt end the process inside that loop by exit().
QtProgram* inEventLoop = nullptr;

void saveAtExit() {
    if (QtProgram* program = std::exchange(inEventLoop, nullptr)) {
        QtToolkit::uninstall();
        deliver(program->onDisplayLost);
    }
}

} // namespace

struct QtProgram::Parts {
    Parts(int& argc, char** argv, const Rect& largestWindow)
        : fontScale(argc, argv, {largestWindow.width, largestWindow.height}), application(argc, argv) {
        fontScale.apply();
    }

    FontScale fontScale;
    QApplication application;
    QtToolkit toolkit;
    InstanceChannel channel;
    std::unique_ptr<UnixSignals> unixSignals;
};

QtProgram::QtProgram(int& argc, char** argv, const Rect& largestWindow)
    : parts_(std::make_unique<Parts>(argc, argv, largestWindow)) {
    QApplication& application = parts_->application;
    QApplication::setApplicationName(QStringLiteral("Tallyvane"));
    QApplication::setDesktopFileName(QStringLiteral("tallyvane"));
    QApplication::setWindowIcon(loadPicture("vaneLogo128.png").icon);
    QApplication::setQuitOnLastWindowClosed(false);
    setUpFolders();
    setUpFormats();
    parts_->unixSignals =
        std::make_unique<UnixSignals>([this] { deliverUnasked(QCoreApplication::instance(), onEndRequested); });
    QObject::connect(&application, &QGuiApplication::applicationStateChanged, &application,
                     [this](Qt::ApplicationState state) {
                         if (state != Qt::ApplicationActive)
                             deliverUnasked(QCoreApplication::instance(), onDeactivate);
                     });
    QObject::connect(
        &application, &QGuiApplication::commitDataRequest, &application,
        [this](QSessionManager&) {
            QtSlowWork::finish(); // when this returns the session may end the program
            deliver(onEndRequested);
        },
        Qt::DirectConnection);
}

QtProgram::~QtProgram() { setEventGuard(nullptr); }

void QtProgram::guardEvents(std::function<void(const std::function<void()>& event)> guard) {
    setEventGuard(std::move(guard));
}

void QtProgram::listen() {
    parts_->channel.listen([this](const std::string& file) {
        deliverUnasked(QCoreApplication::instance(), [this, file] { onWake(file); });
    });
}

int QtProgram::run(const std::function<void()>& open) {
    deliver(open);
    if (!parts_->toolkit.desktop.quitAsked() && !Window::openWindows().empty()) {
        inEventLoop = this;
        static_cast<void>(std::atexit(saveAtExit)); // refused only when the memory is gone
        QApplication::exec();
        inEventLoop = nullptr;
    }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    return parts_->toolkit.desktop.quitAsked() ? parts_->toolkit.desktop.quitCode() : 1;
}

void QtProgram::wakeRunningProgram(const std::string& file) { parts_->channel.call(file); }

} // namespace tallyvane

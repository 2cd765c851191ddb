#include "platform/qt/qt_file_watches.h"

#include <QFile>
#include <QFileInfo>

#include <utility>

#include "platform/qt/event_guard.h"

namespace tallyvane {

QtFileWatch::QtFileWatch(const std::string& path, std::function<void()> changed)
    : path_(QFile::decodeName(QByteArray::fromStdString(path))) {
    constexpr int pauseMilliseconds = 300;
    pause_.setSingleShot(true);
    pause_.setInterval(pauseMilliseconds);
    QObject::connect(&watcher_, &QFileSystemWatcher::fileChanged, &pause_, [this] { pause_.start(); });
    QObject::connect(&watcher_, &QFileSystemWatcher::directoryChanged, &pause_, [this] { pause_.start(); });
    QObject::connect(&pause_, &QTimer::timeout, &pause_, [this, changed = std::move(changed)] {
        watch(); // a file that was replaced is watched no more
        deliverUnasked(&pause_, changed);
    });
    watch();
}

void QtFileWatch::watch() {
    if (QFileInfo::exists(path_))
        watcher_.addPath(path_);
    if (const QString folder = QFileInfo(path_).path(); QFileInfo::exists(folder))
        watcher_.addPath(folder);
}

std::unique_ptr<FileWatch> QtFileWatches::start(const std::string& path, std::function<void()> changed) {
    return std::make_unique<QtFileWatch>(path, std::move(changed));
}

} // namespace tallyvane

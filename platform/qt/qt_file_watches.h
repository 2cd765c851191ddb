#pragma once

#include <QFileSystemWatcher>
#include <QTimer>

#include <functional>
#include <memory>
#include <string>

#include "platform/files/file_watch.h"

namespace tallyvane {

/// Watches the file itself, which is written in place, and its folder, in which it is replaced.
class QtFileWatch : public FileWatch {
public:
    QtFileWatch(const std::string& path, std::function<void()> changed);

private:
    void watch();

    QString path_;
    QFileSystemWatcher watcher_;
    QTimer pause_; // several changes in a row are told once
};

class QtFileWatches : public FileWatches {
public:
    [[nodiscard]] std::unique_ptr<FileWatch> start(const std::string& path, std::function<void()> changed) override;
};

} // namespace tallyvane

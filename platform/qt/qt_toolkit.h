#pragma once

#include "platform/qt/http_download.h"
#include "platform/qt/qt_bitmap.h"
#include "platform/qt/qt_desktop.h"
#include "platform/qt/qt_file_dialogs.h"
#include "platform/qt/qt_file_watches.h"
#include "platform/qt/qt_printers.h"
#include "platform/qt/qt_slow_work.h"
#include "platform/qt/qt_window_system.h"

namespace tallyvane {

/// The Qt implementation of every service, installed while this object lives. Make it after the QApplication and
/// destroy it before.
class QtToolkit {
public:
    QtToolkit();
    QtToolkit(const QtToolkit&) = delete;
    QtToolkit& operator=(const QtToolkit&) = delete;
    ~QtToolkit() { uninstall(); }

    /// From here on the program works unseen.
    static void uninstall();

    QtDesktop desktop;
    QtBitmaps bitmaps;
    QtFileDialogs fileDialogs;
    QtFileWatches fileWatches;
    QtPrinters printers;
    QtSlowWork slowWork;
    HttpDownloads downloads;
    QtWindowSystem windowSystem;
};

} // namespace tallyvane

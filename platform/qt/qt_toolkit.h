#pragma once

#include "platform/qt/http_download.h"
#include "platform/qt/qt_bitmap.h"
#include "platform/qt/qt_desktop.h"
#include "platform/qt/qt_file_dialogs.h"
#include "platform/qt/qt_printers.h"
#include "platform/qt/qt_window_system.h"

namespace tallyvane {

/// Every service of the desktop by Qt. They are in use as long as this lives, which lies within the life of a
/// QApplication.
class QtToolkit {
public:
    QtToolkit();
    QtToolkit(const QtToolkit&) = delete;
    QtToolkit& operator=(const QtToolkit&) = delete;
    ~QtToolkit() { takeOutOfUse(); }

    /// From here on the program works unseen.
    static void takeOutOfUse();

    QtDesktop desktop;
    QtBitmaps bitmaps;
    QtFileDialogs fileDialogs;
    QtPrinters printers;
    HttpDownloads downloads;
    QtWindowSystem windowSystem;
};

} // namespace tallyvane

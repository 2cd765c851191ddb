#include "platform/qt/qt_toolkit.h"

#include "platform/qt/canvas_accessible.h"

namespace tallyvane {

QtToolkit::QtToolkit() {
    installCanvasAccessibility();
    Desktop::use(&desktop);
    Bitmaps::use(&bitmaps);
    FileDialogs::use(&fileDialogs);
    FileWatches::use(&fileWatches);
    Printers::use(&printers);
    SlowWork::use(&slowWork);
    Downloads::use(&downloads);
    WindowSystem::use(&windowSystem);
}

void QtToolkit::uninstall() {
    QtSlowWork::finish();
    Desktop::use(nullptr);
    Bitmaps::use(nullptr);
    FileDialogs::use(nullptr);
    FileWatches::use(nullptr);
    Printers::use(nullptr);
    SlowWork::use(nullptr);
    Downloads::use(nullptr);
    WindowSystem::use(nullptr);
}

} // namespace tallyvane

#include "platform/qt/program.h"
#include "shell/app.h"

using namespace tallyvane;

/// Joins the application and the toolkit, and runs until the main window is closed.
int main(int argc, char** argv) {
    // As wide as the editor of headings, as high as the main window, with frames, menus and toolbar.
    constexpr Rect largestWindow{0, 0, 930, 660};
    QtProgram program(argc, argv, largestWindow);
    App app;
    program.guardEvents([&app](const std::function<void()>& event) { app.run(event); });
    program.onDeactivate = [&app] { app.Event_Deactivate(); };
    program.onEndRequested = [&app] { app.FileQuit_Action(); };
    program.onDisplayLost = [&app] { app.Event_DisplayLost(); };
    program.onWake = [&app] { app.comeToFront(); };
    app.wakeRunningProgram = [&program] { program.wakeRunningProgram(); };

    const int code = program.run([&app] { app.Event_Open(); });
    app.run([&app] { app.Event_Close(); });
    return code;
}

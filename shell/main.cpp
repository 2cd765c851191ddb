#include <iostream>

#include "platform/files/system_files.h"
#include "platform/qt/program.h"
#include "shell/app.h"
#include "shell/command_line.h"

using namespace tallyvane;

namespace {

int refuse(const CommandLine& commandLine) {
    constexpr int wrongUse = 2;
    std::cerr << commandLine.error << '\n';
    return wrongUse;
}

} // namespace

/// Joins the application and the toolkit, and runs until the main window is closed.
int main(int argc, char** argv) {
    // Answered first, since the toolkit does not start on a machine without a display.
    const CommandLine early = CommandLine::beforeToolkit({argv + 1, argv + argc});
    if (!early.error.empty())
        return refuse(early);
    if (early.help || early.version) {
        std::cout << (early.help ? CommandLine::helpText() : CommandLine::versionText());
        return 0;
    }
    SystemFiles::hideMemory();
    // As wide as the editor of headings and the summary, as high as the main window, with frames, menus and toolbar.
    constexpr Rect largestWindow{0, 0, 930, 660};
    QtProgram program(argc, argv, largestWindow);
    const CommandLine commandLine({argv + 1, argv + argc}); // without the toolkit's own options
    if (!commandLine.error.empty())
        return refuse(commandLine);
    App app;
    program.guardEvents([&app](const std::function<void()>& event) { app.run(event); });
    program.onDeactivate = [&app] { app.Event_Deactivate(); };
    program.onEndRequested = [&app] { app.Event_EndRequested(); };
    program.onDisplayLost = [&app] { app.Event_DisplayLost(); };
    program.onWake = [&app](const std::string& file) {
        app.comeToFront();
        app.offerForImport(file);
    };
    app.listenForSecondStart = [&program] { program.listen(); };
    app.wakeRunningProgram = [&] { program.wakeRunningProgram(commandLine.file); };
    app.offerForImport(commandLine.file);

    const int code = program.run([&app] { app.Event_Open(); });
    app.run([&app] { app.Event_Close(); });
    return code;
}

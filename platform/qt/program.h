#pragma once

#include <functional>
#include <memory>
#include <string>

#include "platform/drawing/geometry.h"

namespace tallyvane {

/// The process on Qt: event loop, folders and date formats of the desktop, signals, and messages from a second
/// instance. This header includes no Qt header, so that shell/ compiles without Qt.
class QtProgram {
public:
    /// The size of the largest window, in points: on a desktop of large letters the windows grow as far as it fits.
    QtProgram(int& argc, char** argv, const Rect& largestWindow);
    QtProgram(const QtProgram&) = delete;
    QtProgram& operator=(const QtProgram&) = delete;
    ~QtProgram();

    /// Has each event run by the application's catch-all, until the program goes.
    void guardEvents(std::function<void(const std::function<void()>& event)> guard);

    /// The program has lost the focus to another.
    std::function<void()> onDeactivate;
    /// A signal or the end of the desktop session asks the program to end.
    std::function<void()> onEndRequested;
    /// The display has gone under the program, which ends now; there is nobody left to ask or to tell.
    std::function<void()> onDisplayLost;
    /// A second start asks for the front, and hands over the file that it was called with; "" for none.
    std::function<void(const std::string& file)> onWake;

    /// From here on a second start is heard. Only for the program that holds the application's folder.
    void listen();
    /// Raises `open`, then all events until Quit. The exit code.
    int run(const std::function<void()>& open);
    /// Calls the program that runs already.
    void wakeRunningProgram(const std::string& file);

private:
    struct Parts;

    std::unique_ptr<Parts> parts_;
};

} // namespace tallyvane

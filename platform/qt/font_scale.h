#pragma once

#include <QSize>

#include <string>
#include <vector>

namespace tallyvane {

/// Scales all windows up when the desktop's font is larger than the one they are laid out for, so that tables, pictures
/// and letters grow alike and nothing is clipped.
///
/// Qt reads the scale factor of a process only from the environment, before the desktop's font is known. So a process
/// that finds a large font sets QT_SCALE_FACTOR and executes itself again with execv.
class FontScale {
public:
    /// How much the windows grow for letters of so many points; 1 for not at all. The largest window still fits into
    /// the room of the screen: beyond that the letters stay smaller than the desktop asks for.
    static double of(double points, QSize largestWindow, QSize room);

    /// Before the application, which takes arguments of its own out of the list.
    FontScale(int argc, char** argv, QSize largestWindow)
        : arguments_(argv, argv + argc), largestWindow_(largestWindow) {}

    /// Once, with the application there and no window yet. Does not return where the process starts anew.
    void apply();

private:
    void restart(double scale);

    std::vector<std::string> arguments_;
    QSize largestWindow_;
};

} // namespace tallyvane

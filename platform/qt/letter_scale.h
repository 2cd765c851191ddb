#pragma once

#include <QSize>

#include <string>
#include <vector>

namespace tallyvane {

/// Letters that are larger than the windows are laid out for. The windows grow with them as a whole, tables, lights
/// and graphs included, so that nothing is clipped and all keeps its proportions.
///
/// Qt takes the scale of a process from the environment alone, before it knows the desktop's font. So a process that
/// finds large letters starts itself anew, in its own place, with the scale that they ask for.
class LetterScale {
public:
    /// How much the windows grow for letters of so many points; 1 for not at all. The largest window still fits into
    /// the room of the screen: beyond that the letters stay smaller than the desktop asks for.
    static double of(double points, QSize largestWindow, QSize room);

    /// Before the application, which takes arguments of its own out of the list.
    LetterScale(int argc, char** argv, QSize largestWindow)
        : arguments_(argv, argv + argc), largestWindow_(largestWindow) {}

    /// Once, with the application there and no window yet. Does not return where the process starts anew.
    void settle();

private:
    void startAnew(double scale);

    std::vector<std::string> arguments_;
    QSize largestWindow_;
};

} // namespace tallyvane

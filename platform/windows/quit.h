/// The end of the program.
#pragma once

#include <functional>

namespace tallyvane {

/// Closes every window that is still open and ends the program. A window that could not be saved does not keep it from
/// ending: what it had to save is settled by `beforeEnd`.
void Quit(int code);

/// Called by Quit when all windows have been closed, with the exit code; gives the code to end with. The shell sets it.
inline std::function<int(int code)> beforeEnd;

} // namespace tallyvane

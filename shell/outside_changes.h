#pragma once

#include <memory>
#include <string>
#include <vector>

#include "diary/window1.h"
#include "platform/files/file_watch.h"

namespace tallyvane {

/// Sees what other programs do to the file of the days while the main window is open, and has it brought in.
class OutsideChanges {
public:
    /// The window must outlive this.
    explicit OutsideChanges(Window1& window) : window_(window) {}

    /// Looks once, and then whenever the file or its folder changes.
    void watch();

private:
    void look();
    void bringIn();
    void offerConflictCopy();

    Window1& window_;
    std::unique_ptr<FileWatch> watch_; // null where files can't be watched
    bool isAsking_ = false;
    std::vector<std::string> copiesLeft_; // in conflict, which the user does not want now
};

} // namespace tallyvane

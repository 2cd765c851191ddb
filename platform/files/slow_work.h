#pragma once

#include <functional>
#include <string>

#include "platform/base/service.h"

namespace tallyvane {

/// Work that may take long, such as a save into a folder of the network that answers late.
class SlowWork : public Service<SlowWork> {
public:
    /// Does the work and returns when it is done; what it throws is thrown here. Where that takes longer than a moment
    /// the windows stay alive and `notice` is shown ("Saving..."): they are drawn, what the user types and clicks
    /// waits, and so do timers. The work must not touch a control.
    virtual void run(const std::string& /*notice*/, const std::function<void()>& work) { work(); }
};

} // namespace tallyvane

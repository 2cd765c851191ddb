#pragma once

#include "platform/files/slow_work.h"

namespace tallyvane {

/// Does the work in a thread of its own, and waits for it.
class QtSlowWork : public SlowWork {
public:
    void run(const std::string& notice, const std::function<void()>& work) override;

    /// Waits for work that is under way while the process ends.
    static void finish();
};

} // namespace tallyvane

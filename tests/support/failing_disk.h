#pragma once

#include <cstddef>

#include "support/disk_calls.h"

namespace tallyvane {

/// Makes the disk fail as long as this object lives.
class FailingDisk {
public:
    using Call = DiskCall::Kind;

    /// That call fails with "no space left". A write fails after so many bytes in all; with `once`, what comes after
    /// the first failure works again.
    explicit FailingDisk(Call call, std::size_t afterBytes = 0, bool once = true);
    FailingDisk(const FailingDisk&) = delete;
    FailingDisk& operator=(const FailingDisk&) = delete;
    ~FailingDisk();

    /// Whether a failure has taken place.
    bool hasFailed() const { return hasFailed_; }

private:
    std::size_t allowance(Call call, std::size_t bytes);

    Call call_;
    std::size_t bytesLeft_;
    bool once_;
    bool hasFailed_ = false;
};

} // namespace tallyvane

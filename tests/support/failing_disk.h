#pragma once

#include <cstddef>

namespace tallyvane {

/// Makes the disk fail as long as this object lives, by replacing the C library's functions for these system calls.
class FailingDisk {
public:
    enum class Call { reserve, write, cut, flush };

    /// That call fails with "no space left". A write fails after so many bytes in all; with `once`, what comes after
    /// the first failure works again.
    explicit FailingDisk(Call call, std::size_t afterBytes = 0, bool once = true);
    FailingDisk(const FailingDisk&) = delete;
    FailingDisk& operator=(const FailingDisk&) = delete;
    ~FailingDisk();

    /// Whether a failure has taken place.
    bool hasFailed() const;
};

} // namespace tallyvane

/// The calls by which files and folders change, on their way to the system: each test program has the C library's
/// functions for them replaced.
#pragma once

#include <cstddef>
#include <functional>
#include <string>

namespace tallyvane {

struct DiskCall {
    enum class Kind { make, makeFolder, reserve, write, cut, flush, failedFlush, move, remove };

    Kind kind{};
    std::string path;
    std::string to; // of a move
    std::size_t place = 0; // of a write, or where a file is cut
    std::string bytes; // of a write
};

namespace DiskCalls {

/// How many of so many bytes the call may take; 0 lets it fail with "no space left", also one without bytes.
extern std::function<std::size_t(DiskCall::Kind kind, std::size_t bytes)> allowance;
/// Hears of each call that has succeeded, and of flushes that have failed.
extern std::function<void(const DiskCall& call)> done;
/// Leaves flushes out, where nobody pulls a plug.
extern bool skipsFlushes;

} // namespace DiskCalls
} // namespace tallyvane

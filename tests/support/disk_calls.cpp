#include "support/disk_calls.h"

#include <algorithm>
#include <cerrno>
#include <cstdarg>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <array>

namespace tallyvane::DiskCalls {

std::function<std::size_t(DiskCall::Kind kind, std::size_t bytes)> allowance;
std::function<void(const DiskCall& call)> done;
bool skipsFlushes = false;

namespace {

/// False, with the error set, when the call is to fail.
bool isAllowed(DiskCall::Kind kind) {
    if (!allowance || allowance(kind, 1) > 0)
        return true;
    errno = ENOSPC;
    return false;
}

std::string pathOf(int file) {
    std::array<char, 4096> path{};
    const std::string link = "/proc/self/fd/" + std::to_string(file);
    const ssize_t length = ::readlink(link.c_str(), path.data(), path.size());
    return {path.data(), static_cast<std::size_t>(std::max<ssize_t>(length, 0))};
}

/// Tells of a call that has succeeded; hands its result on.
int told(long result, const std::function<DiskCall()>& call) {
    if (result == 0 && done)
        done(call());
    return static_cast<int>(result);
}

} // namespace
} // namespace tallyvane::DiskCalls

extern "C" {

using tallyvane::DiskCall;
using namespace tallyvane::DiskCalls;

int open(const char* path, int flags, ...) {
    std::va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = va_arg(arguments, mode_t);
    va_end(arguments);
    const auto file = static_cast<int>(::syscall(SYS_openat, AT_FDCWD, path, flags, mode));
    if (file >= 0 && (flags & O_EXCL) != 0 && done)
        done({DiskCall::Kind::make, path, {}, 0, {}});
    return file;
}

int mkdir(const char* path, mode_t mode) noexcept {
    return told(::syscall(SYS_mkdirat, AT_FDCWD, path, mode), [&] {
        return DiskCall{DiskCall::Kind::makeFolder, path, {}, 0, {}};
    });
}

ssize_t pwrite(int file, const void* bytes, std::size_t count, off_t place) {
    const std::size_t allowed = allowance ? allowance(DiskCall::Kind::write, count) : count;
    if (allowed == 0 && count > 0) {
        errno = ENOSPC;
        return -1;
    }
    const ssize_t written = ::syscall(SYS_pwrite64, file, bytes, allowed, place);
    if (written > 0 && done)
        done({DiskCall::Kind::write,
              pathOf(file),
              {},
              static_cast<std::size_t>(place),
              {static_cast<const char*>(bytes), static_cast<std::size_t>(written)}});
    return written;
}

int fallocate(int file, int mode, off_t place, off_t size) {
    return isAllowed(DiskCall::Kind::reserve) ? static_cast<int>(::syscall(SYS_fallocate, file, mode, place, size))
                                              : -1;
}

int ftruncate(int file, off_t size) noexcept {
    if (!isAllowed(DiskCall::Kind::cut))
        return -1;
    return told(::syscall(SYS_ftruncate, file, size), [&] {
        return DiskCall{DiskCall::Kind::cut, pathOf(file), {}, static_cast<std::size_t>(size), {}};
    });
}

int fsync(int file) {
    if (!isAllowed(DiskCall::Kind::flush)) {
        if (done)
            done({DiskCall::Kind::failedFlush, pathOf(file), {}, 0, {}});
        errno = ENOSPC;
        return -1;
    }
    return told(skipsFlushes ? 0 : ::syscall(SYS_fsync, file), [&] {
        return DiskCall{DiskCall::Kind::flush, pathOf(file), {}, 0, {}};
    });
}

int rename(const char* from, const char* to) noexcept {
    return told(::syscall(SYS_renameat2, AT_FDCWD, from, AT_FDCWD, to, 0), [&] {
        return DiskCall{DiskCall::Kind::move, from, to, 0, {}};
    });
}

int renameat2(int fromFolder, const char* from, int toFolder, const char* to, unsigned flags) noexcept {
    return told(::syscall(SYS_renameat2, fromFolder, from, toFolder, to, flags), [&] {
        return DiskCall{DiskCall::Kind::move, from, to, 0, {}};
    });
}

int unlink(const char* path) noexcept {
    return told(::syscall(SYS_unlinkat, AT_FDCWD, path, 0), [&] {
        return DiskCall{DiskCall::Kind::remove, path, {}, 0, {}};
    });
}
}

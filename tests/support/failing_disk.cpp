#include "support/failing_disk.h"

#include <cerrno>
#include <sys/mman.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <algorithm>
#include <new>

namespace tallyvane {

namespace {

struct Fault {
    bool isSet = false;
    FailingDisk::Call call{};
    std::size_t bytesLeft = 0;
    bool once = false;
    bool failed = false;
};

/// In memory that the writer of a save shares.
Fault& fault = *new (::mmap(nullptr, sizeof(Fault), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0)) Fault;

/// Whether the call is to fail now.
bool strikes(FailingDisk::Call call) {
    if (!fault.isSet || fault.call != call || (fault.once && fault.failed) || fault.bytesLeft > 0)
        return false;
    fault.failed = true;
    errno = ENOSPC;
    return true;
}

/// Bytes of a write that the disk still takes.
std::size_t taken(std::size_t count) {
    if (!fault.isSet || fault.call != FailingDisk::Call::write || fault.failed)
        return count;
    const std::size_t part = std::min(count, fault.bytesLeft);
    fault.bytesLeft -= part;
    return part;
}

} // namespace

FailingDisk::FailingDisk(Call call, std::size_t afterBytes, bool once) { fault = Fault{true, call, afterBytes, once}; }

FailingDisk::~FailingDisk() { fault.isSet = false; }

bool FailingDisk::hasFailed() const { return fault.failed; }

} // namespace tallyvane

// The calls of the C library that the file layer uses.
extern "C" {

ssize_t pwrite(int file, const void* bytes, std::size_t count, off_t place) {
    using tallyvane::FailingDisk;
    if (tallyvane::strikes(FailingDisk::Call::write))
        return -1;
    return ::syscall(SYS_pwrite64, file, bytes, tallyvane::taken(count), place);
}

int fallocate(int file, int mode, off_t place, off_t size) {
    if (tallyvane::strikes(tallyvane::FailingDisk::Call::reserve))
        return -1;
    return static_cast<int>(::syscall(SYS_fallocate, file, mode, place, size));
}

int ftruncate(int file, off_t size) noexcept {
    if (tallyvane::strikes(tallyvane::FailingDisk::Call::cut))
        return -1;
    return static_cast<int>(::syscall(SYS_ftruncate, file, size));
}

int fsync(int file) {
    if (tallyvane::strikes(tallyvane::FailingDisk::Call::flush))
        return -1;
    return static_cast<int>(::syscall(SYS_fsync, file));
}
}

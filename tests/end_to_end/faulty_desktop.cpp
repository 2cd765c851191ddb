/// Preloaded into the program, it makes disk and clock misbehave while it runs. What is wrong stands as words in the
/// file that FAULTS names: "full" (no room for what grows), "broken" (the second
/// half of a write into the table fails), "stop" (it never comes), "read-only", "slow" (the table takes three seconds
/// to reach its disk), and "clock" with the seconds by which the clock is off.
#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <fcntl.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

/// The line that follows the word in the file; null when the word is not there.
const char* fault(const char* word) {
    static thread_local char text[256];
    const char* path = std::getenv("FAULTS");
    const long file = path == nullptr ? -1 : ::syscall(SYS_openat, AT_FDCWD, path, O_RDONLY | O_CLOEXEC);
    if (file < 0)
        return nullptr;
    const long size = ::syscall(SYS_read, file, text, sizeof text - 1);
    ::syscall(SYS_close, file);
    text[size > 0 ? size : 0] = '\0';
    const char* found = std::strstr(text, word);
    return found == nullptr ? nullptr : found + std::strlen(word);
}

bool isOfTheDiary(const char* path) { return std::strstr(path, "/Tallyvane") != nullptr; }

/// Not the record of a save.
bool isTheTable(int file) {
    char path[512] = {};
    char link[64] = {};
    std::snprintf(link, sizeof link, "/proc/self/fd/%d", file);
    return ::readlink(link, path, sizeof path - 1) > 0 && std::strstr(path, "/7VXData") != nullptr;
}

} // namespace

extern "C" {

int open(const char* path, int flags, ...) {
    std::va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = va_arg(arguments, mode_t);
    va_end(arguments);
    const bool writes = (flags & (O_WRONLY | O_RDWR | O_CREAT)) != 0;
    if (writes && isOfTheDiary(path) && fault("read-only") != nullptr) {
        errno = EROFS;
        return -1;
    }
    return static_cast<int>(::syscall(SYS_openat, AT_FDCWD, path, flags, mode));
}

int fallocate(int file, int mode, off_t place, off_t size) {
    if (fault("full") != nullptr) {
        errno = ENOSPC;
        return -1;
    }
    return static_cast<int>(::syscall(SYS_fallocate, file, mode, place, size));
}

ssize_t pwrite(int file, const void* bytes, std::size_t count, off_t place) {
    const bool breaks = fault("broken") != nullptr;
    const bool stops = fault("stop") != nullptr;
    if ((!breaks && !stops) || !isTheTable(file))
        return ::syscall(SYS_pwrite64, file, bytes, count, place);
    static int calls = 0; // of one save: its first half, its second, and what puts the old bytes back
    calls = calls % 3 + 1;
    if (calls == 2 && stops)
        ::pause();
    if (calls == 2) {
        errno = EIO;
        return -1;
    }
    return ::syscall(SYS_pwrite64, file, bytes, calls == 1 && count > 1 ? count / 2 : count, place);
}

int fsync(int file) {
    constexpr unsigned seconds = 3;
    if (fault("slow") != nullptr && isTheTable(file))
        ::sleep(seconds);
    return static_cast<int>(::syscall(SYS_fsync, file));
}

int clock_gettime(clockid_t clock, timespec* time) noexcept {
    const int result = static_cast<int>(::syscall(SYS_clock_gettime, clock, time));
    if (clock == CLOCK_REALTIME)
        if (const char* seconds = fault("clock"))
            time->tv_sec += std::atol(seconds);
    return result;
}

time_t time(time_t* result) noexcept {
    timespec now{};
    clock_gettime(CLOCK_REALTIME, &now);
    if (result != nullptr)
        *result = now.tv_sec;
    return now.tv_sec;
}
}

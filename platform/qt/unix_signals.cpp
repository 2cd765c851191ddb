#include "platform/qt/unix_signals.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <sys/socket.h>
#include <unistd.h>

namespace tallyvane {

namespace {

// A signal handler may do no more than write to a socket; the event loop reads the other end.
std::array<int, 2> ends{-1, -1};

void passOn(int /*signal*/) {
    const int before = errno;
    const char byte = 1;
    [[maybe_unused]] const ssize_t written = ::write(ends[0], &byte, 1);
    errno = before;
}

void setHandler(void (*handler)(int)) {
    struct sigaction action {};
    action.sa_handler = handler;
    action.sa_flags = SA_RESTART;
    for (const int signal : {SIGTERM, SIGINT, SIGHUP})
        ::sigaction(signal, &action, nullptr);
}

} // namespace

UnixSignals::UnixSignals(std::function<void()> onEnd) {
    if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0, ends.data()) != 0)
        return;
    notifier_ = std::make_unique<QSocketNotifier>(ends[1], QSocketNotifier::Read);
    QObject::connect(notifier_.get(), &QSocketNotifier::activated, notifier_.get(), [onEnd = std::move(onEnd)] {
        char byte = 0;
        while (::read(ends[1], &byte, 1) > 0) {
        }
        onEnd();
    });
    setHandler(passOn);
}

UnixSignals::~UnixSignals() {
    setHandler(SIG_DFL);
    notifier_.reset();
    for (const int end : ends)
        ::close(end);
}

} // namespace tallyvane

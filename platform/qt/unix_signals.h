#pragma once

#include <QSocketNotifier>

#include <functional>
#include <memory>

namespace tallyvane {

/// Turns SIGTERM, SIGINT and SIGHUP into a call on the event thread.
class UnixSignals {
public:
    explicit UnixSignals(std::function<void()> onEnd);
    UnixSignals(const UnixSignals&) = delete;
    UnixSignals& operator=(const UnixSignals&) = delete;
    ~UnixSignals();

private:
    std::unique_ptr<QSocketNotifier> notifier_;
};

} // namespace tallyvane

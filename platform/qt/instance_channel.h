#pragma once

#include <QLocalServer>

#include <functional>
#include <memory>
#include <string>

namespace tallyvane {

/// The line between a running program and a second start of it by the same user on the same data.
class InstanceChannel {
public:
    /// Whenever a second start calls, `onCall` is raised with what it says. Only for the program that holds the
    /// application's folder.
    void listen(std::function<void(const std::string& message)> onCall);
    /// Calls the running program; returns when it has been reached, or can't be.
    void call(const std::string& message);

private:
    std::unique_ptr<QLocalServer> server_;
};

} // namespace tallyvane

#pragma once

#include <QLocalServer>

#include <functional>
#include <memory>
#include <string>

namespace tallyvane {

/// Sends a message from a second instance of the program to the running one of the same user and data.
class InstanceChannel {
public:
    /// Whenever a second start calls, `onCall` is raised with what it says. Only for the program that holds the
    /// application's folder.
    void listen(std::function<void(const std::string& message)> onCall);
    /// Sends a message to the running instance. Gives up silently when it can't be reached; waits 4 seconds at most.
    void call(const std::string& message);

private:
    std::unique_ptr<QLocalServer> server_;
};

} // namespace tallyvane

#pragma once

#include <stdexcept>
#include <string>
#include <utility>

namespace tallyvane {

/// A file or folder could not be made, opened, read or written.
class IOException : public std::runtime_error {
public:
    /// `why` is for the user, such as "No space left on device"; `what` names the path too.
    explicit IOException(const std::string& what, std::string why = "")
        : std::runtime_error(why.empty() ? what : what + ": " + why), why_(std::move(why)) {}

    const std::string& why() const { return why_; }

private:
    std::string why_;
};

} // namespace tallyvane

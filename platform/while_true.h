#pragma once

namespace tallyvane {

/// Holds a flag up for as long as it lives, however its block ends.
class WhileTrue {
public:
    explicit WhileTrue(bool& flag) : flag_(flag) { flag_ = true; }
    WhileTrue(const WhileTrue&) = delete;
    WhileTrue& operator=(const WhileTrue&) = delete;
    ~WhileTrue() { flag_ = false; }

private:
    bool& flag_;
};

} // namespace tallyvane

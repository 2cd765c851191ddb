#pragma once

namespace tallyvane {

/// Sets a flag to true, and to false again on destruction, also after an exception.
class ScopedFlag {
public:
    explicit ScopedFlag(bool& flag) : flag_(flag) { flag_ = true; }
    ScopedFlag(const ScopedFlag&) = delete;
    ScopedFlag& operator=(const ScopedFlag&) = delete;
    ~ScopedFlag() { flag_ = false; }

private:
    bool& flag_;
};

} // namespace tallyvane

#pragma once

#include <random>

namespace tallyvane {

/// Numbers that nobody can foretell.
class Random {
public:
    /// A whole number from a to b, both included; a is not above b.
    int InRange(int a, int b) { return std::uniform_int_distribution(a, b)(source_); }

private:
    std::random_device source_;
};

} // namespace tallyvane

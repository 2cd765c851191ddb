#pragma once

#include <string>

namespace tallyvane {

/// Makes the text of a tick label from its value, for an axis whose labels no other way can make.
class GTCustomTickFormatter {
public:
    virtual ~GTCustomTickFormatter() = default;
    virtual std::string format(double value) = 0;
};

} // namespace tallyvane

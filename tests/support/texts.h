#pragma once

#include <string>
#include <vector>

namespace tallyvane {

using Texts = std::vector<std::string>;

} // namespace tallyvane

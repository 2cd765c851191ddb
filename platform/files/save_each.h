#pragma once

#include <functional>
#include <initializer_list>

namespace tallyvane {

/// Runs every save even if some throw IOException, then rethrows the first one.
void saveEach(std::initializer_list<std::function<void()>> saves);

} // namespace tallyvane

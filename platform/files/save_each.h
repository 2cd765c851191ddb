#pragma once

#include <functional>
#include <initializer_list>

namespace tallyvane {

/// Makes several saves. What fails one does not cost the others; the first IOException is thrown at the end.
void saveEach(std::initializer_list<std::function<void()>> saves);

} // namespace tallyvane

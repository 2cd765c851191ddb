#pragma once

#include <string>
#include <vector>

#include "platform/listbox.h"

namespace tallyvane {

using Texts = std::vector<std::string>;

/// The texts of a column from the first row on.
inline Texts columnOf(const Listbox& list, int column) {
    Texts cells;
    for (int row = 0; row < list.ListCount(); ++row)
        cells.push_back(list.Cell(row, column));
    return cells;
}

} // namespace tallyvane

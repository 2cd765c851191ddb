#pragma once

#include "platform/controls/listbox.h"
#include "support/texts.h"

namespace tallyvane {

/// The texts of a column from the first row on.
inline Texts columnOf(const Listbox& list, int column) {
    Texts cells;
    for (int row = 0; row < list.ListCount(); ++row)
        cells.push_back(list.Cell(row, column));
    return cells;
}

} // namespace tallyvane

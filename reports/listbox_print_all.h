#pragma once

#include <vector>

#include "platform/controls/listbox.h"
#include "platform/printing/printing.h"

namespace tallyvane {

/// Prints any list as the screen shows it: headings on every page, columns at their widths and alignments, the styles
/// of its cells, every other row shaded, lines between the columns.
class ListboxPrintAll {
public:
    /// Prints after the page set-up and the print dialog; nothing when one of them is cancelled. With `fitToPage` the
    /// widths of the columns, and they alone, are scaled to fill the page.
    void print(const Listbox& list, bool fitToPage);

    Color lineColor = RGB(221, 221, 221);
    Color TextColor = RGB(0, 0, 0);
    Color backColor = RGB(245, 245, 245);

private:
    /// Draws the headings of the columns from `firstColumn`, puts the left edge of each column in `columnLefts`, and
    /// gives the height of it all. A list without headings has edges and no height.
    int printHeaders(int firstColumn, Graphics& g, float scale, std::vector<int>& columnLefts) const;
    /// Draws a cell, and gives the height that it needs in `height`; of a column without width nothing and no height.
    void printCell(int row, int column, Graphics& g, int x, int y, int width, int& height) const;
    void drawColumnLines(Graphics& g, const std::vector<int>& columnLefts) const;
    int widthOf(int column, float scale) const;

    const Listbox* source = nullptr; // the list that is being printed
};

} // namespace tallyvane

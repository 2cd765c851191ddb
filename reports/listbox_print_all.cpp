#include "reports/listbox_print_all.h"

#include <algorithm>

#include "platform/drawing/wrapped_text.h"

namespace tallyvane {

namespace {

constexpr int cellMargin = 3;

void setFont(Graphics& g, const Listbox& list) {
    g.TextFont(list.TextFont());
    g.TextSize(list.TextSize());
}

int heightOf(const Graphics& g, const std::string& text, int width) {
    return std::max(static_cast<int>(StringHeight(g, text, width)), static_cast<int>(g.TextHeight()));
}

} // namespace

int ListboxPrintAll::widthOf(int column, float scale) const {
    return static_cast<int>(static_cast<float>(source->WidthActual(column)) * scale);
}

void ListboxPrintAll::print(const Listbox& list, bool fitToPage) {
    source = &list;
    PrinterSetup setup;
    const std::unique_ptr<Graphics> g = askForPages(setup);
    if (!g)
        return;
    g->shrinkToFit(setup.Width(), setup.Height()); // the user can choose other paper in the print dialog
    int widths = 0;
    for (int column = 0; column < list.ColumnCount(); ++column)
        widths += list.WidthActual(column);
    const float scale = fitToPage && widths > 0 ? static_cast<float>(setup.Width()) / static_cast<float>(widths) : 1.0F;

    std::vector<int> columnLefts;
    int y = printHeaders(0, *g, scale, columnLefts) + cellMargin;
    for (int row = 0; row < list.ListCount(); ++row) {
        int rowHeight = 0;
        for (int column = 0; column < list.ColumnCount(); ++column) {
            int height = 0;
            printCell(row, column, *g, columnLefts[static_cast<std::size_t>(column)], y, widthOf(column, scale),
                      height);
            rowHeight = std::max(rowHeight, height);
        }
        y += rowHeight + 2;
        if (y + g->TextAscent() > setup.Height()) {
            drawColumnLines(*g, columnLefts);
            g->NextPage();
            y = printHeaders(0, *g, scale, columnLefts) + cellMargin;
        }
    }
    drawColumnLines(*g, columnLefts);
}

void ListboxPrintAll::drawColumnLines(Graphics& g, const std::vector<int>& columnLefts) const {
    g.ForeColor(lineColor);
    for (const int x : columnLefts)
        g.DrawLine(x, 0, x, g.Height());
    g.ForeColor(TextColor);
}

int ListboxPrintAll::printHeaders(int firstColumn, Graphics& g, float scale, std::vector<int>& columnLefts) const {
    columnLefts.clear();
    setFont(g, *source);
    g.Bold(false);
    g.Italic(false);
    g.Underline(false);
    int x = 0;
    int height = 0;
    for (int column = firstColumn; column < source->ColumnCount(); ++column) {
        const int width = widthOf(column, scale);
        if (source->HasHeading() && width > 0) {
            const std::string& text = source->Heading(column);
            height = std::max(height, heightOf(g, text, width));
            const double textWidth = g.StringWidth(text);
            const int offset = width > textWidth ? static_cast<int>(width / 2.0 - textWidth / 2) : cellMargin;
            DrawString(g, text, x + offset, g.TextAscent(), width);
        }
        columnLefts.push_back(x);
        x += width;
    }
    if (!source->HasHeading())
        return 0;
    g.ForeColor(lineColor);
    g.DrawLine(0, height, g.Width(), height);
    g.ForeColor(TextColor);
    return height;
}

void ListboxPrintAll::printCell(int row, int column, Graphics& g, int x, int y, int width, int& height) const {
    if (width <= 0) // not shown
        return;
    const std::string& text = source->Cell(row, column);
    setFont(g, *source);
    g.Bold(source->CellBold(row, column));
    g.Italic(source->CellItalic(row, column));
    g.Underline(source->CellUnderline(row, column));
    height = heightOf(g, text, width);
    if (row % 2 == 0) {
        g.ForeColor(backColor);
        g.FillRect(x, y, width, height);
    }
    g.ForeColor(TextColor);

    const int textWidth = static_cast<int>(g.StringWidth(text));
    int textX = x + cellMargin;
    if (source->ColumnAlignment(column) == Listbox::AlignCenter)
        textX = x + (width - textWidth) / 2;
    else if (source->ColumnAlignment(column) == Listbox::AlignRight)
        textX = x + width - textWidth - cellMargin;
    if (textX < x)
        textX = x + cellMargin;
    DrawString(g, text, textX, y + g.TextAscent(), width);
}

} // namespace tallyvane

#include "diary/indicators.h"

#include "diary/day_table.h"
#include "platform/base/number.h"
#include "settings/globals.h"

namespace tallyvane::Indicators {

namespace {

constexpr Color evenBand = RGB(217, 233, 255);
constexpr Color oddBand = RGB(255, 255, 255);

/// From the left of the cell: the pictures of both widths stand on one centre line.
double lightLeft(Ranges::Range range) { return range == Ranges::Range::caution || range == Ranges::Range::low ? 2 : 3; }

bool showsLight(int column) { return column >= DayTable::firstReading && column != DayTable::weightColumn; }

} // namespace

std::optional<Ranges::Range> rangeOf(const Listbox& table, int row, int column) {
    const std::string& text = table.Cell(row, column); // "" for a row that does not exist
    const bool shows = Globals::gShowIndicators && showsLight(column) && !text.empty();
    return shows ? Ranges::of(Val(text)) : std::nullopt;
}

std::optional<Picture> getLight(double value) {
    const std::optional<Ranges::Range> range = Ranges::of(value);
    return range ? std::optional(Ranges::picture(*range)) : std::nullopt;
}

void paintCell(Graphics& g, const Listbox& table, int row, int column) {
    g.ForeColor(row % 2 == 0 ? evenBand : oddBand);
    g.FillRect(0, 0, g.Width(), g.Height());
    constexpr double lightTop = 2;
    if (const std::optional<Ranges::Range> range = rangeOf(table, row, column))
        g.DrawPicture(Ranges::picture(*range), lightLeft(*range), lightTop);
}

void colorText(Graphics& g, int column) {
    if (column == DayTable::averageColumn)
        g.ForeColor(averageColor);
    else if (column == DayTable::weightColumn)
        g.ForeColor(weightColor);
}

} // namespace tallyvane::Indicators

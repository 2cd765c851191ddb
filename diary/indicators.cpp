#include "diary/indicators.h"

#include <array>

#include "diary/day_table.h"
#include "platform/number.h"
#include "settings/globals.h"

namespace tallyvane::Indicators {

namespace {

constexpr Color evenBand = RGB(217, 233, 255);
constexpr Color oddBand = RGB(255, 255, 255);

/// A light and its place in the cell, which puts pictures of both widths on one centre line.
struct Light {
    Picture picture;
    double x;
    double y;
};

const Light& lightOf(Range range) {
    static const std::array<Light, 5> lights{
        {{over2, 3, 2}, {caution2, 2, 2}, {zone2, 3, 2}, {low3, 2, 2}, {under3, 3, 2}}};
    return lights.at(static_cast<std::size_t>(range));
}

bool showsLight(int column) { return column >= DayTable::firstReading && column != DayTable::weightColumn; }

} // namespace

std::optional<Range> rangeOf(double value) {
    using namespace Globals;
    if (value >= gOver)
        return Range::over;
    if (value >= gCaution && value < gOver)
        return Range::caution;
    if (value >= gLow && value < gCaution)
        return Range::inZone;
    if (value >= gUnder && value < gLow)
        return Range::low;
    if (value < gUnder)
        return Range::under;
    return std::nullopt;
}

std::optional<Range> rangeOf(const Listbox& table, int row, int column) {
    const std::string& text = table.Cell(row, column); // "" for a row that does not exist
    const bool shows = Globals::gShowIndicators && showsLight(column) && !text.empty();
    return shows ? rangeOf(Val(text)) : std::nullopt;
}

std::optional<Picture> getLight(double value) {
    const std::optional<Range> range = rangeOf(value);
    return range ? std::optional(lightOf(*range).picture) : std::nullopt;
}

void paintCell(Graphics& g, const Listbox& table, int row, int column) {
    g.ForeColor(row % 2 == 0 ? evenBand : oddBand);
    g.FillRect(0, 0, g.Width(), g.Height());
    if (const std::optional<Range> range = rangeOf(table, row, column)) {
        const Light& light = lightOf(*range);
        g.DrawPicture(light.picture, light.x, light.y);
    }
}

void colorText(Graphics& g, int column) {
    if (column == DayTable::averageColumn)
        g.ForeColor(averageColor);
    else if (column == DayTable::weightColumn)
        g.ForeColor(weightColor);
}

} // namespace tallyvane::Indicators

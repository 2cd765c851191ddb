#include "settings/ranges.h"

#include "platform/base/translation.h"
#include "settings/globals.h"

namespace tallyvane::Ranges {

namespace {

struct Look {
    const Picture* picture;
    const char* title;
    const char* words;
};

const Look& lookOf(Range range) {
    static const std::array<Look, all.size()> looks{{
        {&over2, "Too High", "too high"},
        {&caution2, "High", "high"},
        {&zone2, "Target Zone", "in target zone"},
        {&low3, "Low", "low"},
        {&under3, "Too Low", "too low"},
    }};
    return looks.at(static_cast<std::size_t>(range));
}

} // namespace

std::optional<Range> of(double value) {
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

const Picture& picture(Range range) { return *lookOf(range).picture; }

std::string title(Range range) { return tr(lookOf(range).title); }

std::string words(Range range) { return tr(lookOf(range).words); }

} // namespace tallyvane::Ranges

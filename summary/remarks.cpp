#include "summary/remarks.h"

#include <algorithm>
#include <cstddef>
#include <optional>

#include "platform/base/number.h"
#include "platform/base/translation.h"
#include "settings/globals.h"

namespace tallyvane::Summary {

namespace {

constexpr int enoughForATime = 5;
constexpr int enoughForAll = 14;

using Remark = std::optional<std::string>;

Remark tooLow(const PeriodSummary& summary) {
    const int count = summary.all().in(Ranges::Range::under);
    if (count == 0)
        return std::nullopt;
    const Reading& lowest = *summary.all().lowest;
    const std::string when = summary.names.words[static_cast<std::size_t>(lowest.testPeriod)];
    const std::string value = Str(lowest.value) + " " + nameOf(summary.unit);
    const std::string where =
        lowest.day ? tr("%1 %2 on %3", {value, when, lowest.day->AbbreviatedDate()}) : tr("%1 %2", {value, when});
    const std::string limit = valueWithUnit(Globals::gUnder, summary.unit);
    return count == 1 ? tr("1 reading was below %1: %2.", {limit, where})
                      : tr("%1 readings were below %2, the lowest %3.", {Grouped(count), limit, where});
}

Remark highestTime(const PeriodSummary& summary) {
    std::size_t highest = 0;
    int times = 0;
    for (std::size_t i = 1; i <= testPeriods; ++i) {
        if (summary.samples[i].figures.count < enoughForATime)
            continue;
        ++times;
        if (highest == 0 || summary.samples[i].figures.median > summary.samples[highest].figures.median)
            highest = i;
    }
    const Sample& sample = summary.samples[highest];
    if (times < 2 || 2 * sample.above() <= sample.figures.count)
        return std::nullopt;
    return tr("%1 is your highest time: median %2, %3 of %4 readings above your target zone.",
              {summary.names.title[highest], valueWithUnit(sample.figures.median, summary.unit),
               Grouped(sample.above()), Grouped(sample.figures.count)});
}

Remark spread(const PeriodSummary& summary) {
    constexpr double wide = 0.36;
    constexpr double percent = 100;
    const Figures& figures = summary.all().figures;
    if (figures.count < enoughForAll || figures.variation().value_or(0) <= wide)
        return std::nullopt;
    return tr("Your readings lie far apart: the spread is %1\u00a0% of the mean.",
              {Format(*figures.variation() * percent, "0")});
}

Remark rarelyAfterMeals(const PeriodSummary& summary) {
    const int all = summary.all().figures.count;
    const int after =
        summary.samples[2].figures.count + summary.samples[4].figures.count + summary.samples[6].figures.count;
    if (all < enoughForAll || 10 * after >= all || !summary.names.areUsual)
        return std::nullopt;
    return after == 0 ? tr("You did not measure after meals: nothing is known of these times.")
                      : tr("After meals you measured rarely: the figures of these times rest on few readings.");
}

Remark fewDays(const PeriodSummary& summary) {
    if (2 * summary.all().days >= summary.dayCount)
        return std::nullopt;
    return tr("There are readings on %1 of %2 days: of the other days nothing is known.",
              {Grouped(summary.all().days), Grouped(summary.dayCount)});
}

std::string inTargetZone(const PeriodSummary& summary) {
    return tr("%1 of %2 readings are in your target zone.",
              {Grouped(summary.all().within()), Grouped(summary.all().figures.count)});
}

} // namespace

std::vector<std::string> remarksOn(const PeriodSummary& summary) {
    std::vector<std::string> remarks;
    if (summary.all().figures.count == 0)
        return remarks;
    if (summary.isOfOtherUnit())
        return {tr("Your limits are in %1, and these readings can't be: no range fits them. Set your limits in the "
                   "Preferences.",
                   {nameOf(summary.unit)})};
    if (summary.ofOtherUnit > 0)
        remarks.push_back(summary.ofOtherUnit == 1
                              ? tr("1 reading can't be in %1, the unit of your limits: look at its day first.",
                                   {nameOf(summary.unit)})
                              : tr("%1 readings can't be in %2, the unit of your limits: look at their days first.",
                                   {Grouped(summary.ofOtherUnit), nameOf(summary.unit)}));
    for (Remark& remark : std::vector{tooLow(summary), highestTime(summary), spread(summary)})
        if (remark)
            remarks.push_back(std::move(*remark));
    if (remarks.empty())
        remarks.push_back(inTargetZone(summary));
    for (Remark& remark : std::vector{rarelyAfterMeals(summary), fewDays(summary)})
        if (remark)
            remarks.push_back(std::move(*remark));
    return remarks;
}

} // namespace tallyvane::Summary

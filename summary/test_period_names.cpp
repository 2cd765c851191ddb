#include "summary/test_period_names.h"

#include <cstddef>

#include "platform/base/translation.h"
#include "settings/headings.h"

namespace tallyvane::Summary {

namespace {

TestPeriodNames usualNames() {
    return {{tr("All readings"), tr("Before breakfast"), tr("After breakfast"), tr("Before lunch"), tr("After lunch"),
             tr("Before supper"), tr("After supper"), tr("Before bed")},
            {tr("all readings"), tr("before breakfast"), tr("after breakfast"), tr("before lunch"), tr("after lunch"),
             tr("before supper"), tr("after supper"), tr("before bed")},
            {tr("Breakfast"), tr("Lunch"), tr("Supper")},
            {tr("all"), tr("before"), tr("after"), tr("before"), tr("after"), tr("before"), tr("after"), tr("bed")}};
}

} // namespace

TestPeriodNames testPeriodNames() {
    TestPeriodNames names = usualNames();
    const Headings usual = defaultHeadings();
    const Headings headings = readHeadings().value_or(usual);
    constexpr std::size_t bedtime = testPeriods;
    for (std::size_t testPeriod = 1; testPeriod <= bedtime; ++testPeriod) {
        const std::size_t meal = (testPeriod - 1) / 2;
        const std::size_t column = headingGroups + testPeriod - 1;
        const bool isOwnMeal = testPeriod < bedtime && headings[meal] != usual[meal];
        if (!isOwnMeal && headings[column] == usual[column])
            continue;
        const std::string name = testPeriod < bedtime ? headings[meal] + " " + headings[column] : headings[column];
        names.areUsual = false;
        names.title[testPeriod] = name;
        names.words[testPeriod] = name;
        names.brief[testPeriod] = headings[column];
        if (testPeriod < bedtime)
            names.meals[meal] = headings[meal];
    }
    return names;
}

} // namespace tallyvane::Summary
